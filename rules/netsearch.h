// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <VakUtils/signalitem.h>

#include <QList>
#include <QRegExp>
#include <QString>

namespace NETCATCHER {
class Hierachy;
class RtlNet;
class RtlNetBus;
class RtlNetlist;
} // namespace NETCATCHER

namespace RTLVAK {

/// What to look for, and where.
struct SearchCriteria
{
    QString pattern; ///< matches everything when empty
    bool caseSensitive = false;
    bool plainText = true;                                 ///< the pattern occurs anywhere in the full name
    QRegExp::PatternSyntax syntax = QRegExp::WildcardUnix; ///< else the pattern matches the whole full name
    NETCATCHER::Hierachy *scope = nullptr;                 ///< null: the top node
    bool includeSub = true;                                ///< also what lies below the scope
};

/// Matches in the library's order.
struct SearchHits
{
    QList<NETCATCHER::RtlNetBus *> buses;
    QList<NETCATCHER::RtlNet *> nets;
};

/// One node of a hierarchy search with its own matches. Nodes without matches are there too.
struct HierarchyHits
{
    NETCATCHER::Hierachy *node = nullptr;
    SearchHits hits;
    QList<HierarchyHits> children;
};

/// Makes searches of a netlist fast: while it lives, what the first one learns of the names is kept for the next ones.
/// It belongs to the owner of the netlist and goes before the netlist does.
class SearchIndex
{
public:
    explicit SearchIndex(const NETCATCHER::RtlNetlist *netlist);
    ~SearchIndex();
    SearchIndex(const SearchIndex &) = delete;
    SearchIndex &operator=(const SearchIndex &) = delete;

private:
    const NETCATCHER::RtlNetlist *key;
};

/// The node whose path from the top is `path` (`u_core/u_alu`): the top node for an empty path or the top's name, null
/// when there is no such instance.
NETCATCHER::Hierachy *findScope(const NETCATCHER::RtlNetlist *netlist, const QString &path);

/// Why the pattern is no valid wildcard or regular expression; empty when it is one, and for plain text.
QString patternError(const SearchCriteria &criteria);

/// The single nets and buses of the scope that match; nothing without a netlist or for an invalid pattern.
SearchHits searchFlat(const NETCATCHER::RtlNetlist *netlist, const SearchCriteria &criteria);

/// The same node by node, beginning with the scope; `node` is null without a netlist.
HierarchyHits searchHierarchy(const NETCATCHER::RtlNetlist *netlist, const SearchCriteria &criteria);

/// The record of a net: kind -1, enabled unless the netlist marks it unusable.
VAK::SignalItem signalItem(const NETCATCHER::RtlNet *net);
/// The record of a bus: kind 1, one member per bit.
VAK::SignalItem signalItem(const NETCATCHER::RtlNetBus *bus);
/// The records of all matches, buses before single nets.
QList<VAK::SignalItem> signalItems(const SearchHits &hits);

} // namespace RTLVAK

// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "rules/netsearch.h"

#include <netcatcher/rtlnetlist.h>

namespace RTLVAK {

namespace private_impl {

/// Decides on full names. The two calls in matches() define what a search finds.
class NameMatcher
{
public:
    explicit NameMatcher(const SearchCriteria &searchCriteria)
        : criteria(searchCriteria)
        , caseSensitivity(criteria.caseSensitive ? Qt::CaseSensitive : Qt::CaseInsensitive)
        , expression(criteria.pattern, caseSensitivity, criteria.syntax)
    {
    }

    bool matches(const QString &fullName) const
    {
        if (criteria.pattern.isEmpty())
            return true;
        return criteria.plainText ? fullName.contains(criteria.pattern, caseSensitivity)
                                  : expression.exactMatch(fullName);
    }

    SearchHits select(const QList<NETCATCHER::RtlNetBus *> &buses, const QList<NETCATCHER::RtlNet *> &nets) const
    {
        SearchHits hits;
        for (NETCATCHER::RtlNetBus *bus : buses) {
            if (matches(bus->fullBusName()))
                hits.buses.append(bus);
        }
        for (NETCATCHER::RtlNet *net : nets) {
            if (matches(net->fullPathName()))
                hits.nets.append(net);
        }
        return hits;
    }

private:
    const SearchCriteria &criteria;
    Qt::CaseSensitivity caseSensitivity;
    QRegExp expression;
};

static HierarchyHits searchNode(NETCATCHER::Hierachy *node, const NameMatcher &matcher, bool includeSub)
{
    HierarchyHits result;
    result.node = node;
    result.hits = matcher.select(node->netbuses(), node->singleNets());
    if (!includeSub)
        return result;
    const QList<NETCATCHER::Hierachy *> children = node->children();
    for (NETCATCHER::Hierachy *child : children)
        result.children.append(searchNode(child, matcher, true));
    return result;
}

static NETCATCHER::Hierachy *scopeOf(const NETCATCHER::RtlNetlist *netlist, const SearchCriteria &criteria)
{
    return criteria.scope ? criteria.scope : netlist->topHierarchy();
}

/// Instance names may hold slashes themselves, so every child that fits is tried.
static NETCATCHER::Hierachy *findBelow(NETCATCHER::Hierachy *node, const QString &path)
{
    const QList<NETCATCHER::Hierachy *> children = node->children();
    for (NETCATCHER::Hierachy *child : children) {
        const QString name = child->name();
        if (path == name)
            return child;
        if (!path.startsWith(name + QLatin1Char('/')))
            continue;
        if (NETCATCHER::Hierachy *found = findBelow(child, path.mid(name.size() + 1)))
            return found;
    }
    return nullptr;
}

} // namespace private_impl

NETCATCHER::Hierachy *findScope(const NETCATCHER::RtlNetlist *netlist, const QString &path)
{
    if (!netlist)
        return nullptr;
    NETCATCHER::Hierachy *top = netlist->topHierarchy();
    NETCATCHER::Hierachy *found = path.isEmpty() ? top : private_impl::findBelow(top, path);
    return !found && path == top->name() ? top : found;
}

QString patternError(const SearchCriteria &criteria)
{
    if (criteria.plainText)
        return {};
    const QRegExp expression(criteria.pattern, Qt::CaseSensitive, criteria.syntax);
    return expression.isValid() ? QString() : expression.errorString();
}

SearchHits searchFlat(const NETCATCHER::RtlNetlist *netlist, const SearchCriteria &criteria)
{
    if (!netlist)
        return {};
    const NETCATCHER::Hierachy *scope = private_impl::scopeOf(netlist, criteria);
    const private_impl::NameMatcher matcher(criteria);
    return criteria.includeSub ? matcher.select(scope->netbusesIncludeSub(), scope->singleNetsIncludeSub())
                               : matcher.select(scope->netbuses(), scope->singleNets());
}

HierarchyHits searchHierarchy(const NETCATCHER::RtlNetlist *netlist, const SearchCriteria &criteria)
{
    if (!netlist)
        return {};
    return private_impl::searchNode(private_impl::scopeOf(netlist, criteria), private_impl::NameMatcher(criteria),
                                    criteria.includeSub);
}

VAK::SignalItem signalItem(const NETCATCHER::RtlNet *net)
{
    VAK::SignalItem record;
    record.name = net->fullPathName();
    record.enabled = !net->isUnusable();
    return record;
}

VAK::SignalItem signalItem(const NETCATCHER::RtlNetBus *bus)
{
    VAK::SignalItem record;
    record.name = bus->fullBusName();
    record.enabled = !bus->isUnusable();
    record.kind = 1;
    const QList<NETCATCHER::RtlNet *> bits = bus->nets();
    record.members.reserve(bits.size());
    for (const NETCATCHER::RtlNet *bit : bits)
        record.members.append(signalItem(bit));
    return record;
}

QList<VAK::SignalItem> signalItems(const SearchHits &hits)
{
    QList<VAK::SignalItem> records;
    records.reserve(hits.buses.size() + hits.nets.size());
    for (const NETCATCHER::RtlNetBus *bus : hits.buses)
        records.append(signalItem(bus));
    for (const NETCATCHER::RtlNet *net : hits.nets)
        records.append(signalItem(net));
    return records;
}

} // namespace RTLVAK

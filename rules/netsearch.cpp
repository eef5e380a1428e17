// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "rules/netsearch.h"

#include "rules/search/indexedsearch.h"

#include <netcatcher/rtlnetlist.h>

#include <QStringList>

#include <algorithm>
#include <iterator>
#include <memory>
#include <optional>
#include <unordered_map>

namespace RTLVAK {

namespace private_impl {

using KeptIndexes = std::unordered_map<const NETCATCHER::RtlNetlist *, std::unique_ptr<NetIndex>>;

/// The indexes that somebody keeps, by their netlists; null until the first search.
static KeptIndexes &keptIndexes()
{
    static KeptIndexes indexes;
    return indexes;
}

static const NetIndex *indexOf(const NETCATCHER::RtlNetlist &netlist)
{
    const auto kept = keptIndexes().find(&netlist);
    if (kept == keptIndexes().end())
        return nullptr;
    if (!kept->second)
        kept->second = std::make_unique<NetIndex>(netlist);
    return kept->second.get();
}

template <typename Item>
static QList<Item *> select(const QList<Item *> &items, const NameMatcher &matcher)
{
    if (matcher.isEverything())
        return items;
    QList<Item *> selected;
    std::copy_if(items.begin(), items.end(), std::back_inserter(selected),
                 [&matcher](const Item *item) { return matcher.matches(fullName(item)); });
    return selected;
}

/// One search: by the index where there is one and it helps, else name by name.
class Search
{
public:
    Search(const NETCATCHER::RtlNetlist &netlist, const SearchCriteria &searchCriteria)
        : criteria(searchCriteria)
        , matcher(searchCriteria)
        , scope(criteria.scope ? criteria.scope : netlist.topHierarchy())
    {
        const QStringList texts = matcher.isEverything() ? QStringList() : matcher.texts();
        const NetIndex *index = texts.isEmpty() ? nullptr : indexOf(netlist);
        firstNode = index ? index->numberOf(scope) : 0;
        if (index && firstNode < index->nodeCount())
            indexed.emplace(*index, matcher, texts);
    }

    SearchHits flat()
    {
        if (!criteria.includeSub)
            return ofNode(scope, firstNode);
        if (!indexed)
            return {select(scope->netbusesIncludeSub(), matcher), select(scope->singleNetsIncludeSub(), matcher)};
        SearchHits hits;
        indexed->selectBelow(firstNode, &hits);
        return hits;
    }

    HierarchyHits hierarchy()
    {
        quint32 number = firstNode;
        return below(scope, &number);
    }

private:
    SearchHits ofNode(const NETCATCHER::Hierachy *node, quint32 number)
    {
        if (!indexed)
            return {select(node->netbuses(), matcher), select(node->singleNets(), matcher)};
        SearchHits hits;
        indexed->select(number, &hits);
        return hits;
    }

    /// `number` is the node's, and the next one's afterwards.
    HierarchyHits below(NETCATCHER::Hierachy *node, quint32 *number)
    {
        HierarchyHits result{node, ofNode(node, (*number)++), {}};
        if (!criteria.includeSub)
            return result;
        const QList<NETCATCHER::Hierachy *> children = node->children();
        for (NETCATCHER::Hierachy *child : children)
            result.children.append(below(child, number));
        return result;
    }

    const SearchCriteria &criteria;
    NameMatcher matcher;
    NETCATCHER::Hierachy *scope;
    quint32 firstNode = 0; ///< the scope's number in the index
    std::optional<IndexedSearch> indexed;
};

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

SearchIndex::SearchIndex(const NETCATCHER::RtlNetlist *netlist)
    : key(netlist)
{
    private_impl::keptIndexes().try_emplace(key);
}

SearchIndex::~SearchIndex()
{
    private_impl::keptIndexes().erase(key);
}

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
    return netlist ? private_impl::Search(*netlist, criteria).flat() : SearchHits();
}

HierarchyHits searchHierarchy(const NETCATCHER::RtlNetlist *netlist, const SearchCriteria &criteria)
{
    return netlist ? private_impl::Search(*netlist, criteria).hierarchy() : HierarchyHits();
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

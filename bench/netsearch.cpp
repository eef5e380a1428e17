// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

// Searches in netlists of ten thousand to a million nets: with the index beside asking each name, the first search,
// which makes the index, and the size of the index. Then looking nets up by their paths. Prints ratios of one run.

#include "rules/netsearch.h"
#include "hostlibs/netcatcher/store/netstore.h"

#include <QElapsedTimer>
#include <QRegExp>
#include <QStringList>

#include <algorithm>
#include <cstdio>
#include <functional>
#include <memory>

#include <malloc.h>

using NETCATCHER::ModuleDef;
using NETCATCHER::ModuleTable;
using NETCATCHER::RtlNetlist;
using RTLVAK::SearchCriteria;
using RTLVAK::SearchHits;

constexpr int netsOfLeaf = 200;
constexpr int leavesOfMiddle = 50;

static ModuleDef leaf(const QByteArray &id)
{
    ModuleDef module;
    module.name = QStringLiteral("leaf");
    for (int i = 0; i < netsOfLeaf / 2; ++i) {
        module.addSingle("Stage" + id + "_s" + QByteArray::number(i), false);
        module.addBus("pipe" + id + "_b" + QByteArray::number(i), 7, 0, false);
    }
    module.addSingle("clk", false);
    return module;
}

static std::unique_ptr<RtlNetlist> wrap(ModuleTable table)
{
    QString error;
    auto data = std::make_unique<RtlNetlist::Data>();
    data->store = NETCATCHER::NetStore::build(std::move(table), &error);
    return std::make_unique<RtlNetlist>(std::move(data));
}

/// Instances of one leaf, or each leaf with names of its own.
static std::unique_ptr<RtlNetlist> makeNetlist(int nets, bool areAllAlike)
{
    const int middles = nets / (netsOfLeaf * leavesOfMiddle);
    ModuleTable table;
    table.modules.resize(1);
    table.modules[0].name = QStringLiteral("top");
    if (areAllAlike)
        table.modules.push_back(leaf({}));
    for (int i = 0; i < middles; ++i) {
        ModuleDef middle;
        middle.name = QStringLiteral("middle");
        for (int k = 0; k < leavesOfMiddle; ++k) {
            if (!areAllAlike)
                table.modules.push_back(leaf(QByteArray::number(i) + 'x' + QByteArray::number(k)));
            const auto leafModule = quint32(areAllAlike ? 1 : table.modules.size() - 1);
            middle.children.push_back({"u" + QByteArray::number(k), leafModule});
        }
        table.modules[0].children.push_back({"m" + QByteArray::number(i), quint32(table.modules.size())});
        table.modules.push_back(middle);
    }
    return wrap(std::move(table));
}

static double milliseconds(const std::function<void()> &work)
{
    QElapsedTimer timer;
    timer.start();
    work();
    return double(timer.nsecsElapsed()) / 1e6;
}

static double heapBytes()
{
    const struct mallinfo2 info = mallinfo2();
    return double(info.uordblks) + double(info.hblkhd);
}

/// What an index is for: each name is made and asked.
static SearchHits searchByName(const RtlNetlist &netlist, const SearchCriteria &criteria)
{
    const auto sensitivity = criteria.caseSensitive ? Qt::CaseSensitive : Qt::CaseInsensitive;
    const QRegExp expression(criteria.pattern, sensitivity, criteria.syntax);
    const auto matches = [&](const QString &name) {
        return criteria.plainText ? name.contains(criteria.pattern, sensitivity) : expression.exactMatch(name);
    };
    SearchHits hits;
    const auto buses = netlist.topHierarchy()->netbusesIncludeSub();
    for (NETCATCHER::RtlNetBus *bus : buses) {
        if (matches(bus->fullBusName()))
            hits.buses.append(bus);
    }
    const auto nets = netlist.topHierarchy()->singleNetsIncludeSub();
    for (NETCATCHER::RtlNet *net : nets) {
        if (matches(net->fullPathName()))
            hits.nets.append(net);
    }
    return hits;
}

struct Query
{
    const char *what;
    const char *pattern;
    enum { Plain, Wildcard, RegExp } syntax;
    bool caseSensitive;
};

static const Query queries[] = {{"nothing", "no_such_net", Query::Plain, false},
                                {"nothing, with case", "no_such_net", Query::Plain, true},
                                {"rare", "m0/u3/stage", Query::Plain, false},
                                {"across the seam", "0/u3/pipe_b9", Query::Plain, false},
                                {"in each instance", "clk", Query::Plain, false},
                                {"half of all", "stage", Query::Plain, false},
                                {"wildcard, begins", "m0/u3/*s9?", Query::Wildcard, false},
                                {"wildcard, anywhere", "*clk*", Query::Wildcard, false},
                                {"wildcard without text", "*/?[0-9]/*", Query::Wildcard, false},
                                {"expression", "m0/.*_b9\\d\\[7:0\\]", Query::RegExp, true},
                                {"expression, group", ".*(clk|rst)_?n?", Query::RegExp, false}};

static SearchCriteria criteriaOf(const Query &query)
{
    SearchCriteria criteria;
    criteria.pattern = QLatin1String(query.pattern);
    criteria.caseSensitive = query.caseSensitive;
    criteria.plainText = query.syntax == Query::Plain;
    criteria.syntax = query.syntax == Query::RegExp ? QRegExp::RegExp : QRegExp::WildcardUnix;
    return criteria;
}

static void measureSearches(int nets, bool areAllAlike)
{
    const auto netlist = makeNetlist(nets, areAllAlike);
    std::printf("%d nets in %s\n", nets, areAllAlike ? "equal instances" : "instances that are all different");
    SearchHits hits;
    const SearchCriteria nothing = criteriaOf(queries[0]);
    searchByName(*netlist, nothing); // the library makes its lists
    const double plain = milliseconds([&] { hits = searchByName(*netlist, nothing); });
    const double before = heapBytes();
    const RTLVAK::SearchIndex index(netlist.get());
    const double first = milliseconds([&] { hits = RTLVAK::searchFlat(netlist.get(), nothing); });
    std::printf("  %-28s %10s %9.2f ms %9.2f ms %7.1f x, index %.1f bytes a net\n", "first search", "", plain, first,
                plain / first, (heapBytes() - before) / nets);
    for (const Query &query : queries) {
        const SearchCriteria criteria = criteriaOf(query);
        const double byName = milliseconds([&] { hits = searchByName(*netlist, criteria); });
        const double indexed = milliseconds([&] { hits = RTLVAK::searchFlat(netlist.get(), criteria); });
        std::printf("  %-28s %5d hits %9.2f ms %9.2f ms %7.1f x\n", query.what, hits.buses.size() + hits.nets.size(),
                    byName, indexed, byName / indexed);
    }
}

/// Looks up as many paths as the largest core captures signals.
static void measureLookUps(const char *what, const RtlNetlist &netlist)
{
    constexpr int lookUps = 65536;
    constexpr int lookUpsByName = 64;
    const auto nets = netlist.topHierarchy()->singleNetsIncludeSub();
    QStringList paths;
    for (int i = 0; i < lookUps; ++i)
        paths.append(nets.at(int((i * 7919LL) % nets.size()))->fullPathName());
    int found = 0;
    const double byName = milliseconds([&] {
        for (int i = 0; i < lookUpsByName; ++i)
            found +=
                std::any_of(nets.begin(), nets.end(), [&](const auto *net) { return net->fullPathName() == paths[i]; });
    });
    const double first = milliseconds([&] { found += netlist.findNet(paths.first()) ? 1 : 0; });
    const double ours = milliseconds([&] {
        for (const QString &path : qAsConst(paths))
            found += netlist.findNet(path) ? 1 : 0;
    });
    const double ratio = byName / lookUpsByName / (ours / lookUps);
    std::printf("%s\n  %d look-ups, %d found: %.2f us each, %.0f times faster than name by name; the first %.2f ms\n",
                what, lookUps, found - lookUpsByName - 1, ours * 1e3 / lookUps, ratio, first);
}

static std::unique_ptr<RtlNetlist> makeFlat(int nets)
{
    ModuleTable table;
    table.modules.resize(1);
    for (int i = 0; i < nets; ++i)
        table.modules[0].addSingle("net_" + QByteArray::number(i), false);
    return wrap(std::move(table));
}

static std::unique_ptr<RtlNetlist> makeSiblings(int instances)
{
    ModuleTable table;
    table.modules = {ModuleDef(), leaf({})};
    for (int i = 0; i < instances; ++i)
        table.modules[0].children.push_back({"u" + QByteArray::number(i), 1});
    return wrap(std::move(table));
}

int main()
{
    measureLookUps("100000 nets in one module", *makeFlat(100000));
    measureLookUps("5000 instances below the top", *makeSiblings(5000));
    measureLookUps("5000 instances on two levels", *makeNetlist(1000000, true));
    for (const int nets : {10000, 100000, 1000000}) {
        for (const bool areAllAlike : {true, false})
            measureSearches(nets, areAllAlike);
    }
    return 0;
}

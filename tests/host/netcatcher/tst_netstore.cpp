// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "hostlibs/netcatcher/store/netstore.h"

#include <QFile>
#include <QtTest>

#include <malloc.h>
#include <unistd.h>

using namespace NETCATCHER;

class TestNetStore : public QObject
{
    Q_OBJECT

private slots:
    void listsKeepTheOrderOfTheSource();
    void includeSubListsAreDepthFirst();
    void handlesAreStableAndEightBytes();
    void bitsAreMadeOnceAndOnDemand();
    void netsOfSeveralNetlistsAreToldApart();
    void namesThatLookAlike();
    void escapedNamesMayHoldSlashes();
    void firstOfTwoInstancesThatFitIsTaken();
    void everyNetIsFoundByItsPath();
    void busesWithoutBitsOwnNone();
    void equalNamesGiveTheFirst();
    void moduleInsideItselfIsRefused();
    void tooManyInstancesAreRefused();
    void jtagPrimitiveBelowTheTop();
    void extremeRanges();
    void aMillionNetsTakeLittleMemory();
};

static std::unique_ptr<RtlNetlist> makeNetlist(ModuleTable table)
{
    QString error;
    auto data = std::make_unique<RtlNetlist::Data>();
    data->store = NetStore::build(std::move(table), &error);
    return data->store ? std::make_unique<RtlNetlist>(std::move(data)) : nullptr;
}

static ModuleDef module(const QString &name, const QList<QByteArray> &singles = {})
{
    ModuleDef def;
    def.name = name;
    for (const QByteArray &single : singles)
        def.addSingle(single, false);
    return def;
}

/// top: a, v[2:0], two instances of mid; mid: m, one leaf; leaf: l, w[0:1].
static ModuleTable threeLevels()
{
    ModuleTable table;
    ModuleDef top = module("top", {"a"});
    top.addBus("v", 2, 0, false);
    top.children = {{"u1", 1}, {"u2", 1}};
    ModuleDef mid = module("mid", {"m"});
    mid.children = {{"x", 2}};
    ModuleDef leaf = module("leaf", {"l"});
    leaf.addBus("w", 0, 1, true);
    table.modules = {top, mid, leaf};
    return table;
}

template <typename T>
static QStringList paths(const QList<T *> &nets)
{
    QStringList result;
    for (const T *net : nets) {
        if constexpr (std::is_same_v<T, RtlNet>)
            result.append(net->fullPathName());
        else
            result.append(net->fullBusName());
    }
    return result;
}

void TestNetStore::listsKeepTheOrderOfTheSource()
{
    ModuleTable table;
    table.modules = {module("top", {"z", "a", "m", "B", "aa"})};
    const auto netlist = makeNetlist(table);
    QCOMPARE(paths(netlist->topHierarchy()->singleNets()), QStringList({"z", "a", "m", "B", "aa"}));
    QVERIFY(netlist->findNet("aa") && netlist->findNet("B") && !netlist->findNet("b"));
}

void TestNetStore::includeSubListsAreDepthFirst()
{
    const auto netlist = makeNetlist(threeLevels());
    Hierachy *top = netlist->topHierarchy();
    QCOMPARE(paths(top->singleNetsIncludeSub()), QStringList({"a", "u1/m", "u1/x/l", "u2/m", "u2/x/l"}));
    QCOMPARE(paths(top->netbusesIncludeSub()), QStringList({"v[2:0]", "u1/x/w[0:1]", "u2/x/w[0:1]"}));
    Hierachy *second = top->children().at(1);
    QCOMPARE(paths(second->singleNetsIncludeSub()), QStringList({"u2/m", "u2/x/l"}));
    QCOMPARE(paths(second->netbusesIncludeSub()), QStringList("u2/x/w[0:1]"));
    QCOMPARE(paths(second->netbuses()), QStringList());
    QCOMPARE(second->children().first()->parent(), second);
    QCOMPARE(second->children().first()->name(), QString("x"));
    QCOMPARE(second->children().first()->module(), QString("leaf"));
}

void TestNetStore::handlesAreStableAndEightBytes()
{
    QCOMPARE(sizeof(RtlNet), std::size_t(8));
    const auto netlist = makeNetlist(threeLevels());
    Hierachy *top = netlist->topHierarchy();
    QCOMPARE(top->singleNetsIncludeSub(), top->singleNetsIncludeSub());
    QCOMPARE(top->singleNetsIncludeSub().last(), top->children().at(1)->children().first()->singleNets().first());
    QCOMPARE(netlist->findNet("u2/x/l"), top->singleNetsIncludeSub().last());
}

void TestNetStore::bitsAreMadeOnceAndOnDemand()
{
    const auto netlist = makeNetlist(threeLevels());
    RtlNetBus *bus = netlist->topHierarchy()->netbusesIncludeSub().last();
    RtlNet *found = netlist->findNet("u2/x/w[1]");
    QCOMPARE(paths(bus->nets()), QStringList({"u2/x/w[0]", "u2/x/w[1]"}));
    QCOMPARE(bus->nets().last(), found);
    QVERIFY(found->isUnusable() && bus->isUnusable());
    QVERIFY(!netlist->findNet("v[2]")->isUnusable());
    QCOMPARE(netlist->findNet("u1/x/w[1]")->fullPathName(), QString("u1/x/w[1]"));
}

void TestNetStore::netsOfSeveralNetlistsAreToldApart()
{
    auto first = makeNetlist(threeLevels());
    ModuleTable other;
    other.modules = {module("other", {"b"})};
    const auto second = makeNetlist(other);
    RtlNet *net = second->findNet("b");
    QCOMPARE(first->findNet("a")->fullPathName(), QString("a"));
    first.reset();
    QCOMPARE(net->fullPathName(), QString("b"));
}

void TestNetStore::namesThatLookAlike()
{
    ModuleTable table;
    ModuleDef top = module("top", {"a", "a[1]", "ab"});
    top.addBus("a", 1, 0, false);
    top.addBus("a[1]", 3, 2, false);
    table.modules = {top};
    const auto netlist = makeNetlist(table);
    Hierachy *node = netlist->topHierarchy();
    QCOMPARE(netlist->findNet("a[1]"), node->singleNets().at(1));
    QCOMPARE(netlist->findNet("a[0]"), node->netbuses().first()->nets().last());
    QCOMPARE(netlist->findNet("a[1][3]"), node->netbuses().last()->nets().first());
    for (const char *absent : {"a[2]", "a[ 0]", "a[+0]", "a[00]", "a[-0]", "a[0", "a0]", "[0]", "a[0] ", "A[0]"})
        QVERIFY2(!netlist->findNet(absent), absent);
}

void TestNetStore::escapedNamesMayHoldSlashes()
{
    ModuleTable table;
    ModuleDef top = module("top", {"u/n", "x"});
    top.children = {{"u", 1}, {"u/v", 1}};
    table.modules = {top, module("leaf", {"n", "v/q", "own"})};
    const auto netlist = makeNetlist(table);
    QCOMPARE(netlist->findNet("u/n"), netlist->topHierarchy()->singleNets().first());
    QVERIFY(netlist->findNet("u/v/q"));
    QCOMPARE(netlist->findNet("u/v/own"), netlist->topHierarchy()->children().at(1)->singleNets().last());
}

void TestNetStore::firstOfTwoInstancesThatFitIsTaken()
{
    for (const bool isLongNameFirst : {true, false}) {
        ModuleTable table;
        ModuleDef top = module("top");
        top.children = {{"u/v", 1}, {"u", 2}, {"u/v", 1}};
        if (!isLongNameFirst)
            std::swap(top.children[0], top.children[1]);
        table.modules = {top, module("leaf", {"n"}), module("other", {"v/n"})};
        const auto netlist = makeNetlist(table);
        QCOMPARE(netlist->findNet("u/v/n"), netlist->topHierarchy()->singleNetsIncludeSub().first());
    }
}

/// Siblings of different sizes, not in the order of their names, and one with no name.
void TestNetStore::everyNetIsFoundByItsPath()
{
    ModuleTable table;
    ModuleDef top = module("top", {"a"});
    top.children = {{"z", 1}, {"m", 2}, {"y", 1}, {"", 2}, {"a", 2}, {"b", 1}};
    ModuleDef mid = module("mid", {"m"});
    mid.children = {{"u2", 2}, {"u10", 2}, {"u1", 2}};
    table.modules = {top, mid, module("leaf", {"l", "k"})};
    const auto netlist = makeNetlist(table);
    const QList<RtlNet *> nets = netlist->topHierarchy()->singleNetsIncludeSub();
    QCOMPARE(nets.size(), 1 + 3 * (1 + 3 * 2) + 3 * 2);
    for (RtlNet *net : nets)
        QCOMPARE(netlist->findNet(net->fullPathName()), net);
    for (const char *absent : {"z/l", "m/m", "u1/l", "z/u3/l", "z/u/l", "zz/m", "/", "//l", "z/", "z/u1", "y//u1/l"})
        QVERIFY2(!netlist->findNet(absent), absent);
}

void TestNetStore::busesWithoutBitsOwnNone()
{
    ModuleTable table;
    ModuleDef top = module("top");
    top.addWhole("mem[0:3][7:0]", BusDef::Memory);
    top.addBus("a", 1, 0, false);
    top.addWhole("ram[0:1]", BusDef::Memory);
    top.addBus("huge", qint32(maxBusBits), 0, false);
    top.addBus("b", 5, 4, false);
    table.modules = {top};
    const auto netlist = makeNetlist(table);
    QCOMPARE(paths(netlist->topHierarchy()->netbuses()),
             QStringList({"mem[0:3][7:0]", "a[1:0]", "ram[0:1]", "huge[1048576:0]", "b[5:4]"}));
    QList<int> counts;
    for (const RtlNetBus *bus : netlist->topHierarchy()->netbuses())
        counts.append(bus->nets().size());
    QCOMPARE(counts, QList<int>({0, 2, 0, 0, 2}));
    QVERIFY(netlist->topHierarchy()->netbuses().at(3)->isUnusable());
    QCOMPARE(netlist->findNet("b[4]")->name(), QString("b[4]"));
    QCOMPARE(netlist->findNet("a[0]")->name(), QString("a[0]"));
    QVERIFY(!netlist->findNet("huge[0]") && !netlist->findNet("mem[0:3][7]"));
}

void TestNetStore::equalNamesGiveTheFirst()
{
    ModuleTable table;
    table.modules = {module("top", {"n", "n", "n"})};
    const auto netlist = makeNetlist(table);
    QCOMPARE(netlist->findNet("n"), netlist->topHierarchy()->singleNets().first());
}

void TestNetStore::moduleInsideItselfIsRefused()
{
    ModuleTable table;
    ModuleDef a = module("a"), b = module("b");
    a.children = {{"u", 1}};
    b.children = {{"u", 0}};
    table.modules = {a, b};
    QString error;
    QVERIFY(!NetStore::build(table, &error));
    QCOMPARE(error, QString("The design instantiates a module inside itself."));
}

void TestNetStore::tooManyInstancesAreRefused()
{
    ModuleTable table;
    for (int level = 0; level < 10; ++level) {
        ModuleDef def = module(QString::number(level));
        for (int i = 0; i < 10; ++i)
            def.children.push_back({QByteArray::number(i), quint32(level + 1)});
        table.modules.push_back(def);
    }
    table.modules.push_back(module("leaf", {"n"}));
    QString error;
    QVERIFY(!NetStore::build(table, &error));
    QCOMPARE(error, QString("The design has more than 100000000 instances."));
}

void TestNetStore::jtagPrimitiveBelowTheTop()
{
    QVERIFY(!makeNetlist(threeLevels())->jtagUsed());
    ModuleTable table = threeLevels();
    table.modules[2].name = "OV_JTAG";
    QVERIFY(makeNetlist(table)->jtagUsed());
    table.modules[2].name = "ov_jtag";
    QVERIFY(!makeNetlist(table)->jtagUsed());
    table = threeLevels();
    table.modules[0].name = "OV_JTAG";
    QVERIFY(!makeNetlist(table)->jtagUsed());
}

void TestNetStore::extremeRanges()
{
    ModuleTable table;
    ModuleDef top = module("top");
    const qint32 least = std::numeric_limits<qint32>::min();
    const qint32 most = std::numeric_limits<qint32>::max();
    top.addBus("low", least + 1, least, false);
    top.addBus("high", most - 1, most, false);
    top.addBus("all", least, most, false);
    table.modules = {top};
    const auto netlist = makeNetlist(table);
    QCOMPARE(netlist->findNet("low[-2147483648]")->name(), QString("low[-2147483648]"));
    QCOMPARE(netlist->findNet("high[2147483647]")->name(), QString("high[2147483647]"));
    QVERIFY(!netlist->findNet("all[0]"));
}

static qint64 residentBytes()
{
    malloc_trim(0);
    QFile file("/proc/self/statm");
    return file.open(QIODevice::ReadOnly) ? file.readAll().split(' ').value(1).toLongLong() * getpagesize() : 0;
}

void TestNetStore::aMillionNetsTakeLittleMemory()
{
    constexpr int instances = 5000;
    constexpr int netsOfEach = 200;
    ModuleTable table;
    ModuleDef leaf = module("leaf");
    for (int i = 0; i < netsOfEach / 2; ++i) {
        leaf.addSingle("single" + QByteArray::number(i), false);
        leaf.addBus("bus" + QByteArray::number(i), 7, 0, false);
    }
    ModuleDef top = module("top");
    for (int i = 0; i < instances; ++i)
        top.children.push_back({"u" + QByteArray::number(i), 1});
    table.modules = {top, leaf};
    const qint64 before = residentBytes();
    QVERIFY(before > 0);
    const auto netlist = makeNetlist(std::move(table));
    const auto singles = netlist->topHierarchy()->singleNetsIncludeSub();
    const auto buses = netlist->topHierarchy()->netbusesIncludeSub();
    QCOMPARE(singles.size() + buses.size(), instances * netsOfEach);
    const double bytesEach = double(residentBytes() - before) / (instances * netsOfEach);
    QVERIFY2(bytesEach > 2 * sizeof(void *) - 1 && bytesEach <= 25, qPrintable(QString::number(bytesEach)));
}

QTEST_GUILESS_MAIN(TestNetStore)
#include "tst_netstore.moc"

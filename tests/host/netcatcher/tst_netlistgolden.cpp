// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "netlistprobe.h"

#include <QtTest>

#include <functional>

using NETCATCHER::Hierachy;
using NETCATCHER::RtlNet;
using NETCATCHER::RtlNetBus;

/// Netlists of designs whose golden lists were checked by reading their sources.
class TestNetlistGolden : public QObject
{
    Q_OBJECT

private slots:
    void listsTheNetsOf_data();
    void listsTheNetsOf();
    void everyNetIsFoundByItsName_data() { listsTheNetsOf_data(); }
    void everyNetIsFoundByItsName();
    void bitsCountInDeclaredOrder();
    void instancesFollowTheSource();
    void generateScopesStayInLocalNames();
    void clonesOfAParameterisedModuleKeepItsName();
    void blackBoxesAreLeavesWithoutNets();
    void jtagPrimitiveIsSeenWithAndWithoutSource();
    void designWithoutJtagPrimitive();
};

void TestNetlistGolden::listsTheNetsOf_data()
{
    QTest::addColumn<QStringList>("files");
    QTest::newRow("vectors") << QStringList{"vectors.v"};
    QTest::newRow("usable") << QStringList{"usable.v"};
    QTest::newRow("generated") << QStringList{"generated.v"};
    for (const char *name :
         {"loops", "nettypes", "portstyles", "nested", "memories", "planes", "charge", "pads", "constants"})
        QTest::newRow(name) << QStringList{QString(name) + ".v"};
    for (const char *name : {"arrays", "scopes", "links", "unlisted"})
        QTest::newRow(name) << QStringList{QString(name) + ".sv"};
    QTest::newRow("types") << QStringList{"types.sv", "types_pkg.sv"};
    QTest::newRow("streams") << QStringList{"streams.sv"};
    QTest::newRow("boxed") << QStringList{"boxed.v"};
}

static probe::Result buildData(const QStringList &files, const QString &top = {})
{
    QStringList paths;
    for (const QString &file : files)
        paths.append(probe::dataFile(file));
    return probe::build(probe::sources(paths, top));
}

void TestNetlistGolden::listsTheNetsOf()
{
    QFETCH(QStringList, files);
    const QString name = QTest::currentDataTag();
    const probe::Result result = buildData(files);
    QCOMPARE(result.messages, QStringList());
    QCOMPARE(result.tops, QStringList(name));
    QVERIFY2(result.netlist, qPrintable(result.error));
    QCOMPARE(result.netlist->topHierarchy()->name(), name);
    QCOMPARE(probe::rows(*result.netlist), probe::goldenRows(name));
}

void TestNetlistGolden::everyNetIsFoundByItsName()
{
    QFETCH(QStringList, files);
    const probe::Result result = buildData(files);
    QVERIFY2(result.netlist, qPrintable(result.error));
    QCOMPARE(probe::namesNotFound(*result.netlist), QStringList());
    for (const RtlNetBus *bus : result.netlist->topHierarchy()->netbusesIncludeSub())
        QCOMPARE(result.netlist->findNet(bus->fullBusName()), nullptr);
    for (const char *absent : {"", "/", "nothing", "u_small/nothing", "sum[8]", "sum[-1]", "sum[01]", "sum[]", "clk/"})
        QCOMPARE(result.netlist->findNet(absent), nullptr);
}

static RtlNetBus *busNamed(const NETCATCHER::RtlNetlist &netlist, const QString &name)
{
    for (RtlNetBus *bus : netlist.topHierarchy()->netbusesIncludeSub()) {
        if (bus->fullBusName() == name)
            return bus;
    }
    return nullptr;
}

static QStringList bitNames(const RtlNetBus *bus)
{
    QStringList names;
    for (const RtlNet *bit : bus->nets())
        names.append(bit->name());
    return names;
}

void TestNetlistGolden::bitsCountInDeclaredOrder()
{
    const probe::Result result = buildData({"vectors.v"});
    QVERIFY(result.netlist);
    QCOMPARE(bitNames(busNamed(*result.netlist, "flipped[3:0]")),
             QStringList({"flipped[3]", "flipped[2]", "flipped[1]", "flipped[0]"}));
    QCOMPARE(bitNames(busNamed(*result.netlist, "rising[0:7]")).mid(0, 2), QStringList({"rising[0]", "rising[1]"}));
    QCOMPARE(bitNames(busNamed(*result.netlist, "high[31:16]")).last(), QString("high[16]"));
    QCOMPARE(bitNames(busNamed(*result.netlist, "fixed[3:-4]")).last(), QString("fixed[-4]"));
    QCOMPARE(bitNames(busNamed(*result.netlist, "single[0:0]")), QStringList("single[0]"));
    const RtlNetBus *inner = busNamed(*result.netlist, "u_broad/value[11:0]");
    QCOMPARE(inner->BusName(), QString("value[11:0]"));
    QCOMPARE(inner->nets().first()->name(), QString("value[11]"));
    QCOMPARE(inner->nets().first()->fullPathName(), QString("u_broad/value[11]"));
}

void TestNetlistGolden::instancesFollowTheSource()
{
    const probe::Result result = buildData({"vectors.v"});
    QVERIFY(result.netlist);
    QStringList names;
    Hierachy *top = result.netlist->topHierarchy();
    for (const Hierachy *child : top->children()) {
        names.append(child->name() + ':' + child->module());
        QCOMPARE(child->parent(), top);
        QVERIFY(child->children().isEmpty());
    }
    QCOMPARE(names,
             QStringList({"u_narrow:counter", "u_broad:counter", "u_inv[3]:inverter", "u_inv[2]:inverter",
                          "u_inv[1]:inverter", "u_inv[0]:inverter", "u_pair[0]:inverter", "u_pair[1]:inverter"}));
    QCOMPARE(top->parent(), nullptr);
    QCOMPARE(top->module(), QString("vectors"));
}

void TestNetlistGolden::generateScopesStayInLocalNames()
{
    const probe::Result result = buildData({"generated.v"});
    QVERIFY(result.netlist);
    const Hierachy *stage = result.netlist->topHierarchy()->children().at(1);
    QCOMPARE(stage->name(), QString("g_lane[1].u_stage"));
    QCOMPARE(stage->singleNets().first()->name(), QString("clk"));
    QCOMPARE(stage->singleNets().first()->fullPathName(), QString("g_lane[1].u_stage/clk"));
    QCOMPARE(result.netlist->findNet("g_lane[1].g_tap[1].g_last.last")->name(),
             QString("g_lane[1].g_tap[1].g_last.last"));
}

void TestNetlistGolden::clonesOfAParameterisedModuleKeepItsName()
{
    const probe::Result result = buildData({"vectors.v"});
    QVERIFY(result.netlist);
    QCOMPARE(result.netlist->topHierarchy()->children().at(0)->module(), QString("counter"));
    QCOMPARE(result.netlist->topHierarchy()->children().at(1)->module(), QString("counter"));
    QCOMPARE(result.modules, QStringList({"counter", "inverter", "vectors"}));
}

void TestNetlistGolden::blackBoxesAreLeavesWithoutNets()
{
    const probe::Result result = buildData({"boxed.v"});
    QVERIFY(result.netlist);
    QStringList names;
    for (const Hierachy *child : result.netlist->topHierarchy()->children()) {
        names.append(child->name() + ':' + child->module());
        QVERIFY(child->singleNets().isEmpty() && child->netbuses().isEmpty() && child->children().isEmpty());
    }
    QCOMPARE(names,
             QStringList({"u_pll:vendor_pll", "u_ram:vendor_ram", "u_cells[3]:vendor_cell", "u_cells[2]:vendor_cell",
                          "u_cells[1]:vendor_cell", "u_cells[0]:vendor_cell", "u_pad:vendor_pad", "u_jtag:OV_JTAG"}));
    QCOMPARE(result.modules, QStringList("boxed"));
}

void TestNetlistGolden::jtagPrimitiveIsSeenWithAndWithoutSource()
{
    QVERIFY(buildData({"boxed.v"}).netlist->jtagUsed());
    const probe::Result withSource = buildData({"boxed.v", "jtag_model.v"});
    QVERIFY2(withSource.netlist, qPrintable(withSource.error));
    QVERIFY(withSource.netlist->jtagUsed());
    QVERIFY(withSource.netlist->findNet("u_jtag/tdo"));
}

void TestNetlistGolden::designWithoutJtagPrimitive()
{
    QVERIFY(!buildData({"vectors.v"}).netlist->jtagUsed());
    // The primitive alone in the project is not an instance of it.
    const probe::Result unused = buildData({"vectors.v", "jtag_model.v"}, "vectors");
    QVERIFY(!unused.netlist->jtagUsed());
    const probe::Result asTop = buildData({"jtag_model.v"});
    QVERIFY(!asTop.netlist->jtagUsed());
}

QTEST_GUILESS_MAIN(TestNetlistGolden)
#include "tst_netlistgolden.moc"

// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "vhdlrefusal.h"

#include "host/netcatcher/netlistprobe.h"

#include <QtTest>

using NETCATCHER::Hierachy;
using NETCATCHER::RtlNet;
using NETCATCHER::RtlNetBus;

/// Netlists of VHDL designs whose golden lists were checked by reading their sources.
class TestVhdlGolden : public QObject
{
    Q_OBJECT

private slots:
    void listsTheNetsOf_data();
    void listsTheNetsOf();
    void everyNetIsFoundByItsName_data() { listsTheNetsOf_data(); }
    void everyNetIsFoundByItsName();
    void orderOfFilesDoesNotMatter();
    void bitsCountInDeclaredOrder();
    void instancesFollowTheSource();
    void unboundComponentsAreBlackBoxes();
    void jtagPrimitiveIsSeen();
    void entitiesAreModules();
};

void TestVhdlGolden::listsTheNetsOf_data()
{
    QTest::addColumn<QStringList>("files"); // with their libraries before a colon
    QTest::addColumn<QString>("top");
    QTest::newRow("packets") << QStringList{"packets.vhd"} << "Packets";
    QTest::newRow("lanes") << QStringList{"lanes.vhd"} << "Lanes";
    QTest::newRow("oldstyle") << QStringList{"oldstyle.vhd"} << "OLDSTYLE";
    QTest::newRow("shelves") << QStringList{"shelves.vhd", "Parts:shelf_drawer.vhd", "parts:shelf_parts.vhd",
                                            "base:shelf_base.vhd"}
                             << "Shelves";
}

static probe::Result buildData(const QStringList &files)
{
    NETCATCHER::DesignSources sources;
    for (const QString &file : files) {
        const QString library = file.contains(':') ? file.section(':', 0, 0) : QString();
        sources.files.append({probe::dataFile(file.section(':', -1)), NETCATCHER::SourceFile::Vhdl, library});
    }
    return probe::build(sources);
}

void TestVhdlGolden::listsTheNetsOf()
{
    QFETCH(QStringList, files);
    QFETCH(QString, top);
    const probe::Result result = buildData(files);
    QCOMPARE(result.messages, QStringList());
    QCOMPARE(result.tops, QStringList(top));
    QVERIFY2(result.netlist, qPrintable(result.error));
    QCOMPARE(result.netlist->topHierarchy()->name(), top);
    QCOMPARE(probe::rows(*result.netlist), probe::goldenRows(QTest::currentDataTag()));
}

void TestVhdlGolden::everyNetIsFoundByItsName()
{
    QFETCH(QStringList, files);
    const probe::Result result = buildData(files);
    QVERIFY2(result.netlist, qPrintable(result.error));
    QCOMPARE(probe::namesNotFound(*result.netlist), QStringList());
}

void TestVhdlGolden::orderOfFilesDoesNotMatter()
{
    const QStringList files{"shelves.vhd", "parts:shelf_parts.vhd", "base:shelf_base.vhd", "parts:shelf_drawer.vhd"};
    const probe::Result forward = buildData(files);
    QVERIFY2(forward.netlist, qPrintable(forward.error));
    const QStringList backwards(files.crbegin(), files.crend());
    const probe::Result backward = buildData(backwards);
    QVERIFY2(backward.netlist, qPrintable(backward.error));
    QCOMPARE(probe::rows(*backward.netlist), probe::rows(*forward.netlist));
}

static QStringList bitNames(const NETCATCHER::RtlNetlist &netlist, const QString &bus)
{
    QStringList names;
    for (const RtlNetBus *each : netlist.topHierarchy()->netbusesIncludeSub()) {
        for (const RtlNet *bit : each->fullBusName() == bus ? each->nets() : QList<RtlNet *>())
            names.append(bit->name());
    }
    return names;
}

void TestVhdlGolden::bitsCountInDeclaredOrder()
{
    const probe::Result result = buildData({"packets.vhd"});
    QVERIFY(result.netlist);
    QCOMPARE(bitNames(*result.netlist, "Rising[0:7]").mid(0, 2), QStringList({"Rising[0]", "Rising[1]"}));
    QCOMPARE(bitNames(*result.netlist, "High[31:16]").last(), QString("High[16]"));
    QCOMPARE(bitNames(*result.netlist, "Result.Phase[1:0]"), QStringList({"Result.Phase[1]", "Result.Phase[0]"}));
    QCOMPARE(bitNames(*result.netlist, "Single[0:0]"), QStringList("Single[0]"));
}

static QStringList childrenOf(const Hierachy *parent)
{
    QStringList names;
    for (const Hierachy *child : parent->children())
        names.append(child->name() + ':' + child->module());
    return names;
}

void TestVhdlGolden::instancesFollowTheSource()
{
    const probe::Result result = buildData({"lanes.vhd"});
    QVERIFY(result.netlist);
    QCOMPARE(
        childrenOf(result.netlist->topHierarchy()),
        QStringList({"G_Lane(0).U_Stage:Stage", "G_Lane(1).U_Stage:Stage", "G_Lane(1).G_Tap(2).G_Last.U_Inv:Inverter",
                     "G_Lane(1).G_Tap(3).G_Last.U_Inv:Inverter", "B_Inner.U_Wide:Stage", "U_Pll:Vendor_Pll",
                     "U_Swap:Inverter", "U_Conf:Inverter", "u.Odd:Inverter", "U_Jtag:OV_JTAG"}));
}

void TestVhdlGolden::unboundComponentsAreBlackBoxes()
{
    const probe::Result result = buildData({"lanes.vhd"});
    QVERIFY(result.netlist);
    const Hierachy *box = result.netlist->topHierarchy()->children().at(5);
    QCOMPARE(box->module(), QString("Vendor_Pll"));
    QVERIFY(box->singleNets().isEmpty() && box->netbuses().isEmpty() && box->children().isEmpty());
}

void TestVhdlGolden::jtagPrimitiveIsSeen()
{
    // It is spelled in lower case there, which is the same in VHDL.
    QVERIFY(buildData({"lanes.vhd"}).netlist->jtagUsed());
    QVERIFY(!buildData({"packets.vhd"}).netlist->jtagUsed());
}

void TestVhdlGolden::entitiesAreModules()
{
    QCOMPARE(buildData({"lanes.vhd"}).modules, QStringList({"Lanes", "Stage", "Inverter"}));
    QCOMPARE(buildData({"packets.vhd"}).modules, QStringList("Packets"));
}

VHDL_TEST_MAIN(TestVhdlGolden)
#include "tst_vhdlgolden.moc"

// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "host/netcatcher/netlistprobe.h"

#include "support/tempdir.h"

#include <QtTest>

/// What can be connected to a module without source.
class TestNetlistBoxes : public QObject
{
    Q_OBJECT

private slots:
    void pinsTakeWhatIsConnected_data();
    void pinsTakeWhatIsConnected();
    void interfaceAtAPinIsRefused();
    void pinsWithoutNamesAreToldByTheirNumbers();
};

static probe::Result build(const QByteArray &body)
{
    const support::TempDir dir;
    const QByteArray source = "interface bus_if; logic v; endinterface\n"
                              "typedef struct { logic [3:0] f; logic g; } pair_t;\n"
                              "module top (input logic clk, input logic [7:0] d, output logic q);\n" +
                              body + "\nassign q = d[0];\nendmodule\n";
    return probe::build(probe::sources({dir.write("design.sv", source)}));
}

void TestNetlistBoxes::pinsTakeWhatIsConnected_data()
{
    QTest::addColumn<QByteArray>("body");
    QTest::newRow("wildcard beside a connection left out") << QByteArray("wire w;\nother v (d, w, );\nvendor u (.*);");
    QTest::newRow("wildcard beside pins of a macro")
        << QByteArray("`define PINS clk, d\nother v (`PINS);\nvendor u (.*);");
    QTest::newRow("wildcard beside an array in a macro")
        << QByteArray("logic [7:0] a [2];\n`define PINS a, d\nother v (`PINS);\nvendor u (.*);");
    QTest::newRow("wildcard beside named pins of a macro")
        << QByteArray("`define PINS .one(clk), .two(d)\nother v (`PINS);\nvendor u (.*);");
    QTest::newRow("wildcard and pins of a macro")
        << QByteArray("`define PINS .one(clk), .two(d)\nvendor u (.*, `PINS);");
    QTest::newRow("wildcard and pins without names") << QByteArray("vendor v (clk, d);\nvendor u (.*);");
    QTest::newRow("wildcard in a macro") << QByteArray("`define U vendor u (.*);\nvendor v (clk, d);\n`U");
    QTest::newRow("array") << QByteArray("logic [7:0] a [0:3];\nvendor u (.clk(clk), .in(a));");
    QTest::newRow("two arrays") << QByteArray("logic a [4], b [0:1][2:0];\nvendor u (.in(a), .out(b));");
    QTest::newRow("array without a pin's name") << QByteArray("logic [7:0] a [2];\nvendor u (clk, a, d);");
    QTest::newRow("escaped name") << QByteArray("logic [7:0] a [2];\n\\vendor+ u (.\\in+ (a));");
    QTest::newRow("array of instances") << QByteArray("logic [7:0] a [2];\nvendor u [1:0] (.clk(clk), .in(a));");
    QTest::newRow("array of structures") << QByteArray("pair_t a [2];\nvendor u (.in(a));");
    QTest::newRow("structure") << QByteArray("pair_t a;\nvendor u (.in(a));");
    QTest::newRow("string, number, variable of an interface")
        << QByteArray("bus_if bus ();\nvendor u (.a(\"text\"), .b(1.5), .c(bus.v));");
}

void TestNetlistBoxes::pinsTakeWhatIsConnected()
{
    QFETCH(QByteArray, body);
    const probe::Result result = build(body);
    QCOMPARE(result.messages, QStringList());
    QVERIFY2(result.netlist, qPrintable(result.error));
    QVERIFY(result.netlist->findNet("d[7]"));
    const NETCATCHER::Hierachy *box = result.netlist->topHierarchy()->children().last();
    QVERIFY(box->module().startsWith("vendor"));
    QVERIFY(box->singleNets().isEmpty() && box->netbuses().isEmpty());
}

void TestNetlistBoxes::interfaceAtAPinIsRefused()
{
    const probe::Result result = build("bus_if bus ();\nvendor u (.bus(bus));");
    QVERIFY(!result.netlist);
    QVERIFY2(result.errors().first().endsWith("(only modules with source can have interface ports; add the file that "
                                              "declares the module)"),
             qPrintable(result.errors().join('\n')));
}

void TestNetlistBoxes::pinsWithoutNamesAreToldByTheirNumbers()
{
    const probe::Result result = build("bus_if bus ();\nvendor u (clk, bus);");
    QVERIFY(!result.netlist);
    const QString line = result.errors().first();
    QVERIFY2(line.contains(" connection 'pin 2', mismatch between "), qPrintable(line));
    QVERIFY2(!line.contains("vakpin"), qPrintable(line));
}

QTEST_GUILESS_MAIN(TestNetlistBoxes)
#include "tst_netlistboxes.moc"

// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "host/netcatcher/netlistprobe.h"

#include "support/tempdir.h"

#include <QtTest>

/// Legal designs that the engine does not read, as docs/netlist.md lists them: an error names the line.
class TestNetlistLimits : public QObject
{
    Q_OBJECT

private slots:
    void isRefusedWithItsLine_data();
    void isRefusedWithItsLine();
    void flattenedArrayOfInstancesIsTold();
};

void TestNetlistLimits::isRefusedWithItsLine_data()
{
    QTest::addColumn<QByteArray>("body");
    QTest::newRow("instances in two dimensions") << QByteArray("inv u [1:0][2:0] (.i(d), .o(q));");
    QTest::newRow("defparam into an array") << QByteArray("inv u [5:0] (.i(d), .o(q)); defparam u[0].N = 2;");
    QTest::newRow("defparam through instances") << QByteArray("inv u (.i(d[0]), .o(q[0])); defparam top.u.N = 2;");
    QTest::newRow("sequence") << QByteArray("assert property (@(posedge d[0]) d[1] ##1 d[2]);");
    QTest::newRow("covergroup") << QByteArray("covergroup cg; coverpoint d; endgroup");
    QTest::newRow("let") << QByteArray("let f(x) = x;");
    QTest::newRow("event with a condition") << QByteArray("logic r; always_ff @(posedge d[0] iff d[1]) r <= 0;");
    QTest::newRow("charge strength") << QByteArray("trireg (small) held; assign held = d[0];");
    QTest::newRow("pins of one name") << QByteArray("logic a [2]; one u1 (.in(a)); two u2 (.in(d));");
    QTest::newRow("dimensions behind an enumeration") << QByteArray("enum logic {A, B} [1:0] both;");
}

void TestNetlistLimits::isRefusedWithItsLine()
{
    QFETCH(QByteArray, body);
    const support::TempDir dir;
    const QString path = dir.write("design.sv", "module inv #(parameter N = 1) (input i, output o); endmodule\n"
                                                "module top (input [5:0] d, output [5:0] q);\n" +
                                                    body + "\nendmodule\n");
    const probe::Result result = probe::build(probe::sources({path}, "top"));
    QVERIFY(!result.netlist);
    QVERIFY(!result.errors().isEmpty());
    QVERIFY2(result.errors().first().startsWith("ERROR: " + path + ":3: "), qPrintable(result.errors().first()));
}

/// Where every pin fits every instance, the engine reads the first dimension and says nothing.
void TestNetlistLimits::flattenedArrayOfInstancesIsTold()
{
    const support::TempDir dir;
    const QString path = dir.write("design.sv", "module top (input d); leaf u [1:0][2:0] (.d(d)); leaf v [1:0] (d);\n"
                                                "endmodule\nmodule leaf (input d); endmodule\n");
    const probe::Result result = probe::build(probe::sources({path}));
    QCOMPARE(result.messages, QStringList("WARNING: " + path +
                                          ": The array of instances u has more than one dimension, "
                                          "of which only the first is listed"));
    QVERIFY(result.netlist);
}

QTEST_GUILESS_MAIN(TestNetlistLimits)
#include "tst_netlistlimits.moc"

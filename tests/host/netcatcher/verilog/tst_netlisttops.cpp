// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "host/netcatcher/netlistprobe.h"

#include "support/tempdir.h"

#include <QtTest>

/// Modules that are not plainly the top of their design but were chosen as such.
class TestNetlistTops : public QObject
{
    Q_OBJECT

private slots:
    void chosenTopHasItsOwnParameters_data();
    void chosenTopHasItsOwnParameters();
    void escapedTopThatIsNoModule_data();
    void escapedTopThatIsNoModule();
    void circleWithoutATopIsNamed();
    void primitivesAreNoCircle();
    void moduleInsideItselfIsNamed_data();
    void moduleInsideItselfIsNamed();
};

static probe::Result build(const QByteArray &source, const QString &top)
{
    const support::TempDir dir;
    return probe::build(probe::sources({dir.write("design.v", source)}, top));
}

void TestNetlistTops::chosenTopHasItsOwnParameters_data()
{
    QTest::addColumn<QByteArray>("source");
    QTest::addColumn<QString>("top");
    QTest::addColumn<QStringList>("expected");

    const QByteArray leaf = " (input x, output y);\nparameter W = 2;\nwire [W-1:0] w = {W{x}};\nassign y = ^w;\n";
    QTest::newRow("used with other parameters only")
        << QByteArray("module \\a/b " + leaf +
                      "endmodule\n"
                      "module other (input i, output o); \\a/b #(.W(7)) u (.x(i), .y(o)); endmodule\n")
        << "a/b" << QStringList{"w[1:0]", "x", "y"};
    QTest::newRow("plain name, used with other parameters only")
        << QByteArray("module ab" + leaf +
                      "endmodule\n"
                      "module other (input i, output o); ab #(.W(7)) u (.x(i), .y(o)); endmodule\n")
        << "ab" << QStringList{"w[1:0]", "x", "y"};
    const QByteArray inside = "generate if (W > 1) begin : g\nNAME #(.W(W - 1)) u (.x(x), .y());\nend endgenerate\n"
                              "endmodule\n";
    const QStringList nested{"w[1:0]", "g.u/w[0:0]", "x", "y", "g.u/x", "g.u/y"};
    QTest::newRow("instantiates itself") << QByteArray("module \\$tree " + leaf +
                                                       QByteArray(inside).replace("NAME", "\\$tree "))
                                         << "$tree" << nested;
    QTest::newRow("plain name, instantiates itself")
        << QByteArray("module tree" + leaf + QByteArray(inside).replace("NAME", "tree")) << "tree" << nested;
    QTest::newRow("several ports and a black box")
        << QByteArray("module \\top.all (input [3:0] a, inout b, output [1:0] c);\n"
                      "vendor u (.i(a), .o(c), .z(b));\nendmodule\n")
        << "top.all" << QStringList{"a[3:0]", "c[1:0]", "b\tunusable"};
}

void TestNetlistTops::chosenTopHasItsOwnParameters()
{
    QFETCH(QByteArray, source);
    QFETCH(QString, top);
    const probe::Result result = build(source, top);
    QCOMPARE(result.messages, QStringList());
    QCOMPARE(result.tops, QStringList(top));
    QVERIFY2(result.netlist, qPrintable(result.error));
    QCOMPARE(result.netlist->topHierarchy()->module(), top);
    QTEST(probe::rows(*result.netlist), "expected");
}

void TestNetlistTops::escapedTopThatIsNoModule_data()
{
    QTest::addColumn<QString>("top");
    QTest::newRow("unknown") << "no/such";
    QTest::newRow("the program's own module") << "vak_module_around_the_top";
    QTest::newRow("more text") << "a/b (); endmodule module x; \\a/b ";
}

void TestNetlistTops::escapedTopThatIsNoModule()
{
    QFETCH(QString, top);
    const probe::Result result = build("module \\a/b (input x, output y); assign y = x; endmodule\n", top);
    QCOMPARE(result.messages, QStringList());
    QCOMPARE(result.modules, QStringList());
    QVERIFY(!result.netlist);
}

void TestNetlistTops::circleWithoutATopIsNamed()
{
    const probe::Result result = build("module a; b u(); endmodule\nmodule b; a u(); endmodule\n", {});
    const QString message = "ERROR: The design has no top module: each of a, b is instantiated by another one; end the "
                            "recursion, or set the top module.";
    QCOMPARE(result.messages, QStringList(message));
    QCOMPARE(result.error, message);
    QVERIFY(!result.isAnalysed && !result.netlist);
}

void TestNetlistTops::primitivesAreNoCircle()
{
    const probe::Result result =
        build("primitive p(output y, input a); table 0 : 1; 1 : 0; endtable endprimitive\n", {});
    QCOMPARE(result.messages, QStringList());
    QCOMPARE(result.error, QString("The design has no top module."));
}

void TestNetlistTops::moduleInsideItselfIsNamed_data()
{
    QTest::addColumn<QByteArray>("source");
    QTest::addColumn<QString>("top");
    QTest::addColumn<QString>("names");
    const QByteArray leaf = "module leaf (input x); leaf u (.x(x)); endmodule\n";
    const QByteArray user = "module user (input x); leaf u (.x(x)); endmodule\n";
    const QByteArray other = "module \\a+b (input x); generate if (0) begin : g \\a+b u (.x(x)); end endgenerate\n"
                             "endmodule\n";
    QTest::newRow("only module") << leaf << QString() << "leaf";
    QTest::newRow("below the top") << user + leaf << QString() << "leaf";
    QTest::newRow("below a top that is set") << user + leaf << "user"
                                             << "leaf";
    QTest::newRow("top") << leaf + user << "leaf"
                         << "leaf";
    QTest::newRow("one of several") << user + leaf + other << "user"
                                    << "a+b, leaf";
}

void TestNetlistTops::moduleInsideItselfIsNamed()
{
    QFETCH(QByteArray, source);
    QFETCH(QString, top);
    QFETCH(QString, names);
    const probe::Result result = build(source, top);
    const QString message = "ERROR: The Verilog engine crashed, as it does when a module instantiates itself without "
                            "end. Modules that instantiate themselves: %1. Make that depend on a condition, or set "
                            "another top module.";
    QCOMPARE(result.messages, QStringList(message.arg(names)));
    QCOMPARE(result.error, result.messages.first());
    QVERIFY(!result.isAnalysed && !result.netlist);
}

QTEST_GUILESS_MAIN(TestNetlistTops)
#include "tst_netlisttops.moc"

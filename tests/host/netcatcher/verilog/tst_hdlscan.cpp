// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "hostlibs/netcatcher/verilog/hdlscan.h"
#include "hostlibs/netcatcher/verilog/packageorder.h"

#include <QRandomGenerator>
#include <QtTest>

#include <algorithm>

using namespace NETCATCHER;

/// The rough reading of sources that comes before the engine.
class TestHdlScan : public QObject
{
    Q_OBJECT

private slots:
    void findsModulesAndPackages();
    void commentsStringsAndAttributesAreSkipped();
    void namedAndPositionalConnections();
    void connectionsLeftOutCount();
    void wildcardConnections();
    void severalInstancesInOneStatement();
    void declarationsAreNoInstances();
    void conditionals_data();
    void conditionals();
    void macrosAreSharedByFiles();
    void includesAreFollowed();
    void includesThatIncludeThemselvesEnd();
    void genvars();
    void defparams();
    void packageOrderIsStable();
    void packageCyclesEnd();
    void noiseNeverHangs();
};

static HdlScan scan(const QByteArray &text, const QStringList &defines = {})
{
    HdlScanner scanner(defines, [](const QByteArray &, int) { return std::optional<HdlText>(); });
    return scanner.scan({text, 0});
}

static QList<QByteArray> sorted(const QSet<QByteArray> &names)
{
    QList<QByteArray> list = names.values();
    std::sort(list.begin(), list.end());
    return list;
}

void TestHdlScan::findsModulesAndPackages()
{
    const HdlScan found = scan("package automatic p; endpackage module a; endmodule\n"
                               "macromodule b #(parameter X = p::Y) (); endmodule interface i; endinterface\n"
                               "module automatic \\c+d ; import q::*; endmodule");
    QCOMPARE(found.modules, QVector<QByteArray>({"a", "b", "c+d"}));
    QCOMPARE(sorted(found.packages), QList<QByteArray>({"p"}));
    QCOMPARE(sorted(found.usedPackages), QList<QByteArray>({"p", "q"}));
}

void TestHdlScan::commentsStringsAndAttributesAreSkipped()
{
    const HdlScan found = scan("// module a\n/* module b */ (* module c *) module d;\n"
                               "initial $display(\"module e \\\" module f\"); always @(*) g u(.p(1)); endmodule");
    QCOMPARE(found.modules, QVector<QByteArray>({"d"}));
    QCOMPARE(found.usages.keys(), QList<QByteArray>({"g"}));
}

void TestHdlScan::namedAndPositionalConnections()
{
    const HdlScan found = scan("module m; box #(.A(1), .B(\"x\")) u1 (.clk(c), .d({a, b}), .q(), .\\e+f (1), .rst);\n"
                               "box u2 (a, f(b, c), {d, e});\nbox #(1, 2) u3[3:0] ();\nbox #8 u4 (.*);\nendmodule");
    const ModuleUsage box = found.usages.value("box");
    QCOMPARE(sorted(box.pins), QList<QByteArray>({"clk", "d", "e+f", "q", "rst"}));
    QCOMPARE(sorted(box.parameters), QList<QByteArray>({"A", "B"}));
    QCOMPARE(box.positionalPins, 3);
    QCOMPARE(box.positionalParameters, 2);
}

void TestHdlScan::connectionsLeftOutCount()
{
    const HdlScan found = scan("module m; none u1 (); one u2 (a); two u3 (a, ); three u4 (, a, );\n"
                               "named u5 (.a(1), );\nendmodule");
    QCOMPARE(found.usages.value("none").positionalPins, 0);
    QCOMPARE(found.usages.value("one").positionalPins, 1);
    QCOMPARE(found.usages.value("two").positionalPins, 2);
    QCOMPARE(found.usages.value("three").positionalPins, 3);
    QCOMPARE(found.usages.value("named").positionalPins, 0);
}

void TestHdlScan::wildcardConnections()
{
    const HdlScan found = scan("module m; all u1 (.*); some u2 (.a(1), .*); none u3 (.a(b.c), .d(e * f), .\\* (g));\n"
                               "mixed u4 (a, b); mixed u5 (.*); mixed u6 ();\nendmodule");
    QVERIFY(found.usages.value("all").hasWildcard);
    QVERIFY(found.usages.value("some").hasWildcard);
    QVERIFY(!found.usages.value("none").hasWildcard);
    QVERIFY(found.usages.value("mixed").hasWildcard);
    QCOMPARE(sorted(found.usages.value("some").pins), QList<QByteArray>({"a"}));
}

void TestHdlScan::severalInstancesInOneStatement()
{
    const HdlScan found = scan("module m; box u1 (.a(1)), u2[1:0] (.b(2)), u3 (.c(3)); other v (.x(1)); endmodule");
    QCOMPARE(sorted(found.usages.value("box").pins), QList<QByteArray>({"a", "b", "c"}));
    QCOMPARE(sorted(found.usages.value("other").pins), QList<QByteArray>({"x"}));
}

void TestHdlScan::declarationsAreNoInstances()
{
    const HdlScan found =
        scan("module m (input my_t x, output y); my_t z; wire w = f(x); assign y = g (w);\n"
             "and a1 (y, x, w); always @(posedge x) if (w) z <= h(x); typedef my_t other_t; endmodule");
    QVERIFY(found.usages.isEmpty());
}

void TestHdlScan::conditionals_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("modules");
    QTest::newRow("ifdef") << QByteArray("`ifdef A\nmodule a;\n`else\nmodule b;\n`endif\nmodule c;") << "a c";
    QTest::newRow("ifndef") << QByteArray("`ifndef A\nmodule a;\n`else\nmodule b;\n`endif\nmodule c;") << "b c";
    QTest::newRow("elsif") << QByteArray("`ifdef X\nmodule a;\n`elsif A\nmodule b;\n`else\nmodule c;\n`endif") << "b";
    QTest::newRow("none") << QByteArray("`ifdef X\nmodule a;\n`elsif Y\nmodule b;\n`endif\nmodule c;") << "c";
    QTest::newRow("nested") << QByteArray("`ifdef X\n`ifdef A\nmodule a;\n`else\nmodule b;\n`endif\n`else\nmodule c;\n"
                                          "`endif")
                            << "c";
    QTest::newRow("nested taken") << QByteArray("`ifdef A\n`ifdef X\nmodule a;\n`endif\nmodule b;\n`else\nmodule c;\n"
                                                "`endif\nmodule d;")
                                  << "b d";
    QTest::newRow("define") << QByteArray("`define B module x\\\nmodule y\n`ifdef B\nmodule a;\n`endif") << "a";
    QTest::newRow("undef") << QByteArray("`undef A\n`ifdef A\nmodule a;\n`endif") << "";
    QTest::newRow("with value") << QByteArray("`ifdef V\nmodule a;\n`endif") << "a";
    QTest::newRow("synthesis") << QByteArray("`ifdef SYNTHESIS\nmodule a;\n`endif") << "a";
    QTest::newRow("open end") << QByteArray("`ifdef X\nmodule a;") << "";
    QTest::newRow("stray endif") << QByteArray("`endif\nmodule a;") << "a";
}

void TestHdlScan::conditionals()
{
    QFETCH(QByteArray, text);
    QStringList names;
    for (const QByteArray &name : scan(text, {"A", "V=3"}).modules)
        names.append(name);
    QTEST(names.join(' '), "modules");
}

void TestHdlScan::macrosAreSharedByFiles()
{
    HdlScanner scanner({}, [](const QByteArray &, int) { return std::optional<HdlText>(); });
    scanner.scan({"`define LATER\n", 0});
    QCOMPARE(scanner.scan({"`ifdef LATER\nmodule a;\n`endif", 1}).modules, QVector<QByteArray>({"a"}));
}

void TestHdlScan::includesAreFollowed()
{
    QStringList asked;
    HdlScanner scanner({}, [&asked](const QByteArray &name, int origin) -> std::optional<HdlText> {
        asked.append(QString::number(origin) + ':' + name);
        if (name == "a.vh")
            return HdlText{"`include \"b.vh\"\nmodule in_a;\n", 7};
        return {};
    });
    const HdlScan found = scanner.scan({"`include \"a.vh\"\nmodule m; `include <sys.vh>\nendmodule", 3});
    QCOMPARE(asked, QStringList({"3:a.vh", "7:b.vh"}));
    QCOMPARE(found.modules, QVector<QByteArray>({"in_a", "m"}));
}

void TestHdlScan::includesThatIncludeThemselvesEnd()
{
    int count = 0;
    HdlScanner scanner({}, [&count](const QByteArray &, int) {
        ++count;
        return std::optional<HdlText>({"`include \"again.vh\"\n", 1});
    });
    scanner.scan({"`include \"again.vh\"\n", 0});
    QVERIFY(count < 100);
}

void TestHdlScan::genvars()
{
    QCOMPARE(sorted(scan("module m; genvar a, b; for (genvar c = 0; c < 2; c++) x u(); endmodule").genvars["m"]),
             QList<QByteArray>({"a", "b", "c"}));
}

void TestHdlScan::defparams()
{
    QCOMPARE(sorted(scan("module m; defparam u1.DEPTH = 4, u2.v.WIDTH = 8; endmodule").defparams),
             QList<QByteArray>({"DEPTH", "WIDTH"}));
}

static QVector<int> order(const QList<QByteArray> &texts)
{
    QVector<HdlScan> scans;
    for (const QByteArray &text : texts)
        scans.append(scan(text));
    return packageOrder(scans);
}

void TestHdlScan::packageOrderIsStable()
{
    QCOMPARE(order({"module a;", "module b;", "module c;"}), QVector<int>({0, 1, 2}));
    QCOMPARE(order({"import p::*;", "module b;", "package p; endpackage"}), QVector<int>({2, 0, 1}));
    QCOMPARE(order({"import p::*;", "package p; import q::*; endpackage", "package q; endpackage", "module d;"}),
             QVector<int>({2, 1, 0, 3}));
    QCOMPARE(order({"package p; endpackage package q; import p::*; endpackage", "import q::*;"}), QVector<int>({0, 1}));
}

void TestHdlScan::packageCyclesEnd()
{
    QCOMPARE(order({"package p; import q::*; endpackage", "package q; import p::*; endpackage"}), QVector<int>({1, 0}));
}

void TestHdlScan::noiseNeverHangs()
{
    QRandomGenerator random(7);
    const QList<QByteArray> words{"module", "`ifdef", "`else",    "`endif", "`define", "`include", "\"",      "\\",
                                  "(*",     "*)",     "/*",       "*/",     "//",      "\n",       "(",       ")",
                                  "#",      ".",      ",",        ";",      "[",       "]",        "a",       "b",
                                  "::",     "genvar", "defparam", "=",      "'h",      "\xff",     "package", " "};
    for (int round = 0; round < 3000; ++round) {
        QByteArray text;
        for (int i = 0; i < 60; ++i)
            text += words[random.bounded(words.size())] + (random.bounded(2) ? " " : "");
        scan(text);
    }
}

QTEST_GUILESS_MAIN(TestHdlScan)
#include "tst_hdlscan.moc"

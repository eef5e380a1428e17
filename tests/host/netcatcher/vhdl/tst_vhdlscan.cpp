// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "hostlibs/netcatcher/vhdl/vhdllexer.h"
#include "hostlibs/netcatcher/vhdl/vhdlscan.h"

#include <QRandomGenerator>
#include <QtTest>

using namespace NETCATCHER;

/// The rough reading of VHDL sources that gives names their spelling.
class TestVhdlScan : public QObject
{
    Q_OBJECT

private slots:
    void tokens_data();
    void tokens();
    void keysAndShownNames();
    void entitiesAndRoots();
    void everyKindOfInstance();
    void labelsAreNoInstances();
    void signalsAreLookedForOutwards();
    void portsOfComponentsAreNotTheEntitys();
    void usesAreToldFromDeclarations();
    void openGenerics();
    void emptyTexts();
    void noiseNeverHangs();
};

void TestVhdlScan::tokens_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QList<QByteArray>>("expected");
    const auto row = [](const char *name, const char *text, const QList<QByteArray> &expected) {
        QTest::newRow(name) << QByteArray(text) << expected;
    };
    row("comments", "a -- b ' \"\nc /* d -- */ e", {"a", "c", "e"});
    row("character after operator", "x <= '(' & ''';", {"x", "<=", "'('", "&", "'''", ";"});
    row("attribute", "clk'event and c='1'", {"clk", "'", "event", "and", "c", "=", "'1'"});
    row("qualified", "t'('a','b')", {"t", "'", "(", "'a'", ",", "'b'", ")"});
    row("attribute of index", "v(1)'x'y", {"v", "(", "1", ")", "'", "x", "'", "y"});
    row("string", "\"a\"\"b;\" & \"\"", {"\"a\"\"b;\"", "&", "\"\""});
    row("bit strings", "X\"a_f\" 12ux\"F\" b\"01\"", {"X\"a_f\"", "12ux\"F\"", "b\"01\""});
    row("numbers", "16#F.F#e+2 1.5e-3 1_000 3 to 4", {"16#F.F#e+2", "1.5e-3", "1_000", "3", "to", "4"});
    row("extended", "\\a b\\\\c\\ : x", {"\\a b\\\\c\\", ":", "x"});
    row("symbols", "a:=b=>c<=d<<e>>", {"a", ":=", "b", "=>", "c", "<=", "d", "<<", "e", ">>"});
    row("unclosed", "a \"b\nc \\d\ne /* f", {"a", "\"b", "c", "\\d", "e"});
}

void TestVhdlScan::tokens()
{
    QFETCH(QByteArray, text);
    QFETCH(QList<QByteArray>, expected);
    QList<QByteArray> found;
    for (const VhdlToken &token : lexVhdl(text))
        found.append(text.mid(token.begin, token.length));
    QCOMPARE(found, expected);
}

void TestVhdlScan::keysAndShownNames()
{
    QCOMPARE(vhdlKey("Some_Name"), QByteArray("some_name"));
    QCOMPARE(vhdlKey("GR\xdcN"), QByteArray("gr\xfcn"));
    QCOMPARE(vhdlKey("\\Some Name\\"), QByteArray("\\Some Name\\"));
    QCOMPARE(vhdlDisplayName("\\a\\\\b\\"), QByteArray("a\\b"));
    QCOMPARE(vhdlDisplayName("gr\xfcn"), QByteArray("gr\xc3\xbcn"));
}

static VhdlScan scan(const QByteArray &text)
{
    VhdlScan result;
    result.add(text);
    return result;
}

void TestVhdlScan::entitiesAndRoots()
{
    const VhdlScan found = scan("entity A is end entity A;\narchitecture R of A is begin u : entity work.B; end R;\n"
                                "entity b is end;\n-- entity no is end;\nENTITY C IS END;\n"
                                "architecture R of C is attribute e : string; attribute e of R : entity is \"x\";\n"
                                "begin u : entity lib.C; end;\nentity D is end;\n"
                                "configuration K of D is for R end for; end;\n"
                                "architecture R of b is begin u : configuration work.k; end;\n");
    QCOMPARE(found.entities(), QVector<QByteArray>({"A", "b", "C", "D"}));
    QCOMPARE(found.roots(), QVector<QByteArray>({"A", "C"}));
    QCOMPARE(found.entityName("c"), QByteArray("C"));
    QCOMPARE(found.entityBehind("k"), QByteArray("d"));
}

void TestVhdlScan::everyKindOfInstance()
{
    const VhdlScan found = scan("entity A is end;\narchitecture R of A is\ncomponent Five is end component;\nbegin\n"
                                "one : entity lib.Unit(arch) port map (x);\ntwo : component Two generic map (1);\n"
                                "three : configuration work.Three;\nfour : Four port map (a => b);\nfive : Five;\n"
                                "G : for i in 0 to 1 generate six : lib.pkg.Six generic map (2) port map (x);\n"
                                "end generate;\nend;\n");
    const VhdlPlace place{"a", "r", {}};
    const VhdlPlace inner{"a", "r", {"g"}};
    QCOMPARE(found.instance(place, "one")->unit, QByteArray("Unit"));
    QVERIFY(!found.instance(place, "one")->hasGenerics);
    QCOMPARE(found.instance(place, "two")->unit, QByteArray("Two"));
    QVERIFY(found.instance(place, "two")->hasGenerics);
    QCOMPARE(found.instance(place, "three")->unit, QByteArray("Three"));
    QCOMPARE(found.instance(place, "four")->unit, QByteArray("Four"));
    QCOMPARE(found.instance(place, "five")->unit, QByteArray("Five"));
    QCOMPARE(found.instance(inner, "six")->unit, QByteArray("Six"));
    QVERIFY(!found.instance(place, "six"));
    QCOMPARE(found.componentName("five"), QByteArray("Five"));
}

void TestVhdlScan::labelsAreNoInstances()
{
    const VhdlScan found =
        scan("entity A is end;\narchitecture R of A is\nfor all : Comp use open;\nbegin\n"
             "p : process begin l : for i in 0 to 1 loop end loop; end process;\n"
             "q : x <= y;\nc : call(x);\ns : assert false;\nw : with x select y <= z when 1;\nend;\n");
    for (const char *label : {"p", "l", "q", "c", "s", "w", "all"})
        QVERIFY2(!found.instance({"a", "r", {}}, label), label);
    QCOMPARE(found.instantiated(), QSet<QByteArray>());
}

void TestVhdlScan::signalsAreLookedForOutwards()
{
    const VhdlScan found =
        scan("entity A is port (Clk, RESET : in bit); end;\narchitecture R of A is\n"
             "signal Sum, carry : bit;\nprocedure p(signal SUM : in bit) is begin end;\nbegin\n"
             "Outer : if true generate signal Mid : bit; begin\nInner : block is signal SUm : bit; begin\n"
             "sUM <= carry; end block;\nend generate;\nend;\n");
    QCOMPARE(found.signalName({"a", "r", {}}, "sum"), QByteArray("Sum"));
    QCOMPARE(found.signalName({"a", "r", {"outer"}}, "sum"), QByteArray("Sum"));
    QCOMPARE(found.signalName({"a", "r", {"outer", "inner"}}, "sum"), QByteArray("SUm"));
    QCOMPARE(found.signalName({"a", "r", {"outer", "inner"}}, "mid"), QByteArray("Mid"));
    QCOMPARE(found.signalName({"a", "r", {"outer", "inner"}}, "clk"), QByteArray("Clk"));
    QCOMPARE(found.signalName({"a", "r", {}}, "reset"), QByteArray("RESET"));
    QCOMPARE(found.signalName({"a", "r", {}}, "unknown"), QByteArray("unknown"));
    QCOMPARE(found.labelName({"a", "r", {"outer"}}, "inner"), QByteArray("Inner"));
}

void TestVhdlScan::portsOfComponentsAreNotTheEntitys()
{
    const VhdlScan found =
        scan("entity A is port (Clk : in bit); end;\narchitecture R of A is\n"
             "component C is port (CLK : in bit); end component C;\nsignal Behind : bit;\nbegin end;\n");
    QCOMPARE(found.signalName({"a", "r", {}}, "clk"), QByteArray("Clk"));
    QCOMPARE(found.signalName({"a", "r", {}}, "behind"), QByteArray("Behind"));
}

void TestVhdlScan::usesAreToldFromDeclarations()
{
    const VhdlScan found = scan("entity A is end;\narchitecture R of A is\nsignal a, b, c, d, e, f : bit;\n"
                                "attribute keep of a : signal is \"true\";\nalias x : bit is c;\nbegin\n"
                                "process (d) begin end process;\nu : comp port map (p => e);\nend R;\n"
                                "entity F is port (f : in bit); end;\n"
                                "architecture R of F is begin x <= << signal .a.u.g : bit >>; end;\n");
    const VhdlPlace place{"a", "r", {}};
    for (const char *used : {"c", "d", "e", "g"})
        QVERIFY2(found.isUsed(place, used), used);
    for (const char *idle : {"a", "b", "f"})
        QVERIFY2(!found.isUsed(place, idle), idle);
    QVERIFY(found.isUsed({"a", "other", {}}, "a"));
}

void TestVhdlScan::openGenerics()
{
    const VhdlScan found = scan("entity A is generic (One : integer; Two, Three : string := \"a\"; Four, Five : "
                                "integer_vector(0 to 1)); port (X : in bit); end;\n"
                                "entity B is generic (One : integer := f(1, 2)); end;\n");
    QCOMPARE(found.openGenerics("a"), QList<QByteArray>({"One", "Four", "Five"}));
    QCOMPARE(found.openGenerics("b"), QList<QByteArray>());
    const VhdlScan behind = scan("entity A is end;\npackage P is generic (N : natural); end;\n");
    QCOMPARE(behind.openGenerics("a"), QList<QByteArray>());
}

void TestVhdlScan::emptyTexts()
{
    VhdlScan found;
    QVERIFY(!found.add(""));
    QVERIFY(!found.add(" \n-- nothing\n/* here */"));
    QVERIFY(found.add(";"));
    QVERIFY(found.entities().isEmpty());
}

void TestVhdlScan::noiseNeverHangs()
{
    const QList<QByteArray> words{"entity", "is",  "a",         "architecture", "of",    "begin", "end", ";",
                                  ":",      "(",   ")",         "port",         "map",   ",",     "<<",  ">>",
                                  "record", "'",   "component", "generate",     "block", "type",  "\\",  "\"",
                                  "=>",     "for", "generic",   ":=",           "use",   "signal"};
    QRandomGenerator random(7);
    for (int round = 0; round < 500; ++round) {
        QByteArray text;
        for (int i = random.bounded(80); i > 0; --i)
            text += words[random.bounded(words.size())] + (random.bounded(4) ? " " : "");
        VhdlScan found;
        found.add(text);
        QVERIFY(found.roots().size() <= found.entities().size());
    }
}

QTEST_GUILESS_MAIN(TestVhdlScan)
#include "tst_vhdlscan.moc"

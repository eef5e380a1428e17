// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "vhdlrefusal.h"

#include "host/netcatcher/netlistprobe.h"

#include "support/tempdir.h"

#include <QDir>
#include <QFile>
#include <QStandardPaths>
#include <QtTest>

/// Designs of Verilog and VHDL, with either at the top.
class TestMixedDesigns : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void listsTheNetsOf_data();
    void listsTheNetsOf();
    void modulesAreOfBothLanguages();
    void severalRootsOfBothLanguages();
    void topOfEitherLanguage();
    void misspeltTopEmptiesTheModules();
    void errorsOfBothLanguagesAreTold();
    void errorsAreToldWithoutATop();
    void missingFilesAreTold();
    void partsThatAreNotReachedNeedNoEngine();
    void partWithoutItsEngine();
    void genericsThatAreSetAreAWarning_data();
    void genericsThatAreSetAreAWarning();
    void openGenericStaysABlackBox();
    void designInsideItselfEnds();
    void jtagPrimitiveInTheOtherLanguage();
    void changeInEitherLanguageIsSeen();

private:
    probe::Result build(const QByteArray &verilog, const QByteArray &vhdl, const QString &top = {}) const;

    std::unique_ptr<support::TempDir> dir;
    QByteArray path;
};

void TestMixedDesigns::init()
{
    dir = std::make_unique<support::TempDir>();
    path = qgetenv("PATH");
}

void TestMixedDesigns::cleanup()
{
    qputenv("PATH", path);
}

probe::Result TestMixedDesigns::build(const QByteArray &verilog, const QByteArray &vhdl, const QString &top) const
{
    return probe::build(probe::sources({dir->write("a.v", verilog), dir->write("b.vhd", vhdl)}, top));
}

void TestMixedDesigns::listsTheNetsOf_data()
{
    QTest::addColumn<QStringList>("files");
    QTest::addColumn<QString>("top");
    QTest::newRow("crossing") << QStringList{"crossing.v", "crossing_parts.vhd"} << "crossing";
    QTest::newRow("bridge") << QStringList{"bridge.vhd", "bridge_parts.v"} << "Bridge";
}

void TestMixedDesigns::listsTheNetsOf()
{
    QFETCH(QStringList, files);
    QFETCH(QString, top);
    QStringList paths;
    for (const QString &file : files)
        paths.append(probe::dataFile(file));
    const probe::Result result = probe::build(probe::sources(paths));
    QCOMPARE(result.messages, QStringList());
    QCOMPARE(result.tops, QStringList(top));
    QVERIFY2(result.netlist, qPrintable(result.error));
    QCOMPARE(result.netlist->topHierarchy()->name(), top);
    QCOMPARE(probe::rows(*result.netlist), probe::goldenRows(QTest::currentDataTag()));
}

static const char verilogTop[] =
    "module top (input x, output y); wire w; Part u (.X(x), .Y(w)); assign y = w; endmodule\n";
static const char vhdlPart[] = "entity Part is port (X : in bit; Y : out bit); end;\n"
                               "architecture R of Part is signal Z : bit; begin Z <= X; Y <= Z; end;\n";

void TestMixedDesigns::modulesAreOfBothLanguages()
{
    const probe::Result result = build(verilogTop, vhdlPart);
    QCOMPARE(result.messages, QStringList());
    QCOMPARE(result.tops, QStringList("top"));
    QCOMPARE(result.modules, QStringList({"top", "Part"}));
    QCOMPARE(result.netlist->topHierarchy()->children().first()->module(), QString("Part"));
    QCOMPARE(probe::rows(*result.netlist), QStringList({"x", "y", "w", "u/X", "u/Y", "u/Z"}));
}

void TestMixedDesigns::severalRootsOfBothLanguages()
{
    const probe::Result result = build("module a (input x); endmodule\n", vhdlPart);
    QVERIFY(result.isAnalysed);
    QCOMPARE(result.tops, QStringList({"a", "Part"}));
    QCOMPARE(result.modules, QStringList({"a", "Part"}));
    QVERIFY(!result.netlist);
}

void TestMixedDesigns::topOfEitherLanguage()
{
    const probe::Result vhdl = build(verilogTop, vhdlPart, "PART");
    QCOMPARE(vhdl.tops, QStringList("PART"));
    QCOMPARE(probe::rows(*vhdl.netlist), QStringList({"X", "Y", "Z"}));
    const probe::Result verilog = build(verilogTop, vhdlPart, "top");
    QCOMPARE(verilog.tops, QStringList("top"));
    QVERIFY(verilog.netlist->findNet("u/Z"));
}

void TestMixedDesigns::misspeltTopEmptiesTheModules()
{
    const probe::Result result = build(verilogTop, vhdlPart, "Top");
    QCOMPARE(result.modules, QStringList());
    QCOMPARE(result.errors(), QStringList());
    QVERIFY(!result.netlist);
}

void TestMixedDesigns::errorsOfBothLanguagesAreTold()
{
    const probe::Result inVhdl = build(verilogTop, QByteArray(vhdlPart).replace("Z <= X", "Z <= Q"));
    QCOMPARE(inVhdl.messages, QStringList("ERROR: " + dir->filePath("b.vhd") + ":2: no declaration for \"q\""));
    QVERIFY(!inVhdl.netlist && inVhdl.modules.isEmpty());
    const probe::Result inVerilog = build(QByteArray(verilogTop).replace("wire", "wir e"), vhdlPart);
    QVERIFY2(inVerilog.errors().value(0).startsWith("ERROR: " + dir->filePath("a.v") + ":1: "),
             qPrintable(inVerilog.messages.join('\n')));
}

void TestMixedDesigns::errorsAreToldWithoutATop()
{
    const probe::Result result = build("module a (input x); endmodule\nmodule b (input x) endmodule\n",
                                       QByteArray(vhdlPart) + "entity Other is nonsense\n");
    QVERIFY(result.errors().filter(dir->filePath("a.v") + ":2: ").size() == 1);
    QVERIFY(!result.errors().filter(dir->filePath("b.vhd") + ":3: ").isEmpty());
}

void TestMixedDesigns::missingFilesAreTold()
{
    const QString vhdl = dir->filePath("none.vhd");
    const probe::Result result = probe::build(probe::sources({dir->write("a.v", verilogTop), vhdl}));
    QCOMPARE(result.messages, QStringList("ERROR: " + vhdl + ": There is no such file."));
}

void TestMixedDesigns::partsThatAreNotReachedNeedNoEngine()
{
    const QString verilator = QStandardPaths::findExecutable("verilator_bin");
    QVERIFY(QDir(dir->path()).mkdir("bin") && QFile::link(verilator, dir->filePath("bin/verilator_bin")));
    qputenv("PATH", QFile::encodeName(dir->filePath("bin")));
    const probe::Result result = build("module top (input x); other u (.x(x)); endmodule\n", vhdlPart, "top");
    QCOMPARE(result.messages, QStringList());
    QVERIFY(result.netlist);
}

void TestMixedDesigns::partWithoutItsEngine()
{
    const QString verilator = QStandardPaths::findExecutable("verilator_bin");
    QVERIFY(QDir(dir->path()).mkdir("bin") && QFile::link(verilator, dir->filePath("bin/verilator_bin")));
    qputenv("PATH", QFile::encodeName(dir->filePath("bin")));
    const probe::Result result = build(verilogTop, vhdlPart);
    QCOMPARE(result.errors().size(), 1);
    QVERIFY(result.errors().first().contains("apt install ghdl-mcode"));
    QVERIFY(!result.netlist);
}

void TestMixedDesigns::genericsThatAreSetAreAWarning_data()
{
    QTest::addColumn<QByteArray>("verilog");
    QTest::addColumn<QByteArray>("vhdl");
    QTest::addColumn<QString>("unit");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("of VHDL") << QByteArray("module top (input x); Part #(.N(9)) u (.X(x)); endmodule\n")
                             << QByteArray("entity Part is generic (N : integer := 4); port (X : in bit); end;\n"
                                           "architecture R of Part is signal S : bit_vector(N downto 0); begin\n"
                                           "S(0) <= X; end;\n")
                             << "Part" << QStringList{"u/S[4:0]", "x", "u/X"};
    QTest::newRow("of Verilog")
        << QByteArray("module part #(parameter N = 4) (input x); wire [N:0] s = {N+1{x}}; endmodule\n")
        << QByteArray("entity Top is port (X : in bit); end;\narchitecture R of Top is component Part is\n"
                      "generic (N : integer); port (X : in bit); end component;\nbegin\n"
                      "U : Part generic map (N => 9) port map (X => X);\nend;\n")
        << "part" << QStringList{"U/s[4:0]", "X", "U/x"};
}

void TestMixedDesigns::genericsThatAreSetAreAWarning()
{
    QFETCH(QByteArray, verilog);
    QFETCH(QByteArray, vhdl);
    QFETCH(QString, unit);
    const probe::Result result = build(verilog, vhdl);
    QCOMPARE(result.messages, QStringList("WARNING: " + unit +
                                          " is read with the defaults of its parameters, although "
                                          "an instance in the other language sets some"));
    QVERIFY(result.netlist);
    QTEST(probe::rows(*result.netlist), "expected");
}

void TestMixedDesigns::openGenericStaysABlackBox()
{
    const probe::Result result =
        build("module top (input x); Part #(.N(9)) u (.X(x)); endmodule\n",
              "entity Part is generic (N : integer); port (X : in bit); end;\narchitecture R of Part is begin end;\n");
    QCOMPARE(result.messages, QStringList("WARNING: Part is a black box, because its generic N has no default"));
    QVERIFY(result.netlist);
    QCOMPARE(probe::rows(*result.netlist), QStringList("x"));
}

void TestMixedDesigns::designInsideItselfEnds()
{
    const probe::Result result =
        build("module top (input x); Part u (.X(x)); endmodule\n",
              "entity Part is port (X : in bit); end;\narchitecture R of Part is\n"
              "component top is port (x : in bit); end component;\nbegin\nU : top port map (x => X);\nend;\n",
              "top");
    QCOMPARE(result.messages, QStringList("WARNING: top is a black box, because it is inside of itself"));
    QVERIFY(result.netlist);
    QCOMPARE(probe::rows(*result.netlist), QStringList({"x", "u/X"}));
}

void TestMixedDesigns::jtagPrimitiveInTheOtherLanguage()
{
    const probe::Result result =
        build("module top (input x); OV_JTAG u (.tdo(x)); endmodule\n",
              "entity ov_jtag is port (tdo : in bit); end;\narchitecture R of ov_jtag is begin end;\n");
    QVERIFY2(result.netlist, qPrintable(result.messages.join('\n')));
    QVERIFY(result.netlist->findNet("u/tdo"));
    QVERIFY(result.netlist->jtagUsed());
}

void TestMixedDesigns::changeInEitherLanguageIsSeen()
{
    const QByteArray before = qgetenv("XDG_CACHE_HOME");
    qputenv("XDG_CACHE_HOME", QFile::encodeName(dir->filePath("cache")));
    const auto rows = [this](const QByteArray &verilog, const QByteArray &vhdl) {
        const probe::Result result = build(verilog, vhdl);
        return result.netlist ? probe::rows(*result.netlist) : result.messages;
    };
    const QStringList first = rows(verilogTop, vhdlPart);
    const QStringList again = rows(verilogTop, vhdlPart);
    const QStringList changedPart = rows(verilogTop, QByteArray(vhdlPart).replace("Z", "V"));
    const QStringList changedTop = rows(QByteArray(verilogTop).replace("w", "W").replace("Wire", "wire"), vhdlPart);
    before.isNull() ? qunsetenv("XDG_CACHE_HOME") : qputenv("XDG_CACHE_HOME", before);
    QCOMPARE(first, QStringList({"x", "y", "w", "u/X", "u/Y", "u/Z"}));
    QCOMPARE(again, first);
    QCOMPARE(changedPart, QStringList({"x", "y", "w", "u/X", "u/Y", "u/V"}));
    QCOMPARE(changedTop, QStringList({"x", "y", "W", "u/X", "u/Y", "u/Z"}));
}

VHDL_TEST_MAIN(TestMixedDesigns)
#include "tst_mixeddesigns.moc"

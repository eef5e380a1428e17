// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "host/netcatcher/netlistprobe.h"

#include "support/tempdir.h"

#include <QDir>
#include <QFile>
#include <QtTest>

/// What users are told about designs that cannot be read, or not as they expect; and what `tops` and `modules` hold.
class TestNetlistMessages : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void onlyRootIsTheTop();
    void severalRootsAreAllTops();
    void topThatIsSetIsTheOnlyTop();
    void topNeedNotBeARoot();
    void misspeltTopEmptiesTheModules();
    void topIsComparedExactly();
    void escapedModuleNames();
    void blackBoxIsNoTop();
    void interfaceIsNoModule();
    void interfaceAsTopGivesTheRootsInstead();
    void modulesOutsideOfTheTopAreFoundToo();
    void sourcesWithoutModules_data();
    void sourcesWithoutModules();

    void syntaxErrorNamesFileAndLine();
    void errorInIncludeNamesTheInclude();
    void missingIncludeTellsTheRemedy();
    void missingPackageTellsTheRemedy_data();
    void missingPackageTellsTheRemedy();
    void failureInsideOfTheEngineTellsTheRemedy();
    void interfacePortOfTheTopTellsTheRemedy();
    void surplusPinTellsTheCause();
    void encryptedFileTellsTheRemedy_data();
    void encryptedFileTellsTheRemedy();
    void duplicateModuleIsAWarning();
    void missingIncludeFolderIsAWarning();
    void wrongPinOfARealModuleIsAnError();
    void assignmentToAnInputIsTolerated();

    void includesAreFoundBesideTheirFile();
    void includesAreFoundInIncludeFolders();
    void includeFoldersKeepTheirFiles();
    void includeBehindAnUnusualConditionIsFound();
    void definesReachTheSources();
    void synthesisIsDefined();
    void filesAreReadOnce();
    void packagesMayFollowTheirUsers();
    void standardAppliesToVerilogFilesOnly();
    void disabledNeighbourIsNotPulledIn();
    void temporaryFolderIsRemoved();

private:
    probe::Result build(const QByteArray &source, const QString &top = {}) const;

    std::unique_ptr<support::TempDir> dir;
};

void TestNetlistMessages::init()
{
    dir = std::make_unique<support::TempDir>();
}

probe::Result TestNetlistMessages::build(const QByteArray &source, const QString &top) const
{
    return probe::build(probe::sources({dir->write("design.sv", source)}, top));
}

static const char twoRoots[] = "module a(input x); leaf u(.x(x)); endmodule\n"
                               "module b(input x); wire y = x; endmodule\n"
                               "module leaf(input x); wire z = x; endmodule\n";

void TestNetlistMessages::onlyRootIsTheTop()
{
    const probe::Result result =
        build("module a(input x); leaf u(.x(x)); endmodule\nmodule leaf(input x); endmodule\n");
    QCOMPARE(result.tops, QStringList("a"));
    QCOMPARE(result.modules, QStringList({"a", "leaf"}));
    QVERIFY(result.netlist);
}

void TestNetlistMessages::severalRootsAreAllTops()
{
    const probe::Result result = build(twoRoots);
    QVERIFY(result.isAnalysed);
    QCOMPARE(result.tops, QStringList({"a", "b"}));
    QCOMPARE(result.modules, QStringList({"a", "b", "leaf"}));
    QVERIFY(!result.netlist);
    QCOMPARE(result.error, QString("The design has several top modules: a, b."));
}

void TestNetlistMessages::topThatIsSetIsTheOnlyTop()
{
    const probe::Result result = build(twoRoots, "b");
    QCOMPARE(result.tops, QStringList("b"));
    QVERIFY(result.netlist);
    QCOMPARE(result.netlist->topHierarchy()->name(), QString("b"));
    QVERIFY(!result.netlist->findNet("u/x"));
}

void TestNetlistMessages::topNeedNotBeARoot()
{
    const probe::Result result = build(twoRoots, "leaf");
    QCOMPARE(result.tops, QStringList("leaf"));
    QVERIFY(result.netlist);
    QVERIFY(result.netlist->findNet("z"));
}

void TestNetlistMessages::misspeltTopEmptiesTheModules()
{
    const probe::Result result = build(twoRoots, "bee");
    QVERIFY(result.isAnalysed);
    QCOMPARE(result.modules, QStringList());
    QCOMPARE(result.errors(), QStringList());
    QCOMPARE(result.tops, QStringList({"a", "b"}));
    QVERIFY(!result.netlist);
}

void TestNetlistMessages::topIsComparedExactly()
{
    QCOMPARE(build(twoRoots, "B").modules, QStringList());
    QCOMPARE(build(twoRoots, " b").modules, QStringList());
}

void TestNetlistMessages::escapedModuleNames()
{
    const QByteArray source = "module \\$add (input a); wire \\b$c = a; \\box+1 u9(.p(a)); endmodule\n"
                              "module other(input a); \\$add u(.a(a)); endmodule\n";
    const probe::Result whole = build(source);
    QVERIFY2(whole.netlist, qPrintable(whole.error));
    QCOMPARE(whole.modules, QStringList({"$add", "other"}));
    QCOMPARE(whole.netlist->topHierarchy()->children().first()->module(), QString("$add"));
    QVERIFY(whole.netlist->findNet("u/b$c"));
    const probe::Result part = build(source, "$add");
    QCOMPARE(part.tops, QStringList("$add"));
    QCOMPARE(part.netlist->topHierarchy()->name(), QString("$add"));
}

void TestNetlistMessages::blackBoxIsNoTop()
{
    const probe::Result result = build("module a(input x); vendor u(.x(x)); endmodule\n", "vendor");
    QCOMPARE(result.modules, QStringList());
    QCOMPARE(result.tops, QStringList("a"));
    QCOMPARE(result.errors(), QStringList());
}

void TestNetlistMessages::interfaceIsNoModule()
{
    const probe::Result result = build("interface i; logic x; endinterface\nmodule a(input x); endmodule\n");
    QCOMPARE(result.modules, QStringList("a"));
    QCOMPARE(result.tops, QStringList("a"));
}

void TestNetlistMessages::interfaceAsTopGivesTheRootsInstead()
{
    const QByteArray bus("interface i; logic x; endinterface\n");
    const probe::Result one = build(bus + "module a(input x); i u(); endmodule\n", "i");
    QCOMPARE(one.errors(), QStringList());
    QCOMPARE(one.modules, QStringList("a"));
    QCOMPARE(one.tops, QStringList("a"));
    QVERIFY(one.netlist);
    QCOMPARE(one.netlist->topHierarchy()->name(), QString("a"));
    const probe::Result several = build(bus + twoRoots, "i");
    QCOMPARE(several.modules, QStringList({"a", "b", "leaf"}));
    QCOMPARE(several.tops, QStringList({"a", "b"}));
    QVERIFY(!several.netlist);
    const probe::Result none = build(bus, "i");
    QCOMPARE(none.modules, QStringList());
    QCOMPARE(none.errors(), QStringList());
}

void TestNetlistMessages::modulesOutsideOfTheTopAreFoundToo()
{
    const probe::Result result = build(twoRoots, "b");
    QStringList modules = result.modules;
    modules.sort();
    QCOMPARE(modules, QStringList({"a", "b", "leaf"}));
}

void TestNetlistMessages::sourcesWithoutModules_data()
{
    QTest::addColumn<QByteArray>("source");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("comment") << QByteArray("// nothing\n");
    QTest::newRow("package") << QByteArray("package p; localparam X = 1; endpackage\n");
    QTest::newRow("interface") << QByteArray("interface i; logic x; endinterface\n");
}

void TestNetlistMessages::sourcesWithoutModules()
{
    QFETCH(QByteArray, source);
    const probe::Result result = build(source);
    QCOMPARE(result.errors(), QStringList());
    QVERIFY(result.isAnalysed);
    QCOMPARE(result.modules, QStringList());
    QCOMPARE(result.tops, QStringList());
    QVERIFY(!result.netlist);
    QCOMPARE(result.error, QString("The design has no top module."));
}

void TestNetlistMessages::syntaxErrorNamesFileAndLine()
{
    const probe::Result result = build("module a(input x);\n\n  wire y = ;\nendmodule\n");
    QVERIFY(!result.isAnalysed);
    QCOMPARE(result.errors().size(), 1);
    QVERIFY2(result.errors().first().startsWith("ERROR: " + dir->filePath("design.sv") + ":3: syntax error"),
             qPrintable(result.errors().first()));
    QVERIFY(!result.netlist);
    QCOMPARE(result.error, result.errors().first());
}

void TestNetlistMessages::errorInIncludeNamesTheInclude()
{
    dir->write("more/part one.vh", "\nwire y = ;\n");
    const probe::Result result = build("module a(input x);\n`include \"more/part one.vh\"\nendmodule\n");
    QCOMPARE(result.errors().size(), 1);
    QVERIFY2(result.errors().first().startsWith("ERROR: " + dir->filePath("more/part one.vh") + ":2: syntax error"),
             qPrintable(result.errors().first()));
}

void TestNetlistMessages::missingIncludeTellsTheRemedy()
{
    const probe::Result result = build("\n`include \"nowhere.vh\"\nmodule a(input x); endmodule\n");
    QCOMPARE(result.errors(), QStringList("ERROR: " + dir->filePath("design.sv") +
                                          ":2: Cannot find include file: nowhere.vh (add the folder of that file to "
                                          "the include paths)"));
}

void TestNetlistMessages::missingPackageTellsTheRemedy_data()
{
    QTest::addColumn<QByteArray>("source");
    QTest::addColumn<QString>("message");
    const QString remedy = " (add the file that declares the package to the project)";
    const QString typeRemedy = " (add the file that declares the package to the project, or correct the type's name)";
    QTest::newRow("import") << QByteArray("module a import p::*; (input x); endmodule\n")
                            << "Importing from missing package 'p'" + remedy;
    QTest::newRow("constant") << QByteArray("module a(input x); wire [p::W-1:0] y; endmodule\n")
                              << "Internal Error: Bad package link" + remedy;
    QTest::newRow("type that a package lacks")
        << QByteArray("package p; endpackage module a(input p::t x); endmodule\n")
        << "syntax error, unexpected IDENTIFIER, expecting TYPE-IDENTIFIER" + typeRemedy;
    QTest::newRow("type of a port") << QByteArray("module a(input p::t x); endmodule\n")
                                    << "syntax error, unexpected IDENTIFIER, expecting TYPE-IDENTIFIER" + typeRemedy;
    QTest::newRow("type of a variable") << QByteArray("module a(input x); p::t y; endmodule\n")
                                        << "syntax error, unexpected IDENTIFIER, expecting TYPE-IDENTIFIER" +
                                               typeRemedy;
    QTest::newRow("function") << QByteArray("module a(input x); wire y = p::f(x); endmodule\n")
                              << "Internal Error: Bad package link" + remedy;
}

void TestNetlistMessages::missingPackageTellsTheRemedy()
{
    QFETCH(QByteArray, source);
    QFETCH(QString, message);
    QCOMPARE(build(source).errors(), QStringList("ERROR: " + dir->filePath("design.sv") + ":1: " + message));
}

void TestNetlistMessages::failureInsideOfTheEngineTellsTheRemedy()
{
    const probe::Result result =
        build("\ninterface i; logic v; endinterface\nmodule a(input x); wire y = i::v; endmodule\n");
    QVERIFY(!result.netlist);
    QCOMPARE(result.errors().size(), 1);
    QVERIFY2(result.errors().first().startsWith("ERROR: " + dir->filePath("design.sv") + ":2: Internal Error: ") &&
                 result.errors().first().endsWith(" (the Verilog engine failed here; set the top module, or disable "
                                                  "the file that it names)"),
             qPrintable(result.errors().first()));
}

void TestNetlistMessages::interfacePortOfTheTopTellsTheRemedy()
{
    const QByteArray source = "interface i; logic x; endinterface\nmodule a(i p); wire y = p.x; endmodule\n";
    const probe::Result result = build(source, "a");
    QVERIFY(!result.errors().isEmpty());
    QVERIFY2(result.errors().first().startsWith("ERROR: " + dir->filePath("design.sv") + ":2: "),
             qPrintable(result.errors().first()));
    QVERIFY(result.errors().first().endsWith("(choose a module without interface ports as the top module)"));
}

void TestNetlistMessages::surplusPinTellsTheCause()
{
    const probe::Result result =
        build("module a(input x);\nleaf u(x, x);\nendmodule\nmodule leaf(input x); endmodule\n");
    QCOMPARE(result.errors(), QStringList("ERROR: " + dir->filePath("design.sv") +
                                          ":2: Pin not found: '__pinNumber2' (more pins are connected than the module "
                                          "has ports)"));
}

void TestNetlistMessages::encryptedFileTellsTheRemedy_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::newRow("version") << QByteArray("`pragma protect version = 1");
    QTest::newRow("older form") << QByteArray("`protected");
}

void TestNetlistMessages::encryptedFileTellsTheRemedy()
{
    QFETCH(QByteArray, line);
    const probe::Result result = build(line + "\nmodule a(input x); endmodule\n");
    QVERIFY(!result.netlist);
    QVERIFY2(result.errors().value(0).startsWith("ERROR: " + dir->filePath("design.sv") + ':') &&
                 result.errors().value(0).endsWith(" (the file is encrypted; disable it, and its modules become black "
                                                   "boxes)"),
             qPrintable(result.errors().value(0)));
}

void TestNetlistMessages::duplicateModuleIsAWarning()
{
    const QString first = dir->write("one.v", "module a(input x); endmodule\n");
    const QString second = dir->write("two.v", "module a(input y); endmodule\n");
    const probe::Result result = probe::build(probe::sources({first, second}));
    QVERIFY(result.netlist);
    QVERIFY(result.netlist->findNet("x"));
    QCOMPARE(result.warnings(), QStringList("WARNING: " + second + ":1: Duplicate declaration of module: 'a'"));
}

void TestNetlistMessages::missingIncludeFolderIsAWarning()
{
    NETCATCHER::DesignSources sources = probe::sources({dir->write("a.v", "module a(input x); endmodule\n")});
    sources.includePaths.append(dir->filePath("nowhere"));
    const probe::Result result = probe::build(sources);
    QVERIFY(result.netlist);
    QCOMPARE(result.messages,
             QStringList("WARNING: " + dir->filePath("nowhere") + ": There is no such include folder."));
}

void TestNetlistMessages::wrongPinOfARealModuleIsAnError()
{
    const probe::Result result = build("module a(input x);\nleaf u(.nope(x));\nvendor v(.x(x));\nendmodule\n"
                                       "module leaf(input x); endmodule\n");
    QCOMPARE(result.errors(), QStringList("ERROR: " + dir->filePath("design.sv") + ":2: Pin not found: 'nope'"));
}

void TestNetlistMessages::assignmentToAnInputIsTolerated()
{
    // Models of I/O cells are written like this; the nets are as good as any.
    const probe::Result result = build("module a(input i, inout p); assign i = p; endmodule\n");
    QCOMPARE(result.messages, QStringList());
    QCOMPARE(probe::rows(*result.netlist), QStringList({"i", "p\tunusable"}));
}

void TestNetlistMessages::includesAreFoundBesideTheirFile()
{
    dir->write("rtl/sub/width.vh", "`include \"deeper.vh\"\n`include \"../../common/more.vh\"\n");
    dir->write("rtl/sub/deeper.vh", "`define WIDTH 6\n");
    dir->write("common/more.vh", "`define MORE 2\n");
    const QString source = dir->write("rtl/a.v", "`include \"sub/width.vh\"\n"
                                                 "module a(input [`WIDTH-1:0] x, input [`MORE-1:0] y); endmodule\n");
    const probe::Result result = probe::build(probe::sources({source}));
    QCOMPARE(result.messages, QStringList());
    QCOMPARE(probe::rows(*result.netlist), QStringList({"x[5:0]", "y[1:0]"}));
}

void TestNetlistMessages::includesAreFoundInIncludeFolders()
{
    dir->write("inc one/width.vh", "`include \"deeper.vh\"\n");
    dir->write("inc one/deeper.vh", "`define WIDTH 6\n");
    NETCATCHER::DesignSources sources =
        probe::sources({dir->write("a.v", "`include \"width.vh\"\nmodule a(input [`WIDTH-1:0] x); endmodule\n")});
    sources.includePaths.append(dir->filePath("inc one"));
    const probe::Result result = probe::build(sources);
    QCOMPARE(result.messages, QStringList());
    QCOMPARE(probe::rows(*result.netlist), QStringList("x[5:0]"));

    dir->write("inc one/deeper.vh", "`define WIDTH +\n\n`error_here\n");
    const probe::Result broken = probe::build(sources);
    QVERIFY2(broken.errors().value(0).startsWith("ERROR: " + dir->filePath("inc one/deeper.vh") + ":3: "),
             qPrintable(broken.errors().value(0)));
}

void TestNetlistMessages::includeFoldersKeepTheirFiles()
{
    const QString include = dir->write("inc/width.vh", "`define WIDTH 6\n");
    NETCATCHER::DesignSources sources =
        probe::sources({dir->write("a.v", "`include \"width.vh\"\nmodule a(input [`WIDTH-1:0] x); endmodule\n")});
    sources.includePaths.append(dir->filePath("inc"));
    QVERIFY(probe::build(sources).netlist);
    QVERIFY(QFile::exists(include));
    QCOMPARE(QDir(dir->path()).entryList(QDir::Files | QDir::Dirs | QDir::NoDotAndDotDot).size(), 2);
}

void TestNetlistMessages::includeBehindAnUnusualConditionIsFound()
{
    // The name of the file comes out of a macro, which only the engine can tell.
    dir->write("width.vh", "`define WIDTH 6\n");
    const probe::Result result = build("`define NAME \"width.vh\"\n`include `NAME\nmodule a(input [`WIDTH-1:0] x); "
                                       "endmodule\n");
    QCOMPARE(result.errors(), QStringList());
    QCOMPARE(probe::rows(*result.netlist), QStringList("x[5:0]"));
}

void TestNetlistMessages::definesReachTheSources()
{
    NETCATCHER::DesignSources sources = probe::sources(
        {dir->write("a.v", "module a(input [`W-1:0] x);\n`ifdef WITH_BOX\nvendor u(.x(x));\n`endif\nendmodule\n")});
    sources.defines = QStringList({"W=5", "WITH_BOX"});
    const probe::Result result = probe::build(sources);
    QCOMPARE(result.messages, QStringList());
    QCOMPARE(probe::rows(*result.netlist), QStringList("x[4:0]"));
    QCOMPARE(result.netlist->topHierarchy()->children().size(), 1);
}

void TestNetlistMessages::synthesisIsDefined()
{
    const probe::Result result = build("module a(input x);\n`ifdef SYNTHESIS\nwire s = x;\n`else\nwire t = x;\n`endif\n"
                                       "`ifdef VERILATOR\nwire v = x;\n`endif\nendmodule\n");
    QCOMPARE(probe::rows(*result.netlist), QStringList({"x", "s"}));
}

void TestNetlistMessages::filesAreReadOnce()
{
    const QString source = dir->write("a.v", "module a(input x); endmodule\n");
    QVERIFY(QFile::link(source, dir->filePath("link.v")));
    const probe::Result result =
        probe::build(probe::sources({source, source, dir->path() + "/./a.v", dir->filePath("link.v")}));
    QVERIFY(result.netlist);
    QCOMPARE(result.messages, QStringList());
}

void TestNetlistMessages::packagesMayFollowTheirUsers()
{
    const QString top = dir->write("a.sv", "module a import p::*; (input t x); endmodule\n");
    const QString user = dir->write("p.sv", "package p; typedef logic [q::W-1:0] t; endpackage\n");
    const QString base = dir->write("q.sv", "package q; localparam W = 3; endpackage\n");
    const probe::Result result = probe::build(probe::sources({top, user, base}));
    QCOMPARE(result.messages, QStringList());
    QCOMPARE(probe::rows(*result.netlist), QStringList("x[2:0]"));
}

void TestNetlistMessages::standardAppliesToVerilogFilesOnly()
{
    const QByteArray text = "module plain(input logic x, output logic y); assign y = x; endmodule\n";
    NETCATCHER::DesignSources sources = probe::sources({dir->write("plain.v", text)});
    QCOMPARE(probe::build(sources).messages, QStringList());
    sources.standard = "1364-2001";
    QVERIFY(!probe::build(sources).errors().isEmpty());
    sources = probe::sources({dir->write("plain.sv", text)});
    sources.standard = "1364-2001";
    QCOMPARE(probe::build(sources).messages, QStringList());
}

void TestNetlistMessages::disabledNeighbourIsNotPulledIn()
{
    // A file beside a source, or in an include folder, is no part of the design only because of its name.
    dir->write("leaf.v", "module leaf(input x); wire inside = x; endmodule\n");
    NETCATCHER::DesignSources sources =
        probe::sources({dir->write("a.v", "module a(input x); leaf u(.x(x)); endmodule\n")});
    sources.includePaths.append(dir->path());
    const probe::Result result = probe::build(sources);
    QVERIFY2(result.netlist, qPrintable(result.error));
    QCOMPARE(probe::rows(*result.netlist), QStringList("x"));
}

void TestNetlistMessages::temporaryFolderIsRemoved()
{
    const QDir folder(dir->filePath("tmp"));
    QVERIFY(folder.mkpath("."));
    qputenv("TMPDIR", QFile::encodeName(folder.path()));
    const probe::Result good = build(twoRoots, "a");
    const probe::Result bad = build("module a(");
    qunsetenv("TMPDIR");
    QVERIFY(good.netlist && !bad.netlist);
    QVERIFY(folder.isEmpty());
}

QTEST_GUILESS_MAIN(TestNetlistMessages)
#include "tst_netlistmessages.moc"

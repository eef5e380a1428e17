// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "runrtlvak.h"

#include "support/fakelandlock.h"
#include "support/tempdir.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QtTest>

class TestNets : public QObject
{
    Q_OBJECT

private slots:
    void rowsAreTheGoldenList();
    void jsonHoldsBusesWithBitsAndNets();
    void jsonOfAnEmptyHitListIsValid();
    void countsOfTheWholeDesign_data();
    void countsOfTheWholeDesign();
    void countsOfASearch();
    void matchIsASubstringWithoutCase();
    void caseSensitiveMatch();
    void wildcardAndRegexMatchWholeNames();
    void scopeAndNoSubLimitTheList();
    void unknownScopeFails();
    void topChoosesAmongSeveral();
    void unknownTopFails();
    void interfaceAsTopFails();
    void projectIsRead();
    void topOverridesTheProject();
    void fileListIsRead();
    void errorsGoToStandardError();
    void missingLandlockIsTold();
    void whatIsTooWideIsTold();
    void missingEngineIsTold();
    void definesAndIncludeFolders();
    void usageErrors_data();
    void usageErrors();
    void helpExplainsTheCommand();
};

static QString data(const QString &name)
{
    return QStringLiteral(VAK_TEST_DATA "/hdl/") + name;
}

static QStringList lines(const QString &text)
{
    return text.split('\n', Qt::SkipEmptyParts);
}

static QStringList nets(const QStringList &arguments)
{
    return lines(runRtlvak(QStringList("nets") + arguments).output);
}

void TestNets::rowsAreTheGoldenList()
{
    const CliRun run = runRtlvak({"nets", data("types.sv"), data("types_pkg.sv")});
    QCOMPARE(run.status, 0);
    QCOMPARE(run.error, QString());
    QFile golden(data("types.nets"));
    QVERIFY(golden.open(QIODevice::ReadOnly));
    QCOMPARE(run.output, QString::fromUtf8(golden.readAll()));
}

void TestNets::jsonHoldsBusesWithBitsAndNets()
{
    const CliRun run = runRtlvak({"nets", "--json", data("usable.v")});
    QCOMPARE(run.status, 0);
    const QJsonObject root = QJsonDocument::fromJson(run.output.toUtf8()).object();
    QCOMPARE(root.keys(), QStringList({"buses", "nets", "top"}));
    QCOMPARE(root["top"].toString(), QString("usable"));
    const QJsonArray buses = root["buses"].toArray();
    QCOMPARE(buses.size(), 13);
    const QJsonObject pads = buses[2].toObject();
    QCOMPARE(pads["name"].toString(), QString("pads[1:0]"));
    QCOMPARE(pads["usable"].toBool(true), false);
    QCOMPARE(pads["bits"].toArray(), QJsonArray({"pads[1]", "pads[0]"}));
    QVERIFY(buses[0].toObject()["usable"].toBool());
    const QJsonObject clock = root["nets"].toArray().first().toObject();
    QCOMPARE(clock, QJsonObject({{"name", "clk"}, {"usable", true}}));
}

void TestNets::jsonOfAnEmptyHitListIsValid()
{
    const CliRun run = runRtlvak({"nets", "--json", "--match", "nowhere", data("usable.v")});
    QCOMPARE(run.status, 0);
    QCOMPARE(QJsonDocument::fromJson(run.output.toUtf8()).object(),
             QJsonObject({{"top", "usable"}, {"buses", QJsonArray()}, {"nets", QJsonArray()}}));
}

void TestNets::countsOfTheWholeDesign_data()
{
    QTest::addColumn<QString>("design");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("json");
    QTest::newRow("usable.v")
        << "usable.v"
        << "usable: 19 nets to choose from (11 single, 8 buses), 55 bits; 15 unusable\n"
        << "{\"top\":\"usable\",\"rows\":19,\"nets\":11,\"buses\":8,\"bits\":55,\"unusable\":15}\n";
}

void TestNets::countsOfTheWholeDesign()
{
    QFETCH(QString, design);
    const CliRun text = runRtlvak({"nets", "--count", data(design)});
    QCOMPARE(text.status, 0);
    QTEST(text.output, "text");
    QTEST(runRtlvak({"nets", "--count", "--json", data(design)}).output, "json");
}

/// Counting the hits of a search gives what counting the whole gives, where both ask for the same.
void TestNets::countsOfASearch()
{
    QCOMPARE(nets({"--count", "--match", "[", data("usable.v")}),
             QStringList("usable: 8 nets to choose from (0 single, 8 buses), 44 bits; 5 unusable"));
    QCOMPARE(nets({"--count", "--scope", "u_pin", data("usable.v")}),
             QStringList("usable: 4 nets to choose from (4 single, 0 buses), 4 bits; 0 unusable"));
    QCOMPARE(nets({"--count", "--no-sub", data("vectors.v")}),
             QStringList("vectors: 18 nets to choose from (7 single, 11 buses), 140 bits; 0 unusable"));
    QCOMPARE(nets({"--count", "--match", "", data("vectors.v")}), nets({"--count", data("vectors.v")}));
}

void TestNets::matchIsASubstringWithoutCase()
{
    QCOMPARE(nets({"--match", "TAP[1].g", data("generated.v")}),
             QStringList({"g_lane[0].g_tap[1].g_last.last", "g_lane[1].g_tap[1].g_last.last"}));
}

void TestNets::caseSensitiveMatch()
{
    QCOMPARE(nets({"--match", "TAP[1].g", "--case-sensitive", data("generated.v")}), QStringList());
    QCOMPARE(nets({"--match", "fast.q", "--case-sensitive", data("generated.v")}), QStringList("g_fast.quick"));
}

void TestNets::wildcardAndRegexMatchWholeNames()
{
    QCOMPARE(nets({"--match", "u_inv*", "--wildcard", data("vectors.v")}).size(), 8);
    QCOMPARE(nets({"--match", "u_inv", "--wildcard", data("vectors.v")}), QStringList());
    QCOMPARE(nets({"--match", "u_inv\\[[01]\\]/y", "--regex", data("vectors.v")}),
             QStringList({"u_inv[1]/y", "u_inv[0]/y"}));
}

void TestNets::scopeAndNoSubLimitTheList()
{
    QCOMPARE(nets({"--scope", "u_pair[1]", data("vectors.v")}), QStringList({"u_pair[1]/a", "u_pair[1]/y"}));
    QCOMPARE(nets({"--scope", "link", "--no-sub", data("streams.sv")}),
             QStringList({"link/data[7:0]", "link/clk", "link/valid", "link/ready"}));
    QVERIFY(!nets({"--no-sub", data("streams.sv")}).contains("link/clk"));
}

void TestNets::unknownScopeFails()
{
    const CliRun run = runRtlvak({"nets", "--scope", "u_none", data("vectors.v")});
    QCOMPARE(run.status, 1);
    QCOMPARE(run.output, QString());
    QCOMPARE(run.error, QString("rtlvak nets: there is no instance 'u_none'\n"));
}

void TestNets::topChoosesAmongSeveral()
{
    const QStringList sources{data("vectors.v"), data("streams.sv")};
    const CliRun several = runRtlvak(QStringList("nets") + sources);
    QCOMPARE(several.status, 1);
    QCOMPARE(several.error, QString("rtlvak nets: the design has several top modules (vectors, streams); choose one "
                                    "with --top\n"));
    QCOMPARE(nets(QStringList({"--top", "counter"}) + sources),
             QStringList({"value[3:0]", "next[4:0]", "clk", "rst", "wrap"}));
}

void TestNets::unknownTopFails()
{
    const CliRun run = runRtlvak({"nets", "--top", "vektors", data("vectors.v")});
    QCOMPARE(run.status, 1);
    QCOMPARE(run.error, QString("rtlvak nets: there is no module 'vektors'\n"));
}

void TestNets::interfaceAsTopFails()
{
    const support::TempDir dir;
    const QString source =
        dir.write("bus.sv", "interface bus_if; logic x; endinterface\nmodule a(input x); endmodule\n");
    const CliRun run = runRtlvak({"nets", "--top", "bus_if", source});
    QCOMPARE(run.status, 1);
    QCOMPARE(run.output, QString());
    QCOMPARE(run.error, QString("rtlvak nets: 'bus_if' is an interface; choose a module as the top\n"));
}

static const char project[] = R"({"vakproj": 1, "top": "second", "includePaths": ["inc"], "defines": ["WIDTH=3"],
 "files": [{"path": "a.v", "type": "verilog", "enabled": true, "library": ""},
           {"path": "off.v", "type": "verilog", "enabled": false, "library": ""}]})";
static const char twoModules[] = "`include \"def.vh\"\n"
                                 "module first(input x); wire only_first = x; endmodule\n"
                                 "module second(input [`WIDTH-1:0] `NAME); endmodule\n";

void TestNets::projectIsRead()
{
    const support::TempDir dir;
    dir.write("a.v", twoModules);
    dir.write("off.v", "this is not Verilog");
    dir.write("inc/def.vh", "`define NAME port\n");
    const QString path = dir.write("p.vakproj", project);
    const CliRun run = runRtlvak({"nets", path});
    QCOMPARE(run.error, QString());
    QCOMPARE(run.status, 0);
    QCOMPARE(run.output, QString("port[2:0]\n"));
}

void TestNets::topOverridesTheProject()
{
    const support::TempDir dir;
    dir.write("a.v", twoModules);
    dir.write("inc/def.vh", "`define NAME port\n");
    QCOMPARE(nets({"--top", "first", dir.write("p.vakproj", project)}), QStringList({"x", "only_first"}));
}

void TestNets::fileListIsRead()
{
    const support::TempDir dir;
    dir.write("a.v", twoModules);
    dir.write("inc/def.vh", "`define NAME port\n");
    const QString list = dir.write("design.f", "+incdir+inc\n+define+WIDTH=2\na.v\n");
    const CliRun run = runRtlvak({"nets", "--top", "second", list});
    QCOMPARE(run.error, QString());
    QCOMPARE(run.output, QString("port[1:0]\n"));
}

void TestNets::errorsGoToStandardError()
{
    const support::TempDir dir;
    const QString path = dir.write("a.v", "module a(input x);\nassign = 1;\nendmodule\n");
    const CliRun run = runRtlvak({"nets", path});
    QCOMPARE(run.status, 1);
    QCOMPARE(run.output, QString());
    QVERIFY2(run.error.startsWith("ERROR: " + path + ":2: "), qPrintable(run.error));
    QVERIFY(run.error.endsWith("\nrtlvak nets: the design has errors\n"));
    const CliRun missing = runRtlvak({"nets", dir.filePath("none.vakproj")});
    QCOMPARE(missing.status, 1);
    QVERIFY(missing.error.contains("none.vakproj"));
}

void TestNets::missingLandlockIsTold()
{
    QCOMPARE(runRtlvak({"nets", data("usable.v")}).warnsOfLandlock, support::landlockVersion() == 0);
    const QByteArray told = support::inChild([]() -> QByteArray {
        if (!support::hideLandlock())
            return "no filter";
        const CliRun run = runRtlvak({"nets", "--match", "clk", data("usable.v")});
        return (run.warnsOfLandlock ? "warned " : "silent ") + QByteArray::number(run.status) + '\n' +
               run.error.toUtf8() + run.output.toUtf8();
    });
    QCOMPARE(told, QByteArray("warned 0\nclk\nu_mem/clk\n"));
}

void TestNets::whatIsTooWideIsTold()
{
    const support::TempDir dir;
    const CliRun run = runRtlvak({"nets", dir.write("a.v", "module a(input [99999999:0] x); endmodule\n")});
    QCOMPARE(run.status, 0);
    QCOMPARE(run.error, QString("WARNING: x in module a is too wide to be taken apart and cannot be used\n"));
    QCOMPARE(run.output, QString("x[99999999:0]\tunusable\n"));
}

void TestNets::missingEngineIsTold()
{
    const support::TempDir dir;
    const QByteArray before = qgetenv("PATH");
    qputenv("PATH", QFile::encodeName(dir.path()));
    const CliRun run = runRtlvak({"nets", data("usable.v")});
    qputenv("PATH", before);
    QCOMPARE(run.status, 1);
    QCOMPARE(run.output, QString());
    QCOMPARE(run.error.section('\n', 0, 0),
             QString("ERROR: The Verilog engine verilator_bin is not installed; install the Debian package "
                     "\"verilator\" (apt install verilator)."));
}

void TestNets::definesAndIncludeFolders()
{
    const support::TempDir dir;
    const QString source = dir.write("a.v", twoModules);
    dir.write("other/def.vh", "`define NAME named\n");
    QCOMPARE(nets({"-D", "WIDTH=1", "-I", dir.filePath("other"), "--top", "second", source}),
             QStringList("named[0:0]"));
}

void TestNets::usageErrors_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("error");
    const QString hint = "Try 'rtlvak nets --help'.\n";
    QTest::newRow("no design") << QStringList() << "rtlvak nets: names no design.\n" + hint;
    QTest::newRow("both syntaxes") << QStringList({"--wildcard", "--regex", "a.v"})
                                   << "rtlvak nets: takes one of --wildcard and --regex.\n" + hint;
    QTest::newRow("pattern") << QStringList({"--regex", "--match", "(", "a.v"})
                             << "rtlvak nets: the pattern is not valid: unexpected end\n" + hint;
}

void TestNets::usageErrors()
{
    QFETCH(QStringList, arguments);
    const CliRun run = runRtlvak(QStringList("nets") + arguments);
    QCOMPARE(run.status, 2);
    QTEST(run.error, "error");
}

void TestNets::helpExplainsTheCommand()
{
    const CliRun run = runRtlvak({"nets", "--help"});
    QCOMPARE(run.status, 0);
    QVERIFY(run.output.startsWith("Usage: rtlvak nets [options] PROJECT|LIST|SOURCE...\n"));
    for (const char *option :
         {"--top", "--scope", "--match", "--wildcard", "--regex", "--case-sensitive", "--json", "--count"})
        QVERIFY2(run.output.contains(option), option);
}

QTEST_GUILESS_MAIN(TestNets)
#include "tst_nets.moc"

// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "netlistprobe.h"

#include "support/fakelandlock.h"
#include "support/tempdir.h"

#include <QDir>
#include <QFile>
#include <QtTest>

#include <sys/stat.h>
#include <unistd.h>

/// Sources that are no text, never end, or ask for more than there is: each ends soon, with a netlist or with a message
/// that tells what to do.
class TestHostileInputs : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void placesWithoutATextAreNamed_data();
    void placesWithoutATextAreNamed();
    void unreadableFileIsNamed();
    void textsWithoutModulesGiveNone_data();
    void textsWithoutModulesGiveNone();
    void oddTextsAreRead_data();
    void oddTextsAreRead();
    void brokenTextsHaveAMessage_data();
    void brokenTextsHaveAMessage();
    void binaryFilesAreErrors_data();
    void binaryFilesAreErrors();
    void runawaysAreEnded_data();
    void runawaysAreEnded();

    void hugeArraysAreListed_data();
    void hugeArraysAreListed();
    void hugeBusHasNoBits();
    void tooManyInstancesAreAnError();

    void circularIncludeIsAnError();
    void guardedCircleIsRead();
    void includeOfAPipeIsRefused_data();
    void includeOfAPipeIsRefused();
    void includesLeadWhereTheyLeadForTheUser();
    void neighboursOfTheTemporaryFolderAreNotIncluded();
    void absoluteIncludesAreRead();
    void lineDirectivesNameTheirFile();
    void escapedNamesOpenNoFiles();

private:
    probe::Result build(const QByteArray &source, const NETCATCHER::EngineLimits &limits = {}) const;
    QString sourcePath() const { return dir->filePath("design.sv"); }

    std::unique_ptr<support::TempDir> dir;
};

void TestHostileInputs::init()
{
    dir = std::make_unique<support::TempDir>();
}

probe::Result TestHostileInputs::build(const QByteArray &source, const NETCATCHER::EngineLimits &limits) const
{
    return probe::build(probe::sources({dir->write("design.sv", source)}), limits);
}

static const char simple[] = "module a(input x); wire y = x; endmodule\n";

void TestHostileInputs::placesWithoutATextAreNamed_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("message");
    const QString irregular = "This is no regular file.";
    const QString missing = "There is no such file.";
    QTest::newRow("missing") << "missing" << missing;
    QTest::newRow("folder") << "." << irregular;
    QTest::newRow("pipe") << "pipe" << irregular;
    QTest::newRow("link to a pipe") << "pipelink" << irregular;
    QTest::newRow("device") << "/dev/zero" << irregular;
    QTest::newRow("link to a device") << "devicelink" << irregular;
    QTest::newRow("dangling link") << "dangling" << missing;
    QTest::newRow("link to itself") << "loop" << missing;
    QTest::newRow("file as a folder") << "plain/x" << missing;
}

void TestHostileInputs::placesWithoutATextAreNamed()
{
    QFETCH(QString, name);
    QFETCH(QString, message);
    dir->write("plain", simple);
    QCOMPARE(mkfifo(qPrintable(dir->filePath("pipe")), 0600), 0);
    QVERIFY(QFile::link("pipe", dir->filePath("pipelink")));
    QVERIFY(QFile::link("/dev/zero", dir->filePath("devicelink")));
    QVERIFY(QFile::link("nowhere", dir->filePath("dangling")));
    QVERIFY(QFile::link("loop", dir->filePath("loop")));
    const QString path = QDir(dir->path()).filePath(name);
    const probe::Result result = probe::build(probe::sources({path, dir->write("a.v", simple)}));
    QCOMPARE(result.messages, QStringList("ERROR: " + path + ": " + message));
    QCOMPARE(result.error, result.messages.first());
    QVERIFY(!result.isAnalysed && !result.netlist);
}

void TestHostileInputs::unreadableFileIsNamed()
{
    const QString path = dir->write("a.v", simple);
    QVERIFY(QFile::setPermissions(path, {}));
    QVERIFY(QFile::setPermissions(dir->path(), QFile::Permissions(0x7755)));
    // The administrator can read everything; anybody else cannot.
    const QByteArray told = support::inChild([&path]() -> QByteArray {
        constexpr uid_t nobody = 65534;
        if (geteuid() == 0 && setresuid(nobody, nobody, nobody) != 0)
            return "still the administrator";
        return probe::build(probe::sources({path})).messages.join('\n').toUtf8();
    });
    QCOMPARE(QString::fromUtf8(told), "ERROR: " + path + ": The file cannot be read.");
}

void TestHostileInputs::textsWithoutModulesGiveNone_data()
{
    QTest::addColumn<QByteArray>("source");
    QTest::newRow("empty") << QByteArray("");
    QTest::newRow("blank") << QByteArray(" \t\r\n\f\n");
    QTest::newRow("mark of UTF-8") << QByteArray("\xef\xbb\xbf");
    QTest::newRow("one NUL") << QByteArray("\0", 1);
    QTest::newRow("many NULs") << QByteArray(100000, '\0');
}

void TestHostileInputs::textsWithoutModulesGiveNone()
{
    QFETCH(QByteArray, source);
    const probe::Result result = build(source);
    QVERIFY(result.isAnalysed);
    QCOMPARE(result.messages, QStringList());
    QCOMPARE(result.modules, QStringList());
    QCOMPARE(result.error, QString("The design has no top module."));
}

static QByteArray repeated(int count, const QByteArray &text)
{
    return text.repeated(count);
}

void TestHostileInputs::oddTextsAreRead_data()
{
    QTest::addColumn<QByteArray>("source");
    QTest::addColumn<QStringList>("rows");
    const QStringList xy{"x", "y"};
    const QString longName(120, 'n');
    QTest::newRow("mark of UTF-8") << "\xef\xbb\xbf" + QByteArray(simple) << xy;
    QTest::newRow("NUL inside") << QByteArray("module a(input x);\0 wire y = x; endmodule\n", 42) << xy;
    QTest::newRow("line ends of old") << QByteArray("module a(input x);\rwire y = x;\rendmodule\r") << xy;
    QTest::newRow("line ends of DOS") << QByteArray("module a(input x);\r\nwire y = x;\r\nendmodule\r\n") << xy;
    QTest::newRow("no end of line") << QByteArray("module a(input x); wire y = x; endmodule") << xy;
    QTest::newRow("bytes of no encoding") << QByteArray("// \xff\xfe\x80\n") + simple << xy;
    QTest::newRow("long name") << "module a(input x); wire " + longName.toUtf8() + " = x; endmodule\n"
                               << QStringList({"x", longName});
    QTest::newRow("line of 1 MB") << repeated(1 << 20, " ") + simple << xy;
    QTest::newRow("legal recursion")
        << QByteArray("module t(input x); r #(3) u(.x(x)); endmodule\nmodule r #(parameter N = 1)(input x);\n"
                      "generate if (N > 1) begin : g r #(N - 1) u(.x(x)); end endgenerate endmodule\n")
        << QStringList({"x", "u/x", "u/g.u/x", "u/g.u/g.u/x"});
}

void TestHostileInputs::oddTextsAreRead()
{
    QFETCH(QByteArray, source);
    QFETCH(QStringList, rows);
    const probe::Result result = build(source);
    QCOMPARE(result.messages, QStringList());
    QVERIFY2(result.netlist, qPrintable(result.error));
    QCOMPARE(probe::rows(*result.netlist), rows);
}

void TestHostileInputs::brokenTextsHaveAMessage_data()
{
    QTest::addColumn<QByteArray>("source");
    QTest::addColumn<QString>("first"); ///< message, behind "ERROR: " and the path
    const auto inA = [](const QByteArray &body) { return "module a(input x);\n" + body + "\nendmodule\n"; };
    const QString longLine = "Too many preprocessor tokens on a line (>40000); perhaps recursive `define (break the "
                             "line, or check the macros in it)";
    const QString deep = "memory exhausted (expressions or blocks are nested too deep; name their parts)";
    QTest::newRow("UTF-16, little end") << QByteArray("\xff\xfem\0o\0", 6)
                                        << ": The file is UTF-16 text; save it as UTF-8.";
    QTest::newRow("UTF-16, big end") << QByteArray("\xfe\xff\0m\0o", 6)
                                     << ": The file is UTF-16 text; save it as UTF-8.";
    QTest::newRow("parentheses") << inA("wire y = " + repeated(10000, "(") + "x" + repeated(10000, ")") + ";")
                                 << ":2: " + deep;
    QTest::newRow("blocks") << inA("reg y; always @* " + repeated(10000, "begin\n") + "y = x;" +
                                   repeated(10000, "end\n"))
                            << ":9993: " + deep;
    QTest::newRow("long line") << inA("wire y = x" + repeated(50000, " ^ x") + ";") << ":2: " + longLine;
    QByteArray bomb = "`define A0 x ^ x\n";
    for (int i = 1; i < 40; ++i)
        bomb += QString("`define A%1 `A%2 ^ `A%2\n").arg(i).arg(i - 1).toUtf8();
    QTest::newRow("macro bomb") << bomb + inA("wire y = `A39;") << ":42: " + longLine;
    QTest::newRow("macros of each other")
        << "`define A `B\n`define B `A\n" + inA("wire y = `A;") << ":4: Recursive `define substitution: `B";
    QTest::newRow("open comment") << QByteArray("module a(input x); /* never closed\nendmodule\n")
                                  << ":4: EOF in '/* ... */' block comment";
    QTest::newRow("open string") << inA("initial $display(\"abc);") << ":3: Unterminated string";
    QTest::newRow("open condition") << QByteArray("`ifdef X\nmodule a(input x); endmodule\n")
                                    << ":4: `ifdef not terminated at EOF";
    QTest::newRow("file includes itself") << "`include \"design.sv\"\n" + inA("")
                                          << ":1: Recursive inclusion of file: %1 (a file includes itself; guard it "
                                             "with `ifndef)";
    QTest::newRow("file includes itself twice") << "`include \"design.sv\"\n`include \"design.sv\"\n" + inA("")
                                                << ":1: Recursive inclusion of file: %1 (a file includes itself; guard "
                                                   "it with `ifndef)";
    QTest::newRow("endless recursion")
        << QByteArray("module t(input x); r #(4) u(.x(x)); endmodule\n"
                      "module r #(parameter N = 1)(input x); r #(N + 1) u(.x(x)); endmodule\n")
        << ":2: Exceeded maximum --module-recursion-depth of 100 (a module instantiates itself without end)";
    QTest::newRow("modules inside each other")
        << QByteArray("module a(input x); b u(.x(x)); endmodule\nmodule b(input x); a u(.x(x)); endmodule\n")
        << ":1: Input/output/inout declaration not found for port: 'x' (declare the port; modules that instantiate "
           "each other without end give this, too)";
}

void TestHostileInputs::brokenTextsHaveAMessage()
{
    QFETCH(QByteArray, source);
    QFETCH(QString, first);
    const probe::Result result = build(source);
    const QString message = "ERROR: " + sourcePath() + QString(first).replace("%1", sourcePath());
    QCOMPARE(result.messages.value(0), message);
    QCOMPARE(result.error, message);
    QCOMPARE(result.errors().filter("Internal Error"), QStringList());
    QVERIFY(!result.isAnalysed && !result.netlist);
}

void TestHostileInputs::binaryFilesAreErrors_data()
{
    QTest::addColumn<QByteArray>("source");
    QFile program(QCoreApplication::applicationFilePath());
    QVERIFY(program.open(QIODevice::ReadOnly));
    QTest::newRow("program") << program.read(1 << 20);
    QByteArray noise;
    for (int i = 0; i < 4096; ++i)
        noise += char((i * 131 + i / 7) & 0xff);
    QTest::newRow("noise") << noise;
    QTest::newRow("packed") << qCompress(noise);
}

void TestHostileInputs::binaryFilesAreErrors()
{
    QFETCH(QByteArray, source);
    const probe::Result result = build(source);
    QVERIFY(!result.errors().isEmpty());
    for (const QString &line : result.errors())
        QVERIFY2(line.startsWith("ERROR: " + sourcePath() + ':'), qPrintable(line));
    QVERIFY(!result.isAnalysed && !result.netlist);
}

static QByteArray manyBuses(int count)
{
    QByteArray source = "module a(output y";
    for (int i = 0; i < count; ++i)
        source += QString(",\ninput [99999999:0] x%1").arg(i).toUtf8();
    return source + ");\nassign y = x0[0];\nendmodule\n";
}

void TestHostileInputs::runawaysAreEnded_data()
{
    QTest::addColumn<QByteArray>("source");
    QTest::newRow("generate loop") << QByteArray("module a(input x); genvar i; generate for (i = 0; i < 10; i = i + 0) "
                                                 "begin : g wire w = x; end endgenerate endmodule\n");
    QTest::newRow("power") << QByteArray(
        "module a(output y); localparam [9999999:0] P = 3 ** 5000000; assign y = P[0]; "
        "endmodule\n");
    QTest::newRow("thousands of huge buses") << manyBuses(2000);
    // The engine takes the square of its length in steps: 100 seconds for a sixth of it.
    QTest::newRow("line of 64 MB") << repeated(64 << 20, " ") + simple;
    QTest::newRow("include bomb") << QByteArray("`include \"bomb0.vh\"\n") + simple;
}

void TestHostileInputs::runawaysAreEnded()
{
    QFETCH(QByteArray, source);
    constexpr int depth = 30;
    for (int i = 0; i < depth; ++i)
        dir->write(QString("bomb%1.vh").arg(i), QString("`include \"bomb%1.vh\"\n").arg(i + 1).toUtf8().repeated(2));
    dir->write(QString("bomb%1.vh").arg(depth), "\n");
    NETCATCHER::EngineLimits limits;
    limits.milliseconds = 1000;
    const probe::Result result = build(source, limits);
    QCOMPARE(result.messages, QStringList("ERROR: The Verilog engine did not finish within 1 seconds and was ended; "
                                          "set the top module to a part of the design."));
    QVERIFY(!result.netlist);
}

static QString tooWide(const QString &name)
{
    return "WARNING: " + name + " in module a is too wide to be taken apart and cannot be used";
}

void TestHostileInputs::hugeArraysAreListed_data()
{
    QTest::addColumn<QByteArray>("source");
    QTest::addColumn<QStringList>("rows");
    QTest::addColumn<QStringList>("warnings");
    QTest::newRow("bus") << QByteArray("module a(input [99999999:0] x, output y); assign y = ^x; endmodule\n")
                         << QStringList({"x[99999999:0]\tunusable", "y"}) << QStringList(tooWide("x"));
    QTest::newRow("ascending bus")
        << QByteArray("module a(input [-50000000:49999999] x, output y); assign y = ^x; endmodule\n")
        << QStringList({"x[-50000000:49999999]\tunusable", "y"}) << QStringList(tooWide("x"));
    QTest::newRow("memory") << QByteArray(
                                   "module a(input x, output y); reg [7:0] m [0:100000000]; always @* m[3] = x;\n"
                                   "assign y = m[3][0]; endmodule\n")
                            << QStringList({"m[0:100000000][7:0]\tunusable", "x", "y"}) << QStringList();
    QTest::newRow("largest bound") << QByteArray(
                                          "module a(input [2147483647:0] x, output y); assign y = 0; endmodule\n")
                                   << QStringList({"x[2147483647:0]\tunusable", "y\tunusable"})
                                   << QStringList(tooWide("x"));
    QStringList rows;
    QStringList warnings;
    for (int i = 0; i < 5; ++i) {
        rows.append(QString("x%1[99999999:0]\tunusable").arg(i));
        warnings.append(tooWide(QString("x%1").arg(i)));
    }
    QTest::newRow("several buses") << manyBuses(5) << rows + QStringList("y") << warnings;
    QTest::newRow("instances") << QByteArray("module a(input x); b u[9999999:0](.x(x)); endmodule\n"
                                             "module b(input x); endmodule\n")
                               << QStringList("x")
                               << QStringList("WARNING: u in module a has too many instances and is left out");
}

void TestHostileInputs::hugeArraysAreListed()
{
    QFETCH(QByteArray, source);
    QFETCH(QStringList, rows);
    QFETCH(QStringList, warnings);
    NETCATCHER::NetlistBuilder builder(probe::sources({dir->write("design.sv", source)}));
    QVERIFY2(builder.analyse(), qPrintable(builder.messages().join('\n')));
    // What is left out is told when the design is read: nobody asks for messages when the netlist is built.
    QCOMPARE(builder.messages().filter(QRegExp(" is (too wide|left out)|too many")), warnings);
    QString error;
    const auto netlist = builder.build(&error);
    QVERIFY2(netlist, qPrintable(error));
    QCOMPARE(probe::rows(*netlist), rows);
}

void TestHostileInputs::hugeBusHasNoBits()
{
    const probe::Result result = build("module a(input [99999999:0] x, output y); assign y = ^x; endmodule\n");
    QVERIFY(result.netlist);
    QVERIFY(result.netlist->topHierarchy()->netbuses().first()->nets().isEmpty());
    QCOMPARE(result.netlist->findNet("x[0]"), nullptr);
}

void TestHostileInputs::tooManyInstancesAreAnError()
{
    const probe::Result result = build("module a(input x); b u[999:0](.x(x)); endmodule\n"
                                       "module b(input x); c u[999:0](.x(x)); endmodule\n"
                                       "module c(input x); d u[999:0](.x(x)); endmodule\n"
                                       "module d(input x); endmodule\n");
    QVERIFY(!result.netlist);
    QCOMPARE(result.error, QString("The design has more than 100000000 instances."));
}

void TestHostileInputs::circularIncludeIsAnError()
{
    dir->write("a.vh", "`include \"b.vh\"\n");
    dir->write("b.vh", "`include \"a.vh\"\n");
    const probe::Result result = build("`include \"a.vh\"\n" + QByteArray(simple));
    QCOMPARE(result.messages, QStringList("ERROR: " + dir->filePath("a.vh") + ":1: Recursive inclusion of file: " +
                                          dir->filePath("b.vh") + " (a file includes itself; guard it with `ifndef)"));
    QVERIFY(!result.netlist);
}

void TestHostileInputs::guardedCircleIsRead()
{
    dir->write("a.vh", "`ifndef A\n`define A\n`include \"b.vh\"\n`endif\n");
    dir->write("b.vh", "`ifndef B\n`define B\n`include \"a.vh\"\n`define W 4\n`endif\n");
    const probe::Result result = build("`include \"a.vh\"\n`include \"b.vh\"\nmodule a(input [`W:0] x); endmodule\n");
    QCOMPARE(result.messages, QStringList());
    QCOMPARE(probe::rows(*result.netlist), QStringList("x[4:0]"));
}

void TestHostileInputs::includeOfAPipeIsRefused_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("beside the source") << "pipe";
    QTest::newRow("in an include folder") << "other";
    QTest::newRow("absolute") << "%1/pipe";
    QTest::newRow("device") << "/dev/zero";
}

void TestHostileInputs::includeOfAPipeIsRefused()
{
    QFETCH(QString, name);
    QVERIFY(QDir(dir->path()).mkdir("inc"));
    for (const char *pipe : {"pipe", "inc/other"})
        QCOMPARE(mkfifo(qPrintable(dir->filePath(pipe)), 0600), 0);
    name.replace("%1", dir->path());
    const QString place = name == "other" ? dir->filePath("inc/other") : QDir(dir->path()).absoluteFilePath(name);
    NETCATCHER::DesignSources sources =
        probe::sources({dir->write("design.sv", "`include \"" + name.toUtf8() + "\"\n" + simple)});
    sources.includePaths.append(dir->filePath("inc"));
    const probe::Result result = probe::build(sources);
    QCOMPARE(result.messages,
             QStringList("ERROR: " + sourcePath() + ": The included " + place + " is no regular file."));
    QVERIFY(!result.netlist);
}

void TestHostileInputs::includesLeadWhereTheyLeadForTheUser()
{
    dir->write("w.vh", "`define W 4\n");
    const QByteArray source = "module a(input [`W:0] x); endmodule\n";
    const QString deep = dir->write("1/2/3/4/5/6/7/8/a.v", "`include \"" + repeated(8, "../") + "w.vh\"\n" + source);
    const probe::Result near = probe::build(probe::sources({deep}));
    QCOMPARE(near.messages, QStringList());
    QCOMPARE(probe::rows(*near.netlist), QStringList("x[4:0]"));
    // Above the root there is the root again.
    const QByteArray far = "`include \"" + repeated(12, "../") + dir->filePath("w.vh").mid(1).toUtf8() + "\"\n";
    const probe::Result result = build(far + source);
    QCOMPARE(result.messages, QStringList());
    QCOMPARE(probe::rows(*result.netlist), QStringList("x[4:0]"));
}

void TestHostileInputs::neighboursOfTheTemporaryFolderAreNotIncluded()
{
    // Somebody else's file, in the folder that everybody may write in.
    dir->write("tmp/planted.vh", "module planted(input z); endmodule\n");
    const QByteArray before = qgetenv("TMPDIR");
    qputenv("TMPDIR", QFile::encodeName(dir->filePath("tmp")));
    QStringList messages;
    for (int i = 1; i <= 16; ++i)
        messages += build("`include \"" + repeated(i, "../") + "planted.vh\"\n" + simple).messages;
    before.isNull() ? qunsetenv("TMPDIR") : qputenv("TMPDIR", before);
    QStringList expected;
    for (int i = 1; i <= 16; ++i)
        expected += "ERROR: " + sourcePath() + ":1: Cannot find include file: " + QString("../").repeated(i) +
                    "planted.vh (add the folder of that file to the include paths)";
    QCOMPARE(messages, expected);
}

void TestHostileInputs::absoluteIncludesAreRead()
{
    const QString good = dir->write("else where/w.vh", "`include \"v.vh\"\n");
    dir->write("else where/v.vh", "`define W 4\n");
    const QByteArray source = "`include \"" + good.toUtf8() + "\"\nmodule a(input [`W:0] x); endmodule\n";
    const probe::Result result = build(source);
    QCOMPARE(result.messages, QStringList());
    QCOMPARE(probe::rows(*result.netlist), QStringList("x[4:0]"));
    // The messages about such a file hold nothing of what is in it.
    const QString secret = dir->write("secret", "\nroot:swordfish:0\n");
    const probe::Result broken = build("`include \"" + secret.toUtf8() + "\"\n" + simple);
    QCOMPARE(broken.messages, QStringList("ERROR: " + secret + ":2: syntax error, unexpected IDENTIFIER"));
}

void TestHostileInputs::lineDirectivesNameTheirFile()
{
    const probe::Result result = build("`line 7 \"/gen/orig.v\" 0\nmodule a(input x); wire y = ; endmodule\n");
    QCOMPARE(result.messages.size(), 1);
    QVERIFY2(result.messages.first().startsWith("ERROR: /gen/orig.v:7: syntax error, unexpected ';'"),
             qPrintable(result.messages.first()));
    // A name like those in the private folder leads to the source that it stands for, or to nothing.
    const probe::Result forged = build("`line 7 \"vakinc0/x\" 0\nmodule a(input x); wire y = ; endmodule\n");
    QVERIFY2(forged.messages.value(0).startsWith("ERROR: vakinc0/x:7: syntax error"), qPrintable(forged.error));
}

void TestHostileInputs::escapedNamesOpenNoFiles()
{
    // The engine looks for the file of a module without source, and an escaped name can be any path.
    const QString outside = dir->write("outside.v", "this is no Verilog\n");
    for (const QString &name : {outside, "../../../../../../../../../../../../../../../../../../../.." + outside}) {
        const probe::Result result = build("module a(input x); \\" + name.toUtf8() + " u(.x(x)); endmodule\n");
        QCOMPARE(result.messages, QStringList());
        QCOMPARE(probe::rows(*result.netlist), QStringList("x"));
        QCOMPARE(result.netlist->topHierarchy()->children().size(), 1);
    }
}

QTEST_GUILESS_MAIN(TestHostileInputs)
#include "tst_hostileinputs.moc"

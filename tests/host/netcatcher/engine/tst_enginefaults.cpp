// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "host/netcatcher/netlistprobe.h"

#include "support/tempdir.h"

#include <QDir>
#include <QFile>
#include <QStandardPaths>
#include <QtTest>

#include <csignal>

/// What users are told when the engine is missing, dies or writes nonsense; half a result is never a netlist.
class TestEngineFaults : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void missingEngineNamesThePackage();
    void brokenEngineCannotBeStarted();
    void deathAtAnyStageIsAnError_data();
    void deathAtAnyStageIsAnError();
    void wholeResultOfAnotherProgramIsRead();
    void silentFailureIsAnError();
    void lastWordsAreQuoted();
    void runawayEngineIsEnded();
    void lackOfMemoryIsTold();
    void resultBeyondTheLimitIsTold();
    void limitHoldsWhereItsSignalIsIgnored();
    void fullDiskIsTold();
    void resultCutOffAnywhereIsAnError();
    void damagedResultIsAnErrorOrANetlist();
    void missingResultIsAnError();
    void pipeIsNoResult();

private:
    probe::Result build(const NETCATCHER::EngineLimits &limits = {}) const;
    void installEngine(const QByteArray &script) const;
    QStringList resultError(const QString &reason) const;

    QString engine;
    QByteArray xml; ///< the real engine's result
    std::unique_ptr<support::TempDir> dir;
    QByteArray path;
};

/// Lets the real engine read a design and keeps its result.
void TestEngineFaults::initTestCase()
{
    engine = QStandardPaths::findExecutable("verilator_bin");
    const support::TempDir folder;
    const QString source = probe::dataFile("streams.sv");
    const NETCATCHER::EngineResult result = NETCATCHER::runEngine(
        engine, {"--xml-only", "--no-timing", "-Wno-fatal", "-Wno-lint", "--prefix", "Vx", "--Mdir", "vakout", source},
        folder.path(), {}, [] {});
    QCOMPARE(result.exitCode, 0);
    xml = folder.read("vakout/Vx.xml");
    QVERIFY(xml.size() > 5000);
}

void TestEngineFaults::init()
{
    dir = std::make_unique<support::TempDir>();
    path = qgetenv("PATH");
    dir->write("whole.xml", xml);
}

void TestEngineFaults::cleanup()
{
    qputenv("PATH", path);
}

probe::Result TestEngineFaults::build(const NETCATCHER::EngineLimits &limits) const
{
    return probe::build(probe::sources({probe::dataFile("streams.sv")}), limits);
}

/// Puts a program under the engine's name before the real one.
void TestEngineFaults::installEngine(const QByteArray &script) const
{
    const QString program = dir->write("bin/verilator_bin", "#!/bin/sh\nmkdir -p vakout\n" + script);
    QVERIFY(QFile::setPermissions(program, QFile::ReadOwner | QFile::ExeOwner));
    qputenv("PATH", QFile::encodeName(dir->filePath("bin")) + ':' + path);
}

void TestEngineFaults::missingEngineNamesThePackage()
{
    qputenv("PATH", QFile::encodeName(dir->path()));
    const probe::Result result = build();
    QCOMPARE(result.messages,
             QStringList("ERROR: The Verilog engine verilator_bin is not installed; install the Debian "
                         "package \"verilator\" (apt install verilator)."));
    QVERIFY(!result.isAnalysed && !result.netlist);
    QCOMPARE(result.error, result.messages.first());
}

void TestEngineFaults::brokenEngineCannotBeStarted()
{
    installEngine({});
    const QString program = dir->write("bin/verilator_bin", "#!/nowhere/interpreter\n");
    const probe::Result result = build();
    QCOMPARE(result.messages, QStringList("ERROR: The Verilog engine " + program + " cannot be started."));
    QVERIFY(!result.netlist);
}

static const char crashText[] =
    "ERROR: The Verilog engine crashed. Set the top module, or disable files one by one to find what it cannot read; a "
    "module that instantiates itself without end is a usual cause.";
static const char killedText[] =
    "ERROR: The Verilog engine was killed (signal 9), as the system does when memory runs out; close other programs, "
    "or set the top module to a part of the design.";
static const char endedText[] = "ERROR: The Verilog engine was ended from outside (signal %1); read the design again.";

void TestEngineFaults::deathAtAnyStageIsAnError_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<int>("signal");
    QTest::addColumn<QString>("message");
    const QMap<QByteArray, QByteArray> stages{{"reading", ""},
                                              {"writing", "head -c 3000 \"$whole\" > vakout/Vx.xml"},
                                              {"written", "cp \"$whole\" vakout/Vx.xml"}};
    for (auto stage = stages.cbegin(); stage != stages.cend(); ++stage) {
        const auto row = [&](const char *name, int signal, const QString &message) {
            QTest::newRow((stage.key() + ", " + name).constData()) << *stage << signal << message;
        };
        row("KILL", SIGKILL, killedText);
        row("SEGV", SIGSEGV, crashText);
        row("ABRT", SIGABRT, crashText);
        row("TERM", SIGTERM, QString(endedText).arg(15));
        row("INT", SIGINT, QString(endedText).arg(2));
        row("HUP", SIGHUP, QString(endedText).arg(1));
    }
}

void TestEngineFaults::deathAtAnyStageIsAnError()
{
    QFETCH(QByteArray, before);
    QFETCH(int, signal);
    QFETCH(QString, message);
    installEngine("whole='" + dir->filePath("whole.xml").toUtf8() + "'\n" + before + "\nkill -" +
                  QByteArray::number(signal) + " $$\n");
    const probe::Result result = build();
    QCOMPARE(result.messages, QStringList(message));
    QCOMPARE(result.error, message);
    QVERIFY(!result.isAnalysed && !result.netlist);
    QVERIFY(result.tops.isEmpty() && result.modules.isEmpty());
}

void TestEngineFaults::wholeResultOfAnotherProgramIsRead()
{
    // The other tests' engines fail for no other reason than what they do besides this.
    installEngine("cp '" + dir->filePath("whole.xml").toUtf8() + "' vakout/Vx.xml\n");
    const probe::Result result = build();
    QCOMPARE(result.messages, QStringList());
    QVERIFY(result.netlist && !probe::rows(*result.netlist).isEmpty());
}

void TestEngineFaults::silentFailureIsAnError()
{
    installEngine("exit 3\n");
    QCOMPARE(build().messages, QStringList("ERROR: The Verilog engine failed without saying why."));
}

void TestEngineFaults::lastWordsAreQuoted()
{
    installEngine("echo 'verilator_bin: error while  loading libx.so' >&2\necho more\nexit 127\n");
    QCOMPARE(build().messages,
             QStringList("ERROR: The Verilog engine failed: verilator_bin: error while loading libx.so"));
}

void TestEngineFaults::runawayEngineIsEnded()
{
    installEngine("while :; do :; done\n");
    NETCATCHER::EngineLimits limits;
    limits.milliseconds = 1000;
    const probe::Result result = build(limits);
    QCOMPARE(result.messages, QStringList("ERROR: The Verilog engine did not finish within 1 seconds and was ended; "
                                          "set the top module to a part of the design."));
}

void TestEngineFaults::lackOfMemoryIsTold()
{
    QByteArray source = "module a(input x);\n";
    for (int i = 0; i < 30000; ++i)
        source += "wire w" + QByteArray::number(i) + " = x;\n";
    NETCATCHER::EngineLimits limits;
    limits.memoryBytes = 50 << 20;
    const probe::Result result = probe::build(probe::sources({dir->write("a.v", source + "endmodule\n")}), limits);
    QCOMPARE(result.messages, QStringList("ERROR: The Verilog engine ran out of memory; set the top module to a part "
                                          "of the design."));
}

static const char beyondLimitText[] = "ERROR: The result of the Verilog engine exceeds the limit of 4096 bytes; set "
                                      "the top module to a part of the design.";

void TestEngineFaults::resultBeyondTheLimitIsTold()
{
    NETCATCHER::EngineLimits limits;
    limits.fileBytes = 4096;
    const probe::Result result = build(limits);
    QCOMPARE(result.messages, QStringList(QLatin1String(beyondLimitText)));
    QVERIFY(!result.netlist);
}

void TestEngineFaults::limitHoldsWhereItsSignalIsIgnored()
{
    NETCATCHER::EngineLimits limits;
    limits.fileBytes = 4096;
    signal(SIGXFSZ, SIG_IGN);
    const probe::Result result = build(limits);
    signal(SIGXFSZ, SIG_DFL);
    QCOMPARE(result.messages, QStringList(QLatin1String(beyondLimitText)));
}

QStringList TestEngineFaults::resultError(const QString &reason) const
{
    return QStringList("ERROR: The result of the Verilog engine cannot be read: " + reason +
                       " (check that there is room left in " + QDir::tempPath() + ')');
}

void TestEngineFaults::fullDiskIsTold()
{
    // The real engine does not notice that it cannot write, and succeeds.
    installEngine("trap '' XFSZ\nulimit -f 4\nexec '" + QFile::encodeName(engine) + "' \"$@\"\n");
    const probe::Result result = build();
    QCOMPARE(result.messages.size(), 1);
    const QString line = result.messages.first().section("line ", 1).section(':', 0, 0);
    QCOMPARE(result.messages, resultError("line " + line + ": Premature end of document."));
    QVERIFY(line.toInt() > 10);
    QVERIFY(!result.netlist);
}

void TestEngineFaults::resultCutOffAnywhereIsAnError()
{
    installEngine("cp '" + dir->filePath("cut.xml").toUtf8() + "' vakout/Vx.xml\n");
    const int end = xml.lastIndexOf('>');
    for (int i = 0; i < 50; ++i) {
        const QByteArray cut = xml.left(int(qint64(end) * i / 49));
        dir->write("cut.xml", cut);
        const probe::Result result = build();
        QCOMPARE(result.messages, resultError(QString("line %1: Premature end of document.").arg(cut.count('\n') + 1)));
        QCOMPARE(result.error, result.messages.first());
        QVERIFY(!result.isAnalysed && !result.netlist && result.tops.isEmpty());
    }
}

void TestEngineFaults::damagedResultIsAnErrorOrANetlist()
{
    installEngine("cp '" + dir->filePath("damaged.xml").toUtf8() + "' vakout/Vx.xml\n");
    int errors = 0;
    for (int i = 0; i < 50; ++i) {
        QByteArray damaged = xml;
        const int place = int(qint64(xml.size()) * i / 50);
        if (i % 2 == 0)
            damaged[place] = char(damaged[place] ^ (1 << (i / 2 % 8)));
        else
            damaged.replace(place, 20, QByteArray("\0\xff<\"&\n]]>99999999999999", 23));
        dir->write("damaged.xml", damaged);
        const probe::Result result = build();
        QVERIFY(result.netlist ? result.errors().isEmpty() : !result.error.isEmpty());
        errors += result.netlist ? 0 : 1;
    }
    QVERIFY2(errors >= 25, qPrintable(QString::number(errors)));
}

void TestEngineFaults::missingResultIsAnError()
{
    installEngine("exit 0\n");
    QCOMPARE(build().messages, resultError("there is none"));
}

void TestEngineFaults::pipeIsNoResult()
{
    installEngine("mkfifo vakout/Vx.xml\n");
    QCOMPARE(build().messages, resultError("there is none"));
}

QTEST_GUILESS_MAIN(TestEngineFaults)
#include "tst_enginefaults.moc"

// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "vhdlrefusal.h"

#include "host/netcatcher/netlistprobe.h"

#include "support/fakelandlock.h"
#include "support/tempdir.h"

#include <QDir>
#include <QFile>
#include <QStandardPaths>
#include <QtTest>

/// Elaborating VHDL runs what a design says. It must do no harm, and when the engine is missing, dies or writes
/// nonsense, users are told; half a result is never a netlist.
class TestVhdlFaults : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void filesOutsideAreNotWritten_data();
    void filesOutsideAreNotWritten();
    void withoutLandlockNothingIsElaborated();
    void enginesThatCannotBeConfinedAreNotRun();
    void missingEngineNamesThePackage();
    void deathAtAnyStageIsAnError_data();
    void deathAtAnyStageIsAnError();
    void runawayElaborationIsEnded();
    void endlessRecursionIsAnError();
    void resultCutOffAnywhereIsAnError();
    void secondOpeningNeedsNoEngine();
    void designsWithFilesAreNotKept();
    void temporaryFolderIsRemoved();

private:
    probe::Result build(const QByteArray &source, const NETCATCHER::EngineLimits &limits = {}) const;
    void installEngine(const QByteArray &script) const;

    std::unique_ptr<support::TempDir> dir;
    QByteArray path;
    const QString engine = QStandardPaths::findExecutable("ghdl-mcode");
};

void TestVhdlFaults::init()
{
    dir = std::make_unique<support::TempDir>();
    path = qgetenv("PATH");
}

void TestVhdlFaults::cleanup()
{
    qputenv("PATH", path);
}

probe::Result TestVhdlFaults::build(const QByteArray &source, const NETCATCHER::EngineLimits &limits) const
{
    return probe::build(probe::sources({dir->write("design.vhd", source)}), limits);
}

/// Puts a program under the engine's name before the real one.
void TestVhdlFaults::installEngine(const QByteArray &script) const
{
    const QString program = dir->write("bin/ghdl-mcode", "#!/bin/sh\n" + script);
    QVERIFY(QFile::setPermissions(program, QFile::ReadOwner | QFile::ExeOwner));
    qputenv("PATH", QFile::encodeName(dir->filePath("bin")) + ':' + path);
}

static const char plain[] = "entity A is port (X : in bit); end;\narchitecture R of A is signal Y : bit; begin\n"
                            "Y <= X; end;\n";

void TestVhdlFaults::filesOutsideAreNotWritten_data()
{
    QTest::addColumn<QByteArray>("statement");
    QTest::newRow("declared") << QByteArray("file F : text open write_mode is \"%1\"; begin return '1';");
    QTest::newRow("opened") << QByteArray("file F : text; begin file_open(F, \"%1\", write_mode); return '1';");
    QTest::newRow("appended") << QByteArray("file F : text; begin file_open(F, \"%1\", append_mode); return '1';");
    QTest::newRow("without a sound") << QByteArray(
        "file F : text; variable S : file_open_status; begin file_open(S, F, \"%1\", write_mode); return '1';");
}

void TestVhdlFaults::filesOutsideAreNotWritten()
{
    QFETCH(QByteArray, statement);
    const QString canary = dir->write("canary.txt", "untouched");
    const QString absent = dir->filePath("absent.txt");
    for (const QString &target : {canary, absent}) {
        build("use std.textio.all;\nentity A is end;\narchitecture R of A is\nimpure function W return bit is\n" +
              QByteArray(statement).replace("%1", target.toUtf8()) + "\nend;\nsignal S : bit := W;\nbegin end;\n");
        QCOMPARE(dir->read("canary.txt"), QByteArray("untouched"));
        QVERIFY(!QFile::exists(absent));
    }
}

void TestVhdlFaults::withoutLandlockNothingIsElaborated()
{
    const QString source = dir->write("design.vhd", plain);
    installEngine("echo ran > " + dir->filePath("ran").toUtf8() + "\n");
    const QByteArray told = support::inChild([&]() -> QByteArray {
        if (!support::hideLandlock())
            return "no filter";
        return probe::build(probe::sources({source})).messages.join('\n').toUtf8();
    });
    QCOMPARE(told, QByteArray(probe::vhdlRefusal));
    QVERIFY(!QFile::exists(dir->filePath("ran")));
}

void TestVhdlFaults::enginesThatCannotBeConfinedAreNotRun()
{
    const QString source = dir->write("design.vhd", plain);
    const QByteArray told = support::inChild([&]() -> QByteArray {
        support::exhaustLandlock();
        return probe::build(probe::sources({source})).messages.join('\n').toUtf8();
    });
    QCOMPARE(told, QByteArray("ERROR: The VHDL engine was not run, because Landlock could not confine it; start this "
                              "program outside of other sandboxes."));
}

void TestVhdlFaults::missingEngineNamesThePackage()
{
    qputenv("PATH", QFile::encodeName(dir->path()));
    const probe::Result result = build(plain);
    QCOMPARE(result.messages,
             QStringList("ERROR: The VHDL engine ghdl-mcode is not installed; install the Debian package "
                         "\"ghdl-mcode\" (apt install ghdl-mcode)."));
    QVERIFY(!result.isAnalysed && !result.netlist);
}

void TestVhdlFaults::deathAtAnyStageIsAnError_data()
{
    QTest::addColumn<QByteArray>("script");
    QTest::addColumn<QString>("message");
    const QString crash = "ERROR: The VHDL engine crashed. ";
    const QString killed = "ERROR: The VHDL engine was killed (signal 9), ";
    QTest::newRow("reading, KILL") << QByteArray("kill -KILL $$") << killed;
    QTest::newRow("reading, SEGV") << QByteArray("kill -SEGV $$") << crash;
    QTest::newRow("writing, KILL") << QByteArray("printf GHDLwave > vak.ghw; kill -KILL $$") << killed;
    QTest::newRow("writing, SEGV") << QByteArray("printf GHDLwave > vak.ghw; kill -SEGV $$") << crash;
    QTest::newRow("writing, TERM") << QByteArray("printf GHDLwave > vak.ghw; kill -TERM $$")
                                   << "ERROR: The VHDL engine was ended from outside (signal 15); ";
    QTest::newRow("no result") << QByteArray("exit 0") << "ERROR: The VHDL engine failed without saying why.";
    QTest::newRow("last words") << QByteArray("echo out of luck; exit 3")
                                << "ERROR: The VHDL engine failed: out of luck";
    QTest::newRow("own failure") << QByteArray("echo '*** GHDL Bug occurred ***'; exit 2")
                                 << "ERROR: The VHDL engine failed here; ";
    QTest::newRow("failure at types")
        << QByteArray("printf 'a [entity]\n'; echo 'ghdl-mcode:error: NULL access dereferenced'; exit 1")
        << "ERROR: The VHDL engine cannot tell the types of all signals; ";
    QTest::newRow("last words about a file")
        << QByteArray("echo $(find vakdir0 -name '*.vhd'):1:1:warning: odd; exit 1")
        << "ERROR: The VHDL engine failed: /";
    QTest::newRow("nonsense") << QByteArray("printf 'GHDLwave\\n\\000EOH\\000' > vak.ghw")
                              << "ERROR: The result of the VHDL engine cannot be read: ";
}

void TestVhdlFaults::deathAtAnyStageIsAnError()
{
    QFETCH(QByteArray, script);
    QFETCH(QString, message);
    installEngine(script + '\n');
    const probe::Result result = build(plain);
    QCOMPARE(result.errors().size(), 1);
    QVERIFY2(result.errors().first().startsWith(message), qPrintable(result.errors().first()));
    QVERIFY2(!result.errors().first().contains("vakdir"), qPrintable(result.errors().first()));
    QVERIFY(!result.isAnalysed && !result.netlist);
}

void TestVhdlFaults::runawayElaborationIsEnded()
{
    NETCATCHER::EngineLimits limits;
    limits.milliseconds = 2000;
    const probe::Result result =
        build("entity A is end;\narchitecture R of A is\nfunction F return integer is begin loop null; end loop; end;\n"
              "signal S : bit_vector(F downto 0);\nbegin end;\n",
              limits);
    QCOMPARE(result.messages, QStringList("ERROR: The VHDL engine did not finish within 2 seconds and was ended; set "
                                          "the top module to a part of the design."));
}

void TestVhdlFaults::endlessRecursionIsAnError()
{
    NETCATCHER::EngineLimits limits;
    limits.memoryBytes = quint64(1) << 30;
    const probe::Result result =
        build("entity A is generic (N : integer := 0); port (X : in bit); end;\narchitecture R of A is\n"
              "signal S : bit_vector(1000 downto 0);\nbegin\n"
              "U : entity work.A generic map (N + 1) port map (S(1));\nend;\n",
              limits);
    QCOMPARE(result.errors().size(), 1);
    QVERIFY2(result.errors().first().startsWith("ERROR: The VHDL engine "), qPrintable(result.errors().first()));
    QVERIFY2(result.errors().first().contains("instantiates itself without end"), qPrintable(result.errors().first()));
}

void TestVhdlFaults::resultCutOffAnywhereIsAnError()
{
    const QString source = dir->write("kept/design.vhd", plain);
    NETCATCHER::runEngine(engine, {"-c", "--std=08", source, "-r", "a", "--wave=kept.ghw", "--stop-time=0ns"},
                          dir->filePath("kept"), {}, [] {});
    const QByteArray whole = dir->read("kept/kept.ghw");
    const int end = whole.indexOf(QByteArray("\0EOH", 5)) + 5;
    QVERIFY(end > 100);
    installEngine("cp '" + dir->filePath("cut.ghw").toUtf8() + "' vak.ghw\n");
    for (int size = 0; size < end; size += qMax(1, end / 20)) {
        dir->write("cut.ghw", whole.left(size));
        const probe::Result result = build(plain);
        QCOMPARE(result.errors().size(), 1);
        QVERIFY(!result.netlist);
    }
    dir->write("cut.ghw", whole.left(end));
    QVERIFY(build(plain).netlist);
}

void TestVhdlFaults::secondOpeningNeedsNoEngine()
{
    const QByteArray before = qgetenv("XDG_CACHE_HOME");
    qputenv("XDG_CACHE_HOME", QFile::encodeName(dir->filePath("cache")));
    const QString flag = dir->filePath("failing");
    installEngine("[ -e '" + flag.toUtf8() + "' ] && exit 3\nexec " + engine.toUtf8() + " \"$@\"\n");
    const probe::Result first = build(plain);
    dir->write("failing", {});
    const probe::Result second = build(plain);
    const probe::Result changed = build(QByteArray(plain).replace("Y", "Z"));
    before.isNull() ? qunsetenv("XDG_CACHE_HOME") : qputenv("XDG_CACHE_HOME", before);
    QVERIFY(first.netlist && second.netlist);
    QCOMPARE(probe::rows(*first.netlist), QStringList({"X", "Y"}));
    QCOMPARE(probe::rows(*second.netlist), QStringList({"X", "Y"}));
    QCOMPARE(changed.messages, QStringList("ERROR: The VHDL engine failed without saying why."));
}

void TestVhdlFaults::designsWithFilesAreNotKept()
{
    const QByteArray before = qgetenv("XDG_CACHE_HOME");
    qputenv("XDG_CACHE_HOME", QFile::encodeName(dir->filePath("cache")));
    const QString flag = dir->filePath("failing");
    installEngine("[ -e '" + flag.toUtf8() + "' ] && exit 3\nexec " + engine.toUtf8() + " \"$@\"\n");
    const QByteArray source = QByteArray("use std.textio.all;\n") + plain;
    const auto withFile = QByteArray(source).replace("signal Y", "file F : text; signal Y");
    const probe::Result first = build(withFile);
    dir->write("failing", {});
    const probe::Result second = build(withFile);
    before.isNull() ? qunsetenv("XDG_CACHE_HOME") : qputenv("XDG_CACHE_HOME", before);
    QVERIFY2(first.netlist, qPrintable(first.messages.join('\n')));
    QCOMPARE(second.messages, QStringList("ERROR: The VHDL engine failed without saying why."));
}

void TestVhdlFaults::temporaryFolderIsRemoved()
{
    const QByteArray before = qgetenv("TMPDIR");
    QVERIFY(QDir(dir->path()).mkdir("tmp"));
    qputenv("TMPDIR", QFile::encodeName(dir->filePath("tmp")));
    const bool isRead = build(plain).netlist != nullptr;
    before.isNull() ? qunsetenv("TMPDIR") : qputenv("TMPDIR", before);
    QVERIFY(isRead);
    QVERIFY(QDir(dir->filePath("tmp")).isEmpty());
}

VHDL_TEST_MAIN(TestVhdlFaults)
#include "tst_vhdlfaults.moc"

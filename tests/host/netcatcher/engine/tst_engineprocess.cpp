// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "hostlibs/netcatcher/engine/engineprocess.h"
#include "hostlibs/netcatcher/engine/sandbox.h"

#include "support/tempdir.h"

#include <QFile>
#include <QtTest>

using NETCATCHER::EngineLimits;
using NETCATCHER::EngineResult;

/// How engines are run; the shell plays the engine.
class TestEngineProcess : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void messagesAndStatusAreReturned();
    void argumentsAreNotInterpreted();
    void environmentIsSmall();
    void standardInputIsEmpty();
    void missingProgramIsNotStarted();
    void crashIsTold();
    void timeIsLimited();
    void memoryIsLimited();
    void fileSizeIsLimited();
    void idleIsCalledMeanwhile();
    void enoughEndsIt();
    void sandboxKeepsWritingInside();
    void sandboxLetsReadOutside();

private:
    EngineResult run(const QString &script, const EngineLimits &limits = {}) const;

    std::unique_ptr<support::TempDir> dir;
    QString folder;
};

void TestEngineProcess::init()
{
    dir = std::make_unique<support::TempDir>();
    folder = dir->filePath("private");
    QVERIFY(QDir().mkdir(folder));
}

EngineResult TestEngineProcess::run(const QString &script, const EngineLimits &limits) const
{
    return NETCATCHER::runEngine("/bin/sh", {"-c", script}, folder, limits, [] {});
}

void TestEngineProcess::messagesAndStatusAreReturned()
{
    const EngineResult result = run("echo out; echo err >&2; exit 3");
    QCOMPARE(result.outcome, EngineResult::Finished);
    QCOMPARE(result.exitCode, 3);
    QCOMPARE(result.messages, QByteArray("out\nerr\n"));
}

void TestEngineProcess::argumentsAreNotInterpreted()
{
    const QStringList arguments{"$(touch canary)", "a b", "*", "-n", "`id`", "\n", ""};
    const EngineResult result = NETCATCHER::runEngine(
        "/bin/sh", QStringList({"-c", "for a; do printf '<%s>' \"$a\"; done", "sh"}) + arguments, folder, {}, [] {});
    QCOMPARE(result.messages, QByteArray("<$(touch canary)><a b><*><-n><`id`><\n><>"));
}

void TestEngineProcess::environmentIsSmall()
{
    qputenv("VAK_SECRET", "1");
    const EngineResult result = run("env | cut -d= -f1 | sort | tr '\\n' ' '");
    qunsetenv("VAK_SECRET");
    QCOMPARE(result.messages, QByteArray("HOME LC_ALL PATH PWD TMPDIR "));
    QCOMPARE(run("echo $HOME $TMPDIR; pwd").messages, QString("%1 %1\n%1\n").arg(folder).toUtf8());
}

void TestEngineProcess::standardInputIsEmpty()
{
    QCOMPARE(run("cat; echo end").messages, QByteArray("end\n"));
}

void TestEngineProcess::missingProgramIsNotStarted()
{
    const EngineResult result = NETCATCHER::runEngine(dir->filePath("none"), {}, folder, {}, [] {});
    QCOMPARE(result.outcome, EngineResult::NotStarted);
}

void TestEngineProcess::crashIsTold()
{
    QCOMPARE(run("kill -SEGV $$").outcome, EngineResult::Crashed);
    QCOMPARE(run("kill -KILL $$").outcome, EngineResult::Crashed);
}

void TestEngineProcess::timeIsLimited()
{
    EngineLimits limits;
    limits.milliseconds = 300;
    QElapsedTimer timer;
    timer.start();
    QCOMPARE(run("while :; do :; done", limits).outcome, EngineResult::TimedOut);
    QVERIFY(timer.elapsed() < 20000);
}

void TestEngineProcess::memoryIsLimited()
{
    EngineLimits limits;
    limits.memoryBytes = 64 << 20;
    QCOMPARE(run("ulimit -v", limits).messages, QByteArray("65536\n"));
    QVERIFY(run("ulimit -v").messages.toLongLong() > 0);
    QCOMPARE(run("ulimit -c").messages, QByteArray("0\n"));
}

void TestEngineProcess::fileSizeIsLimited()
{
    EngineLimits limits;
    limits.fileBytes = 4096;
    run("yes | head -c 100000 > big", limits);
    QCOMPARE(QFileInfo(folder + "/big").size(), qint64(4096));
}

void TestEngineProcess::idleIsCalledMeanwhile()
{
    int calls = 0;
    NETCATCHER::runEngine("/bin/sh", {"-c", "sleep 0.5"}, folder, {}, [&calls] { ++calls; });
    QVERIFY(calls >= 3);
}

void TestEngineProcess::enoughEndsIt()
{
    const QString result = folder + "/result";
    const EngineResult ended = NETCATCHER::runEngine(
        "/bin/sh", {"-c", "echo said; echo x > result; while :; do :; done"}, folder, {}, [] {},
        [&result] { return QFile::exists(result); });
    QCOMPARE(ended.outcome, EngineResult::Enough);
    QCOMPARE(ended.messages, QByteArray("said\n"));
    QCOMPARE(NETCATCHER::runEngine(
                 "/bin/true", {}, folder, {}, [] {}, [] { return false; })
                 .outcome,
             EngineResult::Finished);
}

void TestEngineProcess::sandboxKeepsWritingInside()
{
    const QString outside = dir->write("outside.txt", "untouched");
    const EngineResult result = run(QString("echo x > inside && mkdir sub && echo y > sub/z; echo new > '%1/new';"
                                            "echo changed > '%1/outside.txt'; rm '%1/outside.txt'; mkdir '%1/d';"
                                            "ln -s x '%1/l'; echo null > /dev/null && echo end")
                                        .arg(dir->path()));
    QVERIFY2(result.messages.endsWith("end\n"), result.messages.constData());
    QVERIFY(QFile::exists(folder + "/inside") && QFile::exists(folder + "/sub/z"));
    // Without Landlock the same script shows that nothing else holds it back.
    const bool isHeld = NETCATCHER::Sandbox(folder).isOffered();
    QCOMPARE(QFile::exists(dir->filePath("new")), !isHeld);
    QCOMPARE(QFile::exists(outside), isHeld);
    QCOMPARE(QFile::exists(dir->filePath("d")), !isHeld);
    QCOMPARE(QFileInfo(dir->filePath("l")).isSymLink(), !isHeld);
    if (isHeld)
        QCOMPARE(dir->read("outside.txt"), QByteArray("untouched"));
}

void TestEngineProcess::sandboxLetsReadOutside()
{
    const QString outside = dir->write("outside.txt", "text");
    QCOMPARE(run("cat '" + outside + "'").messages, QByteArray("text"));
}

QTEST_GUILESS_MAIN(TestEngineProcess)
#include "tst_engineprocess.moc"

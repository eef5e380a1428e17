// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "runrtlvak.h"

#include "support/engineswitch.h"
#include "support/tempdir.h"

#include <netcatcher/netcatcher.h>

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QtTest>

#include <memory>
#include <vector>

/// The cache of netlists as `rtlvak nets` uses it: several processes, and the library that the workbench loads.
class TestNetsCache : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void secondRunNeedsNoEngine();
    void warningsAreRepeated();
    void noCacheReadsAfresh();
    void relativePathsBelongToTheirFolder();
    void libraryAndCommandLineShareTheCache();
    void severalProgramsAtOnce();

private:
    QStringList entries() const;

    std::unique_ptr<support::TempDir> dir;
    std::unique_ptr<support::EngineSwitch> engine;
};

void TestNetsCache::init()
{
    dir = std::make_unique<support::TempDir>();
    engine = std::make_unique<support::EngineSwitch>();
    qputenv("XDG_CACHE_HOME", QFile::encodeName(dir->filePath("cache")));
}

void TestNetsCache::cleanup()
{
    engine.reset();
    qputenv("XDG_CACHE_HOME", "/dev/null/none");
}

QStringList TestNetsCache::entries() const
{
    return QDir(dir->filePath("cache/rtlvakins/netlists")).entryList(QDir::AllEntries | QDir::NoDotAndDotDot);
}

static QString data(const QString &name)
{
    return QStringLiteral(VAK_TEST_DATA "/hdl/") + name;
}

static QString golden(const QString &name)
{
    QFile file(data(name));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

void TestNetsCache::secondRunNeedsNoEngine()
{
    QCOMPARE(runRtlvak({"nets", data("vectors.v")}).output, golden("vectors.nets"));
    engine->turnOff();
    const CliRun run = runRtlvak({"nets", data("vectors.v")});
    QCOMPARE(run.status, 0);
    QCOMPARE(run.output, golden("vectors.nets"));
    QCOMPARE(runRtlvak({"nets", data("usable.v")}).status, 1);
}

void TestNetsCache::warningsAreRepeated()
{
    const QStringList arguments{"nets", "-I", dir->filePath("none"), data("vectors.v")};
    const CliRun first = runRtlvak(arguments);
    QVERIFY(first.error.contains("WARNING: " + dir->filePath("none")));
    engine->turnOff();
    QCOMPARE(runRtlvak(arguments).error, first.error);
}

void TestNetsCache::noCacheReadsAfresh()
{
    QCOMPARE(runRtlvak({"nets", "--no-cache", data("vectors.v")}).output, golden("vectors.nets"));
    QCOMPARE(entries(), QStringList());
    QCOMPARE(runRtlvak({"nets", data("vectors.v")}).status, 0);
    QCOMPARE(entries().size(), 1);
    engine->turnOff();
    QCOMPARE(runRtlvak({"nets", "--no-cache", data("vectors.v")}).status, 1);
    QCOMPARE(runRtlvak({"nets", data("vectors.v")}).status, 0);
}

void TestNetsCache::relativePathsBelongToTheirFolder()
{
    dir->write("a/top.v", "module top(input a); endmodule\n");
    dir->write("b/top.v", "module top(input b); endmodule\n");
    const QString before = QDir::currentPath();
    QStringList outputs;
    for (const char *folder : {"a", "b", "a", "b"}) {
        QVERIFY(QDir::setCurrent(dir->filePath(folder)));
        outputs.append(runRtlvak({"nets", "top.v"}).output);
    }
    QVERIFY(QDir::setCurrent(before));
    QCOMPARE(outputs, QStringList({"a\n", "b\n", "a\n", "b\n"}));
    QCOMPARE(entries().size(), 2);
}

void TestNetsCache::libraryAndCommandLineShareTheCache()
{
    QStringList tops;
    QStringList modules;
    QStringList messages;
    QMap<QString, QVariant> info{{"Files", QVariantList{QVariantMap{{"Path", data("vectors.v")}}}}};
    NETCATCHER::catchRtlModules(tops, modules, messages, info, nullptr);
    QCOMPARE(tops, QStringList("vectors"));
    engine->turnOff();
    QCOMPARE(runRtlvak({"nets", data("vectors.v")}).output, golden("vectors.nets"));
}

/// Starts programs that read the same designs; answers their outputs.
static QStringList runAtOnce(const QStringList &names)
{
    std::vector<std::unique_ptr<QProcess>> processes;
    for (const QString &name : names) {
        processes.push_back(std::make_unique<QProcess>());
        processes.back()->start(QStringLiteral(RTLVAK_BINARY), {"nets", data(name)});
    }
    QStringList outputs;
    for (const auto &process : processes) {
        process->waitForFinished(60000);
        outputs.append(QString::fromUtf8(process->readAllStandardOutput()));
    }
    return outputs;
}

void TestNetsCache::severalProgramsAtOnce()
{
    QStringList names;
    QStringList expected;
    for (int i = 0; i < 4; ++i) {
        names += {"vectors.v", "usable.v", "generated.v"};
        expected += {golden("vectors.nets"), golden("usable.nets"), golden("generated.nets")};
    }
    QVERIFY(!expected.contains(QString()));
    QCOMPARE(runAtOnce(names), expected);
    QCOMPARE(entries().size(), 3);
    QCOMPARE(entries().filter(QRegExp("^[0-9a-f]{64}\\.netlist$")).size(), 3);
    engine->turnOff();
    QCOMPARE(runAtOnce(names), expected);
}

QTEST_MAIN(TestNetsCache)
#include "tst_netscache.moc"

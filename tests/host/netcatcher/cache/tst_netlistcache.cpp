// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "hostlibs/netcatcher/cache/netlistcache.h"
#include "hostlibs/netcatcher/cache/readmanifest.h"
#include "hostlibs/netcatcher/designsources.h"

#include "support/tempdir.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QStandardPaths>
#include <QtTest>

#include <functional>

#include <sys/stat.h>

using namespace NETCATCHER;

using Change = std::function<void(const support::TempDir &, const QString &)>;
Q_DECLARE_METATYPE(Change)

/// The folder of entries: what is found there, whatever lies there, and how it stays small.
class TestNetlistCache : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void testsDoNotUseTheUsersCache();
    void findsWhatWasStored();
    void keyTellsDescriptionsApart();
    void readerVersionFollowsTheSources();
    void entriesAreForTheirUserOnly();
    void badEntriesAreIgnoredAndReplaced_data();
    void badEntriesAreIgnoredAndReplaced();
    void fullFolderInTheWayIsLeftAlone();
    void everyDamagedByteIsIgnored();
    void entryOfAnotherDesignIsIgnored();
    void incompleteManifestIsNotStored();
    void changedFileIsNotStored();
    void folderThatOthersCanWriteIsNotUsed();
    void noFolderIsNoCache();
    void folderThatCannotBeWrittenIsNoCache();
    void leastRecentlyUsedGoFirst();
    void largeEntriesAreNotStored();
    void leftoversOfCrashedProgramsGo();
    void otherFilesStay();
    void folderMayVanishAtAnyTime();

private:
    QString folder() const { return dir->filePath("cache/netlists"); }
    QString path(const QByteArray &key) const { return folder() + '/' + key + ".netlist"; }

    std::unique_ptr<support::TempDir> dir;
};

static const QByteArray key(64, 'a');

static QByteArray keyNumber(int number)
{
    return QByteArray(63, '0') + QByteArray::number(number);
}

/// A result that takes about a thousand bytes.
static ReadResult someResult(const QString &top = "top")
{
    ReadResult result;
    result.tops = QStringList(top);
    result.messages = QStringList(QString(1000, 'x'));
    return result;
}

static QString topOf(const std::optional<ReadResult> &result)
{
    return result ? result->tops.value(0) : QString("nothing");
}

static void setAge(const QString &path, int seconds)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadWrite));
    QVERIFY(file.setFileTime(QDateTime::currentDateTime().addSecs(-seconds), QFileDevice::FileModificationTime));
}

void TestNetlistCache::init()
{
    dir = std::make_unique<support::TempDir>();
}

void TestNetlistCache::testsDoNotUseTheUsersCache()
{
    QVERIFY(!QDir().mkpath(QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation)));
}

void TestNetlistCache::findsWhatWasStored()
{
    const NetlistCache cache(folder());
    QCOMPARE(topOf(cache.find(key)), QString("nothing"));
    QVERIFY(cache.store(key, ReadManifest(), someResult("one")));
    QCOMPARE(topOf(cache.find(key)), QString("one"));
    QVERIFY(cache.store(key, ReadManifest(), someResult("two")));
    QCOMPARE(topOf(NetlistCache(folder()).find(key)), QString("two"));
    QCOMPARE(topOf(cache.find(keyNumber(1))), QString("nothing"));
}

void TestNetlistCache::keyTellsDescriptionsApart()
{
    DesignSources a;
    a.defines = QStringList{"x", "y"};
    DesignSources b;
    b.defines = QStringList("x");
    b.standard = "y";
    DesignSources c;
    c.includePaths = QStringList{"x", "y"};
    QSet<QByteArray> keys;
    for (const DesignSources &sources : {DesignSources(), a, b, c})
        keys.insert(NetlistCache::keyOf(sources, {"/bin/sh"}));
    keys.insert(NetlistCache::keyOf(a, {"/bin/ls"}));
    keys.insert(NetlistCache::keyOf(a, {"/bin/sh"}, "another version"));
    QCOMPARE(keys.size(), 6);
    QVERIFY(keys.contains(NetlistCache::keyOf(a, {"/bin/sh"})));
}

void TestNetlistCache::readerVersionFollowsTheSources()
{
    dir->write("lib/a.cpp", "one");
    dir->write("lib/b.h", {});
    const auto version = [this] {
        QProcess::execute(CMAKE_PROGRAM, {"-DFOLDER=" + dir->filePath("lib"),
                                          "-DOUTPUT=" + dir->filePath("version.cpp"), "-P", READER_VERSION_SCRIPT});
        return dir->read("version.cpp");
    };
    const QByteArray first = version();
    QVERIFY(first.contains("readerVersion()"));
    QCOMPARE(version(), first);
    dir->write("lib/a.cpp", "two");
    const QByteArray second = version();
    QVERIFY(second != first);
    dir->write("lib/c.h", {});
    QVERIFY(version() != second);
}

void TestNetlistCache::entriesAreForTheirUserOnly()
{
    QVERIFY(NetlistCache(folder()).store(key, ReadManifest(), someResult()));
    const auto access = [](const QString &place) { return int(QFile::permissions(place)) & 0x0fff; };
    QCOMPARE(access(folder()) & 0x0077, 0);
    QCOMPARE(access(path(key)) & 0x0177, 0);
}

void TestNetlistCache::badEntriesAreIgnoredAndReplaced_data()
{
    QTest::addColumn<Change>("change");
    const auto add = [](const char *name, const Change &change) { QTest::newRow(name) << change; };
    const auto overwrite = [](const QString &path, const QByteArray &bytes) {
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    };
    add("empty", [=](const support::TempDir &, const QString &path) { overwrite(path, {}); });
    add("foreign", [=](const support::TempDir &, const QString &path) { overwrite(path, "<?xml version=\"1.0\"?>"); });
    add("older version", [=](const support::TempDir &, const QString &path) {
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadOnly));
        overwrite(path, file.readAll().replace("netlist 1\n", "netlist 0\n"));
    });
    add("folder",
        [](const support::TempDir &, const QString &path) { QVERIFY(QFile::remove(path) && QDir().mkdir(path)); });
    add("link that leads nowhere", [](const support::TempDir &scene, const QString &path) {
        QVERIFY(QFile::remove(path) && QFile::link(scene.filePath("gone"), path));
    });
    add("pipe", [](const support::TempDir &, const QString &path) {
        QVERIFY(QFile::remove(path) && mkfifo(QFile::encodeName(path).constData(), S_IRUSR | S_IWUSR) == 0);
    });
}

void TestNetlistCache::badEntriesAreIgnoredAndReplaced()
{
    QFETCH(Change, change);
    const NetlistCache cache(folder());
    QVERIFY(cache.store(key, ReadManifest(), someResult("one")));
    change(*dir, path(key));
    QCOMPARE(topOf(cache.find(key)), QString("nothing"));
    QVERIFY(cache.store(key, ReadManifest(), someResult("two")));
    QCOMPARE(topOf(cache.find(key)), QString("two"));
    QVERIFY(!QFile::exists(dir->filePath("gone")));
}

void TestNetlistCache::fullFolderInTheWayIsLeftAlone()
{
    const NetlistCache cache(folder());
    QVERIFY(cache.makeFolder());
    const QString note = dir->write("cache/netlists/" + key + ".netlist/note.txt", "mine");
    QVERIFY(!cache.store(key, ReadManifest(), someResult()));
    QVERIFY(!cache.find(key));
    QVERIFY(QFile::exists(note));
    QCOMPARE(QDir(folder()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot).size(), 1);
}

void TestNetlistCache::everyDamagedByteIsIgnored()
{
    const NetlistCache cache(folder());
    QVERIFY(cache.store(key, ReadManifest(), ReadResult()));
    const QString name = "cache/netlists/" + key + ".netlist";
    const QByteArray good = dir->read(name);
    QVERIFY(good.size() > 100);
    for (int i = 0; i < good.size(); ++i) {
        QByteArray bad = good;
        bad[i] = char(bad[i] ^ 0x10);
        dir->write(name, bad);
        QVERIFY2(!cache.find(key), qPrintable(QString::number(i)));
        dir->write(name, good.left(i));
        QVERIFY2(!cache.find(key), qPrintable(QString::number(i)));
    }
    dir->write(name, good);
    QVERIFY(cache.find(key));
}

void TestNetlistCache::entryOfAnotherDesignIsIgnored()
{
    const NetlistCache cache(folder());
    QVERIFY(cache.store(key, ReadManifest(), someResult()));
    QVERIFY(QFile::copy(path(key), path(keyNumber(1))));
    QVERIFY(!cache.find(keyNumber(1)));
}

void TestNetlistCache::incompleteManifestIsNotStored()
{
    const NetlistCache cache(folder());
    ReadManifest manifest;
    manifest.giveUp();
    QVERIFY(!cache.store(key, manifest, someResult()));
    QVERIFY(!cache.find(key));
}

void TestNetlistCache::changedFileIsNotStored()
{
    const NetlistCache cache(folder());
    ReadManifest manifest;
    manifest.look(dir->write("source.v", "one"));
    QVERIFY(cache.store(key, manifest, someResult()));
    QVERIFY(cache.find(key));
    dir->write("source.v", "two");
    QVERIFY(!cache.find(key));
    QVERIFY(!cache.store(keyNumber(1), manifest, someResult()));
    QVERIFY(!QFile::exists(path(keyNumber(1))));
}

void TestNetlistCache::folderThatOthersCanWriteIsNotUsed()
{
    const NetlistCache cache(folder());
    QVERIFY(cache.makeFolder());
    QVERIFY(cache.store(key, ReadManifest(), someResult()));
    QVERIFY(chmod(QFile::encodeName(folder()).constData(), 0777) == 0);
    QVERIFY(!cache.find(key));
    QVERIFY(!cache.makeFolder());
    QVERIFY(!cache.store(keyNumber(1), ReadManifest(), someResult()));
    QVERIFY(chmod(QFile::encodeName(folder()).constData(), 0755) == 0);
    QVERIFY(cache.find(key));
}

void TestNetlistCache::noFolderIsNoCache()
{
    const NetlistCache cache{QString()};
    QVERIFY(!cache.makeFolder());
    QVERIFY(!cache.store(key, ReadManifest(), someResult()));
    QVERIFY(!cache.find(key));
}

void TestNetlistCache::folderThatCannotBeWrittenIsNoCache()
{
    dir->write("file", {});
    // The second cannot be written even by the superuser.
    for (const QString &place : {dir->filePath("file"), QString("/proc/self"), dir->filePath("file/below")}) {
        const NetlistCache cache(place);
        QVERIFY(!cache.store(key, ReadManifest(), someResult()));
        QVERIFY(!cache.find(key));
    }
}

void TestNetlistCache::leastRecentlyUsedGoFirst()
{
    QVERIFY(NetlistCache(folder()).store(keyNumber(0), ReadManifest(), someResult()));
    const qint64 size = QFileInfo(path(keyNumber(0))).size();
    const NetlistCache cache(folder(), 4 * size + size / 2);
    for (int i = 0; i < 4; ++i) {
        QVERIFY(cache.store(keyNumber(i), ReadManifest(), someResult()));
        setAge(path(keyNumber(i)), 1000 - i);
    }
    QVERIFY(cache.find(keyNumber(0))); // which makes 1 the one that was not used for longest
    QVERIFY(cache.store(keyNumber(4), ReadManifest(), someResult()));
    QStringList left = QDir(folder()).entryList(QDir::Files, QDir::Name);
    QCOMPARE(left.replaceInStrings(QRegExp("^0*(\\d)\\.netlist$"), "\\1"), QStringList({"0", "2", "3", "4"}));
    setAge(path(keyNumber(0)), 2000);
    QVERIFY(cache.store(keyNumber(5), ReadManifest(), someResult()));
    left = QDir(folder()).entryList(QDir::Files, QDir::Name);
    QCOMPARE(left.replaceInStrings(QRegExp("^0*(\\d)\\.netlist$"), "\\1"), QStringList({"2", "3", "4", "5"}));
}

void TestNetlistCache::largeEntriesAreNotStored()
{
    QVERIFY(NetlistCache(folder()).store(key, ReadManifest(), someResult()));
    const qint64 size = QFileInfo(path(key)).size();
    QVERIFY(NetlistCache(folder(), 4 * size).store(keyNumber(1), ReadManifest(), someResult()));
    const NetlistCache small(folder(), 4 * size - 1);
    QVERIFY(!small.store(keyNumber(2), ReadManifest(), someResult()));
    QVERIFY(!QFile::exists(path(keyNumber(2))));
    QVERIFY(!small.find(keyNumber(1)));
}

void TestNetlistCache::leftoversOfCrashedProgramsGo()
{
    const QString old = dir->write("cache/netlists/" + keyNumber(1) + ".netlist.AbCdEf", "half");
    const QString young = dir->write("cache/netlists/" + keyNumber(2) + ".netlist.AbCdEf", "half");
    setAge(old, 7200);
    QVERIFY(NetlistCache(folder()).store(key, ReadManifest(), someResult()));
    QVERIFY(!QFile::exists(old));
    QVERIFY(QFile::exists(young)); // another program may be writing it
}

void TestNetlistCache::otherFilesStay()
{
    const QString note = dir->write("cache/netlists/notes.txt", QByteArray(10000, 'x'));
    const QString similar = dir->write("cache/netlists/mine.netlist", QByteArray(10000, 'x'));
    setAge(note, 7200);
    setAge(similar, 7200);
    const NetlistCache cache(folder(), 8000);
    QVERIFY(cache.store(key, ReadManifest(), someResult()));
    QVERIFY(QFile::exists(note) && QFile::exists(similar));
    QVERIFY(cache.find(key));
}

void TestNetlistCache::folderMayVanishAtAnyTime()
{
    const NetlistCache cache(folder());
    QVERIFY(cache.store(key, ReadManifest(), someResult()));
    QVERIFY(QDir(dir->filePath("cache")).removeRecursively());
    QVERIFY(!cache.find(key));
    QVERIFY(cache.store(key, ReadManifest(), someResult()));
    QVERIFY(cache.find(key));
}

QTEST_GUILESS_MAIN(TestNetlistCache)
#include "tst_netlistcache.moc"

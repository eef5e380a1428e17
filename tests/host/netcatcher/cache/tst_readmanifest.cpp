// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "hostlibs/netcatcher/cache/archivebytes.h"
#include "hostlibs/netcatcher/cache/readmanifest.h"

#include "support/tempdir.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QtTest>

#include <functional>

using namespace NETCATCHER;

using Change = std::function<void(const support::TempDir &)>;
Q_DECLARE_METATYPE(Change)

class TestReadManifest : public QObject
{
    Q_OBJECT

private slots:
    void changesAreNoticed_data();
    void changesAreNoticed();
    void harmlessChangesAreNot_data();
    void harmlessChangesAreNot();
    void firstLookCounts();
    void relativePathsAreMadeAbsolute();
    void longFilesAreReadInPieces();
    void nothingIsReadAfterGivingUp();
    void readsWhatItWrote();
};

/// A manifest of one place of each kind.
static ReadManifest lookedAt(const support::TempDir &dir)
{
    ReadManifest manifest;
    for (const char *name : {"file", "empty", "folder", "nothing", "link"})
        manifest.look(dir.filePath(name));
    return manifest;
}

static void fill(const support::TempDir &dir)
{
    dir.write("file", "content");
    dir.write("empty", {});
    dir.write("folder/inside", {});
    dir.write("target", "target");
    QVERIFY(QFile::link(dir.filePath("target"), dir.filePath("link")));
}

void TestReadManifest::changesAreNoticed_data()
{
    QTest::addColumn<Change>("change");
    const auto add = [](const char *name, const Change &change) { QTest::newRow(name) << change; };
    add("other content", [](const support::TempDir &dir) { dir.write("file", "Content"); });
    add("longer content", [](const support::TempDir &dir) { dir.write("file", "content "); });
    add("no content", [](const support::TempDir &dir) { dir.write("file", {}); });
    add("some content", [](const support::TempDir &dir) { dir.write("empty", "\n"); });
    add("file vanished", [](const support::TempDir &dir) { dir.remove("file"); });
    add("empty file vanished", [](const support::TempDir &dir) { dir.remove("empty"); });
    add("file appeared", [](const support::TempDir &dir) { dir.write("nothing", {}); });
    add("folder appeared", [](const support::TempDir &dir) { dir.write("nothing/inside", {}); });
    add("folder vanished", [](const support::TempDir &dir) { QDir(dir.filePath("folder")).removeRecursively(); });
    add("other content behind a link", [](const support::TempDir &dir) { dir.write("target", "elsewhere"); });
    add("link leads nowhere", [](const support::TempDir &dir) { dir.remove("target"); });
}

void TestReadManifest::changesAreNoticed()
{
    QFETCH(Change, change);
    const support::TempDir dir;
    fill(dir);
    const ReadManifest manifest = lookedAt(dir);
    QVERIFY(manifest.holds());
    change(dir);
    QVERIFY(!manifest.holds());
}

void TestReadManifest::harmlessChangesAreNot_data()
{
    QTest::addColumn<Change>("change");
    const auto add = [](const char *name, const Change &change) { QTest::newRow(name) << change; };
    add("another time", [](const support::TempDir &dir) {
        QFile file(dir.filePath("file"));
        QVERIFY(file.open(QIODevice::ReadWrite));
        QVERIFY(file.setFileTime(QDateTime::currentDateTime().addDays(1), QFileDevice::FileModificationTime));
    });
    add("written again", [](const support::TempDir &dir) { dir.write("file", "content"); });
    add("replaced", [](const support::TempDir &dir) {
        dir.remove("file");
        dir.write("file", "content");
    });
    add("another file in the folder", [](const support::TempDir &dir) { dir.write("folder/other", "x"); });
    add("another file beside", [](const support::TempDir &dir) { dir.write("other", "x"); });
}

void TestReadManifest::harmlessChangesAreNot()
{
    QFETCH(Change, change);
    const support::TempDir dir;
    fill(dir);
    const ReadManifest manifest = lookedAt(dir);
    change(dir);
    QVERIFY(manifest.holds());
}

void TestReadManifest::firstLookCounts()
{
    const support::TempDir dir;
    fill(dir);
    ReadManifest manifest = lookedAt(dir);
    dir.write("file", "other");
    manifest.look(dir.filePath("file"));
    QVERIFY(!manifest.holds());
}

void TestReadManifest::relativePathsAreMadeAbsolute()
{
    const support::TempDir dir;
    fill(dir);
    const QString before = QDir::currentPath();
    QVERIFY(QDir::setCurrent(dir.path()));
    ReadManifest manifest;
    manifest.look(QStringLiteral("file"));
    QVERIFY(QDir::setCurrent(before));
    QVERIFY(manifest.holds());
    dir.write("file", "other");
    QVERIFY(!manifest.holds());
}

void TestReadManifest::longFilesAreReadInPieces()
{
    const support::TempDir dir;
    QByteArray content(5 << 20, 'x');
    dir.write("long", content);
    int calls = 0;
    ReadManifest manifest([&calls] { ++calls; });
    manifest.look(dir.filePath("long"));
    QVERIFY(calls >= 4);
    QVERIFY(manifest.holds());
    content[content.size() - 1] = 'y';
    dir.write("long", content);
    QVERIFY(!manifest.holds());
}

void TestReadManifest::nothingIsReadAfterGivingUp()
{
    const support::TempDir dir;
    dir.write("long", QByteArray(2 << 20, 'x'));
    int calls = 0;
    ReadManifest manifest([&calls] { ++calls; });
    QVERIFY(manifest.isComplete());
    manifest.giveUp();
    manifest.look(dir.filePath("long"));
    QVERIFY(!manifest.isComplete());
    QCOMPARE(calls, 0);
}

void TestReadManifest::readsWhatItWrote()
{
    const support::TempDir dir;
    fill(dir);
    ByteWriter out;
    lookedAt(dir).write(out);
    ByteReader in(out.bytes());
    ReadManifest manifest;
    manifest.read(in);
    QVERIFY(in.isGood() && in.isAtEnd());
    QVERIFY(manifest.holds());
    dir.write("nothing", {});
    QVERIFY(!manifest.holds());
}

QTEST_GUILESS_MAIN(TestReadManifest)
#include "tst_readmanifest.moc"

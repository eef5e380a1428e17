// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "modeltools.h"

#include <VakUtils/vakfile.h>

#include <QtTest>

#include <csignal>

#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace VAK;

class TestVakFileWrite : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void newFileIsReadableAsTheUserAsked();
    void permissionsAreKept();
    void symbolicLinkIsFollowed();
    void chainOfLinksIsFollowed();
    void linkToNothingIsFilled();
    void otherNamesOfTheFileKeepTheOldContent();
    void nothingElseIsLeftInTheFolder();
    void missingFolderIsAFailure();
    void folderInTheWayIsAFailure();
    void protectedFileIsLeftAlone();
    void failedWriteLeavesTheOldFile();

private:
    QString path(const char *name = "a.rvk") const { return folder->filePath(QLatin1String(name)); }
    QStringList entries() const;
    bool write(const QString &file) const { return writeVAKConfigToXml({core.get()}, file); }

    std::unique_ptr<QTemporaryDir> folder;
    std::unique_ptr<AoCore> core;
    QByteArray expected;
};

void TestVakFileWrite::init()
{
    folder = std::make_unique<QTemporaryDir>();
    QVERIFY(folder->isValid());
    core = std::make_unique<AoCore>(0);
    expected = fileContent(goldenFile(QStringLiteral("standard-new-core.rvk")));
}

QStringList TestVakFileWrite::entries() const
{
    return QDir(folder->path())
        .entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot, QDir::Name);
}

static int modeOf(const QString &file)
{
    struct stat status = {};
    return stat(qPrintable(file), &status) == 0 ? int(status.st_mode & 07777) : -1;
}

void TestVakFileWrite::newFileIsReadableAsTheUserAsked()
{
    const mode_t before = umask(027);
    const bool written = write(path());
    umask(before);
    QVERIFY(written);
    QCOMPARE(modeOf(path()), 0640);
}

void TestVakFileWrite::permissionsAreKept()
{
    QVERIFY(writeContent(path(), "old"));
    QCOMPARE(chmod(qPrintable(path()), 0604), 0);
    QVERIFY(write(path()));
    QCOMPARE(modeOf(path()), 0604);
    QCOMPARE(fileContent(path()), expected);
}

void TestVakFileWrite::symbolicLinkIsFollowed()
{
    QVERIFY(QDir(folder->path()).mkdir(QStringLiteral("sub")));
    QVERIFY(writeContent(path("sub/target.rvk"), "old"));
    QVERIFY(QFile::link(QStringLiteral("sub/target.rvk"), path()));
    QVERIFY(write(path()));
    QVERIFY(QFileInfo(path()).isSymLink());
    QVERIFY(!QFileInfo(path("sub/target.rvk")).isSymLink());
    QCOMPARE(fileContent(path("sub/target.rvk")), expected);
}

void TestVakFileWrite::chainOfLinksIsFollowed()
{
    QVERIFY(writeContent(path("target.rvk"), "old"));
    QVERIFY(QFile::link(QStringLiteral("target.rvk"), path("middle.rvk")));
    QVERIFY(QFile::link(QStringLiteral("middle.rvk"), path()));
    QVERIFY(write(path()));
    QVERIFY(QFileInfo(path()).isSymLink());
    QVERIFY(QFileInfo(path("middle.rvk")).isSymLink());
    QCOMPARE(fileContent(path("target.rvk")), expected);
}

void TestVakFileWrite::linkToNothingIsFilled()
{
    QVERIFY(QFile::link(QStringLiteral("target.rvk"), path()));
    QVERIFY(write(path()));
    QVERIFY(QFileInfo(path()).isSymLink());
    QCOMPARE(fileContent(path("target.rvk")), expected);
}

void TestVakFileWrite::otherNamesOfTheFileKeepTheOldContent()
{
    QVERIFY(writeContent(path(), "old"));
    QCOMPARE(::link(qPrintable(path()), qPrintable(path("backup.rvk"))), 0);
    QVERIFY(write(path()));
    QCOMPARE(fileContent(path("backup.rvk")), QByteArray("old")); // renamed over, never written into
}

void TestVakFileWrite::nothingElseIsLeftInTheFolder()
{
    QVERIFY(write(path()));
    QVERIFY(write(path()));
    QCOMPARE(entries(), QStringList{"a.rvk"});
}

static void expectWarning(const QString &text)
{
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(text));
}

void TestVakFileWrite::missingFolderIsAFailure()
{
    expectWarning(QStringLiteral("No such file or directory"));
    QVERIFY(!write(path("missing/a.rvk")));
    QVERIFY(entries().isEmpty());
}

void TestVakFileWrite::folderInTheWayIsAFailure()
{
    QVERIFY(QDir(folder->path()).mkdir(QStringLiteral("a.rvk")));
    expectWarning(QStringLiteral("a\\.rvk"));
    QVERIFY(!write(path()));
    QCOMPARE(entries(), QStringList{"a.rvk"});
}

void TestVakFileWrite::protectedFileIsLeftAlone()
{
    QVERIFY(writeContent(path(), "old"));
    QCOMPARE(chmod(qPrintable(path()), 0444), 0);
    if (access(qPrintable(path()), W_OK) == 0) { // for root nothing is protected
        QVERIFY(write(path()));
        QCOMPARE(modeOf(path()), 0444);
        return;
    }
    expectWarning(QStringLiteral("not writable"));
    QVERIFY(!write(path()));
    QCOMPARE(fileContent(path()), QByteArray("old"));
    QCOMPARE(entries(), QStringList{"a.rvk"});
}

void TestVakFileWrite::failedWriteLeavesTheOldFile()
{
    core->setModuleName(QString(500000, QLatin1Char('m'))); // more than a buffer holds
    QVERIFY(writeContent(path(), "old"));
    struct rlimit before = {};
    QCOMPARE(getrlimit(RLIMIT_FSIZE, &before), 0);
    const auto handler = std::signal(SIGXFSZ, SIG_IGN);
    struct rlimit small = before;
    small.rlim_cur = 4096;
    QCOMPARE(setrlimit(RLIMIT_FSIZE, &small), 0);
    expectWarning(QStringLiteral("a\\.rvk"));
    const bool written = write(path());
    setrlimit(RLIMIT_FSIZE, &before);
    std::signal(SIGXFSZ, handler);
    QVERIFY(!written);
    QCOMPARE(fileContent(path()), QByteArray("old"));
    QCOMPARE(entries(), QStringList{"a.rvk"});
}

QTEST_GUILESS_MAIN(TestVakFileWrite)
#include "tst_vakfilewrite.moc"

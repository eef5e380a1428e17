// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "modeltools.h"

#include "hostlibs/vakutils/corereader.h"
#include "hostlibs/vakutils/corewriter.h"

#include <VakUtils/vakfile.h>

#include <QtTest>

using namespace VAK;

/// Damages files in every way that comes to mind: the reader answers with cores or with an error that has a place, and
/// what it accepted can be written and read again.
class TestVakFileMutation : public QObject
{
    Q_OBJECT

private slots:
    void damagedFilesAreReadOrRefused_data();
    void damagedFilesAreReadOrRefused();
    void everyBeginningIsRefusedWithAPlace();
};

static void replaceBytes(QByteArray *text, QRandomGenerator *random)
{
    static const QByteArray favourites = "<>/\"'=&;[] \n0129-XRm\x80\xFF";
    for (int i = random->bounded(1, 5); i > 0 && !text->isEmpty(); --i)
        (*text)[int(random->bounded(text->size()))] = favourites.at(int(random->bounded(favourites.size())));
}

/// Copies, moves or drops a piece of the text.
static void shuffle(QByteArray *text, QRandomGenerator *random)
{
    const int from = random->bounded(text->size());
    const QByteArray piece = text->mid(from, random->bounded(200));
    if (random->bounded(3) > 0)
        text->remove(from, piece.size());
    if (random->bounded(3) > 0)
        text->insert(random->bounded(text->size() + 1), piece);
}

/// Exchanges whole tokens, which keeps the file well-formed more often.
static void replaceToken(QByteArray *text, QRandomGenerator *random)
{
    static const QList<QByteArray> tokens = {
        "index", "bus", "net",  "group",        "bit",   "true", "false", "static",  "0",
        "1",     "16",  "-1",   "999999999999", "port",  "unit", "core",  "capture", "in range",
        "==",    "",    "none", "base",         "first", "&#0;", "&lt;",  "x:y"};
    const QByteArray from = tokens.at(random->bounded(tokens.size()));
    const int at = from.isEmpty() ? -1 : text->indexOf(from, random->bounded(text->size()));
    if (at >= 0)
        text->replace(at, from.size(), tokens.at(random->bounded(tokens.size())));
}

void TestVakFileMutation::damagedFilesAreReadOrRefused_data()
{
    QTest::addColumn<QString>("file");
    for (const QString &name : goldenFiles())
        QTest::newRow(qPrintable(name)) << goldenFile(name);
}

template <class Core>
static QString checkOutcome(const QByteArray &text, QList<Core *> (*read)(const QByteArray &, Checks, FileError *),
                            QByteArray (*write)(const QList<Core *> &))
{
    FileError error;
    const OwnedCores<Core> cores(read(text, Checks::StructureAndValues, &error));
    if (error.isSet())
        return error.line > 0 && error.column > 0 && cores.cores.isEmpty() ? QString() : QStringLiteral("no place");
    FileError structure;
    const OwnedCores<Core> checked(read(text, Checks::Structure, &structure));
    if (structure.isSet())
        return QStringLiteral("read, but its structure is refused: ") + structure.text();
    const QByteArray written = write(cores.cores);
    const OwnedCores<Core> again(read(written, Checks::StructureAndValues, &error));
    if (error.isSet())
        return QStringLiteral("written, but not read again: ") + error.text();
    return write(again.cores) == written ? QString() : QStringLiteral("other bytes the second time");
}

void TestVakFileMutation::damagedFilesAreReadOrRefused()
{
    QFETCH(QString, file);
    const QByteArray original = fileContent(file);
    QVERIFY(!original.isEmpty());
    for (quint32 seed = 1; seed <= 1500; ++seed) {
        QRandomGenerator random(seed);
        QByteArray text = original;
        for (int i = random.bounded(1, 4); i > 0 && !text.isEmpty(); --i) {
            const int way = random.bounded(3);
            if (way == 0)
                replaceBytes(&text, &random);
            else if (way == 1)
                shuffle(&text, &random);
            else
                replaceToken(&text, &random);
        }
        const QString standard = checkOutcome<AoCore>(text, readStandardCores, standardFile);
        const QString lite = checkOutcome<AOCore_Lite>(text, readLiteCores, liteFile);
        QVERIFY2(standard.isEmpty(),
                 qPrintable(QStringLiteral("seed %1: %2\n").arg(seed).arg(standard) + QString::fromUtf8(text)));
        QVERIFY2(lite.isEmpty(),
                 qPrintable(QStringLiteral("seed %1: %2\n").arg(seed).arg(lite) + QString::fromUtf8(text)));
        modeOf(text);
    }
}

void TestVakFileMutation::everyBeginningIsRefusedWithAPlace()
{
    const QByteArray text = fileContent(goldenFile(QStringLiteral("standard-foreign.rvk"))).trimmed();
    for (int size = 0; size < text.size(); ++size) {
        FileError error;
        QVERIFY(readStandardCores(text.left(size), Checks::StructureAndValues, &error).isEmpty());
        QVERIFY2(error.line > 0 && error.column > 0, qPrintable(QString::number(size)));
    }
}

QTEST_GUILESS_MAIN(TestVakFileMutation)
#include "tst_vakfilemutation.moc"

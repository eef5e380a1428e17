// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "ghwprobe.h"

#include "hostlibs/netcatcher/vhdl/ghwreader.h"

#include <QRandomGenerator>
#include <QtTest>

using namespace NETCATCHER;

/// The reader of GHDL's waveform files, on such files that are cut off, damaged or of another form.
class TestGhwFaults : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void olderVersionReadsAlike();
    void bigEndianReadsAlike();
    void whatIsBehindTheHierarchyIsNotRead();
    void truncatedSmallFileIsAnError();
    void truncatedLargeFileIsAnError();
    void damagedFileNeverCrashes_data();
    void damagedFileNeverCrashes();

private:
    QByteArray m_small;
    QByteArray m_large;
};

static QStringList everythingIn(const GhwDesign &design)
{
    QStringList lines = probe::hierarchyLines(design);
    for (size_t i = 0; i != design.types.size(); ++i)
        lines << probe::typeText(design, int(i));
    return lines;
}

static QByteArray untilHierarchyEnds(const QByteArray &file)
{
    return file.left(file.indexOf(QByteArray("EOH", 4)) + 4);
}

/// A design whose file has many thousand bytes.
static QByteArray largeDesign()
{
    return "entity large is end entity;\n"
           "architecture a of large is\n"
           "  type entry is record valid : bit; data : bit_vector(15 downto 0); end record;\n"
           "  type entries is array (natural range <>) of entry;\n"
           "begin\n"
           "  rows : for i in 0 to 299 generate\n"
           "    signal queue : entries(0 to 3);\n"
           "    signal pointer : integer range 0 to 3;\n"
           "  begin\n"
           "  end generate;\n"
           "end architecture;\n";
}

void TestGhwFaults::initTestCase()
{
    QString error;
    m_small = probe::waveFile(QStringLiteral(VAK_TEST_DATA "/hdl/ghwscopes.vhdl"), QStringLiteral("ghwscopes"), &error);
    QVERIFY2(!m_small.isEmpty(), qPrintable(error));
    m_large = probe::waveFileOf(largeDesign(), QStringLiteral("large"), &error);
    QVERIFY2(m_large.size() > 40000, qPrintable(error));
}

void TestGhwFaults::olderVersionReadsAlike()
{
    GhwDesign expected;
    GhwDesign design;
    QString error;
    QVERIFY2(readGhw(m_small, &expected, &error), qPrintable(error));
    QByteArray older = m_small;
    QCOMPARE(older[11], '\x01');
    older[11] = '\0';
    QVERIFY2(readGhw(older, &design, &error), qPrintable(error));
    QCOMPARE(everythingIn(design), everythingIn(expected));
}

/// Turns words over behind a section's tag and zeros.
static void turnWords(QByteArray *file, const char *tag, int count)
{
    const int begin = file->indexOf(QByteArray(tag, 4)) + 8;
    for (int i = 0; i != count; ++i)
        std::reverse(file->begin() + begin + 4 * i, file->begin() + begin + 4 * i + 4);
}

void TestGhwFaults::bigEndianReadsAlike()
{
    GhwDesign expected;
    GhwDesign design;
    QString error;
    QVERIFY2(readGhw(m_small, &expected, &error), qPrintable(error));
    QByteArray turned = m_small;
    turned[12] = '\x02';
    turnWords(&turned, "STR", 2);
    turnWords(&turned, "TYP", 1);
    turnWords(&turned, "HIE", 3);
    QVERIFY2(readGhw(turned, &design, &error), qPrintable(error));
    QCOMPARE(everythingIn(design), everythingIn(expected));
}

void TestGhwFaults::whatIsBehindTheHierarchyIsNotRead()
{
    GhwDesign expected;
    GhwDesign design;
    QString error;
    QVERIFY2(readGhw(m_small, &expected, &error), qPrintable(error));
    QVERIFY2(readGhw(untilHierarchyEnds(m_small) + "anything", &design, &error), qPrintable(error));
    QCOMPARE(everythingIn(design), everythingIn(expected));
}

void TestGhwFaults::truncatedSmallFileIsAnError()
{
    const QByteArray whole = untilHierarchyEnds(m_small);
    QCOMPARE(probe::ghwErrorOf(whole), QStringLiteral("(none)"));
    for (int size = 0; size != whole.size(); ++size) {
        const QString error = probe::ghwErrorOf(whole.left(size));
        QVERIFY2(error.startsWith(QLatin1String("byte ")), qPrintable(QString::number(size) + error));
    }
}

void TestGhwFaults::truncatedLargeFileIsAnError()
{
    const QByteArray whole = untilHierarchyEnds(m_large);
    QCOMPARE(probe::ghwErrorOf(whole), QStringLiteral("(none)"));
    for (int i = 0; i != 50; ++i) {
        const QString error = probe::ghwErrorOf(whole.left(whole.size() / 50 * i));
        QVERIFY2(error.startsWith(QLatin1String("byte ")), qPrintable(QString::number(i) + error));
    }
}

void TestGhwFaults::damagedFileNeverCrashes_data()
{
    QTest::addColumn<bool>("isLarge");
    QTest::addColumn<int>("rounds");
    QTest::newRow("small") << false << 4000;
    QTest::newRow("large") << true << 150;
}

void TestGhwFaults::damagedFileNeverCrashes()
{
    QFETCH(bool, isLarge);
    QFETCH(int, rounds);
    const QByteArray whole = untilHierarchyEnds(isLarge ? m_large : m_small);
    QRandomGenerator random(20);
    int good = 0;
    for (int round = 0; round != rounds; ++round) {
        QByteArray damaged = whole;
        for (quint32 flips = 1 + random.bounded(3u); flips; --flips) {
            const int place = random.bounded(whole.size());
            damaged[place] = char(damaged[place] ^ (1 << random.bounded(8)));
        }
        GhwDesign design;
        QString error;
        const bool isGood = readGhw(damaged, &design, &error);
        QCOMPARE(error.isEmpty(), isGood);
        QCOMPARE(design.scopes.empty(), !isGood);
        QCOMPARE(probe::brokenPromise(design), QString());
        good += isGood;
    }
    // Some flips change a letter or a number only; most are noticed.
    QVERIFY(good > 0 && good < rounds);
}

QTEST_APPLESS_MAIN(TestGhwFaults)
#include "tst_ghwfaults.moc"

// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "rules/sizechoices.h"

#include <QtTest>

class tst_SizeChoices : public QObject
{
    Q_OBJECT

private slots:
    void storageSizesAreFifteenDoublingsFrom4();
    void liteAmountsAreSixteenDoublingsFrom2();
    void segmentsAreAQuarterOfTheStorage_data();
    void segmentsAreAQuarterOfTheStorage();
    void amounts_data();
    void amounts();
    void triggerPositionLeavesFourPlaces_data();
    void triggerPositionLeavesFourPlaces();
    void textThatIsNoNumberCountsAsZero();
};

void tst_SizeChoices::storageSizesAreFifteenDoublingsFrom4()
{
    QCOMPARE(RTLVAK::storageSizeChoices(),
             QList<int>({4, 8, 16, 32, 64, 128, 256, 512, 1024, 2048, 4096, 8192, 16384, 32768, 65536}));
}

void tst_SizeChoices::liteAmountsAreSixteenDoublingsFrom2()
{
    QCOMPARE(RTLVAK::liteCaptureAmountChoices(), QList<int>{2} + RTLVAK::storageSizeChoices());
}

void tst_SizeChoices::segmentsAreAQuarterOfTheStorage_data()
{
    QTest::addColumn<int>("storage");
    QTest::addColumn<int>("segments");
    QTest::newRow("4") << 4 << 1;
    QTest::newRow("8") << 8 << 2;
    QTest::newRow("1024") << 1024 << 256;
    QTest::newRow("65536") << 65536 << 16384;
    QTest::newRow("not offered") << 3 << 0;
    QTest::newRow("nothing") << 0 << 0;
    QTest::newRow("negative") << -8 << 0;
}

void tst_SizeChoices::segmentsAreAQuarterOfTheStorage()
{
    QFETCH(int, storage);
    QTEST(RTLVAK::segmentChoiceCount(storage), "segments");
}

void tst_SizeChoices::amounts_data()
{
    QTest::addColumn<int>("storage");
    QTest::addColumn<int>("segments");
    QTest::addColumn<QList<int>>("amounts");
    QTest::newRow("storage 4") << 4 << 1 << QList<int>{4};
    QTest::newRow("storage 8, 2 segments") << 8 << 2 << QList<int>{4};
    QTest::newRow("storage 8, 1 segment") << 8 << 1 << QList<int>{4, 8};
    QTest::newRow("3 segments count as 4") << 1024 << 3 << QList<int>{4, 8, 16, 32, 64, 128, 256};
    QTest::newRow("4 segments") << 1024 << 4 << QList<int>{4, 8, 16, 32, 64, 128, 256};
    QTest::newRow("5 segments count as 8") << 64 << 5 << QList<int>{4, 8};
    QTest::newRow("6 segments count as 8") << 64 << 6 << QList<int>{4, 8};
    QTest::newRow("largest number of segments") << 65536 << 16384 << QList<int>{4};
    QTest::newRow("more segments than the rounding leaves room for") << 32 << 7 << QList<int>{4};
    QTest::newRow("no segments") << 1024 << 0 << QList<int>{};
    QTest::newRow("negative segments") << 1024 << -1 << QList<int>{};
    QTest::newRow("no storage") << 0 << 1 << QList<int>{};
}

void tst_SizeChoices::amounts()
{
    QFETCH(int, storage);
    QFETCH(int, segments);
    QTEST(RTLVAK::captureAmountChoices(storage, segments), "amounts");
}

void tst_SizeChoices::triggerPositionLeavesFourPlaces_data()
{
    QTest::addColumn<int>("amount");
    QTest::addColumn<int>("position");
    QTest::newRow("1024") << 1024 << 1020;
    QTest::newRow("4") << 4 << 0;
    QTest::newRow("none") << 0 << 0;
}

void tst_SizeChoices::triggerPositionLeavesFourPlaces()
{
    QFETCH(int, amount);
    QTEST(RTLVAK::maxTriggerPosition(amount), "position");
}

void tst_SizeChoices::textThatIsNoNumberCountsAsZero()
{
    QCOMPARE(RTLVAK::numberShown(QStringLiteral("4096")), 4096);
    QCOMPARE(RTLVAK::numberShown(QString()), 0);
    QCOMPARE(RTLVAK::numberShown(QStringLiteral("0x10")), 0);
}

QTEST_APPLESS_MAIN(tst_SizeChoices)
#include "tst_sizechoices.moc"

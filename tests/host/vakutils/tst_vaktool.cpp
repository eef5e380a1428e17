// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include <VakUtils/vaktool.h>

#include <QtTest>

#include <limits>

using namespace VAK_TOOL;

static constexpr int most = std::numeric_limits<int>::max();

class TestVakTool : public QObject
{
    Q_OBJECT

private slots:
    void blocksByFamily_data();
    void blocksByFamily();
    void triggerMarkNeedsABlockWithoutSignals();
    void shadowRamCells_data();
    void shadowRamCells();
    void registers_data();
    void registers();
    void figuresSaturate();
    void figuresGrowWithWidthAndDepth();
    void negativeSizesCountAsNothing();
    void capacitiesComeFromTheCatalogue();
    void unknownDeviceHasNothing();
};

void TestVakTool::blocksByFamily_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("depth");
    QTest::addColumn<QList<int>>("general");
    QTest::addColumn<QList<int>>("q1");
    QTest::addColumn<QList<int>>("t2k");
    // Each pair: without and with the trigger mark.
    const auto row = [](int width, int depth, QList<int> general, QList<int> q1, QList<int> t2k) {
        QTest::addRow("%dx%d", width, depth) << width << depth << general << q1 << t2k;
    };
    row(35, 512, {1, 1}, {2, 2}, {2, 2});
    row(36, 512, {1, 2}, {2, 3}, {2, 3});
    row(36, 256, {1, 2}, {1, 2}, {2, 3});
    row(8, 2048, {1, 1}, {2, 2}, {1, 1});
    row(9, 2048, {1, 2}, {2, 3}, {1, 2});
    row(17, 1024, {1, 1}, {2, 2}, {1, 1});
    row(32, 1024, {2, 2}, {4, 4}, {2, 2});
    row(71, 512, {2, 2}, {4, 4}, {4, 4});
    row(1, 16384, {1, 2}, {2, 4}, {1, 2});
    row(1, 65536, {4, 8}, {8, 16}, {4, 8});
    row(64, 4, {2, 2}, {2, 2}, {4, 4});
}

void TestVakTool::blocksByFamily()
{
    QFETCH(int, width);
    QFETCH(int, depth);
    QFETCH(QList<int>, general);
    QFETCH(QList<int>, q1);
    QFETCH(QList<int>, t2k);
    using Pair = QList<int>;
    QCOMPARE((Pair{bsramNumberRequired(width, depth), bsramNumberRequiredWithAdjust(width, depth)}), general);
    QCOMPARE((Pair{bsramNumberRequiredForQ1(width, depth), bsramNumberRequiredWithAdjustForQ1(width, depth)}), q1);
    QCOMPARE((Pair{bsramNumberRequiredAdjustForT2k(width, depth), bsramNumberRequiredWithAdjustForT2k(width, depth)}),
             t2k);
}

void TestVakTool::triggerMarkNeedsABlockWithoutSignals()
{
    QCOMPARE(bsramNumberRequired(0, 1024), 0);
    QCOMPARE(bsramNumberRequiredWithAdjust(0, 1024), 1);
    QCOMPARE(bsramNumberRequiredWithAdjust(0, 0), 0);
    QCOMPARE(bsramNumberRequiredForQ1(0, 1024), 0);
    QCOMPARE(bsramNumberRequiredAdjustForT2k(0, 1024), 0);
}

void TestVakTool::shadowRamCells_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("depth");
    QTest::addColumn<bool>("mark");
    QTest::addColumn<int>("cells");
    QTest::newRow("one cell") << 4 << 16 << false << 1;
    QTest::newRow("mark takes the next") << 4 << 16 << true << 2;
    QTest::newRow("mark fits") << 3 << 16 << true << 1;
    QTest::newRow("one sample more") << 4 << 17 << false << 2;
    QTest::newRow("wide and deep") << 33 << 1024 << false << 576;
    QTest::newRow("no width") << 0 << 1024 << false << 0;
    QTest::newRow("mark alone") << 0 << 1024 << true << 64;
    QTest::newRow("no depth") << 8 << 0 << true << 0;
}

void TestVakTool::shadowRamCells()
{
    QFETCH(int, width);
    QFETCH(int, depth);
    QFETCH(bool, mark);
    QFETCH(int, cells);
    QCOMPARE(ssramNumberRequiredWithAdjust(width, depth, mark), cells);
}

void TestVakTool::registers_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("depth");
    QTest::addColumn<bool>("mark");
    QTest::addColumn<int>("registers");
    QTest::newRow("plain") << 8 << 64 << false << 512;
    QTest::newRow("with mark") << 8 << 64 << true << 576;
    QTest::newRow("no width") << 0 << 64 << false << 0;
    QTest::newRow("mark alone") << 0 << 64 << true << 64;
    QTest::newRow("no depth") << 8 << 0 << true << 0;
}

void TestVakTool::registers()
{
    QFETCH(int, width);
    QFETCH(int, depth);
    QFETCH(bool, mark);
    QFETCH(int, registers);
    QCOMPARE(regNumberRequiredWidthAdjust(width, depth, mark), registers);
}

void TestVakTool::figuresSaturate()
{
    QCOMPARE(bsramNumberRequiredWithAdjust(most, most), most);
    QCOMPARE(bsramNumberRequiredForQ1(most, most), most);
    QCOMPARE(bsramNumberRequiredAdjustForT2k(most, most), most);
    QCOMPARE(ssramNumberRequiredWithAdjust(most, most, true), most);
    QCOMPARE(regNumberRequiredWidthAdjust(most, most, true), most);
    QCOMPARE(regNumberRequiredWidthAdjust(46341, 46341, false), most); // 46341 squared is the first beyond int
    QCOMPARE(regNumberRequiredWidthAdjust(46340, 46340, false), 46340 * 46340);
}

void TestVakTool::figuresGrowWithWidthAndDepth()
{
    for (int width = 0; width < 80; ++width) {
        for (int depth = 4; depth <= 65536; depth *= 2) {
            QVERIFY(bsramNumberRequired(width + 1, depth) == bsramNumberRequiredWithAdjust(width, depth));
            QVERIFY(bsramNumberRequired(width, depth) <= bsramNumberRequired(width + 1, depth));
            QVERIFY(bsramNumberRequired(width, depth) <= bsramNumberRequired(width, depth * 2));
            QVERIFY(bsramNumberRequired(width, depth) <= bsramNumberRequiredAdjustForT2k(width, depth));
            QVERIFY(bsramNumberRequired(width, depth) <= bsramNumberRequiredForQ1(width, depth));
        }
    }
}

void TestVakTool::negativeSizesCountAsNothing()
{
    QCOMPARE(bsramNumberRequired(-5, 1024), 0);
    QCOMPARE(bsramNumberRequired(5, -1024), 0);
    QCOMPARE(ssramNumberRequiredWithAdjust(-5, 16, false), 0);
    QCOMPARE(ssramNumberRequiredWithAdjust(5, -16, false), 0);
    QCOMPARE(regNumberRequiredWidthAdjust(-5, 16, false), 0);
    QCOMPARE(regNumberRequiredWidthAdjust(5, -16, false), 0);
}

void TestVakTool::capacitiesComeFromTheCatalogue()
{
    const QString device = QStringLiteral("LFE5U-25F");
    QCOMPARE(currentDeviceBsramAmount(device), 56);
    QCOMPARE(currentDeviceSsramAmount(device), 3036);
    QCOMPARE(currentDeviceRegAmount(device), 24288);
    QCOMPARE(currentDeviceBsramAmount(device, QStringLiteral("BG381")), 56);
    QCOMPARE(currentDeviceBsramAmount(device, QStringLiteral("BG756")), 0);
}

void TestVakTool::unknownDeviceHasNothing()
{
    QCOMPARE(currentDeviceBsramAmount(QStringLiteral("none")), 0);
    QCOMPARE(currentDeviceSsramAmount(QString()), 0);
    QCOMPARE(currentDeviceRegAmount(QStringLiteral("lfe5u-25f")), 0);
}

QTEST_GUILESS_MAIN(TestVakTool)
#include "tst_vaktool.moc"

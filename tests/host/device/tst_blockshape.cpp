// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "hostlibs/device/blockshape.h"

#include <QtTest>

#include <limits>

using namespace DEV;

class TestBlockShape : public QObject
{
    Q_OBJECT

private slots:
    void kindHoldsItsBits_data();
    void kindHoldsItsBits();
    void unknownKindIsEmpty();
    void fewestBlocksOfAllShapes_data();
    void fewestBlocksOfAllShapes();
    void nothingTakesNoBlock();
    void hugeMemoriesSaturate();
};

void TestBlockShape::kindHoldsItsBits_data()
{
    QTest::addColumn<int>("kilobits");
    QTest::addColumn<int>("shapes");
    QTest::newRow("18k") << 18 << 6;
    QTest::newRow("18k-no36") << 18 << 5;
    QTest::newRow("9k") << 9 << 6;
    QTest::newRow("4k") << 4 << 5;
}

void TestBlockShape::kindHoldsItsBits()
{
    QFETCH(int, kilobits);
    QFETCH(int, shapes);
    const QVector<BlockShape> kind = blockShapes(QString::fromLatin1(QTest::currentDataTag()));
    QCOMPARE(kind.size(), shapes);
    for (const BlockShape &shape : kind) {
        const int bits = shape.depth * shape.width;
        QVERIFY(bits <= kilobits * 1024);
        QVERIFY(bits >= kilobits * 1024 * 8 / 9); // narrow shapes leave the parity bits unused
    }
}

void TestBlockShape::unknownKindIsEmpty()
{
    QVERIFY(blockShapes(QStringLiteral("5k")).isEmpty());
    QVERIFY(blockShapes(QString()).isEmpty());
}

void TestBlockShape::fewestBlocksOfAllShapes_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("depth");
    QTest::addColumn<int>("blocks");
    const auto row = [](const char *kind, int width, int depth, int blocks) {
        QTest::addRow("%s %dx%d", kind, width, depth) << QString::fromLatin1(kind) << width << depth << blocks;
    };
    row("18k", 36, 512, 1);
    row("18k", 37, 512, 2);
    row("18k", 36, 513, 2);
    row("18k", 1, 16384, 1);
    row("18k", 1, 16385, 2);
    row("18k", 9, 2048, 1);
    row("18k", 8, 2048, 1);
    row("18k", 10, 2048, 2);
    row("18k", 32, 65536, 128);
    row("18k-no36", 36, 512, 2);
    row("18k-no36", 18, 1024, 1);
    row("9k", 36, 256, 1);
    row("9k", 36, 512, 2);
    row("9k", 1, 16384, 2);
    row("4k", 16, 256, 1);
    row("4k", 17, 256, 2);
    row("4k", 8, 2048, 4);
}

void TestBlockShape::fewestBlocksOfAllShapes()
{
    QFETCH(QString, kind);
    QFETCH(int, width);
    QFETCH(int, depth);
    QFETCH(int, blocks);
    QCOMPARE(blocksRequired(blockShapes(kind), width, depth), blocks);
}

void TestBlockShape::nothingTakesNoBlock()
{
    const QVector<BlockShape> shapes = blockShapes(QStringLiteral("18k"));
    QCOMPARE(blocksRequired(shapes, 0, 1024), 0);
    QCOMPARE(blocksRequired(shapes, 8, 0), 0);
    QCOMPARE(blocksRequired(shapes, -8, 1024), 0);
    QCOMPARE(blocksRequired(shapes, 8, -1), 0);
    QCOMPARE(blocksRequired({}, 8, 1024), 0);
}

void TestBlockShape::hugeMemoriesSaturate()
{
    const int most = std::numeric_limits<int>::max();
    const QVector<BlockShape> shapes = blockShapes(QStringLiteral("18k"));
    QCOMPARE(blocksRequired(shapes, most, most), most);
    QCOMPARE(blocksRequired(shapes, most, 1), 59652324); // ceil(2147483647 / 36)
}

QTEST_GUILESS_MAIN(TestBlockShape)
#include "tst_blockshape.moc"

// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "unit/signals/treefixture.h"

#include <QtTest>

using namespace RTLVAK;
using namespace records;

static const QStringList dragged{"itemDragged"};

class TestSignalTreeDrop : public QObject
{
    Q_OBJECT

private slots:
    void upperHalfPutsRowsBefore();
    void lowerHalfPutsRowsAfter();
    void halfTheHeightIsTheLowerHalf();
    void belowTheLastRowAppendsInTreeOrder();
    void inactiveRowsDoNotMove();
    void membersDoNotMove();
    void refusedDrops_data();
    void refusedDrops();
    void dropWithNothingToMoveIsRefused();
    void rowsOnBothSidesOfTheTargetKeepTheirOrder();
    void movedRowsKeepSelectionCurrentRowAndExpansion();
    void dropOnAnEmptyTreeIsRefused();
    void dropBesideTheOldPlaceIsReportedToo();
    void onlyTopLevelRowsBeginADrag();
    void thousandsOfRowsMoveAtOnce();
};

void TestSignalTreeDrop::upperHalfPutsRowsBefore()
{
    TreeFixture tree({net("a"), net("b"), net("c"), net("d")});
    tree.select({3});
    QCOMPARE(tree.dropAt(tree.upperHalf(tree.row(1))), Qt::IgnoreAction);
    QVERIFY(tree.wasAccepted);
    QCOMPARE(tree.names(), QStringList({"a", "d", "b", "c"}));
    QCOMPARE(tree.log.names(), dragged);
}

void TestSignalTreeDrop::lowerHalfPutsRowsAfter()
{
    TreeFixture tree({net("a"), net("b"), net("c"), net("d")});
    tree.select({0});
    QCOMPARE(tree.dropAt(tree.lowerHalf(tree.row(2))), Qt::IgnoreAction);
    QVERIFY(tree.wasAccepted);
    QCOMPARE(tree.names(), QStringList({"b", "c", "a", "d"}));
}

void TestSignalTreeDrop::halfTheHeightIsTheLowerHalf()
{
    for (const int height : {20, 21}) {
        for (const bool below : {false, true}) {
            TreeFixture tree({net("a"), net("b"), net("c")});
            tree.setStyleSheet(QStringLiteral("QTreeWidget::item { height: %1px;}").arg(height));
            const QRect rect = tree.visualItemRect(tree.row(0));
            QCOMPARE(rect.height(), height);
            tree.select({2});
            tree.dropAt({5, rect.top() + (height + 1) / 2 - (below ? 0 : 1)});
            QCOMPARE(tree.names(), below ? QStringList({"a", "c", "b"}) : QStringList({"c", "a", "b"}));
        }
    }
}

void TestSignalTreeDrop::belowTheLastRowAppendsInTreeOrder()
{
    TreeFixture tree({net("a"), net("b"), net("c"), net("d")});
    tree.select({2, 0});
    tree.dropAt(tree.belowAll());
    QCOMPARE(tree.names(), QStringList({"b", "d", "a", "c"}));
    QCOMPARE(tree.log.names(), dragged);
}

void TestSignalTreeDrop::inactiveRowsDoNotMove()
{
    TreeFixture tree({net("a"), inactive(net("b")), net("c"), net("d")});
    tree.select({0, 1, 2});
    tree.dropAt(tree.lowerHalf(tree.row(3)));
    QCOMPARE(tree.names(), QStringList({"b", "d", "a", "c"}));
    QCOMPARE(tree.selectedItems().size(), 3);
}

void TestSignalTreeDrop::membersDoNotMove()
{
    TreeFixture tree({bus("d", 1, 0), net("a"), net("b")});
    tree.row(0)->setExpanded(true);
    tree.row(0)->child(1)->setSelected(true);
    tree.row(1)->setSelected(true);
    tree.dropAt(tree.lowerHalf(tree.row(2)));
    QCOMPARE(tree.signalItems(), QList<VAK::SignalItem>({bus("d", 1, 0), net("b"), net("a")}));
}

void TestSignalTreeDrop::refusedDrops_data()
{
    // Rows: bus d, a, inactive b; -1: below the last row; 10: a member of d.
    QTest::addColumn<QList<int>>("moving");
    QTest::addColumn<int>("target");

    QTest::newRow("below an inactive last row") << QList<int>{1} << -1;
    QTest::newRow("on a member") << QList<int>{1} << 10;
    QTest::newRow("on a selected row") << QList<int>{1} << 1;
    QTest::newRow("on another selected row") << QList<int>{0, 1} << 0;
    QTest::newRow("on an inactive row") << QList<int>{1} << 2;
}

void TestSignalTreeDrop::refusedDrops()
{
    QFETCH(const QList<int>, moving);
    QFETCH(const int, target);
    const QList<VAK::SignalItem> items{bus("d", 1, 0), net("a"), inactive(net("b"))};
    TreeFixture tree(items);
    tree.row(0)->setExpanded(true);
    const QTreeWidgetItem *row = target == 10 ? tree.row(0)->child(0) : tree.row(target);
    for (const bool lower : {false, true}) {
        tree.select(moving);
        const QPoint pos = target < 0 ? tree.belowAll() : lower ? tree.lowerHalf(row) : tree.upperHalf(row);
        QCOMPARE(tree.dropAt(pos), Qt::IgnoreAction);
        QVERIFY(tree.wasAccepted);
        QCOMPARE(tree.signalItems(), items);
        QVERIFY(tree.log.names().isEmpty());
    }
}

void TestSignalTreeDrop::dropWithNothingToMoveIsRefused()
{
    TreeFixture tree({net("a"), inactive(net("b")), net("c")});
    QCOMPARE(tree.dropAt(tree.upperHalf(tree.row(0))), Qt::IgnoreAction);
    tree.select({1});
    QCOMPARE(tree.dropAt(tree.upperHalf(tree.row(0))), Qt::IgnoreAction);
    QVERIFY(tree.wasAccepted);
    QCOMPARE(tree.names(), QStringList({"a", "b", "c"}));
    QVERIFY(tree.log.names().isEmpty());
}

void TestSignalTreeDrop::rowsOnBothSidesOfTheTargetKeepTheirOrder()
{
    TreeFixture before({net("a"), net("b"), net("c"), net("d"), net("e")});
    before.select({4, 0, 1});
    before.dropAt(before.upperHalf(before.row(3)));
    QCOMPARE(before.names(), QStringList({"c", "a", "b", "e", "d"}));

    TreeFixture after({net("a"), net("b"), net("c"), net("d"), net("e")});
    after.select({3, 0});
    after.dropAt(after.lowerHalf(after.row(2)));
    QCOMPARE(after.names(), QStringList({"b", "c", "a", "d", "e"}));
}

void TestSignalTreeDrop::movedRowsKeepSelectionCurrentRowAndExpansion()
{
    TreeFixture tree({bus("d", 1, 0), net("a"), bus("e", 1, 0), net("b")});
    tree.row(0)->setExpanded(true);
    tree.select({2, 0});
    const QStringList selected = tree.selectedNames();
    QTreeWidgetItem *const current = tree.currentItem();
    tree.dropAt(tree.lowerHalf(tree.row(3)));
    QCOMPARE(tree.names(), QStringList({"a", "b", "d[1:0]", "e[1:0]"}));
    QCOMPARE(tree.selectedNames(), selected);
    QCOMPARE(tree.currentItem(), current);
    QVERIFY(tree.row(2)->isExpanded());
    QVERIFY(!tree.row(3)->isExpanded());
    QCOMPARE(tree.row(2)->foreground(0), QBrush(Qt::black));
}

void TestSignalTreeDrop::dropOnAnEmptyTreeIsRefused()
{
    TreeFixture tree({});
    QCOMPARE(tree.dropAt(QPoint(5, 5)), Qt::IgnoreAction);
    QVERIFY(tree.wasAccepted);
    QVERIFY(tree.log.names().isEmpty());
}

void TestSignalTreeDrop::dropBesideTheOldPlaceIsReportedToo()
{
    TreeFixture tree({net("a"), net("b"), net("c")});
    tree.select({1});
    tree.dropAt(tree.lowerHalf(tree.row(0)));
    QCOMPARE(tree.names(), QStringList({"a", "b", "c"}));
    QCOMPARE(tree.log.names(), dragged);
}

void TestSignalTreeDrop::onlyTopLevelRowsBeginADrag()
{
    struct DragCounter : TreeFixture
    {
        using TreeFixture::TreeFixture;
        void startDrag(Qt::DropActions) override { ++drags; }
        int drags = 0;
    };
    DragCounter tree({bus("d", 1, 0), net("a")});
    tree.row(0)->setExpanded(true);
    const auto drag = [&tree](const QTreeWidgetItem *row) {
        const QPoint from = tree.visualItemRect(row).center();
        QTest::mousePress(tree.viewport(), Qt::LeftButton, Qt::NoModifier, from);
        for (int y = 4; y <= 40; y += 4) {
            QMouseEvent move(QEvent::MouseMove, from + QPoint(0, y), tree.viewport()->mapToGlobal(from + QPoint(0, y)),
                             Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
            QCoreApplication::sendEvent(tree.viewport(), &move);
        }
        QTest::mouseRelease(tree.viewport(), Qt::LeftButton, Qt::NoModifier, from + QPoint(0, 40));
    };
    drag(tree.row(0)->child(0));
    QCOMPARE(tree.drags, 0);
    drag(tree.row(1));
    QVERIFY(tree.drags > 0);
}

void TestSignalTreeDrop::thousandsOfRowsMoveAtOnce()
{
    QList<VAK::SignalItem> items;
    for (int i = 0; i < 4096; ++i)
        items.append(net(QStringLiteral("n%1").arg(i)));
    TreeFixture tree(items);
    tree.selectAll();
    tree.row(0)->setSelected(false);
    QElapsedTimer timer;
    timer.start();
    tree.dropAt(tree.upperHalf(tree.row(0)));
    QVERIFY2(timer.elapsed() < 1000, qPrintable(QString::number(timer.elapsed())));
    QCOMPARE(tree.record(4095), items.first());
    QCOMPARE(tree.record(0), items.at(1));
    QCOMPARE(tree.selectedItems().size(), 4095);
}

QTEST_MAIN(TestSignalTreeDrop)
#include "tst_signaltreedrop.moc"

// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "unit/signals/treefixture.h"

#include <QTimer>
#include <QWindow>
#include <QtTest>

using namespace RTLVAK;
using namespace records;

static const QStringList dragged{"itemDragged"};

/// Real drags: the toolkit's own drag loop on a real X server, from the press to the drop.
class TestSignalTreeDrag : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void rowIsDraggedUpwards();
    void rowIsDraggedDownwards();
    void selectedRowsAreDraggedTogether();
    void rowsAreDraggedBelowTheLastOne();
    void refusedDropChangesNothing();
    void memberCannotBeDragged();
    void inactiveRowCannotBeDragged();
    void treeGoesOnAfterADrag();

private:
    void drag(TreeFixture &tree, const QPoint &from, const QPoint &to);
};

/// Counts the drags that really were begun.
struct DragTree : TreeFixture
{
    using TreeFixture::TreeFixture;
    void startDrag(Qt::DropActions actions) override
    {
        ++drags;
        TreeFixture::startDrag(actions);
    }
    int drags = 0;
};

/// Presses at `from`, moves to `to` and releases there; both are points of the viewport. The drag runs an event loop of
/// its own inside one of the moves, so each step is a timer shot of its own.
void TestSignalTreeDrag::drag(TreeFixture &tree, const QPoint &from, const QPoint &to)
{
    QVERIFY(QTest::qWaitForWindowExposed(&tree));
    QWindow *window = tree.windowHandle();
    const auto inWindow = [&tree](const QPoint &pos) { return tree.viewport()->mapTo(&tree, pos); };
    constexpr int steps = 8;
    constexpr int stepMs = 25;
    bool done = false;
    QTest::mousePress(window, Qt::LeftButton, Qt::NoModifier, inWindow(from));
    for (int step = 1; step <= steps; ++step) {
        const QPoint pos = inWindow(from + (to - from) * step / steps + QPoint(step < steps ? 12 : 0, 0));
        QTimer::singleShot(step * stepMs, &tree, [window, pos] { QTest::mouseMove(window, pos); });
    }
    QTimer::singleShot((steps + 2) * stepMs, &tree, [&done, window, pos = inWindow(to)] {
        QTest::mouseRelease(window, Qt::LeftButton, Qt::NoModifier, pos);
        done = true;
    });
    QTRY_VERIFY(done);
    QTest::qWait(2 * stepMs); // what the drop left in the queue
}

void TestSignalTreeDrag::initTestCase()
{
    QCOMPARE(QGuiApplication::platformName(), QString("xcb"));
}

void TestSignalTreeDrag::rowIsDraggedUpwards()
{
    DragTree tree({net("a"), net("b"), net("c"), net("d")});
    drag(tree, tree.visualItemRect(tree.row(3)).center(), tree.upperHalf(tree.row(1)));
    QCOMPARE(tree.drags, 1);
    QCOMPARE(tree.names(), QStringList({"a", "d", "b", "c"}));
    QCOMPARE(tree.log.names(), dragged);
    QCOMPARE(tree.selectedNames(), QStringList({"d"}));
    QCOMPARE(tree.currentItem(), tree.row(1));
}

void TestSignalTreeDrag::rowIsDraggedDownwards()
{
    DragTree tree({bus("d", 3, 0), net("b"), net("c")});
    tree.row(0)->setExpanded(true);
    drag(tree, tree.visualItemRect(tree.row(0)).center(), tree.lowerHalf(tree.row(1)));
    QCOMPARE(tree.drags, 1);
    QCOMPARE(tree.signalItems(), QList<VAK::SignalItem>({net("b"), bus("d", 3, 0), net("c")}));
    QVERIFY(tree.row(1)->isExpanded());
    QCOMPARE(tree.log.names(), dragged);
}

void TestSignalTreeDrag::selectedRowsAreDraggedTogether()
{
    DragTree tree({net("a"), net("b"), net("c"), net("d"), net("e")});
    tree.select({2, 0});
    drag(tree, tree.visualItemRect(tree.row(2)).center(), tree.lowerHalf(tree.row(3)));
    QCOMPARE(tree.names(), QStringList({"b", "d", "a", "c", "e"}));
    QCOMPARE(tree.log.names(), dragged);
}

void TestSignalTreeDrag::rowsAreDraggedBelowTheLastOne()
{
    DragTree tree({net("a"), net("b"), net("c")});
    drag(tree, tree.visualItemRect(tree.row(0)).center(), tree.belowAll());
    QCOMPARE(tree.names(), QStringList({"b", "c", "a"}));
    QCOMPARE(tree.log.names(), dragged);
}

void TestSignalTreeDrag::refusedDropChangesNothing()
{
    const QList<VAK::SignalItem> items{net("a"), bus("d", 1, 0), inactive(net("b"))};
    DragTree tree(items);
    tree.row(1)->setExpanded(true);
    const QPoint from = tree.visualItemRect(tree.row(0)).center();
    for (const QPoint &to : {tree.upperHalf(tree.row(2)), tree.lowerHalf(tree.row(2)), tree.belowAll(),
                             tree.visualItemRect(tree.row(1)->child(0)).center(), from + QPoint(60, 0)}) {
        const int before = tree.drags;
        drag(tree, from, to);
        QCOMPARE(tree.drags, before + 1);
        QCOMPARE(tree.signalItems(), items);
    }
    QVERIFY(tree.log.names().isEmpty());
}

void TestSignalTreeDrag::memberCannotBeDragged()
{
    const QList<VAK::SignalItem> items{bus("d", 1, 0), net("a")};
    DragTree tree(items);
    tree.row(0)->setExpanded(true);
    drag(tree, tree.visualItemRect(tree.row(0)->child(0)).center(), tree.lowerHalf(tree.row(1)));
    QCOMPARE(tree.drags, 0);
    QCOMPARE(tree.signalItems(), items);
    QVERIFY(tree.log.names().isEmpty());
}

void TestSignalTreeDrag::inactiveRowCannotBeDragged()
{
    const QList<VAK::SignalItem> items{inactive(net("a")), net("b"), net("c")};
    DragTree tree(items);
    drag(tree, tree.visualItemRect(tree.row(0)).center(), tree.lowerHalf(tree.row(2)));
    QCOMPARE(tree.signalItems(), items);
    QVERIFY(tree.log.names().isEmpty());
}

void TestSignalTreeDrag::treeGoesOnAfterADrag()
{
    DragTree tree({net("a"), net("b"), net("c")});
    for (int i = 0; i < 3; ++i)
        drag(tree, tree.visualItemRect(tree.row(0)).center(), tree.lowerHalf(tree.row(2)));
    QCOMPARE(tree.drags, 3);
    QCOMPARE(tree.names(), QStringList({"a", "b", "c"}));
    QTest::mouseClick(tree.viewport(), Qt::LeftButton, Qt::NoModifier, tree.visualItemRect(tree.row(1)).center());
    QCOMPARE(tree.selectedNames(), QStringList({"b"}));
    tree.onMerge();
    QCOMPARE(tree.names(), QStringList({"a", "group_0[0:0]", "c"}));
}

QTEST_MAIN(TestSignalTreeDrag)
#include "tst_signaltreedrag.moc"

// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "unit/signals/treefixture.h"

#include "support/dialogdriver.h"
#include "support/widgethelpers.h"

#include <QAction>
#include <QtTest>

using namespace RTLVAK;
using namespace records;

static const QStringList dragged{"itemDragged"};
static const QStringList switched{"CapSignalChange", "itemDragged"};

class TestSignalTreeWidget : public QObject
{
    Q_OBJECT

private slots:
    void signalsAndSlotsAreTheFixedOnes();
    void sevenActionsInTheFixedOrder();
    void recordsAreReadBackInTreeOrder();
    void insertedRowsGoWhereToldOrToTheEnd();
    void activeBitCountAddsMembersOfActiveRows();
    void colourPassLeavesTheRestAlone();

    void groupingBitsDownwardsNamesTheBus();
    void groupingBitsUpwardsNamesTheBusUpwards();
    void groupingWithABrokenStepMakesANewGroupName();
    void groupingForeignBitsMakesGroupZero();
    void newGroupTakesTheFirstFreeNumber();
    void numbersOfSelectedGroupsAreFree();
    void groupingAGroupFlattensIt();
    void leadingZeroIsNoBit();
    void groupStandsWhereTheFirstSelectedRowStood();
    void groupUsesDisplayNamesAndKeepsThem();
    void groupIsActiveOnlyWhenEveryMemberIs();
    void groupingNothingDoesNothing();

    void ungroupPutsTheMembersInTheGroupsPlace();
    void ungroupOfSeveralPutsAllBitsAtTheFirstGroup();
    void ungroupFollowsTheOrderOfSelection();
    void ungroupWithoutAGroupDoesNothing();
    void groupAndUngroupGiveTheSameRows();

    void restoreClearsDisplayNamesOfRowsAndMembers();
    void reverseKeepsTheBusName();
    void reverseKeepsExpansionSelectionAndCurrentRow();
    void reverseOfASingleNetDoesNothing();
    void disableSwitchesRowsAndMembersOff();
    void enableSwitchesThemOnAgain();
    void switchingKeepsSelectionCurrentRowAndExpansion();
    void switchingWithOnlyMembersSelectedDoesNothing();

    void mergeInsertsSinglesBeforeGroups();
    void mergeUpdatesKnownRowsAndSelectsThemWhenNothingIsNew();
    void mergeOfNothingChangesNothing();
};

void TestSignalTreeWidget::signalsAndSlotsAreTheFixedOnes()
{
    QCOMPARE(support::ownSignals(signalTreeWidget::staticMetaObject),
             QStringList({"itemDragged()", "CapSignalChange()"}));
    QCOMPARE(support::ownSlots(signalTreeWidget::staticMetaObject),
             QStringList({"onSplit()", "onMerge()", "onChangeName()", "finishEdit()", "onRestoreOrgName()",
                          "onReverse()", "onEnable()", "onDisable()"}));
    QVERIFY((std::is_base_of_v<QTreeWidget, signalTreeWidget>));
}

void TestSignalTreeWidget::sevenActionsInTheFixedOrder()
{
    TreeFixture tree({});
    QStringList texts;
    for (const QAction *action : tree.findChildren<QAction *>(QString(), Qt::FindDirectChildrenOnly))
        texts.append(action->text());
    QCOMPARE(texts,
             QStringList({"Ungroup", "Group", "Rename", "Restore Original Name", "Reverse", "Enable", "Disable"}));
}

void TestSignalTreeWidget::recordsAreReadBackInTreeOrder()
{
    const QList<VAK::SignalItem> items{shownAs(net("a"), "x"), bus("d", 3, 0), inactive(net("b"))};
    TreeFixture tree(items);
    QCOMPARE(tree.signalItems(), items);
    QCOMPARE(tree.columnCount(), 1);
    QCOMPARE(tree.row(1)->childCount(), 4);
    QVERIFY(tree.log.names().isEmpty());
}

void TestSignalTreeWidget::insertedRowsGoWhereToldOrToTheEnd()
{
    TreeFixture tree({net("a"), net("b")});
    tree.insertSignal(1, net("x"));
    tree.insertSignal(99, net("y"));
    tree.insertSignal(-1, net("z"));
    tree.appendSignal(net("last"));
    QCOMPARE(tree.names(), QStringList({"z", "a", "x", "b", "y", "last"}));
    QVERIFY(tree.log.names().isEmpty());
}

void TestSignalTreeWidget::activeBitCountAddsMembersOfActiveRows()
{
    TreeFixture tree({});
    QCOMPARE(tree.activeBitCount(), 0);
    tree.appendSignal(net("a"));
    QCOMPARE(tree.activeBitCount(), 1);
    tree.appendSignal(bus("d", 31, 0));
    QCOMPARE(tree.activeBitCount(), 33);
    tree.appendSignal(inactive(bus("e", 7, 0)));
    tree.appendSignal(inactive(net("b")));
    QCOMPARE(tree.activeBitCount(), 33);
}

void TestSignalTreeWidget::colourPassLeavesTheRestAlone()
{
    VAK::SignalItem missing = net("gone");
    missing.present = false;
    TreeFixture tree({net("a"), inactive(bus("d", 1, 0)), missing});
    QCOMPARE(tree.row(0)->foreground(0), QBrush(Qt::black));
    QCOMPARE(tree.row(1)->child(0)->foreground(0), QBrush(Qt::gray));
    QCOMPARE(tree.row(2)->foreground(0), QBrush(Qt::red));
    QSignalSpy changed(&tree, &QTreeWidget::itemChanged);
    tree.updatePresentation();
    QCOMPARE(changed.size(), 0);
}

void TestSignalTreeWidget::groupingBitsDownwardsNamesTheBus()
{
    TreeFixture tree({net("d[3]"), net("d[2]"), net("d[1]")});
    tree.select({0, 1, 2});
    tree.onMerge();
    QCOMPARE(tree.signalItems(), QList<VAK::SignalItem>({group("d[3:1]", {"d[3]", "d[2]", "d[1]"})}));
    QCOMPARE(tree.log.names(), dragged);
}

void TestSignalTreeWidget::groupingBitsUpwardsNamesTheBusUpwards()
{
    TreeFixture tree({net("d[3]"), net("d[2]"), net("d[1]"), net("d[0]")});
    tree.select({3, 2, 1, 0});
    tree.onMerge();
    QCOMPARE(tree.signalItems(), QList<VAK::SignalItem>({group("d[0:3]", {"d[0]", "d[1]", "d[2]", "d[3]"})}));
}

void TestSignalTreeWidget::groupingWithABrokenStepMakesANewGroupName()
{
    TreeFixture tree({net("d[5]"), net("d[3]"), net("d[2]"), net("d[1]")});
    tree.select({1, 2, 3, 0});
    tree.onMerge();
    QCOMPARE(tree.signalItems(), QList<VAK::SignalItem>({group("group_0[3:0]", {"d[3]", "d[2]", "d[1]", "d[5]"})}));
}

void TestSignalTreeWidget::groupingForeignBitsMakesGroupZero()
{
    TreeFixture tree({net("a[0]"), net("b[1]")});
    tree.select({0, 1});
    tree.onMerge();
    QCOMPARE(tree.names(), QStringList({"group_0[1:0]"}));
}

void TestSignalTreeWidget::newGroupTakesTheFirstFreeNumber()
{
    TreeFixture tree({group("group_0[3:0]", {"p", "q", "r", "s"}), net("a[0]"), net("b[1]"),
                      group("group_2[3:0]", {"t", "u", "v", "w"}), net("group_1[1:0]")});
    tree.select({1, 2});
    tree.onMerge();
    QCOMPARE(tree.names(), QStringList({"group_0[3:0]", "group_1[1:0]", "group_2[3:0]", "group_1[1:0]"}));
}

void TestSignalTreeWidget::numbersOfSelectedGroupsAreFree()
{
    TreeFixture tree({group("group_0[1:0]", {"p", "q"}), net("a"), group("group_1[0:0]", {"r"})});
    tree.select({0, 1});
    tree.onMerge();
    QCOMPARE(tree.names(), QStringList({"group_0[2:0]", "group_1[0:0]"}));
}

void TestSignalTreeWidget::groupingAGroupFlattensIt()
{
    TreeFixture tree({net("a"), bus("d", 1, 0), net("b")});
    tree.select({0, 1, 2});
    tree.onMerge();
    QCOMPARE(tree.signalItems(), QList<VAK::SignalItem>({group("group_0[3:0]", {"a", "d[1]", "d[0]", "b"})}));
    QCOMPARE(tree.record(0).kind, -1);
    QCOMPARE(tree.row(0)->childCount(), 4);
    QCOMPARE(tree.row(0)->child(1)->childCount(), 0);
}

void TestSignalTreeWidget::leadingZeroIsNoBit()
{
    TreeFixture tree({net("x[00]"), net("x[01]")});
    tree.select({0, 1});
    tree.onMerge();
    QCOMPARE(tree.names(), QStringList({"group_0[1:0]"}));
}

void TestSignalTreeWidget::groupStandsWhereTheFirstSelectedRowStood()
{
    TreeFixture tree({net("a"), net("b"), net("c"), net("d"), net("e")});
    tree.select({4, 1, 3});
    tree.onMerge();
    QCOMPARE(tree.names(), QStringList({"a", "group_0[2:0]", "c"}));
    QCOMPARE(names(tree.record(1).members), QStringList({"e", "b", "d"}));
    QCOMPARE(tree.currentItem(), tree.row(1));
    QCOMPARE(tree.row(1)->foreground(0), QBrush(Qt::black));
    QCOMPARE(tree.log.names(), dragged);
}

void TestSignalTreeWidget::groupUsesDisplayNamesAndKeepsThem()
{
    TreeFixture tree({shownAs(net("x"), "q[1]"), shownAs(net("y"), "q[0]")});
    tree.select({0, 1});
    tree.onMerge();
    QCOMPARE(tree.record(0).name, QString("q[1:0]"));
    QCOMPARE(tree.record(0).displayName, QString());
    QCOMPARE(tree.record(0).members, QList<VAK::SignalItem>({shownAs(net("x"), "q[1]"), shownAs(net("y"), "q[0]")}));
    QVERIFY(tree.row(0)->child(0)->font(0).italic());
}

void TestSignalTreeWidget::groupIsActiveOnlyWhenEveryMemberIs()
{
    TreeFixture tree({net("a"), inactive(net("b")), inactive(net("c")), inactive(net("e"))});
    tree.select({0, 1});
    tree.onMerge();
    QCOMPARE(tree.record(0).active, 0);
    QCOMPARE(tree.row(0)->foreground(0), QBrush(Qt::gray));
    QCOMPARE(tree.record(0).members.at(0).active, 1);
    tree.select({1, 2});
    tree.onMerge();
    QCOMPARE(tree.record(1).active, 0);
    QCOMPARE(tree.record(1).name, QString("group_1[1:0]"));
}

void TestSignalTreeWidget::groupingNothingDoesNothing()
{
    TreeFixture tree({net("a"), bus("d", 1, 0)});
    tree.onMerge();
    tree.row(1)->child(0)->setSelected(true);
    tree.onMerge();
    QCOMPARE(tree.names(), QStringList({"a", "d[1:0]"}));
    QVERIFY(tree.log.names().isEmpty());
}

void TestSignalTreeWidget::ungroupPutsTheMembersInTheGroupsPlace()
{
    VAK::SignalItem item = bus("d", 1, 0);
    item.members[0].displayName = "high";
    item.members[1].active = 0;
    TreeFixture tree({net("a"), item, net("b")});
    tree.select({1});
    tree.onSplit();
    QCOMPARE(tree.signalItems(),
             QList<VAK::SignalItem>({net("a"), shownAs(net("d[1]"), "high"), inactive(net("d[0]")), net("b")}));
    QVERIFY(tree.row(1)->font(0).italic());
    QCOMPARE(tree.row(2)->foreground(0), QBrush(Qt::gray));
    QCOMPARE(tree.log.names(), dragged);
}

void TestSignalTreeWidget::ungroupOfSeveralPutsAllBitsAtTheFirstGroup()
{
    TreeFixture tree({net("a"), bus("d", 1, 0), net("b"), bus("e", 1, 0)});
    tree.select({0, 1, 3});
    tree.onSplit();
    QCOMPARE(tree.names(), QStringList({"a", "d[1]", "d[0]", "e[1]", "e[0]", "b"}));
}

void TestSignalTreeWidget::ungroupFollowsTheOrderOfSelection()
{
    TreeFixture tree({net("a"), bus("d", 1, 0), net("b"), bus("e", 1, 0)});
    tree.select({3, 1});
    tree.onSplit();
    QCOMPARE(tree.names(), QStringList({"a", "e[1]", "e[0]", "d[1]", "d[0]", "b"}));
    QCOMPARE(tree.selectedNames(), QStringList({"e[1]", "e[0]", "d[1]", "d[0]"}));
    QCOMPARE(tree.currentItem(), tree.row(1));
}

void TestSignalTreeWidget::ungroupWithoutAGroupDoesNothing()
{
    TreeFixture tree({net("a"), bus("d", 1, 0)});
    tree.select({0});
    tree.onSplit();
    QCOMPARE(tree.names(), QStringList({"a", "d[1:0]"}));
    QVERIFY(tree.log.names().isEmpty());
}

void TestSignalTreeWidget::groupAndUngroupGiveTheSameRows()
{
    const QList<VAK::SignalItem> items{net("a"), net("b"), net("c")};
    TreeFixture tree(items);
    tree.select({0, 1, 2});
    tree.onMerge();
    tree.onSplit();
    QCOMPARE(tree.signalItems(), items);
}

void TestSignalTreeWidget::restoreClearsDisplayNamesOfRowsAndMembers()
{
    VAK::SignalItem item = shownAs(bus("d", 1, 0), "data");
    item.members[0].displayName = "high";
    item.members[1].displayName = "low";
    TreeFixture tree({shownAs(net("a"), "x"), item, shownAs(net("b"), "y")});
    tree.row(1)->setExpanded(true);
    tree.row(0)->setSelected(true);
    tree.row(1)->child(0)->setSelected(true);
    tree.onRestoreOrgName();
    QCOMPARE(tree.row(0)->text(0), QString("a"));
    QVERIFY(!tree.row(0)->font(0).italic());
    QCOMPARE(tree.row(1)->text(0), QString("data"));
    QCOMPARE(tree.row(1)->child(0)->text(0), QString("d[1]"));
    QVERIFY(!tree.row(1)->child(0)->font(0).italic());
    QCOMPARE(tree.record(1).members.at(0).displayName, QString());
    QCOMPARE(tree.record(1).members.at(1).displayName, QString("low"));
    QCOMPARE(tree.record(2).displayName, QString("y"));
    QCOMPARE(tree.log.names(), dragged);
    QVERIFY(tree.row(1)->isExpanded());
    QCOMPARE(tree.selectedItems().size(), 2);
}

void TestSignalTreeWidget::reverseKeepsTheBusName()
{
    VAK::SignalItem item = bus("data", 0, 2);
    item.members[0].displayName = "first";
    item.members[2].present = false;
    TreeFixture tree({net("a"), item});
    tree.select({1});
    tree.onReverse();
    QCOMPARE(tree.record(1).name, QString("data[0:2]"));
    QCOMPARE(names(tree.record(1).members), QStringList({"data[2]", "data[1]", "data[0]"}));
    QCOMPARE(tree.row(1)->child(2)->text(0), QString("first"));
    QVERIFY(tree.row(1)->child(2)->font(0).italic());
    QCOMPARE(tree.row(1)->child(0)->foreground(0), QBrush(Qt::red));
    QCOMPARE(tree.row(1)->child(2)->foreground(0), QBrush(Qt::black));
    QCOMPARE(tree.record(1).kind, 1);
    QCOMPARE(tree.log.names(), dragged);
}

void TestSignalTreeWidget::reverseKeepsExpansionSelectionAndCurrentRow()
{
    for (const bool expanded : {false, true}) {
        TreeFixture tree({net("a"), bus("d", 3, 0), net("b")});
        tree.row(1)->setExpanded(expanded);
        tree.select({1});
        tree.onReverse();
        QCOMPARE(tree.row(1)->isExpanded(), expanded);
        QCOMPARE(tree.selectedNames(), QStringList({"d[3:0]"}));
        QCOMPARE(tree.currentItem(), tree.row(1));
    }
}

void TestSignalTreeWidget::reverseOfASingleNetDoesNothing()
{
    TreeFixture tree({net("a"), bus("d", 1, 0)});
    tree.onReverse();
    tree.select({0});
    tree.onReverse();
    tree.row(1)->setExpanded(true);
    tree.setCurrentItem(tree.row(1)->child(0));
    tree.onReverse();
    QCOMPARE(names(tree.record(1).members), QStringList({"d[1]", "d[0]"}));
    QVERIFY(tree.log.names().isEmpty());
}

void TestSignalTreeWidget::disableSwitchesRowsAndMembersOff()
{
    TreeFixture tree({net("a"), bus("d", 1, 0), net("b")});
    tree.select({1, 2});
    tree.onDisable();
    QCOMPARE(tree.signalItems(), QList<VAK::SignalItem>({net("a"), inactive(bus("d", 1, 0)), inactive(net("b"))}));
    QCOMPARE(tree.row(1)->foreground(0), QBrush(Qt::gray));
    QCOMPARE(tree.row(1)->child(1)->foreground(0), QBrush(Qt::gray));
    QVERIFY(!(tree.row(1)->flags() & Qt::ItemIsDragEnabled));
    QVERIFY(tree.row(1)->flags() & Qt::ItemIsSelectable);
    QCOMPARE(tree.log.names(), switched);
    QCOMPARE(tree.activeBitCount(), 1);
}

void TestSignalTreeWidget::enableSwitchesThemOnAgain()
{
    TreeFixture tree({net("a"), inactive(bus("d", 1, 0))});
    tree.select({0, 1});
    tree.onEnable();
    QCOMPARE(tree.signalItems(), QList<VAK::SignalItem>({net("a"), bus("d", 1, 0)}));
    QCOMPARE(tree.row(1)->foreground(0), QBrush(Qt::black));
    QVERIFY(tree.row(1)->flags() & Qt::ItemIsDragEnabled);
    QCOMPARE(tree.log.names(), switched);
}

void TestSignalTreeWidget::switchingKeepsSelectionCurrentRowAndExpansion()
{
    TreeFixture tree({net("a"), bus("d", 1, 0), net("b"), bus("e", 1, 0)});
    tree.row(1)->setExpanded(true);
    tree.select({3, 1, 0});
    const QStringList selected = tree.selectedNames();
    for (auto slot : {&signalTreeWidget::onDisable, &signalTreeWidget::onEnable}) {
        (tree.*slot)();
        QCOMPARE(tree.selectedNames(), selected);
        QCOMPARE(tree.currentItem(), tree.row(0));
        QVERIFY(tree.row(1)->isExpanded());
        QVERIFY(!tree.row(3)->isExpanded());
    }
}

void TestSignalTreeWidget::switchingWithOnlyMembersSelectedDoesNothing()
{
    TreeFixture tree({bus("d", 1, 0)});
    tree.row(0)->setExpanded(true);
    tree.row(0)->child(0)->setSelected(true);
    tree.onDisable();
    QCOMPARE(tree.record(0), bus("d", 1, 0));
    QVERIFY(tree.log.names().isEmpty());
}

void TestSignalTreeWidget::mergeInsertsSinglesBeforeGroups()
{
    TreeFixture tree({net("a"), inactive(net("b"))});
    QCOMPARE(tree.mergeSignals(1, {bus("d", 1, 0), net("x"), net("a")}), 2);
    QCOMPARE(tree.names(), QStringList({"a", "x", "d[1:0]", "b"}));
    QCOMPARE(tree.row(1)->foreground(0), QBrush(Qt::black));
    QVERIFY(tree.selectedItems().isEmpty());
    QVERIFY(tree.log.names().isEmpty());
}

void TestSignalTreeWidget::mergeUpdatesKnownRowsAndSelectsThemWhenNothingIsNew()
{
    VAK::SignalItem lost = shownAs(net("b"), "mine");
    lost.present = false;
    TreeFixture tree({net("a"), lost, net("c")});
    QCOMPARE(tree.row(1)->foreground(0), QBrush(Qt::red));
    QCOMPARE(tree.mergeSignals(0, {net("c"), net("b")}), 0);
    QCOMPARE(tree.record(1), shownAs(net("b"), "mine"));
    QCOMPARE(tree.row(1)->foreground(0), QBrush(Qt::black));
    QVERIFY(tree.row(1)->isSelected() && tree.row(2)->isSelected());
    QCOMPARE(tree.selectedItems().size(), 2);
}

void TestSignalTreeWidget::mergeOfNothingChangesNothing()
{
    TreeFixture tree({net("a"), net("b")});
    tree.select({1});
    QCOMPARE(tree.mergeSignals(0, {}), 0);
    QCOMPARE(tree.selectedNames(), QStringList({"b"}));
}

QTEST_MAIN(TestSignalTreeWidget)
#include "tst_signaltreewidget.moc"

// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "signals/rtlnetlisttreeview.h"

#include "fakes/fakenetlist.h"
#include "support/doubles.h"
#include "support/widgethelpers.h"

#include <QAbstractItemModelTester>
#include <QtTest>

#include <memory>

using namespace RTLVAK;

using Netlist = std::unique_ptr<NETCATCHER::RtlNetlist>;

/// top with u1[alu] (u_add[adder] below), u2[alu], u0[io].
static fakes::Instance smallDesign()
{
    fakes::Instance top("top");
    top.child("u1", "alu").child("u_add", "adder");
    top.child("u2", "alu");
    top.child("u0", "io");
    return top;
}

class TestRtlNetlistTreeView : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void newViewIsEmptyWithoutHeader();
    void nullNetlistGivesAnEmptyView();
    void onlyTheTopModuleGivesOneRowWithoutBrackets();
    void deepHierarchyGivesOneRowPerInstanceInOrder();
    void rowsKnowTheirNodesAndHaveTheirType();
    void topIsOpenAndItsChildrenAreClosed();
    void settingANetlistAgainReplacesAllRows();
};

void TestRtlNetlistTreeView::initTestCase()
{
    QCOMPARE(support::missingDoubles(), QString());
}

void TestRtlNetlistTreeView::newViewIsEmptyWithoutHeader()
{
    const RtlNetlistTreeView view;
    QCOMPARE(view.topLevelItemCount(), 0);
    QCOMPARE(view.columnCount(), 1);
    QVERIFY(view.isHeaderHidden());
    QVERIFY(!view.rtlNetlist());
}

void TestRtlNetlistTreeView::nullNetlistGivesAnEmptyView()
{
    const Netlist netlist(fakes::makeNetlist(smallDesign()));
    RtlNetlistTreeView view;
    const QAbstractItemModelTester tester(view.model());
    view.setRtlNetlist(netlist.get());
    QCOMPARE(view.rtlNetlist(), netlist.get());
    view.setRtlNetlist(nullptr);
    QCOMPARE(view.topLevelItemCount(), 0);
    QVERIFY(!view.rtlNetlist());
}

void TestRtlNetlistTreeView::onlyTheTopModuleGivesOneRowWithoutBrackets()
{
    const Netlist netlist(fakes::makeNetlist(fakes::Instance("soc_top")));
    RtlNetlistTreeView view;
    view.setRtlNetlist(netlist.get());
    QCOMPARE(support::allTexts(view), QStringList({"soc_top"}));
}

void TestRtlNetlistTreeView::deepHierarchyGivesOneRowPerInstanceInOrder()
{
    const Netlist netlist(fakes::makeNetlist(smallDesign()));
    RtlNetlistTreeView view;
    view.setRtlNetlist(netlist.get());
    QCOMPARE(support::allTexts(view), QStringList({"top", "  u1[alu]", "    u_add[adder]", "  u2[alu]", "  u0[io]"}));

    fakes::Instance chain("top");
    fakes::Instance *last = &chain;
    for (int depth = 0; depth < 500; ++depth)
        last = &last->child("u", "stage");
    const Netlist deep(fakes::makeNetlist(chain));
    view.setRtlNetlist(deep.get());
    QCOMPARE(support::allTexts(view).size(), 501);
}

void TestRtlNetlistTreeView::rowsKnowTheirNodesAndHaveTheirType()
{
    const Netlist netlist(fakes::makeNetlist(smallDesign()));
    RtlNetlistTreeView view;
    view.setRtlNetlist(netlist.get());
    const QTreeWidgetItem *top = view.topLevelItem(0);
    const QTreeWidgetItem *alu = top->child(0);
    QCOMPARE(top->type(), 1003);
    QCOMPARE(alu->child(0)->type(), 1003);
    NETCATCHER::Hierachy *node = netlist->topHierarchy();
    QCOMPARE(static_cast<const RtlTreeItem *>(top)->hierarchy(), node);
    QCOMPARE(static_cast<const RtlTreeItem *>(alu)->hierarchy(), node->children().at(0));
    QCOMPARE(alu->data(0, Qt::UserRole).value<NETCATCHER::Hierachy *>(), node->children().at(0));
    QVERIFY(!alu->icon(0).isNull());
    QVERIFY(!alu->icon(0).pixmap(16).isNull());
}

void TestRtlNetlistTreeView::topIsOpenAndItsChildrenAreClosed()
{
    const Netlist netlist(fakes::makeNetlist(smallDesign()));
    RtlNetlistTreeView view;
    view.setRtlNetlist(netlist.get());
    QVERIFY(view.topLevelItem(0)->isExpanded());
    QVERIFY(!view.topLevelItem(0)->child(0)->isExpanded());
}

void TestRtlNetlistTreeView::settingANetlistAgainReplacesAllRows()
{
    const Netlist first(fakes::makeNetlist(smallDesign()));
    const Netlist second(fakes::makeNetlist(fakes::Instance("other")));
    RtlNetlistTreeView view;
    view.setRtlNetlist(first.get());
    view.setRtlNetlist(second.get());
    QCOMPARE(support::allTexts(view), QStringList({"other"}));
    view.setRtlNetlist(first.get());
    QCOMPARE(view.topLevelItemCount(), 1);
    QVERIFY(view.topLevelItem(0)->isExpanded());
}

QTEST_MAIN(TestRtlNetlistTreeView)
#include "tst_rtlnetlisttreeview.moc"

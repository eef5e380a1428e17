// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "signals/signalrow.h"

#include "unit/signals/records.h"

#include <QSignalSpy>
#include <QTreeWidget>
#include <QtTest>

#include <memory>

using namespace RTLVAK;
using namespace records;

class TestSignalRow : public QObject
{
    Q_OBJECT

private slots:
    void rowShowsTheName();
    void rowWithDisplayNameShowsItInItalics();
    void rowCarriesItsWholeRecordInTheUserRole();
    void membersAreChildRowsThatCarryNothing();
    void unusableRowAndMemberAreGreyAndCannotBeSelected();
    void typeIsThatOfRowAndMembers();
    void recordSetAsItemDataIsShown();
    void updateShowsTheNewRecordInPlace();
    void updateWithOtherMembersRebuildsThem();
    void otherRowsCarryNoRecord();
    void colours_data();
    void colours();
    void groupWithMissingMemberIsRed();
    void inactiveRowCannotBeDraggedButSelected();
    void secondColourPassWritesNothing();
};

void TestSignalRow::rowShowsTheName()
{
    const std::unique_ptr<QTreeWidgetItem> row(makeSignalRow(net("u1/clk")));
    QCOMPARE(row->text(0), QString("u1/clk"));
    QCOMPARE(row->toolTip(0), QString("u1/clk"));
    QVERIFY(!row->font(0).italic());
    QCOMPARE(row->childCount(), 0);
    QVERIFY(row->flags() & Qt::ItemIsSelectable);
    QVERIFY(row->flags() & Qt::ItemIsEnabled);
    QVERIFY(!row->data(0, Qt::ForegroundRole).isValid());
}

void TestSignalRow::rowWithDisplayNameShowsItInItalics()
{
    const std::unique_ptr<QTreeWidgetItem> row(makeSignalRow(shownAs(net("u1/clk"), "clock")));
    QCOMPARE(row->text(0), QString("clock"));
    QCOMPARE(row->toolTip(0), QString("clock"));
    QVERIFY(row->font(0).italic());
}

void TestSignalRow::rowCarriesItsWholeRecordInTheUserRole()
{
    VAK::SignalItem record = bus("d", 1, 0);
    record.displayName = "data";
    record.present = false;
    record.active = 0;
    record.members[1].displayName = "low";
    const std::unique_ptr<QTreeWidgetItem> row(makeSignalRow(record));
    QCOMPARE(row->data(0, 256).value<VAK::SignalItem>(), record);
    QCOMPARE(*signalOfRow(row.get()), record);
    QCOMPARE(*recordOfRow(row.get()), record);
}

void TestSignalRow::membersAreChildRowsThatCarryNothing()
{
    VAK::SignalItem record = bus("d", 1, 0);
    record.members[0].displayName = "high";
    const std::unique_ptr<QTreeWidgetItem> row(makeSignalRow(record));
    QCOMPARE(row->childCount(), 2);
    QCOMPARE(row->child(0)->text(0), QString("high"));
    QCOMPARE(row->child(0)->toolTip(0), QString("high"));
    QVERIFY(row->child(0)->font(0).italic());
    QCOMPARE(row->child(1)->text(0), QString("d[0]"));
    QVERIFY(!row->child(1)->font(0).italic());
    for (int i = 0; i < 2; ++i) {
        QVERIFY(!row->child(i)->data(0, Qt::UserRole).isValid());
        QVERIFY(!signalOfRow(row->child(i)));
        QVERIFY(!recordOfRow(row->child(i)));
    }
}

void TestSignalRow::unusableRowAndMemberAreGreyAndCannotBeSelected()
{
    VAK::SignalItem record = bus("d", 1, 0);
    record.members[1].enabled = false;
    const std::unique_ptr<QTreeWidgetItem> row(makeSignalRow(record));
    QCOMPARE(row->child(1)->foreground(0), QBrush(Qt::gray));
    QVERIFY(!(row->child(1)->flags() & (Qt::ItemIsSelectable | Qt::ItemIsEnabled)));
    QVERIFY(row->child(0)->flags() & Qt::ItemIsSelectable);
    QVERIFY(row->flags() & Qt::ItemIsSelectable);

    record.enabled = false;
    const std::unique_ptr<QTreeWidgetItem> unusable(makeSignalRow(record));
    QCOMPARE(unusable->foreground(0), QBrush(Qt::gray));
    QVERIFY(!(unusable->flags() & (Qt::ItemIsSelectable | Qt::ItemIsEnabled)));
    QVERIFY(unusable->child(0)->flags() & Qt::ItemIsSelectable);
}

void TestSignalRow::typeIsThatOfRowAndMembers()
{
    const std::unique_ptr<QTreeWidgetItem> row(makeSignalRow(bus("d", 1, 0), 1002));
    QCOMPARE(row->type(), 1002);
    QCOMPARE(row->child(1)->type(), 1002);
    const std::unique_ptr<QTreeWidgetItem> plain(makeSignalRow(net("a")));
    QCOMPARE(plain->type(), int(QTreeWidgetItem::Type));
}

void TestSignalRow::recordSetAsItemDataIsShown()
{
    const std::unique_ptr<QTreeWidgetItem> row(makeSignalRow(net("a")));
    row->setData(0, Qt::UserRole, QVariant::fromValue(shownAs(net("b"), "shown")));
    QCOMPARE(row->text(0), QString("shown"));
    QCOMPARE(recordOfRow(row.get())->name, QString("b"));
}

void TestSignalRow::updateShowsTheNewRecordInPlace()
{
    QTreeWidget tree;
    VAK::SignalItem record = bus("d", 3, 0);
    QTreeWidgetItem *row = makeSignalRow(record);
    tree.addTopLevelItem(row);
    row->setExpanded(true);
    tree.setCurrentItem(row->child(2));
    QTreeWidgetItem *member = row->child(2);
    QSignalSpy changed(&tree, &QTreeWidget::itemChanged);

    record.members[2].displayName = "two";
    record.members[3].enabled = false;
    updateSignalRow(row, record);
    QCOMPARE(row->child(2), member);
    QCOMPARE(member->text(0), QString("two"));
    QVERIFY(!(row->child(3)->flags() & Qt::ItemIsSelectable));
    QCOMPARE(tree.currentItem(), member);
    QVERIFY(row->isExpanded());
    QVERIFY(changed.size() >= 2);

    record.members[3].enabled = true;
    updateSignalRow(row, record);
    QVERIFY(row->child(3)->flags() & Qt::ItemIsSelectable);
    QVERIFY(!row->child(3)->data(0, Qt::ForegroundRole).isValid());
}

void TestSignalRow::updateWithOtherMembersRebuildsThem()
{
    const std::unique_ptr<QTreeWidgetItem> row(makeSignalRow(bus("d", 1, 0), 1002));
    updateSignalRow(row.get(), bus("e", 3, 0));
    QCOMPARE(row->childCount(), 4);
    QCOMPARE(row->child(3)->text(0), QString("e[0]"));
    QCOMPARE(row->child(3)->type(), 1002);
    updateSignalRow(row.get(), net("clk"));
    QCOMPARE(row->childCount(), 0);
    QCOMPARE(row->text(0), QString("clk"));
}

void TestSignalRow::otherRowsCarryNoRecord()
{
    QTreeWidgetItem plain;
    plain.setText(0, "text");
    QVERIFY(!recordOfRow(&plain));
    QVERIFY(!signalOfRow(&plain));
    QVERIFY(!recordOfRow(nullptr));
    QVERIFY(!signalOfRow(nullptr));
    updateSignalRow(&plain, net("a"));
    colourSignalRow(&plain);
    QCOMPARE(plain.text(0), QString("text"));
    plain.setData(0, Qt::UserRole, QVariant::fromValue(net("carried")));
    QCOMPARE(signalOfRow(&plain)->name, QString("carried"));
}

void TestSignalRow::colours_data()
{
    QTest::addColumn<VAK::SignalItem>("record");
    QTest::addColumn<QList<Qt::GlobalColor>>("colours"); // row, then members

    const auto with = [](bool active, bool present, bool enabled, bool memberPresent, bool memberEnabled) {
        VAK::SignalItem record = bus("d", 1, 0);
        record.active = active;
        record.present = present;
        record.enabled = enabled;
        record.members[0].present = memberPresent;
        record.members[0].enabled = memberEnabled;
        return record;
    };
    using Colours = QList<Qt::GlobalColor>;
    QTest::newRow("fine") << with(true, true, true, true, true) << Colours{Qt::black, Qt::black, Qt::black};
    QTest::newRow("inactive") << with(false, true, true, true, true) << Colours{Qt::gray, Qt::gray, Qt::gray};
    QTest::newRow("inactive and missing")
        << with(false, false, true, false, true) << Colours{Qt::gray, Qt::gray, Qt::gray};
    QTest::newRow("missing") << with(true, false, true, true, true) << Colours{Qt::red, Qt::black, Qt::black};
    QTest::newRow("member missing") << with(true, true, true, false, true) << Colours{Qt::red, Qt::red, Qt::black};
    QTest::newRow("unusable") << with(true, true, false, true, true) << Colours{Qt::gray, Qt::black, Qt::black};
    QTest::newRow("unusable and missing")
        << with(true, false, false, true, true) << Colours{Qt::gray, Qt::black, Qt::black};
    QTest::newRow("member unusable") << with(true, true, true, true, false) << Colours{Qt::black, Qt::gray, Qt::black};
    VAK::SignalItem single = net("clk");
    QTest::newRow("single") << single << Colours{Qt::black};
    single.present = false;
    QTest::newRow("single missing") << single << Colours{Qt::red};
}

void TestSignalRow::colours()
{
    QFETCH(const VAK::SignalItem, record);
    QFETCH(const QList<Qt::GlobalColor>, colours);
    const std::unique_ptr<QTreeWidgetItem> row(makeSignalRow(record));
    colourSignalRow(row.get());
    QCOMPARE(row->foreground(0), QBrush(colours.first()));
    for (int i = 0; i < row->childCount(); ++i)
        QCOMPARE(row->child(i)->foreground(0), QBrush(colours.at(i + 1)));
}

void TestSignalRow::groupWithMissingMemberIsRed()
{
    VAK::SignalItem record = bus("d", 1, 0);
    record.members[1].present = false;
    const std::unique_ptr<QTreeWidgetItem> row(makeSignalRow(record));
    colourSignalRow(row.get());
    QCOMPARE(row->foreground(0), QBrush(Qt::red));
    record.members[1].present = true;
    updateSignalRow(row.get(), record);
    colourSignalRow(row.get());
    QCOMPARE(row->foreground(0), QBrush(Qt::black));
    QCOMPARE(row->child(1)->foreground(0), QBrush(Qt::black));
}

void TestSignalRow::inactiveRowCannotBeDraggedButSelected()
{
    VAK::SignalItem record = net("a");
    record.active = 0;
    const std::unique_ptr<QTreeWidgetItem> row(makeSignalRow(record));
    colourSignalRow(row.get());
    QVERIFY(!(row->flags() & Qt::ItemIsDragEnabled));
    QVERIFY(row->flags() & Qt::ItemIsSelectable);
    QVERIFY(row->flags() & Qt::ItemIsEnabled);
    record.active = 1;
    updateSignalRow(row.get(), record);
    colourSignalRow(row.get());
    QVERIFY(row->flags() & Qt::ItemIsDragEnabled);
}

void TestSignalRow::secondColourPassWritesNothing()
{
    QTreeWidget tree;
    VAK::SignalItem inactive = bus("d", 1, 0);
    inactive.active = 0;
    tree.addTopLevelItem(makeSignalRow(inactive));
    tree.addTopLevelItem(makeSignalRow(bus("e", 1, 0)));
    QSignalSpy changed(&tree, &QTreeWidget::itemChanged);
    for (int i = 0; i < 2; ++i)
        colourSignalRow(tree.topLevelItem(i));
    QVERIFY(!changed.isEmpty());
    changed.clear();
    for (int i = 0; i < 2; ++i)
        colourSignalRow(tree.topLevelItem(i));
    QCOMPARE(changed.size(), 0);
}

QTEST_MAIN(TestSignalRow)
#include "tst_signalrow.moc"

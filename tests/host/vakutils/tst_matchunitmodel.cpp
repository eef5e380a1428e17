// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include <VakUtils/aocore.h>
#include <VakUtils/matchunit.h>
#include <VakUtils/matchunitmodel.h>
#include <VakUtils/triggerport.h>

#include <QAbstractItemModelTester>
#include <QtTest>

using namespace VAK;

class TestMatchUnitModel : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void everyUnitIsARow();
    void columnsShowTheUnit();
    void unboundUnitShowsNoPort();
    void rangeShowsBothBounds();
    void checkStateIsNotABool();
    void onlyTheNameIsCheckable();
    void toggleEmitsEachSignalOnce();
    void settingTheSameStateEmitsNothing();
    void otherCellsCannotBeSet();
    void updateRowOnlyTellsTheViews();
    void newListOnlyResets();
    void unitFromIndex();

private:
    QModelIndex cell(int row, int column) const { return model->index(row, column); }

    std::unique_ptr<AoCore> core;
    std::unique_ptr<MatchUnitModel> model;
    std::unique_ptr<QAbstractItemModelTester> tester;
};

void TestMatchUnitModel::init()
{
    core = std::make_unique<AoCore>(0);
    model = std::make_unique<MatchUnitModel>(core->allMatchUnits(), nullptr);
    tester =
        std::make_unique<QAbstractItemModelTester>(model.get(), QAbstractItemModelTester::FailureReportingMode::QtTest);
    SignalItem a;
    a.name = QStringLiteral("u_core/a");
    SignalItem b;
    b.name = QStringLiteral("u_core/b");
    b.displayName = QStringLiteral("shown");
    core->getTrigger(3)->setSignalNet({a, b});
}

void TestMatchUnitModel::cleanup()
{
    tester.reset();
    model.reset();
    core.reset();
}

void TestMatchUnitModel::everyUnitIsARow()
{
    QCOMPARE(model->rowCount(), 16);
    QCOMPARE(model->columnCount(), 6);
    QCOMPARE(cell(0, 0).data().toString(), QStringLiteral("M0"));
    QCOMPARE(cell(15, 0).data().toString(), QStringLiteral("M15"));
    QStringList headers;
    for (int i = 0; i < model->columnCount(); ++i)
        headers.append(model->headerData(i, Qt::Horizontal).toString());
    QCOMPARE(headers, QStringList({"Unit", "Signals", "Trigger Port", "Function", "Value", "Counter"}));
}

void TestMatchUnitModel::columnsShowTheUnit()
{
    MatchUnit *unit = core->matchUnit(1);
    unit->setTriggerPort(core->getTrigger(3));
    unit->setFunction(MatchFunction::NotEqual);
    unit->setValue0(QStringLiteral("R0"));
    unit->setCounterMode(CounterMode::Total);
    unit->setCounterValue(7);
    QCOMPARE(cell(1, MatchUnitModel::SignalsColumn).data().toString(), QStringLiteral("u_core/a, u_core/b"));
    QCOMPARE(cell(1, MatchUnitModel::PortColumn).data().toString(), QStringLiteral("Trigger Port 3"));
    QCOMPARE(cell(1, MatchUnitModel::FunctionColumn).data().toString(), QStringLiteral("!="));
    QCOMPARE(cell(1, MatchUnitModel::ValueColumn).data().toString(), QStringLiteral("R0"));
    QCOMPARE(cell(1, MatchUnitModel::CounterColumn).data().toString(), QStringLiteral("Total 7"));
    QCOMPARE(cell(1, MatchUnitModel::PortColumn).data(Qt::ToolTipRole).toString(),
             QStringLiteral("u_core/a\nu_core/b"));
    unit->setCounterMode(CounterMode::Consecutive);
    QCOMPARE(cell(1, MatchUnitModel::CounterColumn).data().toString(), QStringLiteral("Consecutive 7"));
}

void TestMatchUnitModel::unboundUnitShowsNoPort()
{
    QCOMPARE(cell(0, MatchUnitModel::PortColumn).data().toString(), QString());
    QCOMPARE(cell(0, MatchUnitModel::SignalsColumn).data().toString(), QString());
    QCOMPARE(cell(0, MatchUnitModel::CounterColumn).data().toString(), QStringLiteral("Off"));
    core->matchUnit(0)->setTriggerPort(core->getTrigger(9));
    QCOMPARE(cell(0, MatchUnitModel::PortColumn).data(Qt::ToolTipRole).toString(),
             QStringLiteral("The port has no signals."));
}

void TestMatchUnitModel::rangeShowsBothBounds()
{
    MatchUnit *unit = core->matchUnit(0);
    unit->setFunction(MatchFunction::InRange);
    unit->setValue0(QStringLiteral("0010"));
    unit->setValue1(QStringLiteral("1000"));
    QCOMPARE(cell(0, MatchUnitModel::FunctionColumn).data().toString(), QStringLiteral("in range"));
    QCOMPARE(cell(0, MatchUnitModel::ValueColumn).data().toString(), QStringLiteral("0010 .. 1000"));
}

void TestMatchUnitModel::checkStateIsNotABool()
{
    QCOMPARE(cell(0, 0).data(Qt::CheckStateRole), QVariant(Qt::Unchecked));
    QCOMPARE(cell(0, 0).data(Qt::UserRole), QVariant(false));
    core->matchUnit(0)->setEnabled(true);
    QCOMPARE(cell(0, 0).data(Qt::CheckStateRole).toInt(), int(Qt::Checked));
    QCOMPARE(cell(0, 0).data(Qt::UserRole), QVariant(true));
    QVERIFY(!cell(0, 2).data(Qt::CheckStateRole).isValid());
}

void TestMatchUnitModel::onlyTheNameIsCheckable()
{
    QVERIFY(cell(4, MatchUnitModel::NameColumn).flags() & Qt::ItemIsUserCheckable);
    for (int column = 1; column < MatchUnitModel::ColumnCount; ++column)
        QVERIFY(!(cell(4, column).flags() & Qt::ItemIsUserCheckable));
    QVERIFY(!(cell(4, MatchUnitModel::ValueColumn).flags() & Qt::ItemIsEditable));
}

void TestMatchUnitModel::toggleEmitsEachSignalOnce()
{
    QSignalSpy changed(model.get(), &QAbstractItemModel::dataChanged);
    QSignalSpy match(model.get(), &MatchUnitModel::matchChange);
    QSignalSpy modified(model.get(), &MatchUnitModel::modified);
    QVERIFY(model->setData(cell(5, 0), Qt::Checked, Qt::CheckStateRole));
    QVERIFY(core->matchUnit(5)->isEnabled());
    QCOMPARE(changed.count(), 1);
    QCOMPARE(match.count(), 1);
    QCOMPARE(modified.count(), 1);
    QVERIFY(model->setData(cell(5, 0), Qt::Unchecked, Qt::CheckStateRole));
    QVERIFY(!core->matchUnit(5)->isEnabled());
    QCOMPARE(modified.count(), 2);
}

void TestMatchUnitModel::settingTheSameStateEmitsNothing()
{
    QSignalSpy changed(model.get(), &QAbstractItemModel::dataChanged);
    QSignalSpy modified(model.get(), &MatchUnitModel::modified);
    QVERIFY(model->setData(cell(5, 0), Qt::Unchecked, Qt::CheckStateRole));
    QCOMPARE(changed.count(), 0);
    QCOMPARE(modified.count(), 0);
}

void TestMatchUnitModel::otherCellsCannotBeSet()
{
    QVERIFY(!model->setData(cell(5, 2), Qt::Checked, Qt::CheckStateRole));
    QVERIFY(!model->setData(cell(5, 0), QStringLiteral("x"), Qt::EditRole));
    QVERIFY(!model->setData({}, Qt::Checked, Qt::CheckStateRole));
    QVERIFY(!core->matchUnit(5)->isEnabled());
}

void TestMatchUnitModel::updateRowOnlyTellsTheViews()
{
    QSignalSpy changed(model.get(), &QAbstractItemModel::dataChanged);
    QSignalSpy match(model.get(), &MatchUnitModel::matchChange);
    QSignalSpy modified(model.get(), &MatchUnitModel::modified);
    model->updateRow(6);
    QCOMPARE(changed.count(), 1);
    QCOMPARE(changed.at(0).at(0).toModelIndex(), cell(6, 0));
    QCOMPARE(changed.at(0).at(1).toModelIndex(), cell(6, MatchUnitModel::ColumnCount - 1));
    model->updateRow(16);
    model->updateRow(-1);
    QCOMPARE(changed.count(), 1);
    QCOMPARE(match.count(), 0);
    QCOMPARE(modified.count(), 0);
}

void TestMatchUnitModel::newListOnlyResets()
{
    QSignalSpy reset(model.get(), &QAbstractItemModel::modelReset);
    QSignalSpy changed(model.get(), &QAbstractItemModel::dataChanged);
    QSignalSpy match(model.get(), &MatchUnitModel::matchChange);
    QSignalSpy modified(model.get(), &MatchUnitModel::modified);
    model->setMatcherList(core->allMatchUnits().mid(0, 10));
    QCOMPARE(model->rowCount(), 10);
    QCOMPARE(reset.count(), 1);
    QCOMPARE(changed.count() + match.count() + modified.count(), 0);
}

void TestMatchUnitModel::unitFromIndex()
{
    QCOMPARE(model->muFromIndex(cell(8, 4)), core->matchUnit(8));
    QVERIFY(!model->muFromIndex({}));
}

QTEST_GUILESS_MAIN(TestMatchUnitModel)
#include "tst_matchunitmodel.moc"

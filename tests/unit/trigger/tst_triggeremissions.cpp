// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "triggerpage.h"

#include "trigger/triggerportdialog.h"

#include "tests/fakes/fakeevents.h"
#include "tests/support/doubles.h"
#include "tests/support/scriptedresources.h"

#include <VakUtils/matchunit.h>
#include <VakUtils/triggerport.h>

#include <QtTest>

using Action = std::function<void(TriggerBench &)>;
Q_DECLARE_METATYPE(Action)

/// How often one action makes the page say that it was modified.
class tst_TriggerEmissions : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void modifiedCount_data();
    void modifiedCount();
    void userAfterProgramCountsOnce();
};

void tst_TriggerEmissions::initTestCase()
{
    QCOMPARE(support::missingDoubles(), QString());
}

static void acceptDialog(TriggerBench &bench, const Action &open)
{
    support::DialogDriver driver;
    driver.answerDialog([](QDialog &dialog) { dialog.accept(); });
    open(bench);
}

static void cancelled(TriggerBench &bench, const Action &open)
{
    support::DialogDriver driver;
    cancelDialog(driver);
    open(bench);
}

static void composed(TriggerBench &bench, const Action &open)
{
    support::DialogDriver driver;
    composeExpression(driver, {QStringLiteral("btnM1")});
    open(bench);
}

static void fromMenu(TriggerBench &bench, const char *entry,
                     const std::function<void(support::DialogDriver &)> &then = {})
{
    support::DialogDriver driver;
    driver.chooseFromMenu(QLatin1String(entry));
    if (then)
        then(driver);
    bench.askForMenu();
}

static void fill(TriggerBench &bench)
{
    while (bench.expressions().count() < 16)
        bench.expressions().addItem(QStringLiteral("M0"));
}

void tst_TriggerEmissions::modifiedCount_data()
{
    QTest::addColumn<Action>("act");
    QTest::addColumn<int>("count");
    const auto row = [](const char *name, int count, const Action &act) { QTest::newRow(name) << act << count; };
    const Action editPort = [](TriggerBench &b) { support::doubleClickItem(b.ports(), b.ports().topLevelItem(1)); };
    const Action editUnit = [](TriggerBench &b) { b.doubleClickUnit(3); };
    const Action editRow = [](TriggerBench &b) { b.doubleClickExpression(0); };
    const Action addRow = [](TriggerBench &b) { b.doubleClickEmptyPlace(); };

    row("port edited", 1, [editPort](TriggerBench &b) { acceptDialog(b, editPort); });
    row("port dialog cancelled", 0, [editPort](TriggerBench &b) { cancelled(b, editPort); });
    row("unit edited", 1, [editUnit](TriggerBench &b) { acceptDialog(b, editUnit); });
    row("unit dialog cancelled", 0, [editUnit](TriggerBench &b) { cancelled(b, editUnit); });
    row("unit checked", 1, [](TriggerBench &b) { b.toggleUnit(4); });
    row("unit checked and unchecked", 2, [](TriggerBench &b) {
        b.toggleUnit(4);
        b.toggleUnit(4);
    });
    row("expression added by double click", 1, [addRow](TriggerBench &b) { composed(b, addRow); });
    row("expression added by menu", 1, [](TriggerBench &b) {
        fromMenu(b, "Add", [](support::DialogDriver &driver) { composeExpression(driver, {QStringLiteral("btnM1")}); });
    });
    row("expression dialog cancelled", 0, [addRow](TriggerBench &b) { cancelled(b, addRow); });
    row("expression dialog of the menu cancelled", 0, [](TriggerBench &b) { fromMenu(b, "Add", cancelDialog); });
    row("expression edited", 1, [editRow](TriggerBench &b) { composed(b, editRow); });
    row("editing cancelled", 0, [editRow](TriggerBench &b) { cancelled(b, editRow); });
    row("two expressions removed", 1, [](TriggerBench &b) {
        b.expressions().selectAll();
        fromMenu(b, "Remove");
    });
    row("add refused by double click", 0, [](TriggerBench &b) {
        fill(b);
        b.page().resize(900, 700);
        support::DialogDriver driver;
        driver.answerBox(QMessageBox::Ok);
        b.doubleClickEmptyPlace();
    });
    row("add refused by menu", 0, [](TriggerBench &b) {
        fill(b);
        fromMenu(b, "Add", [](support::DialogDriver &driver) { driver.answerBox(QMessageBox::Ok); });
    });
    row("menu closed", 0, [](TriggerBench &b) {
        support::DialogDriver driver;
        driver.dismissMenu();
        b.askForMenu();
    });
    row("mode", 1, [](TriggerBench &b) { b.mode().setCurrentIndex(0); });
    row("mode, the same", 0, [](TriggerBench &b) { b.mode().setCurrentIndex(1); });
    row("storage by the user", 1, [](TriggerBench &b) { QTest::keyClick(&b.storage(), Qt::Key_Down); });
    row("storage by the user, to and fro", 2, [](TriggerBench &b) {
        QTest::keyClick(&b.storage(), Qt::Key_Down);
        QTest::keyClick(&b.storage(), Qt::Key_Up);
    });
    row("storage by the user, the same", 0, [](TriggerBench &b) { emit b.storage().activated(0); });
    row("storage by program", 0, [](TriggerBench &b) { b.storage().setCurrentIndex(2); });
    row("device event", 0, [](TriggerBench &) { fakes::publish(QStringLiteral("TE.Device.Change")); });
    row("device event that takes the storage away", 0, [](TriggerBench &b) {
        b.storage().setCurrentIndex(1);
        support::setCapacity({12, 0, 1000});
        fakes::publish(QStringLiteral("TE.Device.Change"));
        QCOMPARE(b.storage().currentText(), QStringLiteral("BSRAM"));
    });
    row("storage by the user after a device event", 1, [](TriggerBench &b) {
        fakes::publish(QStringLiteral("TE.Device.Change"));
        QTest::keyClick(&b.storage(), Qt::Key_Down);
    });
    row("expressions sorted", 1, [](TriggerBench &b) { b.expressions().sortItems(Qt::DescendingOrder); });
}

void tst_TriggerEmissions::modifiedCount()
{
    QFETCH(Action, act);
    TriggerBench bench;
    bench.core.setTriggerMode(VAK::DynamicTrigger);
    bench.core.setExpression({QStringLiteral("M0"), QStringLiteral("M1")});
    bench.core.getTrigger(0)->setSignalNet({single(QStringLiteral("clk"))});
    QSignalSpy spy(&bench.page(), &RTLVAK::TriggerOptionWidget::modified);
    act(bench);
    QTEST(int(spy.count()), "count");
}

void tst_TriggerEmissions::userAfterProgramCountsOnce()
{
    TriggerBench bench;
    bench.core.setTriggerMode(VAK::DynamicTrigger);
    QSignalSpy spy(&bench.page(), &RTLVAK::TriggerOptionWidget::modified);
    bench.storage().setCurrentIndex(2);
    QTest::keyClick(&bench.storage(), Qt::Key_Up);
    QCOMPARE(bench.storage().currentIndex(), 1);
    QCOMPARE(spy.count(), 1);
    QTest::keyClick(&bench.storage(), Qt::Key_Up);
    QCOMPARE(spy.count(), 2);
}

QTEST_MAIN(tst_TriggerEmissions)
#include "tst_triggeremissions.moc"

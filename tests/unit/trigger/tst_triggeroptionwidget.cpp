// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "triggerpage.h"

#include "tests/fakes/fakeevents.h"
#include "tests/support/doubles.h"
#include "tests/support/scriptedresources.h"

#include <QUtility/ievent.h>
#include <VakUtils/matchunit.h>

#include <QGroupBox>
#include <QtTest>

class tst_TriggerOptionWidget : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void slotsStandInTheirOrder();
    void formTextsAndStyles();
    void staticCoreHidesTheDynamicSettings();
    void dynamicCoreShowsItsSettings_data();
    void dynamicCoreShowsItsSettings();
    void deviceWithoutShadowRamShowsBlockRamForAStoredShadowRam();
    void modeSwitchShowsAndHidesTheSettings();
    void modeBoxExplainsItself();
    void usageTexts_data();
    void usageTexts();
    void usageFollowsEveryChange();
    void usageFollowsAnEditedUnit();
    void menuUpdatesTheUsageWhateverWasChosen();
    void cancelledDoubleClickLeavesTheUsage();
    void usageStaysInStaticMode();
    void applyWritesExpressionsAndMode();
    void applyInDynamicModeDropsGreyExpressionsAndDisablesHighUnits();
    void applyInStaticModeLeavesTheStorage();
    void nothingReachesTheCoreBeforeApply();
    void deviceChangeRefillsTheStorage();
    void otherEventsAreIgnored();
    void pageThatDiesUnderItsDialog();
    void pageThatDiesUnderItsMenu();
    void pageThatDiesUnderItsWarning();
};

void tst_TriggerOptionWidget::initTestCase()
{
    QCOMPARE(support::missingDoubles(), QString());
}

void tst_TriggerOptionWidget::slotsStandInTheirOrder()
{
    const QMetaObject &metaObject = RTLVAK::TriggerOptionWidget::staticMetaObject;
    QCOMPARE(support::ownSignals(metaObject), QStringList{QStringLiteral("modified()")});
    QCOMPARE(support::ownSlots(metaObject),
             QStringList(
                 {QStringLiteral("editTrigger(QTreeWidgetItem*,int)"), QStringLiteral("editMatchUnit(QModelIndex)"),
                  QStringLiteral("showExpListContextMenu(QPoint)"), QStringLiteral("editExpression(QListWidgetItem*)"),
                  QStringLiteral("updateExpressionCheck()"), QStringLiteral("updateMatchUnitNumber(bool)"),
                  QStringLiteral("onModeChange(QString)"), QStringLiteral("onImpleChange()")}));
}

void tst_TriggerOptionWidget::formTextsAndStyles()
{
    TriggerBench bench;
    QCOMPARE(bench.page().windowTitle(), QStringLiteral("Form"));
    QCOMPARE(bench.child<QGroupBox>("groupBox").title(), QStringLiteral("Trigger Ports"));
    QCOMPARE(bench.child<QGroupBox>("groupBox_2").title(), QStringLiteral("Match Units"));
    QCOMPARE(bench.child<QGroupBox>("groupBox_3").title(), QStringLiteral("Expressions"));
    QCOMPARE(bench.child<QLabel>("ModeLabel").text(), QStringLiteral("Mode:"));
    QCOMPARE(bench.child<QLabel>("ImpleLabel").text(), QStringLiteral("Implementation:"));
    QCOMPARE(bench.usage(), QStringLiteral("BSRAM Usage:0"));
    QCOMPARE(support::modelTexts(*bench.mode().model()),
             QStringList({QStringLiteral("Static"), QStringLiteral("Dynamic")}));
    QCOMPARE(bench.ports().styleSheet(),
             QStringLiteral("QTreeWidget::item { height: 20px;}QTreeWidget{ icon-size: 17px; }"));
    QCOMPARE(bench.expressions().styleSheet(), QStringLiteral("QListWidget::item { height: 24px}"));
    QCOMPARE(bench.expressions().selectionMode(), QAbstractItemView::ExtendedSelection);
    QCOMPARE(bench.expressions().contextMenuPolicy(), Qt::CustomContextMenu);
}

void tst_TriggerOptionWidget::staticCoreHidesTheDynamicSettings()
{
    TriggerBench bench;
    QCOMPARE(bench.mode().currentText(), QStringLiteral("Static"));
    QVERIFY(bench.child<QWidget>("Implementation").isHidden());
    QVERIFY(bench.child<QWidget>("Usage").isHidden());
    QVERIFY(!bench.child<QWidget>("Mode").isHidden());
}

void tst_TriggerOptionWidget::dynamicCoreShowsItsSettings_data()
{
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("text");
    QTest::newRow("0") << 0 << "BSRAM";
    QTest::newRow("1") << 1 << "REG";
    QTest::newRow("2") << 2 << "SSRAM";
    QTest::newRow("any other") << 7 << "BSRAM";
}

void tst_TriggerOptionWidget::dynamicCoreShowsItsSettings()
{
    QFETCH(int, code);
    TriggerBench bench;
    bench.core.setTriggerMode(VAK::DynamicTrigger);
    bench.core.setTriggerImplementation(code);
    QCOMPARE(bench.mode().currentText(), QStringLiteral("Dynamic"));
    QTEST(bench.storage().currentText(), "text");
    QVERIFY(!bench.child<QWidget>("Implementation").isHidden());
    QVERIFY(!bench.child<QWidget>("Usage").isHidden());
    QCOMPARE(support::modelTexts(*bench.storage().model()),
             QStringList({QStringLiteral("BSRAM"), QStringLiteral("SSRAM"), QStringLiteral("REG")}));
}

void tst_TriggerOptionWidget::deviceWithoutShadowRamShowsBlockRamForAStoredShadowRam()
{
    TriggerBench bench;
    support::setCapacity({12, 0, 1000});
    bench.core.setTriggerMode(VAK::DynamicTrigger);
    bench.core.setTriggerImplementation(VAK::SsramImplementation);
    QCOMPARE(bench.storage().currentText(), QStringLiteral("BSRAM"));
    QCOMPARE(support::modelTexts(*bench.storage().model()),
             QStringList({QStringLiteral("BSRAM"), QStringLiteral("REG")}));
}

void tst_TriggerOptionWidget::modeSwitchShowsAndHidesTheSettings()
{
    TriggerBench bench;
    bench.mode().setCurrentIndex(1);
    QVERIFY(bench.child<QWidget>("Implementation").isVisible());
    QVERIFY(bench.child<QWidget>("Usage").isVisible());
    QCOMPARE(bench.usage(), QStringLiteral("BSRAM Usage : 0/12"));
    bench.mode().setCurrentIndex(0);
    QVERIFY(bench.child<QWidget>("Implementation").isHidden());
    QVERIFY(bench.child<QWidget>("Usage").isHidden());
}

void tst_TriggerOptionWidget::modeBoxExplainsItself()
{
    TriggerBench bench;
    QVERIFY(bench.mode().toolTip().contains(QStringLiteral("M10 to M15 are not available")));
}

void tst_TriggerOptionWidget::usageTexts_data()
{
    QTest::addColumn<int>("checked");
    QTest::addColumn<int>("expressions");
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("text");
    QTest::newRow("no unit, 3 expressions, REG") << 0 << 3 << 1 << "Register Usage : 3/1000";
    QTest::newRow("no unit, 3 expressions, SSRAM") << 0 << 3 << 2 << "SSRAM Usage : 3/48";
    QTest::newRow("6 units, 3 expressions, SSRAM") << 6 << 3 << 2 << "SSRAM Usage : 12/48";
    QTest::newRow("no unit, 16 expressions, REG") << 0 << 16 << 1 << "Register Usage : 17/1000";
    QTest::newRow("BSRAM") << 6 << 3 << 0 << "BSRAM Usage : 3/12";
}

void tst_TriggerOptionWidget::usageTexts()
{
    QFETCH(int, checked);
    QFETCH(int, expressions);
    QFETCH(int, code);
    TriggerBench bench;
    for (int unit = 0; unit < checked; ++unit)
        bench.core.matchUnit(unit)->setEnabled(true);
    bench.core.matchUnit(12)->setEnabled(true); // not offered in Dynamic mode, so not counted
    QStringList list;
    for (int i = 0; i < expressions; ++i)
        list.append(QStringLiteral("M0"));
    bench.core.setExpression(list);
    bench.core.setTriggerMode(VAK::DynamicTrigger);
    bench.core.setTriggerImplementation(code);
    QTEST(bench.usage(), "text");
}

void tst_TriggerOptionWidget::usageFollowsEveryChange()
{
    TriggerBench bench;
    bench.core.setTriggerMode(VAK::DynamicTrigger);
    bench.core.setTriggerImplementation(VAK::RegImplementation);
    bench.core.setExpression({QStringLiteral("M0"), QStringLiteral("M13")});
    QCOMPARE(bench.usage(), QStringLiteral("Register Usage : 1/1000"));
    for (int unit = 0; unit < 5; ++unit)
        bench.toggleUnit(unit);
    QCOMPARE(bench.usage(), QStringLiteral("Register Usage : 3/1000"));
    support::DialogDriver driver;
    composeExpression(driver, {"btnM1"});
    bench.doubleClickEmptyPlace();
    QCOMPARE(bench.usage(), QStringLiteral("Register Usage : 6/1000"));
    composeExpression(driver, {"btnM2"});
    bench.doubleClickExpression(1);
    QCOMPARE(bench.usage(), QStringLiteral("Register Usage : 9/1000"));
    bench.storage().setCurrentIndex(1);
    QCOMPARE(bench.usage(), QStringLiteral("SSRAM Usage : 6/48"));
    bench.expressions().clearSelection();
    bench.expressions().item(0)->setSelected(true);
    driver.chooseFromMenu(QStringLiteral("Remove"));
    bench.askForMenu();
    QCOMPARE(bench.usage(), QStringLiteral("SSRAM Usage : 4/48"));
}

void tst_TriggerOptionWidget::usageFollowsAnEditedUnit()
{
    TriggerBench bench;
    bench.core.setTriggerMode(VAK::DynamicTrigger);
    bench.core.setTriggerImplementation(VAK::SsramImplementation);
    bench.core.setExpression({QStringLiteral("M0")});
    bench.core.matchUnit(9)->setTriggerPort(bench.core.getTrigger(0));
    for (int unit = 0; unit < 4; ++unit)
        bench.core.matchUnit(unit)->setEnabled(true);
    QCOMPARE(bench.usage(), QStringLiteral("SSRAM Usage : 1/48"));
    support::DialogDriver driver;
    driver.answerDialog([](QDialog &dialog) { dialog.accept(); });
    bench.doubleClickUnit(9);
    QCOMPARE(bench.usage(), QStringLiteral("SSRAM Usage : 2/48"));
}

void tst_TriggerOptionWidget::menuUpdatesTheUsageWhateverWasChosen()
{
    TriggerBench bench;
    bench.core.setTriggerMode(VAK::DynamicTrigger);
    QCOMPARE(bench.usage(), QStringLiteral("BSRAM Usage : 0/12"));
    support::DialogDriver driver;
    support::setCapacity({13, 48, 1000});
    driver.dismissMenu();
    bench.askForMenu();
    QCOMPARE(bench.usage(), QStringLiteral("BSRAM Usage : 0/13"));
    support::setCapacity({14, 48, 1000});
    driver.chooseFromMenu(QStringLiteral("Add"));
    cancelDialog(driver);
    bench.askForMenu();
    QCOMPARE(bench.usage(), QStringLiteral("BSRAM Usage : 0/14"));
}

void tst_TriggerOptionWidget::cancelledDoubleClickLeavesTheUsage()
{
    TriggerBench bench;
    bench.core.setTriggerMode(VAK::DynamicTrigger);
    bench.page();
    support::setCapacity({13, 48, 1000});
    support::DialogDriver driver;
    cancelDialog(driver);
    bench.doubleClickEmptyPlace();
    QCOMPARE(bench.usage(), QStringLiteral("BSRAM Usage : 0/12"));
}

void tst_TriggerOptionWidget::usageStaysInStaticMode()
{
    TriggerBench bench;
    bench.core.setExpression({QStringLiteral("M0")});
    bench.page();
    bench.toggleUnit(0);
    fakes::publish(QStringLiteral("TE.Device.Change"));
    QCOMPARE(bench.usage(), QStringLiteral("BSRAM Usage:0"));
}

void tst_TriggerOptionWidget::applyWritesExpressionsAndMode()
{
    TriggerBench bench;
    bench.core.setExpression({QStringLiteral("M0"), QStringLiteral("M1")});
    bench.page();
    bench.expressions().item(1)->setText(QStringLiteral("M0^M1"));
    bench.mode().setCurrentIndex(1);
    bench.storage().setCurrentText(QStringLiteral("SSRAM"));
    bench.page().applyToCore();
    QCOMPARE(bench.core.expressions(), QStringList({QStringLiteral("M0"), QStringLiteral("M0^M1")}));
    QCOMPARE(bench.core.triggerMode(), 1);
    QCOMPARE(bench.core.triggerImplementation(), 2);
    QCOMPARE(bench.core.captureImplementation(), 0); // the capture's storage is another field
    bench.storage().setCurrentText(QStringLiteral("REG"));
    bench.page().applyToCore();
    QCOMPARE(bench.core.triggerImplementation(), 1);
    bench.storage().setCurrentText(QStringLiteral("BSRAM"));
    bench.page().applyToCore();
    QCOMPARE(bench.core.triggerImplementation(), 0);
}

void tst_TriggerOptionWidget::applyInDynamicModeDropsGreyExpressionsAndDisablesHighUnits()
{
    TriggerBench bench;
    bench.core.setExpression({QStringLiteral("M11"), QStringLiteral("M1"), QStringLiteral("M1&M10")});
    for (VAK::MatchUnit *unit : bench.core.allMatchUnits())
        unit->setEnabled(true);
    bench.mode().setCurrentIndex(1);
    bench.page().applyToCore();
    QCOMPARE(bench.core.expressions(), QStringList{QStringLiteral("M1")});
    QCOMPARE(bench.core.enabledMatchUnits(), bench.core.allMatchUnits().mid(0, 10));
    QCOMPARE(bench.expressionTexts().size(), 3); // still shown
}

void tst_TriggerOptionWidget::applyInStaticModeLeavesTheStorage()
{
    TriggerBench bench;
    bench.core.setTriggerMode(VAK::DynamicTrigger);
    bench.core.setTriggerImplementation(VAK::RegImplementation);
    bench.core.matchUnit(15)->setEnabled(true);
    bench.mode().setCurrentIndex(0);
    bench.storage().setCurrentIndex(0);
    bench.page().applyToCore();
    QCOMPARE(bench.core.triggerMode(), 0);
    QCOMPARE(bench.core.triggerImplementation(), 1);
    QVERIFY(bench.core.matchUnit(15)->isEnabled());
}

void tst_TriggerOptionWidget::nothingReachesTheCoreBeforeApply()
{
    TriggerBench bench;
    bench.core.setExpression({QStringLiteral("M12")});
    bench.core.matchUnit(12)->setEnabled(true);
    bench.mode().setCurrentIndex(1);
    QCOMPARE(bench.core.triggerMode(), 0);
    QCOMPARE(bench.core.expressions(), QStringList{QStringLiteral("M12")});
    QVERIFY(bench.core.matchUnit(12)->isEnabled());
}

void tst_TriggerOptionWidget::deviceChangeRefillsTheStorage()
{
    TriggerBench bench;
    bench.core.setTriggerMode(VAK::DynamicTrigger);
    bench.core.setTriggerImplementation(VAK::SsramImplementation);
    QCOMPARE(bench.usage(), QStringLiteral("SSRAM Usage : 0/48"));
    support::setCapacity({20, 0, 1000});
    fakes::publish(QStringLiteral("TE.Device.Change"));
    QCOMPARE(support::modelTexts(*bench.storage().model()),
             QStringList({QStringLiteral("BSRAM"), QStringLiteral("REG")}));
    QCOMPARE(bench.usage(), QStringLiteral("BSRAM Usage : 0/20"));
    bench.storage().setCurrentText(QStringLiteral("REG"));
    support::setCapacity({20, 48, 500});
    fakes::publish(QStringLiteral("TE.Device.Change"));
    QCOMPARE(bench.storage().currentText(), QStringLiteral("REG"));
    QCOMPARE(bench.storage().count(), 3);
    QCOMPARE(bench.usage(), QStringLiteral("Register Usage : 0/500"));
}

void tst_TriggerOptionWidget::otherEventsAreIgnored()
{
    TriggerBench bench;
    bench.core.setTriggerMode(VAK::DynamicTrigger);
    bench.page();
    support::setCapacity({20, 0, 1000});
    QCOMPARE(fakes::subscriptionCount(), 1);
    for (const char *type : {"te.device.change", "TE.Option.Change"})
        bench.page().handleIEvent(std::make_unique<QUtil::IEvent>(QLatin1String(type)).get());
    QCOMPARE(bench.usage(), QStringLiteral("BSRAM Usage : 0/12"));
    QCOMPARE(bench.storage().count(), 3);
}

void tst_TriggerOptionWidget::pageThatDiesUnderItsDialog()
{
    fakes::resetEvents();
    VAK::AoCore core(0);
    core.setExpression({QStringLiteral("M0")});
    support::DialogDriver driver;
    for (const char *action : {"Add", "edit", "port", "unit"}) {
        QPointer<RTLVAK::TriggerOptionWidget> page = new RTLVAK::TriggerOptionWidget(&core, nullptr);
        driver.answerDialog([&page](QDialog &) { delete page.data(); });
        if (qstrcmp(action, "Add") == 0) {
            page->show();
            auto &list = support::child<QListWidget>(*page, "listExpression");
            QTest::mouseDClick(list.viewport(), Qt::LeftButton, Qt::NoModifier,
                               QPoint(5, list.viewport()->height() - 2));
        } else if (qstrcmp(action, "edit") == 0) {
            auto &list = support::child<QListWidget>(*page, "listExpression");
            QMetaObject::invokeMethod(page.data(), "editExpression", Q_ARG(QListWidgetItem *, list.item(0)));
        } else if (qstrcmp(action, "port") == 0) {
            auto &ports = support::child<QTreeWidget>(*page, "treeTrigger");
            QMetaObject::invokeMethod(page.data(), "editTrigger", Q_ARG(QTreeWidgetItem *, ports.topLevelItem(0)),
                                      Q_ARG(int, 0));
        } else {
            auto &units = support::child<QTableView>(*page, "tableMu");
            QMetaObject::invokeMethod(page.data(), "editMatchUnit", Q_ARG(QModelIndex, units.model()->index(0, 0)));
        }
        QVERIFY2(!page, action);
    }
}

void tst_TriggerOptionWidget::pageThatDiesUnderItsMenu()
{
    fakes::resetEvents();
    VAK::AoCore core(0);
    const QPointer<RTLVAK::TriggerOptionWidget> page = new RTLVAK::TriggerOptionWidget(&core, nullptr);
    support::DialogDriver driver;
    driver.actOnMenu([page](QMenu &) { delete page.data(); });
    QMetaObject::invokeMethod(page.data(), "showExpListContextMenu", Q_ARG(QPoint, QPoint(5, 5)));
    QVERIFY(!page);
}

void tst_TriggerOptionWidget::pageThatDiesUnderItsWarning()
{
    fakes::resetEvents();
    VAK::AoCore core(0);
    QStringList full;
    while (full.size() < 16)
        full.append(QStringLiteral("M0"));
    core.setExpression(full);
    support::DialogDriver driver;

    QPointer<RTLVAK::TriggerOptionWidget> page = new RTLVAK::TriggerOptionWidget(&core, nullptr);
    driver.chooseFromMenu(QStringLiteral("Add"));
    driver.actOnBox([&page](QMessageBox &) { delete page.data(); });
    QMetaObject::invokeMethod(page.data(), "showExpListContextMenu", Q_ARG(QPoint, QPoint(5, 5)));
    QVERIFY(!page);

    page = new RTLVAK::TriggerOptionWidget(&core, nullptr);
    page->resize(900, 700); // room below the sixteenth row
    page->show();
    const auto &list = support::child<QListWidget>(*page, "listExpression");
    driver.actOnBox([&page](QMessageBox &) { delete page.data(); });
    QTest::mouseDClick(list.viewport(), Qt::LeftButton, Qt::NoModifier, QPoint(5, list.viewport()->height() - 2));
    QVERIFY(!page);
}

QTEST_MAIN(tst_TriggerOptionWidget)
#include "tst_triggeroptionwidget.moc"

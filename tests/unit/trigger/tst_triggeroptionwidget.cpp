// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "triggerpage.h"

#include "trigger/muexpressiondialog.h"
#include "trigger/triggerportdialog.h"

#include "signals/signaltreewidget.h"

#include "tests/fakes/fakedesign.h"
#include "tests/fakes/fakeevents.h"
#include "tests/support/doubles.h"
#include "tests/support/scriptedresources.h"

#include <QUtility/ievent.h>
#include <VakUtils/matchunit.h>
#include <VakUtils/matchunitdialog.h>
#include <VakUtils/triggerport.h>

#include <QGroupBox>
#include <QHeaderView>
#include <QPushButton>
#include <QtTest>

class tst_TriggerOptionWidget : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void slotsStandInTheirOrder();
    void formTextsAndStyles();
    void portsAndTheirSignals();
    void portToolTipSaysHowManyInputsItHas();
    void missingTriggerSignalsAreRed();
    void portRowDoesNotExpandOnDoubleClick();
    void anyRowBelowAPortEditsThatPort_data();
    void anyRowBelowAPortEditsThatPort();
    void acceptedPortIsShownCurrentAndExpanded();
    void cancelledPortDialogChangesNothing();
    void matchUnitTable();
    void dynamicModeShowsTenUnits();
    void acceptedUnitWithAPortIsEnabled();
    void acceptedUnitWithoutAPortStaysAsItIs();
    void cancelledUnitDialogChangesNothing();
    void staticCoreHidesTheDynamicSettings();
    void dynamicCoreShowsItsSettings_data();
    void dynamicCoreShowsItsSettings();
    void deviceWithoutShadowRamShowsBlockRamForAStoredShadowRam();
    void modeSwitchShowsAndHidesTheSettings();
    void modeBoxExplainsItself();
    void expressionsOfTheCoreAreShown();
    void menuAddsAnExpression();
    void removeIsOfferedForASelection();
    void removeDeletesEverySelectedRow();
    void doubleClickOnEmptyPlaceAddsAnExpression();
    void doubleClickOnARowEditsIt();
    void cancellingTheExpressionDialogKeepsTheText();
    void expressionDialogStartsEmptyAlsoWhenEditing();
    void sixteenExpressionsAreTheMost();
    void dynamicModeDisablesButtonsOfHighUnits();
    void highUnitsAreGreyInDynamicModeOnly();
    void usageTexts_data();
    void usageTexts();
    void usageFollowsEveryChange();
    void usageStaysInStaticMode();
    void applyWritesExpressionsAndMode();
    void applyInDynamicModeDropsGreyExpressionsAndDisablesHighUnits();
    void applyInStaticModeLeavesTheStorage();
    void nothingReachesTheCoreBeforeApply();
    void deviceChangeRefillsTheStorage();
    void otherEventsAreIgnored();
    void refreshShowsWhatThePortsHaveNow();
    void pageThatDiesUnderItsDialog();
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

void tst_TriggerOptionWidget::portsAndTheirSignals()
{
    TriggerBench bench;
    VAK::SignalItem renamed = single(QStringLiteral("clk"));
    renamed.displayName = QStringLiteral("my clock");
    bench.core.getTrigger(2)->setSignalNet({bus(QStringLiteral("data"), 2), renamed});
    QCOMPARE(bench.ports().topLevelItemCount(), 16);
    QCOMPARE(bench.ports().topLevelItem(0)->text(0), QStringLiteral("Trigger Port 0"));
    QCOMPARE(bench.ports().topLevelItem(15)->text(0), QStringLiteral("Trigger Port 15"));
    const QTreeWidgetItem *port = bench.ports().topLevelItem(2);
    QCOMPARE(port->type(), 1001);
    QCOMPARE(port->childCount(), 2);
    QCOMPARE(port->child(0)->type(), 1002);
    QCOMPARE(port->child(0)->child(1)->type(), 1002);
    QCOMPARE(port->child(0)->child(1)->text(0), QStringLiteral("data[0]"));
    QCOMPARE(port->child(1)->text(0), QStringLiteral("my clock"));
    QCOMPARE(port->child(1)->toolTip(0), QStringLiteral("my clock"));
    QVERIFY(port->child(1)->font(0).italic());
    QCOMPARE(port->child(1)->data(0, Qt::UserRole).value<VAK::SignalItem>(), renamed);
}

void tst_TriggerOptionWidget::portToolTipSaysHowManyInputsItHas()
{
    TriggerBench bench;
    bench.core.getTrigger(2)->setSignalNet({bus(QStringLiteral("data"), 8), single(QStringLiteral("clk"))});
    QVERIFY(bench.ports().topLevelItem(2)->toolTip(0).contains(QStringLiteral("9")));
    QVERIFY(bench.ports().topLevelItem(3)->toolTip(0).contains(QStringLiteral("0")));
}

void tst_TriggerOptionWidget::missingTriggerSignalsAreRed()
{
    TriggerBench bench;
    VAK::SignalItem gone = single(QStringLiteral("gone"));
    gone.present = false;
    VAK::SignalItem part = bus(QStringLiteral("data"), 2);
    part.members[1].present = false;
    bench.core.getTrigger(0)->setSignalNet({gone, part});
    const QTreeWidgetItem *port = bench.ports().topLevelItem(0);
    QCOMPARE(port->child(0)->foreground(0).color(), QColor(Qt::red));
    QCOMPARE(port->child(1)->foreground(0).color(), QColor(Qt::red)); // a bus without one of its bits
    QCOMPARE(port->child(1)->child(0)->foreground(0).color(), QColor(Qt::black));
    QCOMPARE(port->child(1)->child(1)->foreground(0).color(), QColor(Qt::red));
}

void tst_TriggerOptionWidget::portRowDoesNotExpandOnDoubleClick()
{
    TriggerBench bench;
    QVERIFY(!bench.ports().expandsOnDoubleClick());
}

void tst_TriggerOptionWidget::anyRowBelowAPortEditsThatPort_data()
{
    QTest::addColumn<int>("depth");
    QTest::newRow("the port") << 0;
    QTest::newRow("a signal") << 1;
    QTest::newRow("a bit of a bus") << 2;
}

void tst_TriggerOptionWidget::anyRowBelowAPortEditsThatPort()
{
    QFETCH(int, depth);
    TriggerBench bench;
    bench.core.getTrigger(1)->setSignalNet({single(QStringLiteral("rst"))});
    bench.core.getTrigger(3)->setSignalNet({bus(QStringLiteral("data"), 2)});
    QTreeWidgetItem *row = bench.ports().topLevelItem(3);
    bench.ports().expandAll();
    for (int level = 0; level < depth; ++level)
        row = row->child(0);
    support::DialogDriver driver;
    QStringList shown;
    driver.answerDialogOf<RTLVAK::TriggerPortDialog>([&shown](RTLVAK::TriggerPortDialog &dialog) {
        shown = support::topTexts(support::child<QTreeWidget>(dialog, "treeWidget"));
        dialog.reject();
    });
    support::doubleClickItem(bench.ports(), row);
    QCOMPARE(shown, QStringList{QStringLiteral("data[1:0]")});
}

void tst_TriggerOptionWidget::acceptedPortIsShownCurrentAndExpanded()
{
    TriggerBench bench;
    bench.core.getTrigger(4)->setSignalNet({single(QStringLiteral("rst"))});
    QTreeWidgetItem *port = bench.ports().topLevelItem(4);
    port->setExpanded(true);
    support::DialogDriver driver;
    driver.answerDialogOf<RTLVAK::TriggerPortDialog>([port, &bench](RTLVAK::TriggerPortDialog &dialog) {
        port->setExpanded(false);
        bench.ports().setCurrentItem(bench.ports().topLevelItem(0));
        support::child<RTLVAK::signalTreeWidget>(dialog, "treeWidget").appendSignal(single(QStringLiteral("clk")));
        dialog.accept();
    });
    support::doubleClickItem(bench.ports(), port->child(0));
    QCOMPARE(names(bench.core.getTrigger(4)->getSignalNet()),
             QStringList({QStringLiteral("rst"), QStringLiteral("clk")}));
    QCOMPARE(port->childCount(), 2);
    QCOMPARE(bench.ports().currentItem(), port);
    QVERIFY(port->isExpanded());
}

void tst_TriggerOptionWidget::cancelledPortDialogChangesNothing()
{
    TriggerBench bench;
    bench.core.getTrigger(0)->setSignalNet({single(QStringLiteral("clk"))});
    QSignalSpy spy(&bench.page(), &RTLVAK::TriggerOptionWidget::modified);
    support::DialogDriver driver;
    cancelDialog(driver);
    support::doubleClickItem(bench.ports(), bench.ports().topLevelItem(0));
    QCOMPARE(spy.count(), 0);
    QVERIFY(!bench.ports().topLevelItem(0)->isExpanded());
}

void tst_TriggerOptionWidget::matchUnitTable()
{
    TriggerBench bench;
    QCOMPARE(bench.units().model()->rowCount(), 16);
    QVERIFY(bench.units().isColumnHidden(1));
    QVERIFY(!bench.units().isColumnHidden(0));
    QVERIFY(bench.units().verticalHeader()->isHidden());
    QVERIFY(!bench.units().horizontalHeader()->highlightSections());
    QCOMPARE(bench.units().selectionBehavior(), QAbstractItemView::SelectRows);
    QCOMPARE(bench.units().selectionMode(), QAbstractItemView::SingleSelection);
    QCOMPARE(bench.units().horizontalScrollMode(), QAbstractItemView::ScrollPerPixel);
}

void tst_TriggerOptionWidget::dynamicModeShowsTenUnits()
{
    TriggerBench bench;
    bench.core.setTriggerMode(VAK::DynamicTrigger);
    QCOMPARE(bench.units().model()->rowCount(), 10);
    bench.mode().setCurrentIndex(0);
    QCOMPARE(bench.units().model()->rowCount(), 16);
    bench.mode().setCurrentIndex(1);
    QCOMPARE(bench.units().model()->rowCount(), 10);
    QCOMPARE(bench.units().model()->index(9, 0).data().toString(), QStringLiteral("M9"));
}

static void acceptUnit(support::DialogDriver &driver, const char *port)
{
    const QString text = QString::fromLatin1(port);
    driver.answerDialogOf<VAK::MatchUnitDialog>([text](VAK::MatchUnitDialog &dialog) {
        auto &ports = support::child<QComboBox>(dialog, "comboPort");
        for (int i = 0; i < ports.count(); ++i) {
            if (ports.itemText(i).startsWith(text))
                ports.setCurrentIndex(i);
        }
        dialog.accept();
    });
}

void tst_TriggerOptionWidget::acceptedUnitWithAPortIsEnabled()
{
    TriggerBench bench;
    bench.core.getTrigger(0)->setSignalNet({bus(QStringLiteral("data"), 4)});
    bench.page();
    support::DialogDriver driver;
    acceptUnit(driver, "Trigger Port 0");
    bench.doubleClickUnit(5);
    QCOMPARE(bench.core.matchUnit(5)->triggerPort(), bench.core.getTrigger(0));
    QVERIFY(bench.core.matchUnit(5)->isEnabled());
    QCOMPARE(bench.units().model()->index(5, 0).data(Qt::CheckStateRole).toInt(), int(Qt::Checked));
    QVERIFY(bench.units().model()->index(5, 2).data().toString().contains(QStringLiteral("Trigger Port 0")));
}

void tst_TriggerOptionWidget::acceptedUnitWithoutAPortStaysAsItIs()
{
    TriggerBench bench;
    QSignalSpy spy(&bench.page(), &RTLVAK::TriggerOptionWidget::modified);
    support::DialogDriver driver;
    acceptUnit(driver, "(none)");
    bench.doubleClickUnit(2);
    QVERIFY(!bench.core.matchUnit(2)->isEnabled());
    QCOMPARE(spy.count(), 1);
}

void tst_TriggerOptionWidget::cancelledUnitDialogChangesNothing()
{
    TriggerBench bench;
    bench.core.matchUnit(1)->setTriggerPort(bench.core.getTrigger(0));
    QSignalSpy spy(&bench.page(), &RTLVAK::TriggerOptionWidget::modified);
    support::DialogDriver driver;
    cancelDialog(driver);
    bench.doubleClickUnit(1);
    QVERIFY(!bench.core.matchUnit(1)->isEnabled());
    QCOMPARE(spy.count(), 0);
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

void tst_TriggerOptionWidget::expressionsOfTheCoreAreShown()
{
    TriggerBench bench;
    bench.core.setExpression({QStringLiteral("M0&M1"), QStringLiteral("M12"), QStringLiteral("M0&M1")});
    QCOMPARE(bench.expressionTexts(), bench.core.expressions());
    QCOMPARE(bench.expressionColours().join(u' '), QStringLiteral("black black black"));
}

void tst_TriggerOptionWidget::menuAddsAnExpression()
{
    TriggerBench bench;
    bench.core.setExpression({QStringLiteral("M0")});
    bench.page();
    support::DialogDriver driver;
    driver.chooseFromMenu(QStringLiteral("Add"));
    composeExpression(driver, {"btnM1", "btnOR", "btnM2"});
    bench.askForMenu();
    QCOMPARE(driver.menus().at(0).texts, QStringList({QStringLiteral("Add"), QStringLiteral("Remove")}));
    QCOMPARE(bench.expressionTexts(), QStringList({QStringLiteral("M0"), QStringLiteral("M1|M2")}));
    QVERIFY(bench.expressions().item(1)->data(Qt::ForegroundRole).isValid());
    QCOMPARE(bench.expressionColours().constLast(), QStringLiteral("black"));
    QVERIFY(bench.core.expressions().size() == 1);
}

void tst_TriggerOptionWidget::removeIsOfferedForASelection()
{
    TriggerBench bench;
    bench.core.setExpression({QStringLiteral("M0"), QStringLiteral("M1")});
    bench.page();
    support::DialogDriver driver;
    driver.dismissMenu();
    bench.askForMenu();
    QCOMPARE(driver.menus().at(0).enabledTexts, QStringList{QStringLiteral("Add")});
    bench.expressions().item(1)->setSelected(true);
    driver.dismissMenu();
    bench.askForMenu();
    QCOMPARE(driver.menus().at(1).enabledTexts, QStringList({QStringLiteral("Add"), QStringLiteral("Remove")}));
}

void tst_TriggerOptionWidget::removeDeletesEverySelectedRow()
{
    TriggerBench bench;
    bench.core.setExpression({QStringLiteral("M0"), QStringLiteral("M1"), QStringLiteral("M2")});
    bench.expressions().item(0)->setSelected(true);
    bench.expressions().item(2)->setSelected(true);
    support::DialogDriver driver;
    driver.chooseFromMenu(QStringLiteral("Remove"));
    bench.askForMenu();
    QCOMPARE(bench.expressionTexts(), QStringList{QStringLiteral("M1")});
}

void tst_TriggerOptionWidget::doubleClickOnEmptyPlaceAddsAnExpression()
{
    TriggerBench bench;
    bench.core.setExpression({QStringLiteral("M0")});
    bench.page();
    support::DialogDriver driver;
    composeExpression(driver, {"btnM3"});
    bench.doubleClickEmptyPlace();
    QCOMPARE(bench.expressionTexts(), QStringList({QStringLiteral("M0"), QStringLiteral("M3")}));
    cancelDialog(driver);
    bench.doubleClickEmptyPlace();
    QCOMPARE(bench.expressionTexts().size(), 2);
}

void tst_TriggerOptionWidget::doubleClickOnARowEditsIt()
{
    TriggerBench bench;
    bench.core.setExpression({QStringLiteral("M0"), QStringLiteral("M1")});
    bench.page();
    support::DialogDriver driver;
    composeExpression(driver, {"btnNOT", "btnM5"});
    bench.doubleClickExpression(0);
    QCOMPARE(bench.expressionTexts(), QStringList({QStringLiteral("!M5"), QStringLiteral("M1")}));
    QCOMPARE(driver.shownCount(), 1);
}

void tst_TriggerOptionWidget::cancellingTheExpressionDialogKeepsTheText()
{
    TriggerBench bench;
    bench.core.setExpression({QStringLiteral("M0")});
    QSignalSpy spy(&bench.page(), &RTLVAK::TriggerOptionWidget::modified);
    support::DialogDriver driver;
    cancelDialog(driver);
    bench.doubleClickExpression(0);
    QCOMPARE(bench.expressionTexts(), QStringList{QStringLiteral("M0")});
    QCOMPARE(spy.count(), 0);
}

void tst_TriggerOptionWidget::expressionDialogStartsEmptyAlsoWhenEditing()
{
    TriggerBench bench;
    bench.core.setExpression({QStringLiteral("M0&M1")});
    bench.page();
    support::DialogDriver driver;
    QString shown = QStringLiteral("nothing asked");
    driver.answerDialogOf<RTLVAK::MuExpressionDialog>([&shown](RTLVAK::MuExpressionDialog &dialog) {
        shown = dialog.expression();
        dialog.reject();
    });
    bench.doubleClickExpression(0);
    QCOMPARE(shown, QString());
}

void tst_TriggerOptionWidget::sixteenExpressionsAreTheMost()
{
    TriggerBench bench;
    QStringList full;
    for (int i = 0; i < 16; ++i)
        full.append(QStringLiteral("M%1").arg(i));
    bench.core.setExpression(full);
    QSignalSpy spy(&bench.page(), &RTLVAK::TriggerOptionWidget::modified);
    bench.page().resize(900, 700); // room below the sixteenth row
    support::DialogDriver driver;
    driver.chooseFromMenu(QStringLiteral("Add"));
    driver.answerBox(QMessageBox::Ok);
    bench.askForMenu();
    driver.answerBox(QMessageBox::Ok);
    bench.doubleClickEmptyPlace();
    QCOMPARE(driver.boxes().size(), 2);
    QCOMPARE(driver.boxes().at(0).title, QStringLiteral("Warning"));
    QCOMPARE(driver.boxes().at(1).title, QStringLiteral("Error"));
    for (const support::BoxRecord &box : driver.boxes()) {
        QCOMPARE(box.text, QStringLiteral("Support 16 expressions at most."));
        QCOMPARE(box.icon, QMessageBox::Warning);
    }
    QCOMPARE(bench.expressionTexts(), full);
    QCOMPARE(spy.count(), 0);
    composeExpression(driver, {"btnM0", "btnAND", "btnM1"});
    bench.doubleClickExpression(15);
    QCOMPARE(bench.expressionTexts().constLast(), QStringLiteral("M0&M1"));
}

static QStringList disabledUnits(TriggerBench &bench)
{
    QStringList disabled;
    support::DialogDriver driver;
    driver.answerDialog([&disabled](QDialog &dialog) {
        for (int unit = 0; unit < 16; ++unit) {
            const QString name = QStringLiteral("btnM%1").arg(unit);
            if (!dialog.findChild<QPushButton *>(name)->isEnabled())
                disabled.append(name);
        }
        dialog.reject();
    });
    bench.doubleClickEmptyPlace();
    return disabled;
}

void tst_TriggerOptionWidget::dynamicModeDisablesButtonsOfHighUnits()
{
    TriggerBench bench;
    QCOMPARE(disabledUnits(bench), QStringList());
    bench.mode().setCurrentIndex(1);
    QCOMPARE(disabledUnits(bench),
             QStringList({QStringLiteral("btnM10"), QStringLiteral("btnM11"), QStringLiteral("btnM12"),
                          QStringLiteral("btnM13"), QStringLiteral("btnM14"), QStringLiteral("btnM15")}));
}

void tst_TriggerOptionWidget::highUnitsAreGreyInDynamicModeOnly()
{
    TriggerBench bench;
    bench.core.setExpression({QStringLiteral("M1"), QStringLiteral("M1&M10"), QStringLiteral("M11")});
    bench.mode().setCurrentIndex(1);
    QCOMPARE(bench.expressionColours().join(u' '), QStringLiteral("black grey grey"));
    QCOMPARE(bench.expressions().item(0)->toolTip(), QString());
    QCOMPARE(bench.expressions().item(1)->toolTip(), QStringLiteral("M10 to M15 are not available in Dynamic mode"));
    bench.mode().setCurrentIndex(0);
    QCOMPARE(bench.expressionColours().join(u' '), QStringLiteral("black black black"));
    QCOMPARE(bench.expressions().item(1)->toolTip(), QString());
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

void tst_TriggerOptionWidget::refreshShowsWhatThePortsHaveNow()
{
    TriggerBench bench;
    bench.core.getTrigger(0)->setSignalNet({single(QStringLiteral("clk")), single(QStringLiteral("rst"))});
    bench.core.matchUnit(0)->setTriggerPort(bench.core.getTrigger(0));
    bench.ports().topLevelItem(0)->setExpanded(true);
    bench.core.getTrigger(0)->setSignalNet({single(QStringLiteral("spare"))});
    bench.page().refreshTriggerPorts();
    QCOMPARE(bench.ports().topLevelItemCount(), 16);
    QCOMPARE(bench.ports().topLevelItem(0)->childCount(), 1);
    QCOMPARE(bench.ports().topLevelItem(0)->child(0)->text(0), QStringLiteral("spare"));
    QCOMPARE(bench.units().model()->index(0, 1).data().toString(), QStringLiteral("spare"));
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

QTEST_MAIN(tst_TriggerOptionWidget)
#include "tst_triggeroptionwidget.moc"

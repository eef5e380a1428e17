// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "trigger/triggerportdialog.h"

#include "signals/signaltreewidget.h"

#include "tests/support/doubles.h"
#include "tests/support/receivers.h"
#include "tests/support/signalfixtures.h"
#include "tests/support/widgethelpers.h"

#include <VakUtils/triggerport.h>

#include <QAbstractButton>
#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QtTest>

using RTLVAK::TriggerPortDialog;

class tst_TriggerPortDialog : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void slotsStandInTheirOrder();
    void selectionSlotIsConnectedOnce();
    void looksAsItShould();
    void showsTheSignalsOfThePort();
    void missingSignalsAreRed();
    void addAppendsSinglesThenBuses();
    void addSelectsWhatIsNew();
    void signalThatIsThereAlreadyIsNotAddedTwice();
    void cancellingTheSignalSearchAddsNothing();
    void addWithoutANetlist();
    void selectedMemberDisablesRemove();
    void removeDeletesEverySelectedEntry();
    void exactly64InputsAreAccepted();
    void moreThan64InputsAreRefused();
    void busCountsItsMembersAndANetOne();
    void inactiveRowsCountAsInputs();
    void emptyListLeavesThePortWithoutSignals();
    void cancelLeavesThePortUntouched();
    void countFollowsGroupingAndAdding();
    void menuIsAllowed();
    void parentThatDiesUnderTheSearchTakesTheDialogAlong();
    void dialogMayGoUnderItsWarning();
};

static RTLVAK::signalTreeWidget &tree(const TriggerPortDialog &dialog)
{
    return support::child<RTLVAK::signalTreeWidget>(dialog, "treeWidget");
}

static void press(const TriggerPortDialog &dialog, QDialogButtonBox::StandardButton button)
{
    support::child<QDialogButtonBox>(dialog, "buttonBox").button(button)->click();
}

static QString inputs(const TriggerPortDialog &dialog)
{
    return support::child<QLabel>(dialog, "labelInputs").text();
}

void tst_TriggerPortDialog::initTestCase()
{
    QCOMPARE(support::missingDoubles(), QString());
}

void tst_TriggerPortDialog::slotsStandInTheirOrder()
{
    QCOMPARE(support::ownSlots(TriggerPortDialog::staticMetaObject),
             QStringList({QStringLiteral("accept()"), QStringLiteral("onAdd()"), QStringLiteral("onRemove()"),
                          QStringLiteral("on_treeWidget_itemSelectionChanged()")}));
}

void tst_TriggerPortDialog::selectionSlotIsConnectedOnce()
{
    VAK::TriggerPort port(0);
    const TriggerPortDialog dialog(&port, nullptr);
    const QStringList receivers = support::receiversOf(tree(dialog), QStringLiteral("itemSelectionChanged()"));
    QCOMPARE(receivers.size(), 1);
    QVERIFY(receivers.constFirst().contains(QStringLiteral("on_treeWidget_itemSelectionChanged()")));
}

void tst_TriggerPortDialog::looksAsItShould()
{
    VAK::TriggerPort port(0);
    const TriggerPortDialog dialog(&port, nullptr);
    QCOMPARE(dialog.windowTitle(), QStringLiteral("Trigger Port"));
    QCOMPARE(tree(dialog).styleSheet(), QStringLiteral("QTreeWidget::item { height: 20px;}"));
    QCOMPARE(tree(dialog).textElideMode(), Qt::ElideMiddle);
    QCOMPARE(support::child<QLabel>(dialog, "label_6").text(), QStringLiteral("MSB"));
    QCOMPARE(support::child<QLabel>(dialog, "label_7").text(), QStringLiteral("LSB"));
    const auto &add = support::child<QAbstractButton>(dialog, "btnAdd");
    const auto &remove = support::child<QAbstractButton>(dialog, "btnRemove");
    QCOMPARE(add.text(), QStringLiteral("Add Signals"));
    QCOMPARE(add.toolTip(), QStringLiteral("Add Signals"));
    QCOMPARE(remove.text(), QStringLiteral("Remove"));
    QCOMPARE(remove.toolTip(), QStringLiteral("Remove"));
    QVERIFY(!add.icon().isNull());
    QVERIFY(!add.icon().availableSizes().isEmpty());
    QVERIFY(!remove.icon().availableSizes().isEmpty());
    QVERIFY(!remove.isEnabled());
}

void tst_TriggerPortDialog::showsTheSignalsOfThePort()
{
    VAK::TriggerPort port(3);
    port.setSignalNet({bus(QStringLiteral("data"), 2), single(QStringLiteral("clk"))});
    const TriggerPortDialog dialog(&port, nullptr);
    QCOMPARE(support::allTexts(tree(dialog)), QStringList({QStringLiteral("data[1:0]"), QStringLiteral("  data[1]"),
                                                           QStringLiteral("  data[0]"), QStringLiteral("clk")}));
    QCOMPARE(inputs(dialog), QStringLiteral("3 / 64 inputs"));
}

void tst_TriggerPortDialog::missingSignalsAreRed()
{
    VAK::TriggerPort port(0);
    VAK::SignalItem gone = single(QStringLiteral("gone"));
    gone.present = false;
    port.setSignalNet({gone});
    const TriggerPortDialog dialog(&port, nullptr);
    QCOMPARE(tree(dialog).topLevelItem(0)->foreground(0).color(), QColor(Qt::red));
}

void tst_TriggerPortDialog::addAppendsSinglesThenBuses()
{
    const auto netlist = makeDesign();
    VAK::TriggerPort port(0);
    port.setSignalNet({single(QStringLiteral("spare"))});
    const TriggerPortDialog dialog(&port, netlist.get());
    support::DialogDriver driver;
    chooseNets(driver, QStringLiteral("*a*"));
    support::clickButton(dialog, "btnAdd");
    QCOMPARE(support::topTexts(tree(dialog)),
             QStringList({QStringLiteral("spare"), QStringLiteral("u_core/halt"), QStringLiteral("data[7:0]")}));
    QCOMPARE(port.getSignalNet().size(), 1); // nothing reaches the port before OK
}

void tst_TriggerPortDialog::addSelectsWhatIsNew()
{
    const auto netlist = makeDesign();
    VAK::TriggerPort port(0);
    port.setSignalNet({single(QStringLiteral("spare"))});
    const TriggerPortDialog dialog(&port, netlist.get());
    support::DialogDriver driver;
    chooseNets(driver, QStringLiteral("*a*"));
    support::clickButton(dialog, "btnAdd");
    QVERIFY(!tree(dialog).topLevelItem(0)->isSelected());
    QVERIFY(tree(dialog).topLevelItem(1)->isSelected());
    QVERIFY(tree(dialog).topLevelItem(2)->isSelected());
    QVERIFY(support::child<QAbstractButton>(dialog, "btnRemove").isEnabled());
}

void tst_TriggerPortDialog::signalThatIsThereAlreadyIsNotAddedTwice()
{
    const auto netlist = makeDesign();
    VAK::TriggerPort port(0);
    VAK::SignalItem known = single(QStringLiteral("clk"));
    known.present = false;
    known.displayName = QStringLiteral("my clock");
    port.setSignalNet({known});
    const TriggerPortDialog dialog(&port, netlist.get());
    support::DialogDriver driver;
    chooseNets(driver, QStringLiteral("clk"));
    support::clickButton(dialog, "btnAdd");
    QCOMPARE(support::topTexts(tree(dialog)), QStringList{QStringLiteral("my clock")});
    QVERIFY(tree(dialog).signalItems().at(0).present);
}

void tst_TriggerPortDialog::cancellingTheSignalSearchAddsNothing()
{
    VAK::TriggerPort port(0);
    const TriggerPortDialog dialog(&port, nullptr);
    support::DialogDriver driver;
    driver.answerDialog([](QDialog &search) { search.reject(); });
    support::clickButton(dialog, "btnAdd");
    QCOMPARE(tree(dialog).topLevelItemCount(), 0);
}

void tst_TriggerPortDialog::addWithoutANetlist()
{
    VAK::TriggerPort port(0);
    const TriggerPortDialog dialog(&port, nullptr);
    support::DialogDriver driver;
    chooseNets(driver, QStringLiteral("*"));
    support::clickButton(dialog, "btnAdd");
    QCOMPARE(tree(dialog).topLevelItemCount(), 0);
}

void tst_TriggerPortDialog::selectedMemberDisablesRemove()
{
    VAK::TriggerPort port(0);
    port.setSignalNet({bus(QStringLiteral("data"), 2), single(QStringLiteral("clk"))});
    const TriggerPortDialog dialog(&port, nullptr);
    const auto &remove = support::child<QAbstractButton>(dialog, "btnRemove");
    tree(dialog).topLevelItem(0)->setSelected(true);
    tree(dialog).topLevelItem(1)->setSelected(true);
    QVERIFY(remove.isEnabled());
    tree(dialog).topLevelItem(0)->child(1)->setSelected(true);
    QVERIFY(!remove.isEnabled());
    tree(dialog).clearSelection();
    QVERIFY(!remove.isEnabled());
}

void tst_TriggerPortDialog::removeDeletesEverySelectedEntry()
{
    VAK::TriggerPort port(0);
    port.setSignalNet({single(QStringLiteral("a")), bus(QStringLiteral("data"), 2), single(QStringLiteral("b"))});
    const TriggerPortDialog dialog(&port, nullptr);
    tree(dialog).topLevelItem(0)->setSelected(true);
    tree(dialog).topLevelItem(1)->setSelected(true);
    support::clickButton(dialog, "btnRemove");
    QCOMPARE(support::topTexts(tree(dialog)), QStringList{QStringLiteral("b")});
    QCOMPARE(inputs(dialog), QStringLiteral("1 / 64 inputs"));
    QVERIFY(!support::child<QAbstractButton>(dialog, "btnRemove").isEnabled());
}

void tst_TriggerPortDialog::exactly64InputsAreAccepted()
{
    VAK::TriggerPort port(0);
    TriggerPortDialog dialog(&port, nullptr);
    tree(dialog).appendSignal(bus(QStringLiteral("data"), 63));
    tree(dialog).appendSignal(single(QStringLiteral("clk")));
    support::DialogDriver driver;
    press(dialog, QDialogButtonBox::Ok);
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
    QCOMPARE(port.width(), 64);
    QCOMPARE(names(port.getSignalNet()), QStringList({QStringLiteral("data[62:0]"), QStringLiteral("clk")}));
}

void tst_TriggerPortDialog::moreThan64InputsAreRefused()
{
    VAK::TriggerPort port(0);
    port.setSignalNet({bus(QStringLiteral("data"), 64), single(QStringLiteral("clk"))});
    port.setSignalNet({single(QStringLiteral("old"))});
    TriggerPortDialog dialog(&port, nullptr);
    dialog.show();
    tree(dialog).appendSignal(bus(QStringLiteral("data"), 64));
    support::DialogDriver driver;
    driver.answerBox(QMessageBox::Ok);
    press(dialog, QDialogButtonBox::Ok);
    QCOMPARE(driver.boxes().size(), 1);
    QCOMPARE(driver.boxes().at(0).title, QStringLiteral("Warning"));
    QCOMPARE(driver.boxes().at(0).text, QStringLiteral("Support 64 signals at most."));
    QCOMPARE(driver.boxes().at(0).icon, QMessageBox::Warning);
    QVERIFY(dialog.isVisible());
    QCOMPARE(names(port.getSignalNet()), QStringList{QStringLiteral("old")});
    QCOMPARE(tree(dialog).topLevelItemCount(), 2);
    delete tree(dialog).topLevelItem(0);
    press(dialog, QDialogButtonBox::Ok);
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
    QCOMPARE(port.width(), 64);
}

void tst_TriggerPortDialog::busCountsItsMembersAndANetOne()
{
    VAK::TriggerPort port(0);
    port.setSignalNet({bus(QStringLiteral("data"), 32), single(QStringLiteral("clk"))});
    QCOMPARE(inputs(TriggerPortDialog(&port, nullptr)), QStringLiteral("33 / 64 inputs"));
    port.setSignalNet({bus(QStringLiteral("data"), 65)});
    QCOMPARE(inputs(TriggerPortDialog(&port, nullptr)), QStringLiteral("<font color = red>65</font> / 64 inputs"));
    port.setSignalNet({bus(QStringLiteral("data"), 64)});
    QCOMPARE(inputs(TriggerPortDialog(&port, nullptr)), QStringLiteral("64 / 64 inputs"));
}

void tst_TriggerPortDialog::inactiveRowsCountAsInputs()
{
    VAK::TriggerPort port(0);
    port.setSignalNet({bus(QStringLiteral("data"), 60, 0), bus(QStringLiteral("more"), 5)});
    TriggerPortDialog dialog(&port, nullptr);
    QCOMPARE(inputs(dialog), QStringLiteral("<font color = red>65</font> / 64 inputs"));
    support::DialogDriver driver;
    driver.answerBox(QMessageBox::Ok);
    press(dialog, QDialogButtonBox::Ok);
    QCOMPARE(driver.boxes().size(), 1);
}

void tst_TriggerPortDialog::emptyListLeavesThePortWithoutSignals()
{
    VAK::TriggerPort port(0);
    port.setSignalNet({single(QStringLiteral("clk"))});
    TriggerPortDialog dialog(&port, nullptr);
    tree(dialog).topLevelItem(0)->setSelected(true);
    support::clickButton(dialog, "btnRemove");
    press(dialog, QDialogButtonBox::Ok);
    QVERIFY(port.getSignalNet().isEmpty());
    QVERIFY(!port.isAvailable());
}

void tst_TriggerPortDialog::cancelLeavesThePortUntouched()
{
    VAK::TriggerPort port(0);
    port.setSignalNet({single(QStringLiteral("clk"))});
    TriggerPortDialog dialog(&port, nullptr);
    tree(dialog).appendSignal(single(QStringLiteral("rst")));
    press(dialog, QDialogButtonBox::Cancel);
    QCOMPARE(dialog.result(), int(QDialog::Rejected));
    QCOMPARE(names(port.getSignalNet()), QStringList{QStringLiteral("clk")});
}

void tst_TriggerPortDialog::countFollowsGroupingAndAdding()
{
    const auto netlist = makeDesign();
    VAK::TriggerPort port(0);
    port.setSignalNet({bus(QStringLiteral("data"), 8)});
    const TriggerPortDialog dialog(&port, netlist.get());
    tree(dialog).topLevelItem(0)->setSelected(true);
    tree(dialog).onSplit();
    QCOMPARE(inputs(dialog), QStringLiteral("8 / 64 inputs"));
    support::DialogDriver driver;
    chooseNets(driver, QStringLiteral("clk"));
    support::clickButton(dialog, "btnAdd");
    QCOMPARE(inputs(dialog), QStringLiteral("9 / 64 inputs"));
}

void tst_TriggerPortDialog::menuIsAllowed()
{
    VAK::TriggerPort port(0);
    port.setSignalNet({single(QStringLiteral("clk"))});
    TriggerPortDialog dialog(&port, nullptr);
    dialog.show();
    support::DialogDriver driver;
    driver.dismissMenu();
    QTest::mouseClick(tree(dialog).viewport(), Qt::RightButton, Qt::NoModifier, QPoint(20, 8));
    QTRY_COMPARE(driver.menus().size(), 1);
    QCOMPARE(driver.menus().at(0).texts.constFirst(), QStringLiteral("Ungroup"));
}

void tst_TriggerPortDialog::parentThatDiesUnderTheSearchTakesTheDialogAlong()
{
    VAK::TriggerPort port(0);
    const QPointer<TriggerPortDialog> dialog = new TriggerPortDialog(&port, nullptr);
    support::DialogDriver driver;
    driver.answerDialog([dialog](QDialog &) { delete dialog.data(); });
    QMetaObject::invokeMethod(dialog.data(), "onAdd");
    QVERIFY(!dialog);
}

void tst_TriggerPortDialog::dialogMayGoUnderItsWarning()
{
    VAK::TriggerPort port(0);
    port.setSignalNet({bus(QStringLiteral("data"), 65)});
    const QPointer<TriggerPortDialog> dialog = new TriggerPortDialog(&port, nullptr);
    support::DialogDriver driver;
    driver.actOnBox([dialog](QMessageBox &) { delete dialog.data(); });
    QMetaObject::invokeMethod(dialog.data(), "accept");
    QVERIFY(!dialog);
    QCOMPARE(port.width(), 65);
}

QTEST_MAIN(tst_TriggerPortDialog)
#include "tst_triggerportdialog.moc"

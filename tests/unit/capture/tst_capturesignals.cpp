// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "capturepage.h"

#include "signals/vaksignalselectdialog.h"
#include "trigger/triggersingalselectdialog.h"

#include "tests/support/doubles.h"
#include "tests/support/receivers.h"
#include "tests/support/signallog.h"

#include <VakUtils/triggerport.h>

#include <QCheckBox>
#include <QtTest>

using support::DialogDriver;

class tst_CaptureSignals : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void slotsStandInTheirOrder();
    void selectionSlotIsConnectedOnce();
    void chosenClockIsShown();
    void cancelledClockSearchChangesNothing();
    void clockFromABusIsItsFirstBit();
    void addedSignalsAreAppendedSinglesFirst();
    void addedSignalsLandAboveTheFirstDisabledSignal();
    void enabledSignalsMoveAboveDisabledOnesWhenAdding();
    void cancelledSearchAddsNothing();
    void addingIsLogged();
    void signalThatIsThereAlreadyIsBroughtUpToDateAndSelected();
    void addFromTriggerTakesSignalsOfCheckedPorts();
    void addFromTriggerKeepsTheFirstOfSeveralSameSignals();
    void addFromTriggerOffersOnlyPortsInUse();
    void removingIsImpossibleWhileABusMemberIsSelected();
    void removeDeletesTheSelectedSignals();
    void capturedAreEnabledAndActiveSignals();
    void nameStillBeingTypedIsApplied();
    void treeLooksAsItShould();
    void missingSignalsAreRedAndInactiveOnesGrey();
    void nullNetlistIsTolerated();
    void pageMayDieUnderItsDialogs_data();
    void pageMayDieUnderItsDialogs();
};

void tst_CaptureSignals::initTestCase()
{
    QCOMPARE(support::missingDoubles(), QString());
}

void tst_CaptureSignals::slotsStandInTheirOrder()
{
    const QMetaObject &metaObject = RTLVAK::CaptureOptionWidget::staticMetaObject;
    QCOMPARE(support::ownSignals(metaObject), QStringList{QStringLiteral("modified()")});
    QCOMPARE(support::ownSlots(metaObject),
             QStringList({QStringLiteral("onStorageChanged()"), QStringLiteral("onCapAmountChanged()"),
                          QStringLiteral("onSelectClock()"), QStringLiteral("onAddDataSignals()"),
                          QStringLiteral("onAddFromTrigger()"), QStringLiteral("onRemoveSignals()"),
                          QStringLiteral("onImplChanged()"), QStringLiteral("onWindowChanged()"),
                          QStringLiteral("on_treeWidgetCapSigs_itemSelectionChanged()"),
                          QStringLiteral("onCaptureSignalChange()")}));
}

void tst_CaptureSignals::selectionSlotIsConnectedOnce()
{
    CaptureBench bench;
    const QStringList receivers = support::receiversOf(bench.tree(), QStringLiteral("itemSelectionChanged()"));
    QCOMPARE(receivers.size(), 1);
    QVERIFY2(receivers.constFirst().contains(QStringLiteral("on_treeWidgetCapSigs_itemSelectionChanged()")),
             qPrintable(receivers.constFirst()));
}

void tst_CaptureSignals::chosenClockIsShown()
{
    CaptureBench bench;
    support::SignalLog log;
    log.watch(&bench.page(), &RTLVAK::CaptureOptionWidget::modified, QStringLiteral("modified"));
    DialogDriver driver;
    chooseNets(driver, QStringLiteral("clk"));
    support::clickButton(bench.page(), "btnSampleClock");
    QCOMPARE(bench.child<QLineEdit>("editSampleClock").text(), QStringLiteral("clk"));
    QCOMPARE(log.names().size(), 1);
}

void tst_CaptureSignals::cancelledClockSearchChangesNothing()
{
    CaptureBench bench;
    bench.core.setSampleClock(QStringLiteral("old"));
    support::SignalLog log;
    log.watch(&bench.page(), &RTLVAK::CaptureOptionWidget::modified, QStringLiteral("modified"));
    DialogDriver driver;
    driver.answerDialog([](QDialog &dialog) { dialog.reject(); });
    support::clickButton(bench.page(), "btnSampleClock");
    QCOMPARE(bench.child<QLineEdit>("editSampleClock").text(), QStringLiteral("old"));
    QCOMPARE(log.names(), QStringList());
}

void tst_CaptureSignals::clockFromABusIsItsFirstBit()
{
    CaptureBench bench;
    DialogDriver driver;
    chooseNets(driver, QStringLiteral("data*"));
    support::clickButton(bench.page(), "btnSampleClock");
    QCOMPARE(bench.child<QLineEdit>("editSampleClock").text(), QStringLiteral("data[7]"));
}

void tst_CaptureSignals::addedSignalsAreAppendedSinglesFirst()
{
    CaptureBench bench;
    bench.core.setallCapSignal({single(QStringLiteral("spare"))});
    DialogDriver driver;
    chooseNets(driver, QStringLiteral("*[ak]*"));
    support::clickButton(bench.page(), "btnAdd");
    QCOMPARE(support::topTexts(bench.tree()),
             QStringList({QStringLiteral("spare"), QStringLiteral("clk"), QStringLiteral("u_core/halt"),
                          QStringLiteral("data[7:0]")}));
    QCOMPARE(bench.tree().topLevelItem(3)->childCount(), 8);
}

void tst_CaptureSignals::addedSignalsLandAboveTheFirstDisabledSignal()
{
    CaptureBench bench;
    bench.core.setallCapSignal(
        {single(QStringLiteral("rst")), single(QStringLiteral("off"), 0), single(QStringLiteral("spare"), 0)});
    DialogDriver driver;
    chooseNets(driver, QStringLiteral("clk"));
    support::clickButton(bench.page(), "btnAdd");
    QCOMPARE(support::topTexts(bench.tree()), QStringList({QStringLiteral("rst"), QStringLiteral("clk"),
                                                           QStringLiteral("off"), QStringLiteral("spare")}));
    QCOMPARE(bench.tree().selectedItems(), QList<QTreeWidgetItem *>{bench.tree().topLevelItem(1)});
}

void tst_CaptureSignals::enabledSignalsMoveAboveDisabledOnesWhenAdding()
{
    CaptureBench bench;
    VAK::SignalItem unusable = single(QStringLiteral("grey"));
    unusable.enabled = false;
    bench.core.setallCapSignal({single(QStringLiteral("a"), 0), single(QStringLiteral("b")), unusable,
                                single(QStringLiteral("c")), single(QStringLiteral("d"), 0),
                                single(QStringLiteral("e"))});
    DialogDriver driver;
    chooseNets(driver, QStringLiteral("clk"));
    support::clickButton(bench.page(), "btnAdd");
    QCOMPARE(support::topTexts(bench.tree()).join(u' '), QStringLiteral("clk b c e a grey d"));
}

void tst_CaptureSignals::cancelledSearchAddsNothing()
{
    CaptureBench bench;
    support::SignalLog log;
    log.watch(&bench.page(), &RTLVAK::CaptureOptionWidget::modified, QStringLiteral("modified"));
    DialogDriver driver;
    driver.answerDialog([](QDialog &dialog) { dialog.reject(); });
    support::clickButton(bench.page(), "btnAdd");
    driver.answerDialog([](QDialog &dialog) { dialog.accept(); });
    support::clickButton(bench.page(), "btnAdd");
    QCOMPARE(bench.tree().topLevelItemCount(), 0);
    QCOMPARE(log.names(), QStringList());
}

void tst_CaptureSignals::addingIsLogged()
{
    CaptureBench bench;
    DialogDriver driver;
    chooseNets(driver, QStringLiteral("clk"));
    QTest::ignoreMessage(QtDebugMsg, "get infor from search");
    support::clickButton(bench.page(), "btnAdd");
}

void tst_CaptureSignals::signalThatIsThereAlreadyIsBroughtUpToDateAndSelected()
{
    CaptureBench bench;
    VAK::SignalItem known = single(QStringLiteral("clk"));
    known.present = false;
    known.displayName = QStringLiteral("my clock");
    bench.core.setallCapSignal({single(QStringLiteral("rst")), known});
    DialogDriver driver;
    chooseNets(driver, QStringLiteral("clk"));
    support::clickButton(bench.page(), "btnAdd");
    QCOMPARE(bench.tree().topLevelItemCount(), 2);
    QCOMPARE(bench.tree().selectedItems(), QList<QTreeWidgetItem *>{bench.tree().topLevelItem(1)});
    const VAK::SignalItem after = bench.tree().signalItems().at(1);
    QVERIFY(after.present);
    QCOMPARE(after.displayName, QStringLiteral("my clock"));
    QCOMPARE(bench.tree().topLevelItem(1)->foreground(0).color(), QColor(Qt::black));
}

static void pickPorts(DialogDriver &driver, const QList<int> &boxes)
{
    driver.answerDialogOf<RTLVAK::TriggerSingalSelectDialog>([boxes](RTLVAK::TriggerSingalSelectDialog &dialog) {
        const QList<QCheckBox *> offered = dialog.findChildren<QCheckBox *>();
        for (int box : boxes)
            offered.at(box)->setChecked(true);
        dialog.accept();
    });
}

void tst_CaptureSignals::addFromTriggerTakesSignalsOfCheckedPorts()
{
    CaptureBench bench;
    bench.core.getTrigger(2)->setSignalNet({bus(QStringLiteral("data"), 8), single(QStringLiteral("clk"))});
    bench.core.setallCapSignal({single(QStringLiteral("rst"), 0)});
    DialogDriver driver;
    pickPorts(driver, {0});
    support::clickButton(bench.page(), "btnAddFromTp");
    QCOMPARE(support::topTexts(bench.tree()),
             QStringList({QStringLiteral("clk"), QStringLiteral("data[7:0]"), QStringLiteral("rst")}));
}

void tst_CaptureSignals::addFromTriggerKeepsTheFirstOfSeveralSameSignals()
{
    CaptureBench bench;
    VAK::SignalItem first = single(QStringLiteral("clk"));
    first.displayName = QStringLiteral("first");
    VAK::SignalItem second = single(QStringLiteral("clk"));
    second.displayName = QStringLiteral("second");
    bench.core.getTrigger(0)->setSignalNet({first});
    bench.core.getTrigger(1)->setSignalNet({single(QStringLiteral("rst")), second});
    DialogDriver driver;
    pickPorts(driver, {0, 1});
    support::clickButton(bench.page(), "btnAddFromTp");
    QCOMPARE(support::topTexts(bench.tree()), QStringList({QStringLiteral("first"), QStringLiteral("rst")}));
}

void tst_CaptureSignals::addFromTriggerOffersOnlyPortsInUse()
{
    CaptureBench bench;
    bench.core.getTrigger(1)->setSignalNet({single(QStringLiteral("clk"))});
    bench.core.getTrigger(9)->setSignalNet({single(QStringLiteral("rst"))});
    DialogDriver driver;
    QStringList offered;
    driver.answerDialog([&offered](QDialog &dialog) {
        for (const QCheckBox *box : dialog.findChildren<QCheckBox *>())
            offered.append(box->text());
        dialog.reject();
    });
    support::clickButton(bench.page(), "btnAddFromTp");
    QCOMPARE(offered, QStringList({QStringLiteral("Trigger Port 1"), QStringLiteral("Trigger Port 9")}));
}

void tst_CaptureSignals::removingIsImpossibleWhileABusMemberIsSelected()
{
    CaptureBench bench;
    bench.core.setallCapSignal({bus(QStringLiteral("data"), 4), single(QStringLiteral("clk"))});
    const auto &remove = bench.child<QPushButton>("btnRemove");
    bench.tree().topLevelItem(1)->setSelected(true);
    QVERIFY(remove.isEnabled());
    bench.tree().topLevelItem(0)->child(2)->setSelected(true);
    QVERIFY(!remove.isEnabled());
    bench.tree().topLevelItem(0)->child(2)->setSelected(false);
    QVERIFY(remove.isEnabled());
    bench.tree().clearSelection();
    QVERIFY(!remove.isEnabled());
}

void tst_CaptureSignals::removeDeletesTheSelectedSignals()
{
    CaptureBench bench;
    bench.core.setallCapSignal(
        {single(QStringLiteral("a")), bus(QStringLiteral("data"), 4), single(QStringLiteral("b"))});
    bench.tree().topLevelItem(0)->setSelected(true);
    bench.tree().topLevelItem(1)->setSelected(true);
    support::clickButton(bench.page(), "btnRemove");
    QCOMPARE(support::topTexts(bench.tree()), QStringList{QStringLiteral("b")});
    QVERIFY(!bench.child<QPushButton>("btnRemove").isEnabled());
}

void tst_CaptureSignals::capturedAreEnabledAndActiveSignals()
{
    CaptureBench bench;
    VAK::SignalItem unusable = single(QStringLiteral("grey"));
    unusable.enabled = false;
    const QList<VAK::SignalItem> all{single(QStringLiteral("a")), single(QStringLiteral("off"), 0), unusable,
                                     bus(QStringLiteral("data"), 2)};
    bench.core.setallCapSignal(all);
    bench.page().applyToCore();
    QCOMPARE(bench.core.getallCapSignal(), all);
    QCOMPARE(bench.core.getDataSignal(), QList<VAK::SignalItem>({all.at(0), all.at(3)}));
}

void tst_CaptureSignals::nameStillBeingTypedIsApplied()
{
    CaptureBench bench;
    bench.core.setallCapSignal({single(QStringLiteral("clk"))});
    RTLVAK::signalTreeWidget &tree = bench.tree();
    tree.setCurrentItem(tree.topLevelItem(0));
    tree.onChangeName();
    tree.findChild<QLineEdit *>()->setText(QStringLiteral("shown so"));
    bench.page().applyToCore();
    QCOMPARE(bench.core.getallCapSignal().first().displayName, QStringLiteral("shown so"));
}

void tst_CaptureSignals::treeLooksAsItShould()
{
    CaptureBench bench;
    QCOMPARE(bench.tree().styleSheet(), QStringLiteral("QTreeWidget::item { height: 20px;}"));
    QCOMPARE(bench.tree().textElideMode(), Qt::ElideMiddle);
    QCOMPARE(bench.tree().selectionMode(), QAbstractItemView::ExtendedSelection);
    QCOMPARE(bench.tree().dragDropMode(), QAbstractItemView::InternalMove);
    QCOMPARE(bench.tree().defaultDropAction(), Qt::MoveAction);
    QVERIFY(bench.tree().dragEnabled());
    QVERIFY(!bench.tree().dragDropOverwriteMode());
    QVERIFY(!bench.tree().tabKeyNavigation());
    QCOMPARE(bench.tree().horizontalScrollMode(), QAbstractItemView::ScrollPerPixel);
    QCOMPARE(bench.child<QLabel>("label_6").text(), QStringLiteral("MSB"));
    QCOMPARE(bench.child<QLabel>("label_7").text(), QStringLiteral("LSB"));
}

void tst_CaptureSignals::missingSignalsAreRedAndInactiveOnesGrey()
{
    CaptureBench bench;
    VAK::SignalItem missing = single(QStringLiteral("gone"));
    missing.present = false;
    bench.core.setallCapSignal({single(QStringLiteral("clk")), missing, single(QStringLiteral("off"), 0)});
    QCOMPARE(bench.tree().topLevelItem(0)->foreground(0).color(), QColor(Qt::black));
    QCOMPARE(bench.tree().topLevelItem(1)->foreground(0).color(), QColor(Qt::red));
    QCOMPARE(bench.tree().topLevelItem(2)->foreground(0).color(), QColor(Qt::gray));
}

void tst_CaptureSignals::nullNetlistIsTolerated()
{
    CaptureBench bench;
    bench.netlist.reset();
    bench.page().refreshFromNetlist();
    DialogDriver driver;
    driver.answerDialogOf<RTLVAK::VakSignalSelectDialog>([](RTLVAK::VakSignalSelectDialog &dialog) {
        support::clickButton(dialog, "pushButtonSearch");
        support::clickButton(dialog, "btnAddAll");
        dialog.accept();
    });
    support::clickButton(bench.page(), "btnAdd");
    QCOMPARE(bench.tree().topLevelItemCount(), 0);
}

void tst_CaptureSignals::pageMayDieUnderItsDialogs_data()
{
    QTest::addColumn<QString>("slot");
    QTest::newRow("clock") << "onSelectClock";
    QTest::newRow("signals") << "onAddDataSignals";
    QTest::newRow("signals from the trigger") << "onAddFromTrigger";
}

void tst_CaptureSignals::pageMayDieUnderItsDialogs()
{
    QFETCH(QString, slot);
    VAK::AoCore core(0);
    const QPointer<RTLVAK::CaptureOptionWidget> page = new RTLVAK::CaptureOptionWidget(&core, nullptr);
    DialogDriver driver;
    driver.answerDialog([page](QDialog &) { delete page.data(); });
    QMetaObject::invokeMethod(page.data(), qPrintable(slot));
    QVERIFY(!page);
    QCOMPARE(driver.dialogs().size(), 1);
}

QTEST_MAIN(tst_CaptureSignals)
#include "tst_capturesignals.moc"

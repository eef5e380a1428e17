// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "capture/liteaooptionwidget.h"
#include "capture/litecaptureoptionwidget.h"

#include "signals/signaltreewidget.h"
#include "signals/vaksignalselectdialog.h"

#include "fakes/fakedesign.h"
#include "fakes/fakeevents.h"
#include "fakes/fakenetlist.h"
#include "support/dialogdriver.h"
#include "support/doubles.h"
#include "support/signallog.h"
#include "support/widgethelpers.h"

#include <VakUtils/aocorelite.h>
#include <netcatcher/rtlnetlist.h>

#include <QUtility/ievent.h>

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QtTest>

#include <memory>

using namespace RTLVAK;

static VAK::SignalItem single(const QString &name)
{
    VAK::SignalItem signalItem;
    signalItem.name = name;
    return signalItem;
}

static VAK::SignalItem bus(const QString &name, int bits)
{
    VAK::SignalItem signalItem = single(QStringLiteral("%1[%2:0]").arg(name).arg(bits - 1));
    signalItem.kind = 1;
    for (int bit = bits - 1; bit >= 0; --bit)
        signalItem.members.append(single(QStringLiteral("%1[%2]").arg(name).arg(bit)));
    return signalItem;
}

static VAK::SignalItem switchedOff(VAK::SignalItem signalItem)
{
    signalItem.active = 0;
    return signalItem;
}

/// Finds everything that is called `pattern`, takes it over and presses OK.
static void chooseSignals(VakSignalSelectDialog &dialog, const QString &pattern)
{
    support::child<QLineEdit>(dialog, "lineEditName").setText(pattern);
    support::clickButton(dialog, "pushButtonSearch");
    support::clickButton(dialog, "btnAddAll");
    dialog.accept();
}

class tst_LiteCaptureOptionWidget : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void methodsStandInTheFixedOrder();
    void pageHasOneTabAndOneSignal();
    void pageRelaysEachModification();
    void formTexts();
    void captureAmountsStartAtTwo();
    void loadsTheCore();
    void subscribesToTheDevice();
    void registerImplementationIsLookedUpAsLogic();
    void shadowRamImplementationIsSelected();
    void applyWritesEverything();
    void unofferedAmountLeavesTheCoreAlone();
    void applySortsCapturedSignals();
    void implementationListHasNoExtraBit_data();
    void implementationListHasNoExtraBit();
    void usageUsesTheLiteFunctions();
    void tooMuchIsShownRed();
    void inputRegisterFollowsInitialData_data();
    void inputRegisterFollowsInitialData();
    void uncheckingInitialDataFreesTheInputRegister();
    void inputRegisterFollowsTheImplementation();
    void modifiedCounts_data();
    void modifiedCounts();
    void choosingAClockTellsTwice();
    void cancelledClockChangesNothing();
    void removingTellsTwice();
    void addingTellsOnceAndStaysAboveInactive();
    void removeNeedsWholeSignals();
    void deviceChangeUpdatesListAndUsage();
    void otherEventsAreIgnored();
    void refreshMarksWhatIsGone();
    void refreshKeepsUnsavedEdits();
    void nullNetlistChangesNothing();
    void disablingASignalUpdatesListAndUsage();
    void signalsMoveAboveInactiveOnesAtTheStart();
    void pageMayDieUnderItsDialogs_data();
    void pageMayDieUnderItsDialogs();

private:
    std::unique_ptr<VAK::AOCore_Lite> core;
    std::unique_ptr<NETCATCHER::RtlNetlist> netlist;
};

template <class T>
static T &in(LiteCaptureOptionWidget &widget, const char *name)
{
    return support::child<T>(widget, name);
}

static signalTreeWidget &treeOf(LiteCaptureOptionWidget &widget)
{
    return in<signalTreeWidget>(widget, "treeWidgetSignal");
}

static QStringList offered(LiteCaptureOptionWidget &widget)
{
    return support::modelTexts(*in<QComboBox>(widget, "implementation").model());
}

void tst_LiteCaptureOptionWidget::initTestCase()
{
    QCOMPARE(support::missingDoubles(), QString());
}

void tst_LiteCaptureOptionWidget::init()
{
    fakes::resetDesign();
    fakes::resetEvents();
    fakes::setCurrentDevice("KXB-M8");
    fakes::Instance top("top");
    top.net("clk").net("clk2").net("irq").net("gone", fakes::Unusable).bus("data", 7, 0);
    netlist.reset(fakes::makeNetlist(top));

    core = std::make_unique<VAK::AOCore_Lite>(0);
    core->setSampleClock("clk");
    core->setCaptureAmount(64);
    core->setallCapSignal({bus("data", 8), single("irq")});
}

void tst_LiteCaptureOptionWidget::cleanup()
{
    core.reset();
    netlist.reset();
}

void tst_LiteCaptureOptionWidget::methodsStandInTheFixedOrder()
{
    QCOMPARE(support::ownMethods(LiteCaptureOptionWidget::staticMetaObject),
             QStringList({"modified()", "onCapAmountOrDataSigalChanged()", "onSelectClock()", "onAddDataSignals()",
                          "onRemoveSignals()", "onCapInitData()", "onImplementation()",
                          "on_treeWidgetSignal_itemSelectionChanged()", "onCaptureSignalChange()"}));
}

void tst_LiteCaptureOptionWidget::pageHasOneTabAndOneSignal()
{
    const LiteAoOptionWidget page(core.get(), nullptr);
    QCOMPARE(page.count(), 1);
    QCOMPARE(page.tabText(0), QString("Capture Options"));
    QCOMPARE(page.core(), core.get());
    QCOMPARE(support::ownMethods(LiteAoOptionWidget::staticMetaObject), QStringList("modified()"));
}

void tst_LiteCaptureOptionWidget::pageRelaysEachModification()
{
    LiteAoOptionWidget page(core.get(), netlist.get());
    support::SignalLog log;
    log.watch(&support::child<LiteCaptureOptionWidget>(page, "LiteCaptureOptionWidget"),
              &LiteCaptureOptionWidget::modified, "child");
    log.watch(&page, &LiteAoOptionWidget::modified, "page");
    support::child<QLineEdit>(page, "editSampleClock").setText("clk2");
    QCOMPARE(log.count("child"), 1);
    QCOMPARE(log.count("page"), 1);
}

void tst_LiteCaptureOptionWidget::formTexts()
{
    LiteCaptureOptionWidget widget(core.get(), netlist.get());
    QStringList texts;
    for (const QLabel *label : widget.findChildren<QLabel *>())
        texts.append(label->text());
    for (const char *text :
         {"Clock:", "Sample On:", "Capture Amount:", "VAK Implementation:", "BSRAM Usage :", "MSB", "LSB"})
        QVERIFY2(texts.contains(text), text);
    QStringList groups;
    for (const QGroupBox *group : widget.findChildren<QGroupBox *>())
        groups.append(group->title());
    for (const char *title : {"Capture Utilization", "Capture Signals"})
        QVERIFY2(groups.contains(title), title);
    QCOMPARE(in<QPushButton>(widget, "btnSampleClock").text(), QString("..."));
    QCOMPARE(in<QPushButton>(widget, "btnAdd").text(), QString("Add"));
    QCOMPARE(in<QPushButton>(widget, "btnRemove").text(), QString("Remove"));
    QCOMPARE(in<QRadioButton>(widget, "radioButtonRising").text(), QString("Rising"));
    QCOMPARE(in<QRadioButton>(widget, "radioButtonFalling").text(), QString("Falling"));
    QCOMPARE(in<QCheckBox>(widget, "enableInputRegCheckBox").text(), QString("Enable Capture Data Input Register"));
    QCOMPARE(in<QCheckBox>(widget, "capIniDataCheckBox").text(), QString("Capture Initial Data"));
    QVERIFY(!widget.findChild<QPushButton *>("btnAddFromTp"));
    QCOMPARE(treeOf(widget).styleSheet(), QString("QTreeWidget::item { height: 20px;}"));
    QCOMPARE(treeOf(widget).textElideMode(), Qt::ElideMiddle);
    QCOMPARE(treeOf(widget).selectionMode(), QAbstractItemView::ExtendedSelection);
    QCOMPARE(treeOf(widget).dragDropMode(), QAbstractItemView::InternalMove);
    QVERIFY(treeOf(widget).dragEnabled());
    QVERIFY(!treeOf(widget).tabKeyNavigation());
    QCOMPARE(treeOf(widget).horizontalScrollMode(), QAbstractItemView::ScrollPerPixel);
}

void tst_LiteCaptureOptionWidget::captureAmountsStartAtTwo()
{
    core->setCaptureAmount(2);
    LiteCaptureOptionWidget widget(core.get(), netlist.get());
    const QComboBox &amount = in<QComboBox>(widget, "comboCapAmount");
    QCOMPARE(amount.count(), 16);
    QCOMPARE(amount.itemText(0), QString("2"));
    QCOMPARE(amount.itemData(0), QVariant(2));
    QCOMPARE(amount.itemText(15), QString("65536"));
    QCOMPARE(amount.currentText(), QString("2"));
}

void tst_LiteCaptureOptionWidget::loadsTheCore()
{
    core->setSampleEdge(VAK::FallingEdge);
    core->setEnableInputRegister(true);
    LiteCaptureOptionWidget widget(core.get(), netlist.get());
    QCOMPARE(in<QLineEdit>(widget, "editSampleClock").text(), QString("clk"));
    QVERIFY(in<QRadioButton>(widget, "radioButtonFalling").isChecked());
    QCOMPARE(in<QComboBox>(widget, "comboCapAmount").currentText(), QString("64"));
    QVERIFY(in<QCheckBox>(widget, "enableInputRegCheckBox").isChecked());
    QVERIFY(!in<QCheckBox>(widget, "capIniDataCheckBox").isChecked());
    QCOMPARE(support::topTexts(treeOf(widget)), QStringList({"data[7:0]", "irq"}));
    QVERIFY(!in<QPushButton>(widget, "btnRemove").isEnabled());
}

void tst_LiteCaptureOptionWidget::subscribesToTheDevice()
{
    auto widget = std::make_unique<LiteCaptureOptionWidget>(core.get(), netlist.get());
    QCOMPARE(fakes::subscriptionsOf(widget.get()), QStringList("TE.Device.Change"));
    widget.reset();
    QCOMPARE(fakes::subscriptionCount(), 0);
}

void tst_LiteCaptureOptionWidget::registerImplementationIsLookedUpAsLogic()
{
    core->setCaptureAmount(2);
    core->setCaptureImplementation(VAK::RegImplementation);
    LiteCaptureOptionWidget widget(core.get(), netlist.get());
    QCOMPARE(offered(widget), QStringList({"BSRAM", "SSRAM", "REG"}));
    QCOMPARE(in<QComboBox>(widget, "implementation").currentText(), QString("BSRAM"));
    widget.applyToCore();
    QCOMPARE(core->captureImplementation(), int(VAK::BsramImplementation));
}

void tst_LiteCaptureOptionWidget::shadowRamImplementationIsSelected()
{
    core->setCaptureImplementation(VAK::SsramImplementation);
    LiteCaptureOptionWidget widget(core.get(), netlist.get());
    QCOMPARE(in<QComboBox>(widget, "implementation").currentText(), QString("SSRAM"));
}

void tst_LiteCaptureOptionWidget::applyWritesEverything()
{
    LiteCaptureOptionWidget widget(core.get(), netlist.get());
    in<QLineEdit>(widget, "editSampleClock").setText("clk2");
    in<QRadioButton>(widget, "radioButtonFalling").setChecked(true);
    in<QComboBox>(widget, "comboCapAmount").setCurrentText("2");
    in<QComboBox>(widget, "implementation").setCurrentText("REG");
    in<QCheckBox>(widget, "enableInputRegCheckBox").setChecked(true);
    widget.applyToCore();
    QCOMPARE(core->sampleClock(), QString("clk2"));
    QCOMPARE(core->sampleEdge(), int(VAK::FallingEdge));
    QCOMPARE(core->captureAmount(), 2);
    QCOMPARE(core->captureImplementation(), int(VAK::RegImplementation));
    QVERIFY(core->enableInputRegister());
    QVERIFY(!core->captureInitialData());

    in<QCheckBox>(widget, "capIniDataCheckBox").setChecked(true);
    widget.applyToCore();
    QVERIFY(core->captureInitialData());
    QVERIFY(!core->enableInputRegister());
}

void tst_LiteCaptureOptionWidget::unofferedAmountLeavesTheCoreAlone()
{
    core->setCaptureAmount(3);
    LiteCaptureOptionWidget widget(core.get(), netlist.get());
    QCOMPARE(in<QComboBox>(widget, "comboCapAmount").currentIndex(), -1);
    QVERIFY(in<QComboBox>(widget, "comboCapAmount").toolTip().contains("3"));
    widget.applyToCore();
    QCOMPARE(core->captureAmount(), 3);
}

void tst_LiteCaptureOptionWidget::applySortsCapturedSignals()
{
    core->setallCapSignal({single("irq"), switchedOff(bus("data", 8))});
    LiteCaptureOptionWidget widget(core.get(), netlist.get());
    widget.applyToCore();
    QCOMPARE(core->getallCapSignal().size(), 2);
    QCOMPARE(core->getDataSignal(), QList<VAK::SignalItem>({single("irq")}));
}

void tst_LiteCaptureOptionWidget::implementationListHasNoExtraBit_data()
{
    QTest::addColumn<QString>("device");
    QTest::addColumn<int>("bits");
    QTest::addColumn<QStringList>("list");

    QTest::newRow("shadow RAM, need 512") << "KXB-M8" << 8 << QStringList({"BSRAM", "SSRAM", "REG"});
    QTest::newRow("shadow RAM, need 576") << "KXB-M8" << 9 << QStringList({"BSRAM", "SSRAM"});
    QTest::newRow("no shadow RAM, need 512") << "KXB-S2" << 8 << QStringList({"BSRAM", "REG"});
    QTest::newRow("no shadow RAM, need 576") << "KXB-S2" << 9 << QStringList({"BSRAM"});
}

void tst_LiteCaptureOptionWidget::implementationListHasNoExtraBit()
{
    QFETCH(QString, device);
    QFETCH(int, bits);
    QFETCH(QStringList, list);
    fakes::setCurrentDevice(device);
    core->setallCapSignal({bus("data", bits)});
    LiteCaptureOptionWidget widget(core.get(), netlist.get());
    QCOMPARE(offered(widget), list);
}

void tst_LiteCaptureOptionWidget::usageUsesTheLiteFunctions()
{
    // 36 bits in 512 samples are one block; with a trigger mark beside each sample they would be two.
    core->setCaptureAmount(512);
    core->setallCapSignal({bus("data", 36)});
    LiteCaptureOptionWidget widget(core.get(), netlist.get());
    QCOMPARE(in<QLabel>(widget, "label_8").text(), QString("BSRAM Usage :"));
    QVERIFY2(in<QLabel>(widget, "label_9").text().startsWith("1/"), qPrintable(in<QLabel>(widget, "label_9").text()));

    in<QComboBox>(widget, "implementation").setCurrentText("SSRAM");
    QCOMPARE(in<QLabel>(widget, "label_8").text(), QString("SSRAM Usage :"));
    QVERIFY(in<QLabel>(widget, "label_9").text().contains(QString::number(512 / 16 * 36 / 4)));

    in<QComboBox>(widget, "comboCapAmount").setCurrentText("8");
    in<QComboBox>(widget, "implementation").setCurrentText("REG");
    QCOMPARE(in<QLabel>(widget, "label_8").text(), QString("Register Usage :"));
    QVERIFY(in<QLabel>(widget, "label_9").text().startsWith(QString::number(36 * 8) + "/"));
}

void tst_LiteCaptureOptionWidget::tooMuchIsShownRed()
{
    core->setCaptureAmount(65536);
    core->setallCapSignal({bus("data", 64)});
    LiteCaptureOptionWidget widget(core.get(), netlist.get());
    QVERIFY(in<QLabel>(widget, "label_9").text().startsWith("<font color = red>256</font>/"));
}

void tst_LiteCaptureOptionWidget::inputRegisterFollowsInitialData_data()
{
    QTest::addColumn<QString>("implementation");
    QTest::addColumn<bool>("before");
    QTest::addColumn<bool>("after");

    QTest::newRow("block RAM switches it on") << "BSRAM" << false << true;
    QTest::newRow("shadow RAM switches it off") << "SSRAM" << true << false;
    QTest::newRow("registers switch it off") << "REG" << true << false;
}

void tst_LiteCaptureOptionWidget::inputRegisterFollowsInitialData()
{
    QFETCH(QString, implementation);
    QFETCH(bool, before);
    QFETCH(bool, after);
    core->setCaptureAmount(2);
    LiteCaptureOptionWidget widget(core.get(), netlist.get());
    in<QComboBox>(widget, "implementation").setCurrentText(implementation);
    QCheckBox &inputRegister = in<QCheckBox>(widget, "enableInputRegCheckBox");
    inputRegister.setChecked(before);

    in<QCheckBox>(widget, "capIniDataCheckBox").setChecked(true);
    QCOMPARE(inputRegister.isChecked(), after);
    QVERIFY(!inputRegister.isEnabled());
}

void tst_LiteCaptureOptionWidget::uncheckingInitialDataFreesTheInputRegister()
{
    core->setCaptureInitialData(true);
    LiteCaptureOptionWidget widget(core.get(), netlist.get());
    QCheckBox &inputRegister = in<QCheckBox>(widget, "enableInputRegCheckBox");
    QVERIFY(inputRegister.isChecked());
    QVERIFY(!inputRegister.isEnabled());
    in<QCheckBox>(widget, "capIniDataCheckBox").setChecked(false);
    QVERIFY(inputRegister.isChecked());
    QVERIFY(inputRegister.isEnabled());
}

void tst_LiteCaptureOptionWidget::inputRegisterFollowsTheImplementation()
{
    core->setCaptureAmount(2);
    core->setCaptureInitialData(true);
    LiteCaptureOptionWidget widget(core.get(), netlist.get());
    const QCheckBox &inputRegister = in<QCheckBox>(widget, "enableInputRegCheckBox");
    for (const char *text : {"SSRAM", "BSRAM", "REG"}) {
        in<QComboBox>(widget, "implementation").setCurrentText(text);
        QCOMPARE(inputRegister.isChecked(), qstrcmp(text, "BSRAM") == 0);
        QVERIFY(!inputRegister.isEnabled());
    }
    in<QCheckBox>(widget, "capIniDataCheckBox").setChecked(false);
    in<QComboBox>(widget, "implementation").setCurrentText("BSRAM");
    QVERIFY(!inputRegister.isChecked());
}

using Action = std::function<void(LiteCaptureOptionWidget &)>;
Q_DECLARE_METATYPE(Action)

void tst_LiteCaptureOptionWidget::modifiedCounts_data()
{
    QTest::addColumn<Action>("action");
    QTest::addColumn<int>("count");

    QTest::newRow("clock typed") << Action([](auto &widget) {
        in<QLineEdit>(widget, "editSampleClock").setText("clk2");
    }) << 1;
    QTest::newRow("edge") << Action([](auto &widget) { in<QRadioButton>(widget, "radioButtonFalling").click(); }) << 1;
    QTest::newRow("amount, same implementations")
        << Action([](auto &widget) { in<QComboBox>(widget, "comboCapAmount").setCurrentText("128"); }) << 1;
    QTest::newRow("amount that drops REG from the list, block RAM stays")
        << Action([](auto &widget) { in<QComboBox>(widget, "comboCapAmount").setCurrentText("32"); }) << 3;
    QTest::newRow("implementation, after an amount that offers one more") << Action([](auto &widget) {
        in<QComboBox>(widget, "comboCapAmount").setCurrentText("32");
        in<QComboBox>(widget, "implementation").setCurrentText("REG");
    }) << 4;
    QTest::newRow("input register") << Action([](auto &widget) {
        in<QCheckBox>(widget, "enableInputRegCheckBox").click();
    }) << 1;
    QTest::newRow("initial data, which switches the input register on")
        << Action([](auto &widget) { in<QCheckBox>(widget, "capIniDataCheckBox").click(); }) << 2;
    QTest::newRow("a row is dragged") << Action([](auto &widget) { emit treeOf(widget).itemDragged(); }) << 1;
    QTest::newRow("rows sorted") << Action([](auto &widget) { treeOf(widget).sortItems(0, Qt::DescendingOrder); }) << 1;
    QTest::newRow("a device event that changes nothing here")
        << Action([](auto &) { fakes::publish("TE.Device.Change"); }) << 0;
}

void tst_LiteCaptureOptionWidget::modifiedCounts()
{
    QFETCH(Action, action);
    QFETCH(int, count);
    fakes::setCurrentDevice("KXB-S2"); // one implementation at 64 samples: the list settles at once
    LiteCaptureOptionWidget widget(core.get(), netlist.get());
    QSignalSpy spy(&widget, &LiteCaptureOptionWidget::modified);
    action(widget);
    QCOMPARE(spy.count(), count);
}

void tst_LiteCaptureOptionWidget::choosingAClockTellsTwice()
{
    LiteCaptureOptionWidget widget(core.get(), netlist.get());
    QSignalSpy spy(&widget, &LiteCaptureOptionWidget::modified);
    support::DialogDriver driver;
    driver.answerDialogOf<VakSignalSelectDialog>([](auto &dialog) { chooseSignals(dialog, "clk2"); });
    support::clickButton(widget, "btnSampleClock");
    QCOMPARE(in<QLineEdit>(widget, "editSampleClock").text(), QString("clk2"));
    QCOMPARE(spy.count(), 2);
}

void tst_LiteCaptureOptionWidget::cancelledClockChangesNothing()
{
    LiteCaptureOptionWidget widget(core.get(), netlist.get());
    QSignalSpy spy(&widget, &LiteCaptureOptionWidget::modified);
    support::DialogDriver driver;
    driver.answerDialog([](QDialog &dialog) { dialog.reject(); });
    support::clickButton(widget, "btnSampleClock");
    QCOMPARE(in<QLineEdit>(widget, "editSampleClock").text(), QString("clk"));
    QCOMPARE(spy.count(), 0);
}

void tst_LiteCaptureOptionWidget::removingTellsTwice()
{
    fakes::setCurrentDevice("KXB-S2");
    LiteCaptureOptionWidget widget(core.get(), netlist.get());
    QSignalSpy spy(&widget, &LiteCaptureOptionWidget::modified);
    treeOf(widget).topLevelItem(1)->setSelected(true);
    in<QPushButton>(widget, "btnRemove").setEnabled(true);
    core->setallCapSignal({});
    support::clickButton(widget, "btnRemove");
    QCOMPARE(support::topTexts(treeOf(widget)), QStringList("data[7:0]"));
    // Without irq the capture needs 512 bits, so REG is offered: the list is filled anew, which tells twice more.
    QCOMPARE(offered(widget), QStringList({"BSRAM", "REG"}));
    QCOMPARE(spy.count(), 4);
}

void tst_LiteCaptureOptionWidget::addingTellsOnceAndStaysAboveInactive()
{
    fakes::setCurrentDevice("KXB-S2");
    core->setallCapSignal({bus("data", 16), switchedOff(single("irq"))});
    LiteCaptureOptionWidget widget(core.get(), netlist.get());
    QSignalSpy spy(&widget, &LiteCaptureOptionWidget::modified);
    support::DialogDriver driver;
    driver.answerDialogOf<VakSignalSelectDialog>([](auto &dialog) { chooseSignals(dialog, "clk2"); });
    support::clickButton(widget, "btnAdd");
    QCOMPARE(support::topTexts(treeOf(widget)), QStringList({"data[15:0]", "clk2", "irq"}));
    QCOMPARE(spy.count(), 1);
}

void tst_LiteCaptureOptionWidget::removeNeedsWholeSignals()
{
    LiteCaptureOptionWidget widget(core.get(), netlist.get());
    const QPushButton &remove = in<QPushButton>(widget, "btnRemove");
    treeOf(widget).topLevelItem(0)->setSelected(true);
    QVERIFY(remove.isEnabled());
    treeOf(widget).topLevelItem(0)->child(3)->setSelected(true);
    QVERIFY(!remove.isEnabled());
    treeOf(widget).clearSelection();
    QVERIFY(!remove.isEnabled());
}

void tst_LiteCaptureOptionWidget::deviceChangeUpdatesListAndUsage()
{
    LiteCaptureOptionWidget widget(core.get(), netlist.get());
    const QString before = in<QLabel>(widget, "label_9").text();
    fakes::setCurrentDevice("KXB-S2");
    fakes::publish("TE.Device.Change");
    QCOMPARE(offered(widget), QStringList("BSRAM"));
    QVERIFY(in<QLabel>(widget, "label_9").text() != before);
}

void tst_LiteCaptureOptionWidget::otherEventsAreIgnored()
{
    LiteCaptureOptionWidget widget(core.get(), netlist.get());
    const QStringList before = offered(widget);
    fakes::setCurrentDevice("KXB-S2");
    widget.handleIEvent(std::make_unique<QUtil::IEvent>("te.device.change").get());
    QCOMPARE(offered(widget), before);
}

void tst_LiteCaptureOptionWidget::refreshMarksWhatIsGone()
{
    core->setallCapSignal({single("irq"), single("vanished"), single("gone")});
    LiteAoOptionWidget page(core.get(), nullptr);
    page.setRtlNetlist(netlist.get());
    const QList<VAK::SignalItem> all = core->getallCapSignal();
    QVERIFY(all.at(0).present);
    QVERIFY(!all.at(1).present);
    QVERIFY(!all.at(2).present); // there, but it cannot be sampled any more
    signalTreeWidget &tree = support::child<signalTreeWidget>(page, "treeWidgetSignal");
    QCOMPARE(tree.topLevelItem(1)->foreground(0).color(), QColor(Qt::red));
}

void tst_LiteCaptureOptionWidget::refreshKeepsUnsavedEdits()
{
    LiteCaptureOptionWidget widget(core.get(), netlist.get());
    treeOf(widget).appendSignal(single("clk2"));
    widget.refreshFromNetlist();
    QCOMPARE(support::topTexts(treeOf(widget)), QStringList({"data[7:0]", "irq", "clk2"}));
    QCOMPARE(core->getallCapSignal().size(), 3);
}

void tst_LiteCaptureOptionWidget::nullNetlistChangesNothing()
{
    core->setallCapSignal({single("vanished")});
    LiteAoOptionWidget page(core.get(), nullptr);
    QSignalSpy spy(&page, &LiteAoOptionWidget::modified);
    page.setRtlNetlist(nullptr);
    QVERIFY(core->getallCapSignal().first().present);
    QCOMPARE(spy.count(), 0);
}

void tst_LiteCaptureOptionWidget::disablingASignalUpdatesListAndUsage()
{
    fakes::setCurrentDevice("KXB-S2");
    LiteCaptureOptionWidget widget(core.get(), netlist.get());
    QCOMPARE(offered(widget), QStringList("BSRAM"));
    QSignalSpy spy(&widget, &LiteCaptureOptionWidget::modified);
    treeOf(widget).topLevelItem(1)->setSelected(true);
    treeOf(widget).onDisable();
    QCOMPARE(offered(widget), QStringList({"BSRAM", "REG"}));
    QCOMPARE(spy.count(), 3); // the list is emptied and filled, and the tree tells of the change
    in<QComboBox>(widget, "implementation").setCurrentText("REG");
    QVERIFY(in<QLabel>(widget, "label_9").text().contains("512"));
}

void tst_LiteCaptureOptionWidget::signalsMoveAboveInactiveOnesAtTheStart()
{
    core->setallCapSignal({switchedOff(single("irq")), bus("data", 8), single("clk2")});
    LiteCaptureOptionWidget widget(core.get(), netlist.get());
    QCOMPARE(support::topTexts(treeOf(widget)), QStringList({"data[7:0]", "clk2", "irq"}));
    QCOMPARE(treeOf(widget).topLevelItem(2)->foreground(0).color(), QColor(Qt::gray));
}

void tst_LiteCaptureOptionWidget::pageMayDieUnderItsDialogs_data()
{
    QTest::addColumn<QString>("slot");
    QTest::newRow("clock") << "onSelectClock";
    QTest::newRow("signals") << "onAddDataSignals";
}

void tst_LiteCaptureOptionWidget::pageMayDieUnderItsDialogs()
{
    QFETCH(QString, slot);
    const QPointer<LiteCaptureOptionWidget> widget = new LiteCaptureOptionWidget(core.get(), netlist.get());
    support::DialogDriver driver;
    driver.answerDialog([widget](QDialog &) { delete widget.data(); });
    QMetaObject::invokeMethod(widget.data(), qPrintable(slot));
    QVERIFY(!widget);
    QCOMPARE(driver.dialogs().size(), 1);
}

QTEST_MAIN(tst_LiteCaptureOptionWidget)

#include "tst_litecaptureoptionwidget.moc"

// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "workbenchtest.h"

#include "support/dialogdriver.h"
#include "support/widgethelpers.h"

#include "workbench/mainwindow.h"

#include <IdeCore/iview.h>
#include <VakUtils/aocore.h>
#include <VakUtils/matchunit.h>
#include <VakUtils/triggerport.h>
#include <VakUtils/vakfile.h>

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QStackedWidget>
#include <QTabBar>
#include <QTabWidget>
#include <QTableView>
#include <QTest>
#include <QTreeWidget>

using support::child;
using support::DialogDriver;

/// A trigger built in the real window with nothing but mouse and keyboard.
class TestTriggerByHand : public WorkbenchTest
{
    Q_OBJECT

private slots:
    void triggerIsBuiltSavedAndFoundAgain();

private:
    void writeFirstCore();
    QTabWidget &page() const;
    void addCore();
    void chooseTriggerPort();
    void setMatchUnit();
    void composeExpression();
    void chooseCapture();
    void checkFile();
    void checkReopened();
};

static VAK::SignalItem net(const QString &name)
{
    VAK::SignalItem signal;
    signal.name = name;
    return signal;
}

static void pressOk(QDialog &dialog)
{
    auto *box = dialog.findChild<QDialogButtonBox *>();
    QTest::mouseClick(box->button(QDialogButtonBox::Ok), Qt::LeftButton);
}

/// In the next search dialog: types the pattern, searches with Return, takes everything that is found.
static void searchFor(DialogDriver &driver, const QString &pattern)
{
    driver.answerDialog([pattern](QDialog &dialog) {
        support::clickButton(dialog, "radioButtonWildcard");
        QTest::keyClicks(&child<QLineEdit>(dialog, "lineEditName"), pattern);
        QTest::keyClick(&child<QLineEdit>(dialog, "lineEditName"), Qt::Key_Return);
        support::clickButton(dialog, "btnAddAll");
        pressOk(dialog);
    });
}

static void doubleClick(QAbstractItemView &view, const QPoint &position)
{
    QTest::mouseClick(view.viewport(), Qt::LeftButton, Qt::NoModifier, position);
    QTest::mouseDClick(view.viewport(), Qt::LeftButton, Qt::NoModifier, position);
}

/// A file whose one core is complete.
void TestTriggerByHand::writeFirstCore()
{
    VAK::AoCore core(0);
    core.setSampleClock("clk");
    core.getTrigger(0)->setSignalNet({net("rst")});
    core.matchUnit(0)->setTriggerPort(core.getTrigger(0));
    core.matchUnit(0)->setValue0("1");
    core.matchUnit(0)->setEnabled(true);
    core.setExpression({"M0"});
    core.setallCapSignal({net("rst")});
    core.setDataSignal({net("rst")});
    QVERIFY(VAK::writeVAKConfigToXml({&core}, path("blink.rvk")));
}

QTabWidget &TestTriggerByHand::page() const
{
    return *qobject_cast<QTabWidget *>(child<QStackedWidget>(*activeView(), "stackedWidget").currentWidget());
}

void TestTriggerByHand::addCore()
{
    DialogDriver driver;
    driver.chooseFromMenu("Add");
    support::contextMenuOn(child<QTreeWidget>(*activeView(), "treeWidget"), nullptr);
    QCOMPARE(support::topTexts(child<QTreeWidget>(*activeView(), "treeWidget")), QStringList({"Core 0", "Core 1"}));
}

void TestTriggerByHand::chooseTriggerPort()
{
    DialogDriver driver;
    driver.answerDialog([](QDialog &dialog) {
        support::clickButton(dialog, "btnAdd");
        QCOMPARE(child<QLabel>(dialog, "labelInputs").text(), QString("4 / 64 inputs"));
        pressOk(dialog);
    });
    searchFor(driver, "count*");
    auto &ports = child<QTreeWidget>(page(), "treeTrigger");
    support::doubleClickItem(ports, ports.topLevelItem(1));
    QCOMPARE(ports.topLevelItem(1)->child(0)->text(0), QString("count[3:0]"));
}

void TestTriggerByHand::setMatchUnit()
{
    DialogDriver driver;
    driver.answerDialog([](QDialog &dialog) {
        auto &port = child<QComboBox>(dialog, "comboPort");
        port.setFocus();
        QTest::keyClick(&port, Qt::Key_End);
        while (port.currentIndex() > 0 && !port.currentText().startsWith("Trigger Port 1 "))
            QTest::keyClick(&port, Qt::Key_Up);
        auto &value = child<QLineEdit>(dialog, "editValue0");
        value.setFocus();
        value.selectAll();
        QTest::keyClicks(&value, "1X0r");
        pressOk(dialog);
    });
    auto &units = child<QTableView>(page(), "tableMu");
    doubleClick(units, units.visualRect(units.model()->index(2, 2)).center());
    QCOMPARE(units.model()->index(2, 0).data(Qt::CheckStateRole).toInt(), int(Qt::Checked));
}

void TestTriggerByHand::composeExpression()
{
    DialogDriver driver;
    driver.answerDialog([](QDialog &dialog) {
        for (const char *button : {"btnNOT", "btnM1", "btnM2"})
            support::clickButton(dialog, button);
        QTest::keyClick(&dialog, Qt::Key_Backspace);
        QTest::keyClick(&dialog, Qt::Key_Backspace);
        support::clickButton(dialog, "btnM2");
        pressOk(dialog);
    });
    auto &list = child<QListWidget>(page(), "listExpression");
    doubleClick(list, list.viewport()->rect().center());
    QCOMPARE(list.item(0)->text(), QString("!M2"));
    auto &mode = child<QComboBox>(page(), "ModeComboBox");
    QTest::keyClick(&mode, Qt::Key_Down);
    QCOMPARE(child<QLabel>(page(), "UsageValue").text(), QString("BSRAM Usage : 1/24"));
    QTest::keyClick(&child<QComboBox>(page(), "ImpleComboBox"), Qt::Key_End);
}

void TestTriggerByHand::chooseCapture()
{
    QTest::mouseClick(page().tabBar(), Qt::LeftButton, Qt::NoModifier, page().tabBar()->tabRect(1).center());
    DialogDriver driver;
    searchFor(driver, "clk");
    support::clickButton(page(), "btnSampleClock");
    searchFor(driver, "u_divider/value*");
    support::clickButton(page(), "btnAdd");
    driver.answerDialog([](QDialog &dialog) {
        auto *box = dialog.findChild<QCheckBox *>();
        QTest::mouseClick(box, Qt::LeftButton, Qt::NoModifier, QPoint(8, box->height() / 2));
        pressOk(dialog);
    });
    support::clickButton(page(), "btnAddFromTp");
    QCOMPARE(support::topTexts(child<QTreeWidget>(page(), "treeWidgetCapSigs")),
             QStringList({"u_divider/value[7:0]", "count[3:0]"}));
}

void TestTriggerByHand::checkFile()
{
    bool ok = false;
    QString error;
    const QList<VAK::AoCore *> cores = VAK::readVAKConfigFromXml(path("blink.rvk"), &ok, &error);
    QVERIFY2(ok, qPrintable(error));
    QCOMPARE(cores.size(), 2);
    const VAK::AoCore &core = *cores.at(1);
    QCOMPARE(core.getTrigger(1)->getSignalNet().at(0).name, QString("count[3:0]"));
    QCOMPARE(core.matchUnit(2)->triggerPort(), core.getTrigger(1));
    QCOMPARE(core.matchUnit(2)->value0(), QString("1X0R"));
    QCOMPARE(core.expressions(), QStringList{"!M2"});
    QCOMPARE(core.triggerMode(), int(VAK::DynamicTrigger));
    QCOMPARE(core.triggerImplementation(), int(VAK::RegImplementation));
    QCOMPARE(core.captureImplementation(), int(VAK::BsramImplementation));
    QCOMPARE(core.sampleClock(), QString("clk"));
    QCOMPARE(core.getDataSignal().size(), 2);
    qDeleteAll(cores);
}

void TestTriggerByHand::checkReopened()
{
    auto &cores = child<QTreeWidget>(*activeView(), "treeWidget");
    support::clickItem(cores, cores.topLevelItem(1));
    QCOMPARE(child<QListWidget>(page(), "listExpression").item(0)->text(), QString("!M2"));
    QCOMPARE(child<QComboBox>(page(), "ModeComboBox").currentText(), QString("Dynamic"));
    QCOMPARE(child<QComboBox>(page(), "ImpleComboBox").currentText(), QString("REG"));
    QCOMPARE(child<QTreeWidget>(page(), "treeTrigger").topLevelItem(1)->childCount(), 1);
    QCOMPARE(support::topTexts(child<QTreeWidget>(page(), "treeWidgetCapSigs")),
             QStringList({"u_divider/value[7:0]", "count[3:0]"}));
}

void TestTriggerByHand::triggerIsBuiltSavedAndFoundAgain()
{
    writeFirstCore();
    window->resize(1200, 800);
    QVERIFY(window->open(path("blink.vakproj")));
    QVERIFY(window->open(path("blink.rvk")));
    addCore();
    chooseTriggerPort();
    setMatchUnit();
    composeExpression();
    chooseCapture();
    DialogDriver driver;
    trigger("actionSave");
    QCOMPARE(driver.shownCount(), 0);
    QCOMPARE(tabs().last(), QString("blink.rvk"));
    checkFile();
    trigger("actionClose");
    support::runDeferredDeletes();
    QVERIFY(window->open(path("blink.rvk")));
    checkReopened();
}

QTEST_MAIN(TestTriggerByHand)
#include "tst_triggerbyhand.moc"

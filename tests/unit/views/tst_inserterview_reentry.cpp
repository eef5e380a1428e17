// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "viewfixture.h"

#include "signals/vaksignalselectdialog.h"
#include "trigger/triggerportdialog.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QLineEdit>
#include <QMouseEvent>
#include <QScopeGuard>
#include <QtTest>

using namespace RTLVAK;
using namespace support;

/// What the host does to a view whose page shows a dialog.
class TestViewReentry : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase_data() { addModes(); }
    void initTestCase();

    void anOpenSearchGoesOnInTheNewNetlist();
    void anOpenSearchFindsNothingWithoutANetlist();
    void whatASearchHasChosenIsMarkedWhenItIsGone();
    void anOpenPortGoesOnInTheNewNetlist();
    void reloadOfTheFileEndsAnOpenDialog_data();
    void reloadOfTheFileEndsAnOpenDialog();
    void reloadOfTheFileCancelsARemoval();
};

void TestViewReentry::initTestCase()
{
    QCOMPARE(missingDoubles(), QString());
}

static void press(const QWidget &page, const char *button)
{
    child<QAbstractButton>(page, button).click();
}

static QStringList found(VakSignalSelectDialog &dialog)
{
    child<QLineEdit>(dialog, "lineEditName").setText(QString());
    dialog.on_pushButtonSearch_clicked();
    return topTexts(child<QTreeWidget>(dialog, "treeWidget"));
}

void TestViewReentry::anOpenSearchGoesOnInTheNewNetlist()
{
    ViewFixture fixture;
    QVERIFY(fixture.open());
    fixture.driver.answerDialogOf<VakSignalSelectDialog>([&fixture](VakSignalSelectDialog &dialog) {
        const auto close = qScopeGuard([&dialog] { dialog.reject(); });
        QVERIFY(!found(dialog).isEmpty());
        fakes::Instance top("soc");
        top.net("fresh").child("u1", "core").net("deep");
        fakes::setDesign(top);
        QVERIFY(fixture.call("readRtlNetlist"));
        QCOMPARE(fakes::liveNetlists(), 1);
        QCOMPARE(topTexts(child<QTreeWidget>(dialog, "treeWidget")), QStringList());
        const auto &searchIn = child<QComboBox>(dialog, "comboBoxSearchIn");
        QCOMPARE(searchIn.currentText(), QString("soc"));
        QCOMPARE(allTexts(*qobject_cast<QTreeWidget *>(searchIn.view())), QStringList({"soc", "  u1[core]"}));
        QCOMPARE(found(dialog), QStringList({"fresh", "u1/deep"}));
    });
    press(fixture.page(0), "btnAdd");
    QCOMPARE(fixture.driver.dialogs().size(), 1);
}

void TestViewReentry::anOpenSearchFindsNothingWithoutANetlist()
{
    ViewFixture fixture;
    QVERIFY(fixture.open());
    fixture.driver.answerDialogOf<VakSignalSelectDialog>([&fixture](VakSignalSelectDialog &dialog) {
        const auto close = qScopeGuard([&dialog] { dialog.reject(); });
        fakes::deliverNull();
        QVERIFY(!fixture.call("readRtlNetlist"));
        if (fixture.mode == Mode::Standard) // a Lite view keeps the former netlist until it gets another
            QCOMPARE(found(dialog), QStringList());
    });
    press(fixture.page(0), "btnSampleClock");
    QCOMPARE(fixture.driver.dialogs().size(), 1);
}

void TestViewReentry::whatASearchHasChosenIsMarkedWhenItIsGone()
{
    ViewFixture fixture;
    QVERIFY(fixture.open());
    fixture.driver.answerDialogOf<VakSignalSelectDialog>([&fixture](VakSignalSelectDialog &dialog) {
        child<QLineEdit>(dialog, "lineEditName").setText("clk");
        dialog.on_pushButtonSearch_clicked();
        dialog.onAddAllSignal();
        fakes::setDesign(fakes::Instance("soc").net("clk").net("valid"));
        QVERIFY(fixture.call("readRtlNetlist"));
        dialog.accept();
    });
    press(fixture.page(0), "btnAdd");
    const QTreeWidget &captured = fixture.captured(0);
    QCOMPARE(topTexts(captured), QStringList({"valid", "clk", "clk2"}));
    QCOMPARE(captured.topLevelItem(1)->foreground(0).color(), QColor(Qt::black));
    QCOMPARE(captured.topLevelItem(2)->foreground(0).color(), QColor(Qt::red));
    fixture.setModified(false);
}

static void openPort(const ViewFixture &fixture, int number)
{
    auto &ports = child<QTreeWidget>(fixture.page(0), "treeTrigger");
    const QPoint place = ports.visualItemRect(ports.topLevelItem(number)).center();
    QTest::mouseClick(ports.viewport(), Qt::LeftButton, Qt::NoModifier, place);
    QMouseEvent twice(QEvent::MouseButtonDblClick, place, Qt::LeftButton, Qt::LeftButton, {});
    QCoreApplication::sendEvent(ports.viewport(), &twice); // the tree may be gone when this returns
}

void TestViewReentry::anOpenPortGoesOnInTheNewNetlist()
{
    ViewFixture fixture(Mode::Standard);
    QVERIFY(fixture.open());
    fixture.driver.answerDialogOf<TriggerPortDialog>([&fixture](TriggerPortDialog &dialog) {
        press(dialog, "btnAdd"); // runs the search below
        fakes::setDesign(fakes::Instance("soc").net("clk"));
        QVERIFY(fixture.call("readRtlNetlist"));
        press(dialog, "btnAdd"); // and the one below that
        dialog.accept();
    });
    fixture.driver.answerDialogOf<VakSignalSelectDialog>([&fixture](VakSignalSelectDialog &dialog) {
        fakes::setDesign(fakes::Instance("soc").net("clk").net("valid").net("fresh"));
        QVERIFY(fixture.call("readRtlNetlist"));
        QCOMPARE(found(dialog), QStringList({"clk", "valid", "fresh"}));
        dialog.reject();
    });
    fixture.driver.answerDialogOf<VakSignalSelectDialog>([](VakSignalSelectDialog &dialog) {
        QCOMPARE(found(dialog), QStringList({"clk"}));
        dialog.reject();
    });
    openPort(fixture, 0);
    const auto &ports = child<QTreeWidget>(fixture.page(0), "treeTrigger");
    QCOMPARE(ports.topLevelItem(0)->child(0)->text(0), QString("valid"));
    QCOMPARE(ports.topLevelItem(0)->child(0)->foreground(0).color(), QColor(Qt::red));
    fixture.setModified(false);
}

void TestViewReentry::reloadOfTheFileEndsAnOpenDialog_data()
{
    QTest::addColumn<QByteArray>("opens");
    QTest::newRow("signals") << QByteArray("btnAdd");
    QTest::newRow("clock") << QByteArray("btnSampleClock");
    QTest::newRow("port") << QByteArray("treeTrigger");
}

void TestViewReentry::reloadOfTheFileEndsAnOpenDialog()
{
    QFETCH(QByteArray, opens);
    const bool isPort = opens == "treeTrigger";
    ViewFixture fixture(isPort ? Mode::Standard : currentMode());
    QVERIFY(fixture.open(2));
    const QPointer<QWidget> page = &fixture.page(0);
    QPointer<QDialog> shown;
    fixture.driver.answerDialog([&](QDialog &dialog) {
        shown = &dialog;
        fixture.call("onBannerReload");
    });
    if (isPort)
        openPort(fixture, 0);
    else
        press(*page, opens);
    QVERIFY(!page);
    QVERIFY(!shown);
    QCOMPARE(fixture.stack().count(), 2);
    QVERIFY(!fixture.view().isModified());
}

void TestViewReentry::reloadOfTheFileCancelsARemoval()
{
    ViewFixture fixture(Mode::Standard);
    QVERIFY(fixture.open(3));
    fixture.write("some.rvk", 2);
    fixture.driver.chooseFromMenu("Remove");
    fixture.driver.answerBox(QMessageBox::Ok, [&fixture](QMessageBox &) { fixture.call("onBannerReload"); });
    fixture.contextMenu(2);
    QCOMPARE(fixture.items(), fixture.titles(2));
    QCOMPARE(fixture.stack().count(), 2);
    QVERIFY(!fixture.view().isModified());
}

QTEST_MAIN(TestViewReentry)
#include "tst_inserterview_reentry.moc"

// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "viewfixture.h"

#include "views/vakliteinserterview.h"

#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QtTest>

using namespace RTLVAK;
using namespace support;

/// What only the Lite view has: its form and its list of cores.
class TestLiteView : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QCOMPARE(missingDoubles(), QString()); }

    void formHasTheFixedNamesAndTexts();
    void choosingAnItemShowsItsPage();
    void newAppendsACoreAndShowsIt();
    void theSeventeenthNewShowsTheWarningAndLeavesSixteenCores();
    void removeAsksFirst();
    void removingTheMiddleCoreRenumbers();
    void theOnlyCoreIsNotRemoved();
    void aCoreWithoutClockAndSignalsYieldsTwoMessagesClockFirst();
    void aNullNetlistIsKeptFromThePages();
    void viewMayDieInTheConfirmation();
};

static QComboBox &list(const ViewFixture &fixture)
{
    return child<QComboBox>(fixture.view(), "comboBoxAo");
}

void TestLiteView::formHasTheFixedNamesAndTexts()
{
    ViewFixture fixture(Mode::Lite);
    QCOMPARE(child<QLabel>(fixture.view(), "label").text(), QString("AO Core:"));
    QCOMPARE(child<QPushButton>(fixture.view(), "btnAdd").text(), QString("New"));
    QCOMPARE(child<QPushButton>(fixture.view(), "btnRemove").text(), QString("Remove"));
    QCOMPARE(list(fixture).count(), 0);
    QCOMPARE(fixture.stack().count(), 0);
}

void TestLiteView::choosingAnItemShowsItsPage()
{
    ViewFixture fixture(Mode::Lite);
    QVERIFY(fixture.open(3));
    QCOMPARE(list(fixture).currentIndex(), 0);
    list(fixture).setCurrentIndex(2);
    QCOMPARE(fixture.stack().currentIndex(), 2);
    QVERIFY(!fixture.view().isModified());
}

void TestLiteView::newAppendsACoreAndShowsIt()
{
    ViewFixture fixture(Mode::Lite);
    QVERIFY(fixture.open(2));
    QSignalSpy spy(&fixture.view(), &VakInserterView::modificationStatusChanged);
    clickButton(fixture.view(), "btnAdd");
    QCOMPARE(fixture.items(), QStringList({"AO 0", "AO 1", "AO 2"}));
    QCOMPARE(list(fixture).currentIndex(), 2);
    QCOMPARE(fixture.stack().currentIndex(), 2);
    QCOMPARE(fixture.coreNumber(2), 2);
    QCOMPARE(spy.size(), 1);
    QCOMPARE(fixture.view().windowTitle(), QString("some.rvk *"));
    QCOMPARE(fixture.view().shortTitle(), QString("some.rvk *"));
    fixture.setModified(false);
    fixture.editClock(2, "clk2");
    QVERIFY(fixture.view().isModified());
}

void TestLiteView::theSeventeenthNewShowsTheWarningAndLeavesSixteenCores()
{
    ViewFixture fixture(Mode::Lite);
    QVERIFY(fixture.open(15));
    clickButton(fixture.view(), "btnAdd");
    fixture.setModified(false);
    fixture.driver.answerBox(QMessageBox::Ok);
    clickButton(fixture.view(), "btnAdd");
    const BoxRecord box = fixture.driver.boxes().first();
    QCOMPARE(box.title, QString("Warning"));
    QCOMPARE(box.text, QString("Support 16 AOs at most."));
    QCOMPARE(box.icon, QMessageBox::Warning);
    QCOMPARE(fixture.items().size(), 16);
    QCOMPARE(fixture.stack().count(), 16);
    QVERIFY(!fixture.view().isModified());
}

void TestLiteView::removeAsksFirst()
{
    ViewFixture fixture(Mode::Lite);
    QVERIFY(fixture.open(3));
    list(fixture).setCurrentIndex(1);
    fixture.driver.answerBox(QMessageBox::Cancel);
    clickButton(fixture.view(), "btnRemove");
    const BoxRecord box = fixture.driver.boxes().first();
    QCOMPARE(box.title, QString("Confirm"));
    QCOMPARE(box.text, QString("Do you want to remove AO 1 ?"));
    QCOMPARE(box.icon, QMessageBox::Question);
    QCOMPARE(box.buttons, QMessageBox::StandardButtons(QMessageBox::Ok | QMessageBox::Cancel));
    QCOMPARE(box.defaultButton, QMessageBox::Ok);
    QCOMPARE(fixture.items().size(), 3);
    QVERIFY(!fixture.view().isModified());
}

void TestLiteView::removingTheMiddleCoreRenumbers()
{
    ViewFixture fixture(Mode::Lite);
    QVERIFY(fixture.open(3));
    fixture.editClock(2, "clk2");
    list(fixture).setCurrentIndex(1);
    const QPointer<QWidget> removed = &fixture.page(1);
    fixture.driver.answerBox(QMessageBox::Ok);
    clickButton(fixture.view(), "btnRemove");
    QVERIFY(!removed);
    QCOMPARE(fixture.items(), QStringList({"AO 0", "AO 1"}));
    QCOMPARE(list(fixture).currentIndex(), 0);
    QCOMPARE(fixture.stack().currentIndex(), 0);
    QCOMPARE(fixture.coreNumber(1), 1);
    QVERIFY(fixture.view().save());
    QCOMPARE(clocksInFile(fixture.path), QStringList({"clk", "clk2"}));
}

void TestLiteView::theOnlyCoreIsNotRemoved()
{
    ViewFixture fixture(Mode::Lite);
    QVERIFY(fixture.open(1));
    fixture.driver.answerBox(QMessageBox::Ok);
    clickButton(fixture.view(), "btnRemove");
    QCOMPARE(fixture.driver.boxes().size(), 1);
    QCOMPARE(fixture.driver.boxes().first().title, QString("Warning"));
    QCOMPARE(fixture.driver.boxes().first().text, QString("The only Ao can not be removed."));
    QCOMPARE(fixture.items(), QStringList{"AO 0"});
    QVERIFY(!fixture.view().isModified());
}

void TestLiteView::aCoreWithoutClockAndSignalsYieldsTwoMessagesClockFirst()
{
    ViewFixture fixture(Mode::Lite);
    QVERIFY(fixture.open(0));
    fixture.driver.answerBox(QMessageBox::Ok);
    QVERIFY(!fixture.view().save());
    QCOMPARE(fixture.driver.boxes().first().detailedText,
             QString("Core 0: No sample clock specified\nCore 0: No capture signals specified"));
}

void TestLiteView::aNullNetlistIsKeptFromThePages()
{
    const int before = fakes::liveNetlists();
    ViewFixture fixture(Mode::Lite);
    QVERIFY(fixture.open(2));
    fakes::deliverNull();
    QTest::ignoreMessage(QtDebugMsg, "try to set a null netlist for Lite VAK.");
    QVERIFY(!fixture.call("readRtlNetlist"));
    QCOMPARE(fakes::liveNetlists(), before + 1); // the pages still hold the old one
    fakes::setDesign(design());
    QVERIFY(fixture.call("readRtlNetlist"));
    QCOMPARE(fakes::liveNetlists(), before + 1);
    fixture.kill();
    QCOMPARE(fakes::liveNetlists(), before);
}

void TestLiteView::viewMayDieInTheConfirmation()
{
    ViewFixture fixture(Mode::Lite);
    QVERIFY(fixture.open(2));
    fixture.driver.actOnBox([&fixture](QMessageBox &) { fixture.kill(); });
    fixture.call("onRemoveCore");
    QVERIFY(!fixture.viewLives());
}

QTEST_MAIN(TestLiteView)
#include "tst_vakliteinserterview.moc"

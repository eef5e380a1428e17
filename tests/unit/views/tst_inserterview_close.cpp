// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "fileinterception.h"
#include "viewfixture.h"

#include <QDir>
#include <QSignalSpy>
#include <QtTest>

using namespace RTLVAK;
using namespace support;

/// Closing a view.
class TestViewClose : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase_data() { addModes(); }
    void initTestCase();
    void cleanup() { interceptWrites({}); }

    void anUnmodifiedViewClosesWithoutAQuestion();
    void theQuestionNamesTheFile();
    void okSavesAndCloses();
    void okStaysOpenWhenSavingFails_data();
    void okStaysOpenWhenSavingFails();
    void discardClosesWithoutSaving();
    void cancelAndEscapeKeepTheViewOpen_data();
    void cancelAndEscapeKeepTheViewOpen();
    void savingThroughTheClosePromptSucceedsEvenWithSynplify();
    void viewMayDieInTheQuestion();
    void viewMayDieInTheValidationBox();
};

void TestViewClose::initTestCase()
{
    QCOMPARE(missingDoubles(), QString());
}

void TestViewClose::anUnmodifiedViewClosesWithoutAQuestion()
{
    ViewFixture fixture;
    QVERIFY(fixture.open());
    QVERIFY(fixture.view().close());
    QVERIFY(fixture.view().isHidden());
    QCOMPARE(fixture.driver.shownCount(), 0);
}

void TestViewClose::theQuestionNamesTheFile()
{
    ViewFixture fixture;
    QVERIFY(fixture.open(1, "a<b>%1.rvk"));
    fixture.editClock(0, "clk2");
    fixture.driver.answerBox(QMessageBox::Cancel);
    fixture.view().close();
    QCOMPARE(fixture.driver.boxes().size(), 1);
    const BoxRecord box = fixture.driver.boxes().first();
    QCOMPARE(box.title, QString("Save"));
    QCOMPARE(box.text, "Save changes to \"" + QDir::toNativeSeparators(fixture.path) + "\" ?");
    QCOMPARE(box.textFormat, Qt::PlainText);
    QCOMPARE(box.icon, QMessageBox::Question);
    QCOMPARE(box.buttons, QMessageBox::StandardButtons(QMessageBox::Ok | QMessageBox::Discard | QMessageBox::Cancel));
    QCOMPARE(box.defaultButton, QMessageBox::Ok);
    QCOMPARE(box.parent, &fixture.view());
    fixture.setModified(false);
}

void TestViewClose::okSavesAndCloses()
{
    ViewFixture fixture;
    QVERIFY(fixture.open());
    fixture.editClock(0, "clk2");
    fixture.driver.answerBox(QMessageBox::Ok);
    QVERIFY(fixture.view().close());
    QVERIFY(fixture.view().isHidden());
    QVERIFY(!fixture.view().isModified());
    QCOMPARE(clocksInFile(fixture.path), QStringList{"clk2"});
}

void TestViewClose::okStaysOpenWhenSavingFails_data()
{
    QTest::addColumn<QString>("clock");
    QTest::addColumn<bool>("writes");
    QTest::newRow("invalid") << "nowhere" << true;
    QTest::newRow("write fails") << "clk2" << false;
}

void TestViewClose::okStaysOpenWhenSavingFails()
{
    QFETCH(QString, clock);
    QFETCH(bool, writes);
    ViewFixture fixture;
    QVERIFY(fixture.open());
    fixture.editClock(0, clock);
    interceptWrites([writes](const QStringList &, const QString &) { return writes; });
    fixture.driver.answerBox(QMessageBox::Ok);
    fixture.driver.answerBox(QMessageBox::Ok);
    QVERIFY(!fixture.view().close());
    QVERIFY(fixture.view().isVisible());
    QVERIFY(fixture.view().isModified());
    QCOMPARE(clocksInFile(fixture.path), QStringList{"clk"});
    fixture.setModified(false);
}

void TestViewClose::discardClosesWithoutSaving()
{
    ViewFixture fixture;
    QVERIFY(fixture.open());
    fixture.editClock(0, "clk2");
    QSignalSpy spy(&fixture.view(), &VakInserterView::modificationStatusChanged);
    fixture.driver.answerBox(QMessageBox::Discard);
    QVERIFY(fixture.view().close());
    QVERIFY(fixture.view().isHidden());
    QCOMPARE(clocksInFile(fixture.path), QStringList{"clk"});
    QCOMPARE(spy.size(), 0);
}

void TestViewClose::cancelAndEscapeKeepTheViewOpen_data()
{
    QTest::addColumn<bool>("escape");
    QTest::newRow("cancel") << false;
    QTest::newRow("escape") << true;
}

void TestViewClose::cancelAndEscapeKeepTheViewOpen()
{
    QFETCH(bool, escape);
    ViewFixture fixture;
    QVERIFY(fixture.open());
    fixture.editClock(0, "clk2");
    if (escape)
        fixture.driver.escapeBox();
    else
        fixture.driver.answerBox(QMessageBox::Cancel);
    QVERIFY(!fixture.view().close());
    QVERIFY(fixture.view().isVisible());
    QVERIFY(fixture.view().isModified());
    QCOMPARE(clocksInFile(fixture.path), QStringList{"clk"});
    fixture.setModified(false);
}

void TestViewClose::savingThroughTheClosePromptSucceedsEvenWithSynplify()
{
    ViewFixture fixture;
    QVERIFY(fixture.open());
    fakes::setOption("Synthesize_tool", "Synplify");
    fixture.editClock(0, "clk2");
    fixture.driver.answerBox(QMessageBox::Ok);
    QVERIFY(fixture.view().close());
    QCOMPARE(clocksInFile(fixture.path), QStringList{"clk2"});
}

void TestViewClose::viewMayDieInTheQuestion()
{
    ViewFixture fixture;
    QVERIFY(fixture.open());
    fixture.editClock(0, "clk2");
    fixture.driver.actOnBox([&fixture](QMessageBox &) { fixture.kill(); });
    fixture.view().close();
    QVERIFY(!fixture.viewLives());
    QCOMPARE(clocksInFile(fixture.path), QStringList{"clk"});
}

void TestViewClose::viewMayDieInTheValidationBox()
{
    ViewFixture fixture;
    QVERIFY(fixture.open());
    fixture.editClock(0, "nowhere");
    fixture.driver.answerBox(QMessageBox::Ok);
    fixture.driver.actOnBox([&fixture](QMessageBox &) { fixture.kill(); });
    fixture.view().close();
    QVERIFY(!fixture.viewLives());
}

QTEST_MAIN(TestViewClose)
#include "tst_inserterview_close.moc"

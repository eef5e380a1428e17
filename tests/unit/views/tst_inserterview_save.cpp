// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "fileinterception.h"
#include "viewfixture.h"

#include <QDir>
#include <QSignalSpy>
#include <QtTest>

using namespace RTLVAK;
using namespace support;

/// Saving from a view.
class TestViewSave : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase_data() { addModes(); }
    void initTestCase();
    void cleanup() { interceptWrites({}); }

    void saveWritesWhatEveryPageShows();
    void saveOfAnUnmodifiedViewWritesAndEmitsNothing();
    void writerGetsEveryCoreInOrderWithTheTopsName();
    void notificationComesBeforeTitles();
    void savedFileIsFoundAgain();

    void synplifyIsRefused();
    void onlyTheExactToolNameIsRefused_data();
    void onlyTheExactToolNameIsRefused();

    void validationErrorsAreShownAndNothingIsWritten();
    void detailedTextHoldsTheLinesOfEveryCore();
    void pagesAreAppliedBeforeValidation();
    void withoutNetlistTheClockDoesNotExist();

    void failedWriteSaysSoAndStaysModified();
    void failedWriteKeepsNativeSeparatorsAndMarkup();
    void aFailedWriteLeavesTheFileWatchedAndTheViewModified();
    void aRealWriteFailureIsReportedToo();

    void theFileIsNotWatchedWhileItIsWritten();
    void savingRaisesNoFilePrompt();
    void theFileIsWatchedAfterASave();

    void viewMayDieInTheValidationBox();
    void viewMayDieInTheFailureBox();
    void viewMayDieInTheToolBox();
};

/// Longer than the view waits before it asks about a change.
static constexpr int LongerThanTheDelayMs = 800;

void TestViewSave::initTestCase()
{
    QCOMPARE(missingDoubles(), QString());
}

void TestViewSave::saveWritesWhatEveryPageShows()
{
    ViewFixture fixture;
    QVERIFY(fixture.open(3));
    fixture.editClock(0, "clk2");
    fixture.editClock(2, "data[3]");
    QSignalSpy spy(&fixture.view(), &VakInserterView::modificationStatusChanged);
    QTest::ignoreMessage(QtDebugMsg, "save vak");
    QVERIFY(fixture.view().save());
    QCOMPARE(clocksInFile(fixture.path), QStringList({"clk2", "clk", "data[3]"}));
    QVERIFY(!fixture.view().isModified());
    QCOMPARE(spy.size(), 1);
    QCOMPARE(spy.at(0).at(0).toBool(), false);
    QCOMPARE(fixture.view().windowTitle(), QString("some.rvk"));
    QCOMPARE(fixture.view().shortTitle(), QString("some.rvk"));
    QCOMPARE(fixture.driver.shownCount(), 0);
}

void TestViewSave::saveOfAnUnmodifiedViewWritesAndEmitsNothing()
{
    ViewFixture fixture;
    QVERIFY(fixture.open());
    int writes = 0;
    interceptWrites([&writes](const QStringList &, const QString &) { return ++writes; });
    QSignalSpy spy(&fixture.view(), &VakInserterView::modificationStatusChanged);
    QVERIFY(fixture.view().save());
    QCOMPARE(writes, 1);
    QCOMPARE(spy.size(), 0);
    QCOMPARE(fixture.view().windowTitle(), QString("some.rvk"));
    QCOMPARE(fixture.view().shortTitle(), QString("some.rvk"));
}

void TestViewSave::writerGetsEveryCoreInOrderWithTheTopsName()
{
    ViewFixture fixture;
    QVERIFY(fixture.open(3));
    QStringList seen;
    interceptWrites([&](const QStringList &cores, const QString &path) {
        seen += path;
        seen += cores;
        return true;
    });
    QVERIFY(fixture.view().save());
    QCOMPARE(seen, QStringList({fixture.path, "0 soc", "1 soc", "2 soc"}));
}

void TestViewSave::notificationComesBeforeTitles()
{
    ViewFixture fixture;
    QVERIFY(fixture.open());
    fixture.call("onModified");
    SignalLog log;
    log.watch(&fixture.view(), &VakInserterView::modificationStatusChanged, "modified");
    log.watch(&fixture.view(), &QWidget::windowTitleChanged, "title");
    log.watch(&fixture.view(), &Core::IView::shortTitleChanged, "short title");
    interceptWrites([&log](const QStringList &, const QString &) {
        log.note("write");
        return true;
    });
    QVERIFY(fixture.view().save());
    QCOMPARE(log.names(), QStringList({"write", "modified", "title", "short title"}));
}

void TestViewSave::savedFileIsFoundAgain()
{
    ViewFixture fixture;
    QVERIFY(fixture.open(2));
    fixture.editClock(1, "clk2");
    QVERIFY(fixture.view().save());
    const auto again = makeView(fixture.mode);
    QString error;
    QVERIFY2(again->open(fixture.path, {}, &error), qPrintable(error));
    QVERIFY(!again->isModified());
    QCOMPARE(clocksInFile(fixture.path), QStringList({"clk", "clk2"}));
}

void TestViewSave::synplifyIsRefused()
{
    ViewFixture fixture;
    QVERIFY(fixture.open());
    fixture.editClock(0, "clk2");
    fakes::setOption("Synthesize_tool", "Synplify");
    int writes = 0;
    interceptWrites([&writes](const QStringList &, const QString &) { return ++writes; });
    fixture.driver.answerBox(QMessageBox::Ok);
    QVERIFY(!fixture.view().save());
    QCOMPARE(fixture.driver.boxes().size(), 1);
    const BoxRecord box = fixture.driver.boxes().first();
    QCOMPARE(box.title, QString("Error"));
    QCOMPARE(box.text, QString("For RTL Design, VAK is only available for OrvaneSynthesis. Please change Synthesis "
                               "Tool to OrvaneSynthesis in Configurations."));
    QCOMPARE(box.icon, QMessageBox::Critical);
    QCOMPARE(box.buttons, QMessageBox::StandardButtons(QMessageBox::Ok));
    QCOMPARE(box.parent, &fixture.view());
    QCOMPARE(writes, 0);
    QCOMPARE(clocksInFile(fixture.path), QStringList{"clk"});
    QVERIFY(fixture.view().isModified());
    QCOMPARE(fixture.view().windowTitle(), QString("some.rvk *"));
    fixture.setModified(false);
}

void TestViewSave::onlyTheExactToolNameIsRefused_data()
{
    QTest::addColumn<QVariant>("tool");
    QTest::newRow("not set") << QVariant();
    QTest::newRow("default") << QVariant("OrvaneSynthesis");
    QTest::newRow("lower case") << QVariant("synplify");
    QTest::newRow("trailing blank") << QVariant("Synplify ");
}

void TestViewSave::onlyTheExactToolNameIsRefused()
{
    QFETCH(QVariant, tool);
    ViewFixture fixture;
    QVERIFY(fixture.open());
    fakes::setOption("Synthesize_tool", tool);
    QVERIFY(fixture.view().save());
    QVERIFY(fakes::optionsAsked().contains("Synthesize_tool"));
}

void TestViewSave::validationErrorsAreShownAndNothingIsWritten()
{
    ViewFixture fixture;
    QVERIFY(fixture.open(1));
    fixture.editClock(0, "nowhere");
    const QByteArray before = fixture.dir.read("some.rvk");
    QSignalSpy spy(&fixture.view(), &VakInserterView::modificationStatusChanged);
    fixture.driver.answerBox(QMessageBox::Ok);
    QVERIFY(!fixture.view().save());
    QCOMPARE(fixture.driver.boxes().size(), 1);
    const BoxRecord box = fixture.driver.boxes().first();
    QCOMPARE(box.title, QString("Error"));
    if (fixture.mode == Mode::Standard)
        QCOMPARE(box.text, QString("Your settings contain some errors.             "));
    else
        QCOMPARE(box.text, QString("Your settings contain some errors."));
    QCOMPARE(box.text.size(), fixture.mode == Mode::Standard ? 34 + 13 : 34);
    QCOMPARE(box.detailedText, QString("Core 0: The specified sample clock does not exist"));
    QCOMPARE(box.icon, QMessageBox::Critical);
    QCOMPARE(box.buttons, QMessageBox::StandardButtons(QMessageBox::Ok));
    QCOMPARE(box.defaultButton, QMessageBox::Ok);
    QCOMPARE(box.escapeButton, QMessageBox::Ok);
    QCOMPARE(box.parent, &fixture.view());
    QCOMPARE(fixture.dir.read("some.rvk"), before);
    QVERIFY(fixture.view().isModified());
    QCOMPARE(spy.size(), 0);
    QCOMPARE(fixture.view().windowTitle(), QString("some.rvk *"));
    fixture.setModified(false);
}

void TestViewSave::detailedTextHoldsTheLinesOfEveryCore()
{
    ViewFixture fixture;
    QVERIFY(fixture.open(1));
    fixture.addCore();
    fixture.editClock(0, "stuck");
    fixture.driver.answerBox(QMessageBox::Ok);
    QVERIFY(!fixture.view().save());
    const QString standardLines("Core 1: No available trigger ports\n"
                                "Core 1: No available match units\n"
                                "Core 1: No expressions specified\n");
    QCOMPARE(fixture.driver.boxes().first().detailedText,
             "Core 0: Invalid sampling clock selected\n" +
                 (fixture.mode == Mode::Standard ? standardLines : QString()) +
                 "Core 1: No sample clock specified\nCore 1: No capture signals specified");
    fixture.setModified(false);
}

void TestViewSave::pagesAreAppliedBeforeValidation()
{
    ViewFixture fixture;
    QVERIFY(fixture.open(2));
    fixture.editClock(1, "");
    QCOMPARE(fixture.coreClock(1), QString("clk"));
    fixture.driver.answerBox(QMessageBox::Ok);
    QVERIFY(!fixture.view().save());
    QCOMPARE(fixture.coreClock(1), QString());
    QCOMPARE(fixture.driver.boxes().first().detailedText, QString("Core 1: No sample clock specified"));
    fixture.setModified(false);
}

void TestViewSave::withoutNetlistTheClockDoesNotExist()
{
    ViewFixture fixture;
    QVERIFY(fixture.open());
    fakes::deliverNull();
    QVERIFY(!fixture.call("readRtlNetlist"));
    fixture.driver.answerBox(QMessageBox::Ok);
    QVERIFY(!fixture.view().save());
    QCOMPARE(fixture.driver.boxes().first().detailedText, QString("Core 0: The specified sample clock does not exist"));
}

void TestViewSave::failedWriteSaysSoAndStaysModified()
{
    ViewFixture fixture;
    QVERIFY(fixture.open());
    fixture.editClock(0, "clk2");
    interceptWrites([](const QStringList &, const QString &) { return false; });
    QSignalSpy spy(&fixture.view(), &VakInserterView::modificationStatusChanged);
    fixture.driver.answerBox(QMessageBox::Ok);
    QVERIFY(!fixture.view().save());
    const BoxRecord box = fixture.driver.boxes().first();
    QCOMPARE(box.title, QString("Error"));
    QCOMPARE(box.text, "Can not save to " + QDir::toNativeSeparators(fixture.path));
    QCOMPARE(box.icon, QMessageBox::Critical);
    QCOMPARE(box.buttons, QMessageBox::StandardButtons(QMessageBox::Ok));
    QCOMPARE(box.parent, &fixture.view());
    QVERIFY(fixture.view().isModified());
    QCOMPARE(spy.size(), 0);
    QCOMPARE(fixture.view().windowTitle(), QString("some.rvk *"));
    QCOMPARE(fixture.view().shortTitle(), QString("some.rvk *"));
    fixture.setModified(false);
}

void TestViewSave::failedWriteKeepsNativeSeparatorsAndMarkup()
{
    ViewFixture fixture;
    QVERIFY(fixture.open(1, "<b>bold %1.rvk"));
    interceptWrites([](const QStringList &, const QString &) { return false; });
    fixture.driver.answerBox(QMessageBox::Ok);
    QVERIFY(!fixture.view().save());
    QCOMPARE(fixture.driver.boxes().first().text, "Can not save to " + fixture.dir.path() + "/<b>bold %1.rvk");
    QCOMPARE(fixture.driver.boxes().first().textFormat, Qt::PlainText);
}

void TestViewSave::aFailedWriteLeavesTheFileWatchedAndTheViewModified()
{
    ViewFixture fixture;
    QVERIFY(fixture.open());
    fixture.editClock(0, "clk2");
    interceptWrites([](const QStringList &, const QString &) { return false; });
    fixture.driver.answerBox(QMessageBox::Ok);
    QVERIFY(!fixture.view().save());
    interceptWrites({});
    QVERIFY(fixture.view().isModified());
    changeClockOnDisk(fixture.path, "data[0]");
    QTRY_COMPARE(fixture.banners().size(), 1);
    fixture.setModified(false);
}

void TestViewSave::aRealWriteFailureIsReportedToo()
{
    ViewFixture fixture;
    fixture.dir.write("sub/other", {});
    QVERIFY(fixture.open(1, "sub/some.rvk"));
    QVERIFY(QDir(fixture.dir.filePath("sub")).removeRecursively());
    fixture.driver.answerBox(QMessageBox::Ok);
    QVERIFY(!fixture.view().save());
    QCOMPARE(fixture.driver.boxes().first().text, "Can not save to " + fixture.path);
}

void TestViewSave::theFileIsNotWatchedWhileItIsWritten()
{
    ViewFixture fixture;
    QVERIFY(fixture.open());
    interceptWrites([&fixture](const QStringList &, const QString &) {
        fixture.dir.write("some.rvk", "half written");
        QTest::qWait(50); // the watcher would have noticed by now
        return true;
    });
    QVERIFY(fixture.view().save());
    QTest::qWait(LongerThanTheDelayMs);
    QCOMPARE(fixture.banners().size(), 0);
}

void TestViewSave::savingRaisesNoFilePrompt()
{
    ViewFixture fixture;
    QVERIFY(fixture.open());
    fixture.editClock(0, "clk2");
    QVERIFY(fixture.view().save());
    QTest::qWait(LongerThanTheDelayMs);
    QCOMPARE(fixture.banners().size(), 0);
}

void TestViewSave::theFileIsWatchedAfterASave()
{
    ViewFixture fixture;
    QVERIFY(fixture.open());
    QVERIFY(fixture.view().save());
    changeClockOnDisk(fixture.path, "data[0]");
    QTRY_COMPARE(fixture.banners().size(), 1);
}

void TestViewSave::viewMayDieInTheValidationBox()
{
    ViewFixture fixture;
    QVERIFY(fixture.open());
    fixture.editClock(0, "nowhere");
    fixture.driver.actOnBox([&fixture](QMessageBox &) { fixture.kill(); });
    QVERIFY(!fixture.view().save());
    QVERIFY(!fixture.viewLives());
}

void TestViewSave::viewMayDieInTheFailureBox()
{
    ViewFixture fixture;
    QVERIFY(fixture.open());
    interceptWrites([](const QStringList &, const QString &) { return false; });
    fixture.driver.actOnBox([&fixture](QMessageBox &) { fixture.kill(); });
    QVERIFY(!fixture.view().save());
    QVERIFY(!fixture.viewLives());
}

void TestViewSave::viewMayDieInTheToolBox()
{
    ViewFixture fixture;
    QVERIFY(fixture.open());
    fakes::setOption("Synthesize_tool", "Synplify");
    fixture.driver.actOnBox([&fixture](QMessageBox &) { fixture.kill(); });
    QVERIFY(!fixture.view().save());
    QVERIFY(!fixture.viewLives());
}

QTEST_MAIN(TestViewSave)
#include "tst_inserterview_save.moc"

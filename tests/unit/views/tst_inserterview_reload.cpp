// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "viewfixture.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QPushButton>
#include <QSignalSpy>
#include <QtTest>

using namespace RTLVAK;
using namespace support;

/// A view and its file on disk.
class TestViewReload : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase_data() { addModes(); }
    void initTestCase();

    void aChangeAsksAfterTheDelay();
    void threeQuickExternalWritesProduceOneBanner();
    void noSecondQuestionWhileOneIsOpen();
    void theChangedBannerNamesTheFile();
    void replacementByRenameIsNoticedEachTime();
    void deletionAndCreationWithinTheDelayAsksAboutAChange();
    void theRemovedBannerOffersToKeep();

    void reloadShowsTheFile();
    void reloadDiscardsEditsButLeavesTheModifiedFlag();
    void reloadDeletesTheOldPages();
    void reloadShowsTheFirstCore();
    void reloadOfAFileWithoutCoresAddsOne();
    void reloadKeepsTheNetlist();
    void reloadShowsSignalsThatTheNetlistDoesNotKnow();
    void reloadWatchesTheFileFurther();
    void reloadWithAnotherNumberOfCores_data();
    void reloadWithAnotherNumberOfCores();
    void aBadValueChangesNothingAndCloses();
    void aFileOfAnotherKindIsRefused_data();
    void aFileOfAnotherKindIsRefused();
    void theRefusalClosesWithoutASaveQuestion();
    void viewMayDieInTheRefusal();

    void cancelKeepsWhatIsShown();
    void keepLetsALaterSaveWriteTheFileAnew();
    void closeClosesWithoutASaveQuestionEvenWhenModified();
    void closeOfAViewWithoutContainerKeepsIt();
    void closeIsRefusedByTheContainer();
    void aPendingQuestionDiesWithTheView();
};

void TestViewReload::initTestCase()
{
    QCOMPARE(missingDoubles(), QString());
}

static QString changedText(const QString &path)
{
    return "The file '" + QDir::toNativeSeparators(path) + "' changed on disk.\nDo you want to reload?";
}

static QString removedText(const QString &path)
{
    return "The file '" + QDir::toNativeSeparators(path) + "' has been removed on disk.\nDo you still want to keep it?";
}

void TestViewReload::aChangeAsksAfterTheDelay()
{
    ViewFixture fixture;
    QVERIFY(fixture.open());
    QElapsedTimer timer;
    timer.start();
    fixture.call("onFileChange");
    QCOMPARE(fixture.banners().size(), 0);
    QTRY_COMPARE(fixture.banners().size(), 1);
    QVERIFY(timer.elapsed() >= 490);
    QVERIFY(child<QWidget>(fixture.view(), "widget_3").isVisible());
    QCOMPARE(fixture.driver.shownCount(), 0);
}

void TestViewReload::threeQuickExternalWritesProduceOneBanner()
{
    ViewFixture fixture;
    QVERIFY(fixture.open());
    for (int i = 0; i < 3; ++i) {
        fixture.dir.write("some.rvk", fixture.dir.read("some.rvk") + "\n");
        QTest::qWait(60);
    }
    QTRY_COMPARE(fixture.banners().size(), 1);
    QTest::qWait(700);
    QCOMPARE(fixture.banners().size(), 1);
}

void TestViewReload::noSecondQuestionWhileOneIsOpen()
{
    ViewFixture fixture;
    QVERIFY(fixture.open());
    fixture.call("onFileChange");
    QTRY_COMPARE(fixture.banners().size(), 1);
    fixture.call("onFileChange");
    QTest::qWait(700);
    QCOMPARE(fixture.banners().size(), 1);
    // Once it is answered the next change asks again.
    fixture.clickBanner(0, "btnB");
    fixture.call("onFileChange");
    QTRY_COMPARE(fixture.banners().size(), 1);
}

void TestViewReload::theChangedBannerNamesTheFile()
{
    ViewFixture fixture;
    QVERIFY(fixture.open(1, "a<b>%1.rvk"));
    fixture.call("checkForReload");
    QCOMPARE(fixture.bannerTexts(), QStringList{changedText(fixture.path)});
    QCOMPARE(child<QPushButton>(*fixture.banners().at(0), "btnA").text(), QString("Reload"));
    QCOMPARE(child<QPushButton>(*fixture.banners().at(0), "btnB").text(), QString("Cancel"));
}

void TestViewReload::replacementByRenameIsNoticedEachTime()
{
    ViewFixture fixture;
    QVERIFY(fixture.open());
    for (const QString clock : {"clk2", "data[0]"}) {
        changeClockOnDisk(fixture.path, clock); // writes a temporary and renames it
        QTRY_COMPARE(fixture.banners().size(), 1);
        fixture.clickBanner(0, "btnB");
        QCOMPARE(fixture.banners().size(), 0);
    }
}

void TestViewReload::deletionAndCreationWithinTheDelayAsksAboutAChange()
{
    ViewFixture fixture;
    QVERIFY(fixture.open());
    const QByteArray contents = fixture.dir.read("some.rvk");
    fixture.dir.remove("some.rvk");
    QTest::qWait(100);
    fixture.dir.write("some.rvk", contents);
    QTRY_COMPARE(fixture.bannerTexts(), QStringList{changedText(fixture.path)});
    fixture.clickBanner(0, "btnB");
    // It is watched again.
    fixture.dir.write("some.rvk", contents + "\n");
    QTRY_COMPARE(fixture.bannerTexts(), QStringList{changedText(fixture.path)});
}

void TestViewReload::theRemovedBannerOffersToKeep()
{
    ViewFixture fixture;
    QVERIFY(fixture.open());
    fixture.dir.remove("some.rvk");
    QTRY_COMPARE(fixture.bannerTexts(), QStringList{removedText(fixture.path)});
    QCOMPARE(child<QPushButton>(*fixture.banners().at(0), "btnA").text(), QString("Keep It"));
    QCOMPARE(child<QPushButton>(*fixture.banners().at(0), "btnB").text(), QString("Close"));
}

void TestViewReload::reloadShowsTheFile()
{
    ViewFixture fixture;
    QVERIFY(fixture.open());
    changeClockOnDisk(fixture.path, "clk2");
    QTRY_COMPARE(fixture.banners().size(), 1);
    QSignalSpy spy(&fixture.view(), &VakInserterView::modificationStatusChanged);
    fixture.clickBanner(0, "btnA");
    QCOMPARE(fixture.clockShown(0), QString("clk2"));
    QCOMPARE(fixture.banners().size(), 0);
    QCOMPARE(spy.size(), 0);
    QVERIFY(!fixture.view().isModified());
    QCOMPARE(fixture.view().windowTitle(), QString("some.rvk"));
}

void TestViewReload::reloadDiscardsEditsButLeavesTheModifiedFlag()
{
    ViewFixture fixture;
    QVERIFY(fixture.open());
    fixture.editClock(0, "data[7]");
    QSignalSpy spy(&fixture.view(), &VakInserterView::modificationStatusChanged);
    fixture.call("onBannerReload");
    QCOMPARE(fixture.clockShown(0), QString("clk"));
    QVERIFY(fixture.view().isModified());
    QCOMPARE(spy.size(), 0);
    QCOMPARE(fixture.view().windowTitle(), QString("some.rvk *"));
    fixture.setModified(false);
}

void TestViewReload::reloadDeletesTheOldPages()
{
    ViewFixture fixture;
    QVERIFY(fixture.open(2));
    const QPointer<QWidget> first = &fixture.page(0);
    const QPointer<QWidget> second = &fixture.page(1);
    SignalLog log;
    log.watch(first.data(), &QObject::destroyed, "first");
    log.watch(second.data(), &QObject::destroyed, "second");
    fixture.call("onBannerReload");
    QCOMPARE(log.names(), QStringList({"second", "first"}));
    QCOMPARE(fixture.stack().count(), 2);
    // Only living pages follow a change of the device.
    fakes::setCurrentDevice("none");
    fakes::publish("TE.Device.Change");
}

void TestViewReload::reloadShowsTheFirstCore()
{
    ViewFixture fixture;
    QVERIFY(fixture.open(3));
    fixture.showCore(2);
    fixture.call("onBannerReload");
    QCOMPARE(fixture.stack().currentIndex(), 0);
    QCOMPARE(fixture.currentItem(), fixture.titles(1).first());
    if (fixture.mode == Mode::Standard)
        QCOMPARE(fixture.pageTitle(), QString("Core 0"));
}

void TestViewReload::reloadOfAFileWithoutCoresAddsOne()
{
    ViewFixture fixture;
    QVERIFY(fixture.open(3));
    fixture.write("some.rvk", 0);
    fixture.call("onBannerReload");
    QCOMPARE(fixture.items(), fixture.titles(1));
    QCOMPARE(fixture.stack().count(), 1);
    QCOMPARE(fixture.clockShown(0), QString());
    QVERIFY(fixture.view().isModified());
    QCOMPARE(fixture.view().windowTitle(), QString("some.rvk *"));
    fixture.setModified(false);
}

void TestViewReload::reloadKeepsTheNetlist()
{
    ViewFixture fixture;
    QVERIFY(fixture.open());
    fixture.call("onBannerReload");
    QCOMPARE(fakes::netsCalls().size(), 1);
    QVERIFY(fixture.view().save());
}

void TestViewReload::reloadShowsSignalsThatTheNetlistDoesNotKnow()
{
    ViewFixture fixture;
    QVERIFY(fixture.open());
    addSignalOnDisk(fixture.path, "gone");
    fixture.call("onBannerReload");
    auto &captured = fixture.captured(0);
    QCOMPARE(topTexts(captured), QStringList({"valid", "gone"}));
    QVERIFY(captured.topLevelItem(0)->foreground(0).color() != QColor(Qt::red));
    QCOMPARE(captured.topLevelItem(1)->foreground(0).color(), QColor(Qt::red));
    QVERIFY(!fixture.view().isModified());
}

void TestViewReload::reloadWatchesTheFileFurther()
{
    ViewFixture fixture;
    QVERIFY(fixture.open());
    for (const QString clock : {"clk2", "data[0]"}) {
        changeClockOnDisk(fixture.path, clock);
        QTRY_COMPARE(fixture.banners().size(), 1);
        fixture.clickBanner(0, "btnA");
        QCOMPARE(fixture.clockShown(0), clock);
    }
}

void TestViewReload::reloadWithAnotherNumberOfCores_data()
{
    QTest::addColumn<int>("before");
    QTest::addColumn<int>("after");
    QTest::newRow("more") << 1 << 16;
    QTest::newRow("fewer") << 16 << 2;
}

void TestViewReload::reloadWithAnotherNumberOfCores()
{
    QFETCH(int, before);
    QFETCH(int, after);
    ViewFixture fixture;
    QVERIFY(fixture.open(before));
    fixture.editClock(0, "clk2");
    fixture.write("some.rvk", after);
    fixture.call("onBannerReload");
    QCOMPARE(fixture.items().size(), after);
    QCOMPARE(fixture.items().last(), fixture.titles(after).last());
    QCOMPARE(fixture.stack().count(), after);
    QVERIFY(fixture.view().save());
    QCOMPARE(clocksInFile(fixture.path).size(), after);
}

void TestViewReload::aBadValueChangesNothingAndCloses()
{
    ViewFixture fixture;
    QVERIFY(fixture.open(2));
    fixture.editClock(0, "clk2");
    fixture.dir.write("some.rvk", fixture.dir.read("some.rvk").replace("1024", "many"));
    fixture.driver.answerBox(QMessageBox::Ok, [&fixture](QMessageBox &) {
        QCOMPARE(fixture.items().size(), 2);
        QCOMPARE(fixture.clockShown(0), QString("clk2"));
    });
    fixture.call("onBannerReload");
    const BoxRecord box = fixture.driver.boxes().first();
    QCOMPARE(box.title, QString("Reload Vak"));
    QCOMPARE(box.text, QString("Invalid VAK file."));
    QCOMPARE(box.icon, QMessageBox::Warning);
    QCOMPARE(box.buttons, QMessageBox::StandardButtons(QMessageBox::Ok));
    QCOMPARE(box.parent, &fixture.view());
    QVERIFY(fixture.container().isHidden());
}

void TestViewReload::aFileOfAnotherKindIsRefused_data()
{
    QTest::addColumn<QByteArray>("contents");
    QTest::newRow("no XML") << QByteArray("module top; endmodule\n");
    QTest::newRow("another mode") << QByteArray("<?xml version=\"1.0\"?>\n<vak version=\"1\" mode=\"other\"/>\n");
}

void TestViewReload::aFileOfAnotherKindIsRefused()
{
    QFETCH(QByteArray, contents);
    ViewFixture fixture;
    QVERIFY(fixture.open());
    fixture.dir.write("some.rvk", contents);
    QTRY_COMPARE(fixture.banners().size(), 1);
    const QPointer<ReloadBanner> banner = fixture.banners().at(0);
    fixture.driver.answerBox(QMessageBox::Ok);
    fixture.clickBanner(0, "btnA");
    QCOMPARE(fixture.driver.boxes().first().text, QString("Invalid VAK file."));
    QCOMPARE(fixture.banners().size(), 0);
    QVERIFY(fixture.container().isHidden());
    runDeferredDeletes();
    QVERIFY(!banner);
    QVERIFY(!fixture.viewLives());
}

void TestViewReload::theRefusalClosesWithoutASaveQuestion()
{
    ViewFixture fixture;
    QVERIFY(fixture.open());
    fixture.editClock(0, "clk2");
    fixture.dir.write("some.rvk", "nonsense");
    QSignalSpy spy(&fixture.view(), &VakInserterView::modificationStatusChanged);
    fixture.driver.answerBox(QMessageBox::Ok);
    fixture.call("onBannerReload");
    QCOMPARE(fixture.driver.boxes().size(), 1);
    QCOMPARE(spy.size(), 1);
    QCOMPARE(spy.at(0).at(0).toBool(), false);
    QVERIFY(fixture.container().isHidden());
    QCOMPARE(fixture.dir.read("some.rvk"), QByteArray("nonsense"));
}

void TestViewReload::viewMayDieInTheRefusal()
{
    ViewFixture fixture;
    QVERIFY(fixture.open());
    fixture.dir.write("some.rvk", "nonsense");
    fixture.driver.actOnBox([&fixture](QMessageBox &) { fixture.kill(); });
    fixture.call("onBannerReload");
    QVERIFY(!fixture.viewLives());
}

void TestViewReload::cancelKeepsWhatIsShown()
{
    ViewFixture fixture;
    QVERIFY(fixture.open());
    fixture.editClock(0, "data[1]");
    changeClockOnDisk(fixture.path, "clk2");
    QTRY_COMPARE(fixture.banners().size(), 1);
    fixture.clickBanner(0, "btnB");
    QCOMPARE(fixture.clockShown(0), QString("data[1]"));
    QVERIFY(fixture.view().isModified());
    fixture.setModified(false);
}

void TestViewReload::keepLetsALaterSaveWriteTheFileAnew()
{
    ViewFixture fixture;
    QVERIFY(fixture.open());
    fixture.editClock(0, "clk2");
    fixture.dir.remove("some.rvk");
    QTRY_COMPARE(fixture.bannerTexts(), QStringList{removedText(fixture.path)});
    fixture.clickBanner(0, "btnA");
    QCOMPARE(fixture.banners().size(), 0);
    QVERIFY(fixture.view().isModified());
    QVERIFY(!QFile::exists(fixture.path));
    QVERIFY(fixture.view().save());
    QCOMPARE(clocksInFile(fixture.path), QStringList{"clk2"});
    changeClockOnDisk(fixture.path, "clk");
    QTRY_COMPARE(fixture.bannerTexts(), QStringList{changedText(fixture.path)});
}

void TestViewReload::closeClosesWithoutASaveQuestionEvenWhenModified()
{
    ViewFixture fixture;
    QVERIFY(fixture.open());
    fixture.editClock(0, "clk2");
    fixture.dir.remove("some.rvk");
    QTRY_COMPARE(fixture.banners().size(), 1);
    QSignalSpy spy(&fixture.view(), &VakInserterView::modificationStatusChanged);
    fixture.clickBanner(0, "btnB");
    QCOMPARE(fixture.driver.shownCount(), 0);
    QCOMPARE(spy.size(), 1);
    QCOMPARE(spy.at(0).at(0).toBool(), false);
    QVERIFY(fixture.container().isHidden());
    runDeferredDeletes();
    QVERIFY(!fixture.containerLives());
    QVERIFY(!fixture.viewLives());
}

void TestViewReload::closeOfAViewWithoutContainerKeepsIt()
{
    ViewFixture fixture; // for the doubles
    const auto view = makeView(fixture.mode);
    const QString path = fixture.write("a.rvk", 1);
    QString error;
    QVERIFY(view->open(path, {}, &error));
    view->show();
    call(*view, "onBannerClose");
    QVERIFY(view->isVisible());
}

/// Keeps itself open, as a host does whose other document is not saved.
class StubbornContainer : public QWidget
{
protected:
    void closeEvent(QCloseEvent *event) override { event->ignore(); }
};

void TestViewReload::closeIsRefusedByTheContainer()
{
    ViewFixture fixture; // for the doubles
    StubbornContainer container;
    VakInserterView *view = makeView(fixture.mode, &container).release();
    const QString path = fixture.write("a.rvk", 1);
    QString error;
    QVERIFY(view->open(path, {}, &error));
    container.show();
    call(*view, "onBannerClose");
    QVERIFY(container.isVisible());
    QVERIFY(container.testAttribute(Qt::WA_DeleteOnClose));
    container.setAttribute(Qt::WA_DeleteOnClose, false);
}

void TestViewReload::aPendingQuestionDiesWithTheView()
{
    ViewFixture fixture;
    QVERIFY(fixture.open());
    fixture.call("onFileChange");
    fixture.kill();
    QTest::qWait(600);
    QVERIFY(!fixture.viewLives());
}

QTEST_MAIN(TestViewReload)
#include "tst_inserterview_reload.moc"

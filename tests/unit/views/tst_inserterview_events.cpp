// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "viewfixture.h"

#include <QUtility/ievent.h>
#include <QUtility/ieventhandler.h>

#include <QDir>
#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QtTest>

using namespace RTLVAK;
using namespace support;

/// A view and the events of the project.
class TestViewEvents : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase_data() { addModes(); }
    void initTestCase();

    void everyStaleDesignAsksOnce_data();
    void everyStaleDesignAsksOnce();
    void otherEventsShowNothing_data();
    void otherEventsShowNothing();
    void anUnrelatedOptionShowsNothing();
    void theBannerOffersReloadAndCancel();
    void topModuleHasItsOwnQuestion();
    void whileAQuestionIsOpenEveryEventIsIgnored();
    void unsubscribedViewHearsNothing();

    void everyReadOfTheDesignIsCountedInTheMessages();
    void reloadReadsTheNetlistAnew();
    void reloadKeepsUnsavedEdits();
    void afterReloadTheNextEventAsksAgain();
    void aFailedReloadClosesTheContainerWithoutAQuestion();
    void aFailedReloadOfAnUnmodifiedViewEmitsNothing();
    void aFailedReloadWithoutContainerStaysOpen();
    void aFailedReloadKeepsUnsavedWorkBesideTheFile();
    void aFailedReloadOfAnUnmodifiedViewKeepsNothing();
    void aFailedReloadClosesEvenWhenNothingCanBeKept();
    void cancelKeepsTheOldNetlist();
    void afterCancelTheNextEventAsksAgain();
    void viewMayDieInAFailedReload();

    void eachSlotRemovesOnlyItsOwnBanner();
    void cancellingTheFileBannerAlsoClearsTheDesignFlag();
    void aFileQuestionAndADesignQuestionAreShownTogether();
    void slotsToleratedWithoutABanner();
    void theBannerContainerStaysShown();
};

void TestViewEvents::initTestCase()
{
    QCOMPARE(missingDoubles(), QString());
}

static const QString FilesQuestion = QStringLiteral("Design files changed. Do you want to reload?");
static const QString TopQuestion = QStringLiteral("Top module changed. Do you want to reload?");

void TestViewEvents::everyStaleDesignAsksOnce_data()
{
    QTest::addColumn<QString>("event");
    QTest::addColumn<QVariantMap>("values");
    QTest::newRow("file added") << "TE.File.Add" << QVariantMap{{"file", "/design/source.v"}};
    QTest::newRow("file modified") << "TE.File.Modified" << QVariantMap{{"file", "/design/source.v"}};
    QTest::newRow("file removed") << "TE.File.Remove" << QVariantMap{{"type", 3}, {"enable", true}};
    QTest::newRow("file disabled") << "TE.File.Change.Enable" << QVariantMap{{"type", 4}, {"enable", false}};
    QTest::newRow("file retyped") << "TE.File.Change.Type" << QVariantMap{{"type", 9}, {"previous", 2}};
    QTest::newRow("include path") << "TE.Option.Change" << QVariantMap{{"option", "IncludePath"}};
    QTest::newRow("standard") << "TE.Option.Change" << QVariantMap{{"option", "Verilog_Standard"}};
}

void TestViewEvents::everyStaleDesignAsksOnce()
{
    QFETCH(QString, event);
    QFETCH(QVariantMap, values);
    ViewFixture fixture;
    QVERIFY(fixture.open());
    fakes::setFileInfo("/design/source.v", 2, true);
    fakes::publish(event, values);
    QCOMPARE(fixture.bannerTexts(), QStringList{FilesQuestion});
    fakes::publish(event, values);
    QCOMPARE(fixture.bannerTexts(), QStringList{FilesQuestion});
}

void TestViewEvents::otherEventsShowNothing_data()
{
    QTest::addColumn<QString>("event");
    QTest::addColumn<QVariantMap>("values");
    QTest::newRow("disabled source added") << "TE.File.Add" << QVariantMap{{"file", "/design/disabled.v"}};
    QTest::newRow("text added") << "TE.File.Add" << QVariantMap{{"file", "/design/readme.txt"}};
    QTest::newRow("unknown file modified") << "TE.File.Modified" << QVariantMap{{"file", "/elsewhere/x.v"}};
    QTest::newRow("disabled source removed") << "TE.File.Remove" << QVariantMap{{"type", 2}, {"enable", false}};
    QTest::newRow("text enabled") << "TE.File.Change.Enable" << QVariantMap{{"type", 0}, {"enable", true}};
    QTest::newRow("between other types") << "TE.File.Change.Type" << QVariantMap{{"type", 5}, {"previous", 6}};
    QTest::newRow("device") << "TE.Device.Change" << QVariantMap();
}

void TestViewEvents::otherEventsShowNothing()
{
    QFETCH(QString, event);
    QFETCH(QVariantMap, values);
    ViewFixture fixture;
    QVERIFY(fixture.open());
    fakes::setFileInfo("/design/disabled.v", 2, false);
    fakes::setFileInfo("/design/readme.txt", 0, true);
    fakes::publish(event, values);
    QCOMPARE(fixture.bannerTexts(), QStringList());
    QVERIFY(child<QWidget>(fixture.view(), "widget_3").isHidden());
}

void TestViewEvents::anUnrelatedOptionShowsNothing()
{
    ViewFixture fixture;
    QVERIFY(fixture.open());
    fakes::publish("TE.Option.Change", {{"option", "Synthesize_tool"}});
    QCOMPARE(fixture.bannerTexts(), QStringList());
}

void TestViewEvents::theBannerOffersReloadAndCancel()
{
    ViewFixture fixture;
    QVERIFY(fixture.open());
    fakes::publish("TE.Option.Change", {{"option", "IncludePath"}});
    QVERIFY(child<QWidget>(fixture.view(), "widget_3").isVisible());
    ReloadBanner *banner = fixture.banners().at(0);
    QVERIFY(banner->isVisible());
    QCOMPARE(child<QPushButton>(*banner, "btnA").text(), QString("Reload"));
    QCOMPARE(child<QPushButton>(*banner, "btnB").text(), QString("Cancel"));
    QCOMPARE(fixture.driver.shownCount(), 0);
}

void TestViewEvents::topModuleHasItsOwnQuestion()
{
    ViewFixture fixture;
    QVERIFY(fixture.open());
    fakes::publish("TE.Option.Change", {{"option", "TopModule"}});
    QCOMPARE(fixture.bannerTexts(), QStringList{TopQuestion});
}

void TestViewEvents::whileAQuestionIsOpenEveryEventIsIgnored()
{
    ViewFixture fixture;
    QVERIFY(fixture.open());
    fakes::publish("TE.Option.Change", {{"option", "TopModule"}});
    fakes::setFileInfo("/design/source.v", 2, true);
    fakes::publish("TE.File.Modified", {{"file", "/design/source.v"}});
    QCOMPARE(fixture.bannerTexts(), QStringList{TopQuestion});
    QCOMPARE(fakes::fileInfosAsked(), QStringList());
}

void TestViewEvents::unsubscribedViewHearsNothing()
{
    ViewFixture fixture;
    QVERIFY(fixture.open());
    fixture.call("unsubscribeEvent");
    fakes::publish("TE.Option.Change", {{"option", "TopModule"}});
    QCOMPARE(fixture.bannerTexts(), QStringList());
    fixture.call("subscribeEvent");
    fakes::publish("TE.Option.Change", {{"option", "TopModule"}});
    QCOMPARE(fixture.bannerTexts(), QStringList{TopQuestion});
}

void TestViewEvents::reloadReadsTheNetlistAnew()
{
    ViewFixture fixture;
    QVERIFY(fixture.open());
    fakes::Instance changed("soc");
    changed.net("clk").net("new_clk");
    fakes::setDesign(changed);
    fakes::publish("TE.Option.Change", {{"option", "IncludePath"}});
    const QPointer<ReloadBanner> banner = fixture.banners().at(0);
    fixture.clickBanner(0, "btnA");
    QCOMPARE(fakes::netsCalls().size(), 2);
    QCOMPARE(fixture.banners().size(), 0);
    QVERIFY(banner->isHidden());
    runDeferredDeletes();
    QVERIFY(!banner);
    auto &captured = fixture.captured(0);
    QCOMPARE(captured.topLevelItem(0)->foreground(0).color(), QColor(Qt::red));
    fixture.editClock(0, "new_clk");
    QVERIFY(fixture.view().save());
}

void TestViewEvents::reloadKeepsUnsavedEdits()
{
    ViewFixture fixture;
    QVERIFY(fixture.open());
    fixture.editClock(0, "clk2");
    fakes::publish("TE.Option.Change", {{"option", "IncludePath"}});
    fixture.clickBanner(0, "btnA");
    QCOMPARE(fixture.clockShown(0), QString("clk2"));
    QVERIFY(fixture.view().isModified());
    fixture.setModified(false);
}

void TestViewEvents::afterReloadTheNextEventAsksAgain()
{
    ViewFixture fixture;
    QVERIFY(fixture.open());
    fakes::publish("TE.Option.Change", {{"option", "IncludePath"}});
    fixture.clickBanner(0, "btnA");
    fakes::publish("TE.Option.Change", {{"option", "TopModule"}});
    QCOMPARE(fixture.bannerTexts(), QStringList{TopQuestion});
}

void TestViewEvents::aFailedReloadClosesTheContainerWithoutAQuestion()
{
    ViewFixture fixture;
    QVERIFY(fixture.open());
    fixture.editClock(0, "clk2");
    QSignalSpy spy(&fixture.view(), &VakInserterView::modificationStatusChanged);
    fakes::publish("TE.Option.Change", {{"option", "TopModule"}});
    fakes::setTop("nothing");
    fakes::setModules({}, {});
    fixture.driver.answerBox(QMessageBox::Ok);
    fixture.clickBanner(0, "btnA");
    QCOMPARE(fixture.driver.boxes().size(), 1);
    QCOMPARE(fixture.driver.boxes().first().title, QString("Invalid Top Module"));
    QCOMPARE(spy.size(), 1);
    QCOMPARE(spy.at(0).at(0).toBool(), false);
    QVERIFY(fixture.container().isHidden());
    runDeferredDeletes();
    QVERIFY(!fixture.containerLives());
    QVERIFY(!fixture.viewLives());
}

void TestViewEvents::aFailedReloadOfAnUnmodifiedViewEmitsNothing()
{
    ViewFixture fixture;
    QVERIFY(fixture.open());
    QSignalSpy spy(&fixture.view(), &VakInserterView::modificationStatusChanged);
    fakes::publish("TE.Option.Change", {{"option", "TopModule"}});
    fakes::deliverNull();
    fixture.clickBanner(0, "btnA");
    QCOMPARE(spy.size(), 0);
    QCOMPARE(fixture.driver.shownCount(), 0);
    QVERIFY(fixture.container().isHidden());
}

void TestViewEvents::aFailedReloadWithoutContainerStaysOpen()
{
    ViewFixture fixture; // for the doubles
    const auto view = makeView(fixture.mode);
    const QString path = fixture.write("a.rvk", 1);
    QString error;
    QVERIFY(view->open(path, {}, &error));
    view->show();
    fakes::deliverNull();
    call(*view, "onRtlReload");
    QVERIFY(view->isVisible());
    QVERIFY(!view->testAttribute(Qt::WA_DeleteOnClose));
}

/// Hears what the view wants the host to show among its messages.
class MessageListener : public QUtil::IEventHandler
{
public:
    MessageListener() { subscribe("QUtil.Message"); }
    void handleIEvent(const QUtil::IEvent *event) override
    {
        lines += event->get("severity").toString() + ": " + event->get("text").toString();
    }

    QStringList lines;
};

void TestViewEvents::everyReadOfTheDesignIsCountedInTheMessages()
{
    ViewFixture fixture;
    MessageListener listener;
    QVERIFY(fixture.open());
    fakes::Instance smaller("tiny");
    smaller.net("clk").net("tied", fakes::Unusable).bus("d", 7, 0).bus("r", 0, 1, fakes::Unusable);
    smaller.child("u", "leaf").bus("q", 0, 3);
    fakes::deliverNetlist(smaller);
    fixture.call("onRtlReload");
    QCOMPARE(listener.lines, QStringList({"info: soc: 4 nets to choose from (3 single, 1 bus), 11 bits",
                                          "info: tiny: 3 nets to choose from (1 single, 2 buses), 13 bits"}));
}

void TestViewEvents::aFailedReloadKeepsUnsavedWorkBesideTheFile()
{
    ViewFixture fixture;
    QVERIFY(fixture.open(2));
    const QByteArray before = fixture.dir.read("some.rvk");
    fixture.editClock(1, "clk2");
    fakes::deliverNull();
    MessageListener listener;
    fixture.call("onRtlReload");
    QVERIFY(fixture.container().isHidden());
    QCOMPARE(listener.lines,
             QStringList{"warning: Unsaved work on " + fixture.path + " is kept in " + fixture.path + ".recovered"});
    QCOMPARE(clocksInFile(fixture.dir.filePath("some.rvk.recovered")), QStringList({"clk", "clk2"}));
    QCOMPARE(fixture.dir.read("some.rvk"), before);
    QCOMPARE(fixture.driver.shownCount(), 0);
}

void TestViewEvents::aFailedReloadOfAnUnmodifiedViewKeepsNothing()
{
    ViewFixture fixture;
    QVERIFY(fixture.open());
    fakes::deliverNull();
    fixture.call("onRtlReload");
    QVERIFY(fixture.container().isHidden());
    QVERIFY(!QFile::exists(fixture.dir.filePath("some.rvk.recovered")));
}

void TestViewEvents::aFailedReloadClosesEvenWhenNothingCanBeKept()
{
    ViewFixture fixture;
    fixture.dir.write("sub/other", {});
    QVERIFY(fixture.open(1, "sub/some.rvk"));
    fixture.editClock(0, "clk2");
    QVERIFY(QDir(fixture.dir.filePath("sub")).removeRecursively());
    fakes::deliverNull();
    MessageListener listener;
    fixture.call("onRtlReload");
    QVERIFY(fixture.container().isHidden());
    QCOMPARE(listener.lines, QStringList{"error: Can not keep the unsaved work on " + fixture.path});
}

void TestViewEvents::cancelKeepsTheOldNetlist()
{
    ViewFixture fixture;
    QVERIFY(fixture.open());
    fakes::publish("TE.Option.Change", {{"option", "IncludePath"}});
    const QPointer<ReloadBanner> banner = fixture.banners().at(0);
    fixture.clickBanner(0, "btnB");
    QCOMPARE(fixture.banners().size(), 0);
    runDeferredDeletes();
    QVERIFY(!banner);
    QCOMPARE(fakes::netsCalls().size(), 1);
    QVERIFY(fixture.view().save());
}

void TestViewEvents::afterCancelTheNextEventAsksAgain()
{
    ViewFixture fixture;
    QVERIFY(fixture.open());
    fakes::publish("TE.Option.Change", {{"option", "IncludePath"}});
    fixture.clickBanner(0, "btnB");
    fakes::publish("TE.Option.Change", {{"option", "IncludePath"}});
    QCOMPARE(fixture.bannerTexts(), QStringList{FilesQuestion});
}

void TestViewEvents::viewMayDieInAFailedReload()
{
    ViewFixture fixture;
    QVERIFY(fixture.open());
    fixture.editClock(0, "clk2");
    fakes::setModules({}, {});
    fixture.driver.actOnBox([&fixture](QMessageBox &) { fixture.kill(); });
    fixture.call("onRtlReload");
    QVERIFY(!fixture.viewLives());
}

void TestViewEvents::eachSlotRemovesOnlyItsOwnBanner()
{
    ViewFixture fixture;
    QVERIFY(fixture.open());
    fixture.call("checkForReload");
    fakes::publish("TE.Option.Change", {{"option", "IncludePath"}});
    QCOMPARE(fixture.banners().size(), 2);
    fixture.clickBanner(1, "btnB");
    QCOMPARE(fixture.banners().size(), 1);
    QVERIFY(fixture.bannerTexts().first().contains("changed on disk"));
}

void TestViewEvents::cancellingTheFileBannerAlsoClearsTheDesignFlag()
{
    ViewFixture fixture;
    QVERIFY(fixture.open());
    fixture.call("checkForReload");
    fakes::publish("TE.Option.Change", {{"option", "IncludePath"}});
    fixture.clickBanner(0, "btnB");
    QCOMPARE(fixture.bannerTexts(), QStringList{FilesQuestion});
    fakes::publish("TE.Option.Change", {{"option", "TopModule"}});
    QCOMPARE(fixture.bannerTexts(), QStringList({FilesQuestion, TopQuestion}));
}

void TestViewEvents::aFileQuestionAndADesignQuestionAreShownTogether()
{
    ViewFixture fixture;
    QVERIFY(fixture.open());
    fakes::publish("TE.Option.Change", {{"option", "IncludePath"}});
    changeClockOnDisk(fixture.path, "clk2");
    QTRY_COMPARE(fixture.banners().size(), 2);
    for (ReloadBanner *banner : fixture.banners())
        QVERIFY(banner->isVisible());
}

void TestViewEvents::slotsToleratedWithoutABanner()
{
    ViewFixture fixture;
    QVERIFY(fixture.open());
    fakes::publish("TE.Option.Change", {{"option", "IncludePath"}});
    fixture.call("onReloadCancel");
    fixture.call("onBannerCancel");
    fixture.call("onBannerKeep");
    fixture.call("onBannerReload");
    QCOMPARE(fixture.banners().size(), 1);
    QCOMPARE(fixture.items(), fixture.titles(1));
}

void TestViewEvents::theBannerContainerStaysShown()
{
    ViewFixture fixture;
    QVERIFY(fixture.open());
    fakes::publish("TE.Option.Change", {{"option", "IncludePath"}});
    fixture.clickBanner(0, "btnB");
    QVERIFY(child<QWidget>(fixture.view(), "widget_3").isVisible());
}

QTEST_MAIN(TestViewEvents)
#include "tst_inserterview_events.moc"

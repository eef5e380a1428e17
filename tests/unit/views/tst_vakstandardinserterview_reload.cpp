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

/// The Standard view and its file on disk.
class TestStandardViewReload : public QObject
{
    Q_OBJECT

private slots:
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

void TestStandardViewReload::initTestCase()
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

void TestStandardViewReload::aChangeAsksAfterTheDelay()
{
    ViewFixture fixture;
    QVERIFY(fixture.open());
    QElapsedTimer timer;
    timer.start();
    fixture.view().onFileChange();
    QCOMPARE(fixture.banners().size(), 0);
    QTRY_COMPARE(fixture.banners().size(), 1);
    QVERIFY(timer.elapsed() >= 490);
    QVERIFY(child<QWidget>(fixture.view(), "widget_3").isVisible());
    QCOMPARE(fixture.driver.shownCount(), 0);
}

void TestStandardViewReload::threeQuickExternalWritesProduceOneBanner()
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

void TestStandardViewReload::noSecondQuestionWhileOneIsOpen()
{
    ViewFixture fixture;
    QVERIFY(fixture.open());
    fixture.view().onFileChange();
    QTRY_COMPARE(fixture.banners().size(), 1);
    fixture.view().onFileChange();
    QTest::qWait(700);
    QCOMPARE(fixture.banners().size(), 1);
    // Once it is answered the next change asks again.
    fixture.clickBanner(0, "btnB");
    fixture.view().onFileChange();
    QTRY_COMPARE(fixture.banners().size(), 1);
}

void TestStandardViewReload::theChangedBannerNamesTheFile()
{
    ViewFixture fixture;
    QVERIFY(fixture.open(1, "a<b>%1.rvk"));
    fixture.view().checkForReload();
    QCOMPARE(fixture.bannerTexts(), QStringList{changedText(fixture.path)});
    QCOMPARE(child<QPushButton>(*fixture.banners().at(0), "btnA").text(), QString("Reload"));
    QCOMPARE(child<QPushButton>(*fixture.banners().at(0), "btnB").text(), QString("Cancel"));
}

void TestStandardViewReload::replacementByRenameIsNoticedEachTime()
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

void TestStandardViewReload::deletionAndCreationWithinTheDelayAsksAboutAChange()
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

void TestStandardViewReload::theRemovedBannerOffersToKeep()
{
    ViewFixture fixture;
    QVERIFY(fixture.open());
    fixture.dir.remove("some.rvk");
    QTRY_COMPARE(fixture.bannerTexts(), QStringList{removedText(fixture.path)});
    QCOMPARE(child<QPushButton>(*fixture.banners().at(0), "btnA").text(), QString("Keep It"));
    QCOMPARE(child<QPushButton>(*fixture.banners().at(0), "btnB").text(), QString("Close"));
}

void TestStandardViewReload::reloadShowsTheFile()
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

void TestStandardViewReload::reloadDiscardsEditsButLeavesTheModifiedFlag()
{
    ViewFixture fixture;
    QVERIFY(fixture.open());
    fixture.editClock(0, "data[7]");
    QSignalSpy spy(&fixture.view(), &VakInserterView::modificationStatusChanged);
    fixture.view().onBannerReload();
    QCOMPARE(fixture.clockShown(0), QString("clk"));
    QVERIFY(fixture.view().isModified());
    QCOMPARE(spy.size(), 0);
    QCOMPARE(fixture.view().windowTitle(), QString("some.rvk *"));
    fixture.view().setModified(false);
}

void TestStandardViewReload::reloadDeletesTheOldPages()
{
    ViewFixture fixture;
    QVERIFY(fixture.open(2));
    const QPointer<AoOptionWidget> first = &fixture.page(0);
    const QPointer<AoOptionWidget> second = &fixture.page(1);
    SignalLog log;
    log.watch(first.data(), &QObject::destroyed, "first");
    log.watch(second.data(), &QObject::destroyed, "second");
    fixture.view().onBannerReload();
    QCOMPARE(log.names(), QStringList({"second", "first"}));
    QCOMPARE(fixture.view().findChildren<AoOptionWidget *>().size(), 2);
    // Only living pages follow a change of the device.
    fakes::setCurrentDevice("none");
    fakes::publish("TE.Device.Change");
}

void TestStandardViewReload::reloadShowsTheFirstCore()
{
    ViewFixture fixture;
    QVERIFY(fixture.open(3));
    fixture.view().changeAoWidget(2);
    fixture.view().onBannerReload();
    QCOMPARE(fixture.stack().currentIndex(), 0);
    QCOMPARE(fixture.currentItem(), QString("Core 0"));
    QCOMPARE(fixture.pageTitle(), QString("Core 0"));
}

void TestStandardViewReload::reloadOfAFileWithoutCoresAddsOne()
{
    ViewFixture fixture;
    QVERIFY(fixture.open(3));
    writeStandardFile(fixture.dir, "some.rvk", 0);
    fixture.view().onBannerReload();
    QCOMPARE(fixture.items(), QStringList{"Core 0"});
    QCOMPARE(fixture.stack().count(), 1);
    QCOMPARE(fixture.clockShown(0), QString());
    QVERIFY(fixture.view().isModified());
    QCOMPARE(fixture.view().windowTitle(), QString("some.rvk *"));
    fixture.view().setModified(false);
}

void TestStandardViewReload::reloadKeepsTheNetlist()
{
    ViewFixture fixture;
    QVERIFY(fixture.open());
    fixture.view().onBannerReload();
    QCOMPARE(fakes::netsCalls().size(), 1);
    QVERIFY(fixture.view().save());
}

void TestStandardViewReload::reloadShowsSignalsThatTheNetlistDoesNotKnow()
{
    ViewFixture fixture;
    QVERIFY(fixture.open());
    const QList<VAK::AoCore *> cores = VAK::readVAKConfigFromXml(fixture.path);
    VAK::SignalItem gone;
    gone.name = "gone";
    cores.first()->setallCapSignal(cores.first()->getallCapSignal() << gone);
    QVERIFY(VAK::writeVAKConfigToXml(cores, fixture.path));
    qDeleteAll(cores);
    fixture.view().onBannerReload();
    auto &captured = child<QTreeWidget>(fixture.page(0), "treeWidgetCapSigs");
    QCOMPARE(topTexts(captured), QStringList({"valid", "gone"}));
    QVERIFY(captured.topLevelItem(0)->foreground(0).color() != QColor(Qt::red));
    QCOMPARE(captured.topLevelItem(1)->foreground(0).color(), QColor(Qt::red));
    QVERIFY(!fixture.view().isModified());
}

void TestStandardViewReload::reloadWatchesTheFileFurther()
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

void TestStandardViewReload::reloadWithAnotherNumberOfCores_data()
{
    QTest::addColumn<int>("before");
    QTest::addColumn<int>("after");
    QTest::newRow("more") << 1 << 16;
    QTest::newRow("fewer") << 16 << 2;
}

void TestStandardViewReload::reloadWithAnotherNumberOfCores()
{
    QFETCH(int, before);
    QFETCH(int, after);
    ViewFixture fixture;
    QVERIFY(fixture.open(before));
    fixture.editClock(0, "clk2");
    writeStandardFile(fixture.dir, "some.rvk", after);
    fixture.view().onBannerReload();
    QCOMPARE(fixture.items().size(), after);
    QCOMPARE(fixture.items().last(), QString("Core %1").arg(after - 1));
    QCOMPARE(fixture.stack().count(), after);
    QVERIFY(fixture.view().save());
    QCOMPARE(clocksInFile(fixture.path).size(), after);
}

void TestStandardViewReload::aBadValueChangesNothingAndCloses()
{
    ViewFixture fixture;
    QVERIFY(fixture.open(2));
    fixture.editClock(0, "clk2");
    fixture.dir.write("some.rvk", fixture.dir.read("some.rvk").replace("1024", "many"));
    fixture.driver.answerBox(QMessageBox::Ok, [&fixture](QMessageBox &) {
        QCOMPARE(fixture.items().size(), 2);
        QCOMPARE(fixture.clockShown(0), QString("clk2"));
    });
    fixture.view().onBannerReload();
    const BoxRecord box = fixture.driver.boxes().first();
    QCOMPARE(box.title, QString("Reload Vak"));
    QCOMPARE(box.text, QString("Invalid VAK file."));
    QCOMPARE(box.icon, QMessageBox::Warning);
    QCOMPARE(box.buttons, QMessageBox::StandardButtons(QMessageBox::Ok));
    QCOMPARE(box.parent, &fixture.view());
    QVERIFY(fixture.container().isHidden());
}

void TestStandardViewReload::aFileOfAnotherKindIsRefused_data()
{
    QTest::addColumn<QByteArray>("contents");
    QTest::newRow("no XML") << QByteArray("module top; endmodule\n");
    QTest::newRow("Lite") << QByteArray("<?xml version=\"1.0\"?>\n<vak version=\"1\" mode=\"lite\"/>\n");
}

void TestStandardViewReload::aFileOfAnotherKindIsRefused()
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

void TestStandardViewReload::theRefusalClosesWithoutASaveQuestion()
{
    ViewFixture fixture;
    QVERIFY(fixture.open());
    fixture.editClock(0, "clk2");
    fixture.dir.write("some.rvk", "nonsense");
    QSignalSpy spy(&fixture.view(), &VakInserterView::modificationStatusChanged);
    fixture.driver.answerBox(QMessageBox::Ok);
    fixture.view().onBannerReload();
    QCOMPARE(fixture.driver.boxes().size(), 1);
    QCOMPARE(spy.size(), 1);
    QCOMPARE(spy.at(0).at(0).toBool(), false);
    QVERIFY(fixture.container().isHidden());
    QCOMPARE(fixture.dir.read("some.rvk"), QByteArray("nonsense"));
}

void TestStandardViewReload::viewMayDieInTheRefusal()
{
    ViewFixture fixture;
    QVERIFY(fixture.open());
    fixture.dir.write("some.rvk", "nonsense");
    fixture.driver.actOnBox([&fixture](QMessageBox &) { fixture.kill(); });
    fixture.view().onBannerReload();
    QVERIFY(!fixture.viewLives());
}

void TestStandardViewReload::cancelKeepsWhatIsShown()
{
    ViewFixture fixture;
    QVERIFY(fixture.open());
    fixture.editClock(0, "data[1]");
    changeClockOnDisk(fixture.path, "clk2");
    QTRY_COMPARE(fixture.banners().size(), 1);
    fixture.clickBanner(0, "btnB");
    QCOMPARE(fixture.clockShown(0), QString("data[1]"));
    QVERIFY(fixture.view().isModified());
    fixture.view().setModified(false);
}

void TestStandardViewReload::keepLetsALaterSaveWriteTheFileAnew()
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

void TestStandardViewReload::closeClosesWithoutASaveQuestionEvenWhenModified()
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

void TestStandardViewReload::closeOfAViewWithoutContainerKeepsIt()
{
    ViewFixture fixture; // for the doubles
    VakStandardInserterView view;
    const QString path = writeStandardFile(fixture.dir, "a.rvk", 1);
    QString error;
    QVERIFY(view.open(path, {}, &error));
    view.show();
    view.onBannerClose();
    QVERIFY(view.isVisible());
}

/// Keeps itself open, as a host does whose other document is not saved.
class StubbornContainer : public QWidget
{
protected:
    void closeEvent(QCloseEvent *event) override { event->ignore(); }
};

void TestStandardViewReload::closeIsRefusedByTheContainer()
{
    ViewFixture fixture; // for the doubles
    StubbornContainer container;
    auto *view = new VakStandardInserterView(&container);
    const QString path = writeStandardFile(fixture.dir, "a.rvk", 1);
    QString error;
    QVERIFY(view->open(path, {}, &error));
    container.show();
    view->onBannerClose();
    QVERIFY(container.isVisible());
    QVERIFY(container.testAttribute(Qt::WA_DeleteOnClose));
    container.setAttribute(Qt::WA_DeleteOnClose, false);
}

void TestStandardViewReload::aPendingQuestionDiesWithTheView()
{
    ViewFixture fixture;
    QVERIFY(fixture.open());
    fixture.view().onFileChange();
    fixture.kill();
    QTest::qWait(600);
    QVERIFY(!fixture.viewLives());
}

QTEST_MAIN(TestStandardViewReload)
#include "tst_vakstandardinserterview_reload.moc"

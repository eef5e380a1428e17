// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "viewfixture.h"

#include <QLayout>
#include <QSignalSpy>
#include <QtTest>

using namespace RTLVAK;
using namespace support;

/// The construction, opening, modified flag and destruction of a view.
class TestViewLifecycle : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase_data() { addModes(); }
    void initTestCase();

    void bannerContainerIsPreparedAndHidden();
    void constructorSubscribesInOrderAndDestructorUnsubscribesInOrder();
    void startsUnmodifiedAndWithoutFile();
    void theSecondBaseIsTheEventHandler();

    void openShowsEveryCore();
    void openReportsAFileOfAnotherKind_data();
    void openReportsAFileOfAnotherKind();
    void openPassesOnTheReadersMessage();
    void openToleratesAMissingErrorText();
    void openFailsWithoutNetlist();
    void openIgnoresItsSecondArgument();
    void openHandsTheNetlistToEveryPage();
    void fileIsThePathAsPassed();
    void aFileWithoutCoresOpensWithOneNewCoreAndIsModified();
    void openLeavesTheShortTitleAlone();
    void openFollowsTheNewFileOnly();
    void openingTheFirstFileLeavesNoEmptyPath();

    void firstEditMarksTheDocument();
    void aSecondChangeKeepsTheTitleWithASingleStar();
    void notificationComesBeforeTitles();
    void setModifiedAlwaysEmitsAndLeavesTitles();
    void setModifiedTrueSilencesTheNextEdit();

    void destructionFreesTheNetlist();
    void destructionOfAnUnopenedView();
};

void TestViewLifecycle::initTestCase()
{
    QCOMPARE(missingDoubles(), QString());
}

void TestViewLifecycle::bannerContainerIsPreparedAndHidden()
{
    const auto view = makeView(currentMode());
    auto &container = child<QWidget>(*view, "widget_3");
    QVERIFY(container.isHidden());
    auto *layout = qobject_cast<QHBoxLayout *>(container.layout());
    QVERIFY(layout);
    QCOMPARE(layout->spacing(), 0);
    QCOMPARE(layout->contentsMargins(), QMargins());
    QCOMPARE(layout->count(), 0);
}

void TestViewLifecycle::constructorSubscribesInOrderAndDestructorUnsubscribesInOrder()
{
    const QStringList types{"TE.File.Add",         "TE.File.Remove",   "TE.File.Change.Enable",
                            "TE.File.Change.Type", "TE.File.Modified", "TE.Option.Change"};
    fakes::resetEvents();
    auto view = makeView(currentMode());
    const auto *handler = dynamic_cast<QUtil::IEventHandler *>(view.get());
    QCOMPARE(fakes::subscriptionsOf(handler), types);
    QCOMPARE(fakes::busCalls().size(), 6);
    view.reset();
    const QList<fakes::BusCall> calls = fakes::busCalls();
    QCOMPARE(calls.size(), 12);
    for (int i = 0; i < 12; ++i) {
        QCOMPARE(calls.at(i).kind, i < 6 ? fakes::BusCall::Subscribe : fakes::BusCall::Unsubscribe);
        QCOMPARE(calls.at(i).type, types.at(i % 6));
        QCOMPARE(static_cast<const QUtil::IEventHandler *>(calls.at(i).handler), handler);
    }
    QCOMPARE(fakes::subscriptionCount(), 0);
}

void TestViewLifecycle::startsUnmodifiedAndWithoutFile()
{
    const auto view = makeView(currentMode());
    QCOMPARE(view->file(), QString());
    QVERIFY(!view->isModified());
    QCOMPARE(view->device(), QString());
    QVERIFY(!view->parentWidget());
}

void TestViewLifecycle::theSecondBaseIsTheEventHandler()
{
    QVERIFY(dynamic_cast<QUtil::IEventHandler *>(makeView(currentMode()).get()));
}

void TestViewLifecycle::openShowsEveryCore()
{
    ViewFixture fixture;
    QTest::ignoreMessage(QtDebugMsg, " This is open file to Ao");
    QVERIFY(fixture.open(3));
    QCOMPARE(fixture.items(), fixture.titles(3));
    QCOMPARE(fixture.stack().count(), 3);
    for (int i = 0; i < 3; ++i)
        QCOMPARE(fixture.coreNumber(i), i);
    QCOMPARE(fixture.stack().currentIndex(), 0);
    QCOMPARE(fixture.currentItem(), fixture.titles(1).first());
    if (fixture.mode == Mode::Standard)
        QCOMPARE(fixture.pageTitle(), QString("Core 0"));
    QCOMPARE(fixture.view().windowTitle(), QString("some.rvk"));
    QVERIFY(!fixture.view().isModified());
}

void TestViewLifecycle::openReportsAFileOfAnotherKind_data()
{
    QTest::addColumn<QByteArray>("contents");
    QTest::newRow("no XML") << QByteArray("module top; endmodule\n");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("another mode") << QByteArray("<?xml version=\"1.0\"?>\n<vak version=\"1\" mode=\"other\"/>\n");
}

void TestViewLifecycle::openReportsAFileOfAnotherKind()
{
    QFETCH(QByteArray, contents);
    ViewFixture fixture;
    const QString path = fixture.dir.write("<other> %1.rvk", contents);
    QString error;
    QVERIFY(!fixture.view().open(path, {}, &error));
    QCOMPARE(error, fixture.dir.path() + "/<other> %1.rvk open file failed.");
    QCOMPARE(fixture.items(), QStringList());
    QCOMPARE(fixture.driver.shownCount(), 0);
    QCOMPARE(fakes::sourceFileInfoCalls(), 0);
}

void TestViewLifecycle::openPassesOnTheReadersMessage()
{
    ViewFixture fixture;
    const QString path = fixture.write("a.rvk", 1);
    const QByteArray damaged = fixture.dir.read("a.rvk").replace("1024", "many");
    fixture.dir.write("a.rvk", damaged);
    bool ok = true;
    QString expected;
    if (fixture.mode == Mode::Lite)
        VAK::readVAKConfigFromXml_Lite(path, &ok, &expected);
    else
        VAK::readVAKConfigFromXml(path, &ok, &expected);
    QVERIFY(!ok);
    QVERIFY(!expected.isEmpty());

    QString error;
    QVERIFY(!fixture.view().open(path, {}, &error));
    QCOMPARE(error, expected);
    QCOMPARE(fixture.stack().count(), 0);
    QCOMPARE(fakes::modulesCalls().size(), 0);
}

void TestViewLifecycle::openToleratesAMissingErrorText()
{
    ViewFixture fixture;
    QVERIFY(!fixture.view().open(fixture.dir.filePath("none.rvk"), {}, nullptr));
}

void TestViewLifecycle::openFailsWithoutNetlist()
{
    ViewFixture fixture;
    fakes::deliverNull();
    const QString path = fixture.write("a.rvk", 1);
    QString error;
    QVERIFY(!fixture.view().open(path, {}, &error));
    QCOMPARE(error, QString());
    QCOMPARE(fixture.driver.shownCount(), 0);
}

void TestViewLifecycle::openIgnoresItsSecondArgument()
{
    ViewFixture fixture;
    const QString path = fixture.write("a.rvk", 1);
    QString error;
    QVERIFY(fixture.view().open(path, "something", &error));
    QCOMPARE(fixture.items(), fixture.titles(1));
}

void TestViewLifecycle::openHandsTheNetlistToEveryPage()
{
    fakes::Instance other("soc");
    other.net("clk"); // "valid", which the cores capture, is gone
    ViewFixture fixture;
    fakes::setDesign(other);
    QVERIFY(fixture.open(2));
    for (int i = 0; i < 2; ++i) {
        auto &tree = fixture.captured(i);
        QCOMPARE(topTexts(tree), QStringList{"valid"});
        QCOMPARE(tree.topLevelItem(0)->foreground(0).color(), QColor(Qt::red));
    }
}

void TestViewLifecycle::fileIsThePathAsPassed()
{
    ViewFixture fixture;
    fixture.write("a.rvk", 1);
    const QString crooked = fixture.dir.path() + "/./sub/../a.rvk";
    fixture.dir.write("sub/x", {});
    QString error;
    QVERIFY(fixture.view().open(crooked, {}, &error));
    QCOMPARE(fixture.view().file(), crooked);
    QCOMPARE(fixture.view().windowTitle(), QString("a.rvk"));
}

void TestViewLifecycle::aFileWithoutCoresOpensWithOneNewCoreAndIsModified()
{
    ViewFixture fixture;
    QSignalSpy spy(&fixture.view(), &VakInserterView::modificationStatusChanged);
    QVERIFY(fixture.open(0));
    QVERIFY(fixture.view().isModified());
    QCOMPARE(spy.size(), 1);
    QCOMPARE(spy.at(0).at(0).toBool(), true);
    QCOMPARE(fixture.view().windowTitle(), QString("some.rvk *"));
    QCOMPARE(fixture.view().shortTitle(), QString("some.rvk *"));
    QCOMPARE(fixture.items(), fixture.titles(1));
    QCOMPARE(fixture.stack().count(), 1);
    if (fixture.mode == Mode::Standard)
        QCOMPARE(fixture.pageTitle(), QString("Core 0"));
    fixture.setModified(false);
}

void TestViewLifecycle::openLeavesTheShortTitleAlone()
{
    ViewFixture fixture;
    QVERIFY(fixture.open());
    QCOMPARE(fixture.view().shortTitle(), QString());
}

void TestViewLifecycle::openFollowsTheNewFileOnly()
{
    ViewFixture fixture;
    QVERIFY(fixture.open(1, "first.rvk"));
    const QString first = fixture.path;
    QVERIFY(fixture.open(1, "second.rvk"));
    changeClockOnDisk(first, "clk2");
    changeClockOnDisk(fixture.path, "clk2");
    QTRY_COMPARE(fixture.banners().size(), 1);
    QCOMPARE(fixture.bannerTexts().first(), "The file '" + fixture.path + "' changed on disk.\nDo you want to reload?");
    QCOMPARE(fixture.items(), fixture.titles(1));
}

static QStringList watcherWarnings;

static void keepWatcherWarning(QtMsgType type, const QMessageLogContext &, const QString &line)
{
    if (type == QtWarningMsg && line.contains("QFileSystemWatcher"))
        watcherWarnings += line;
}

/// The watcher warns about an empty path that it is to leave or to follow.
void TestViewLifecycle::openingTheFirstFileLeavesNoEmptyPath()
{
    ViewFixture fixture;
    watcherWarnings.clear();
    const QtMessageHandler usual = qInstallMessageHandler(keepWatcherWarning);
    const bool opened = fixture.open();
    qInstallMessageHandler(usual);
    QVERIFY(opened);
    QCOMPARE(watcherWarnings, QStringList());
}

void TestViewLifecycle::firstEditMarksTheDocument()
{
    ViewFixture fixture;
    QVERIFY(fixture.open(2));
    QSignalSpy spy(&fixture.view(), &VakInserterView::modificationStatusChanged);
    fixture.editClock(1, "clk2");
    QVERIFY(fixture.view().isModified());
    QCOMPARE(spy.size(), 1);
    QCOMPARE(spy.at(0).at(0).toBool(), true);
    QCOMPARE(fixture.view().windowTitle(), QString("some.rvk *"));
    QCOMPARE(fixture.view().shortTitle(), QString("some.rvk *"));
    fixture.setModified(false);
}

void TestViewLifecycle::aSecondChangeKeepsTheTitleWithASingleStar()
{
    ViewFixture fixture;
    QVERIFY(fixture.open());
    QSignalSpy spy(&fixture.view(), &VakInserterView::modificationStatusChanged);
    fixture.call("onModified");
    fixture.call("onModified");
    QCOMPARE(spy.size(), 1);
    QCOMPARE(fixture.view().windowTitle(), QString("some.rvk *"));
    QCOMPARE(fixture.view().shortTitle(), QString("some.rvk *"));
    fixture.setModified(false);
}

void TestViewLifecycle::notificationComesBeforeTitles()
{
    ViewFixture fixture;
    QVERIFY(fixture.open());
    SignalLog log;
    log.watch(&fixture.view(), &VakInserterView::modificationStatusChanged, "modified");
    log.watch(&fixture.view(), &QWidget::windowTitleChanged, "title");
    log.watch(&fixture.view(), &Core::IView::shortTitleChanged, "short title");
    fixture.call("onModified");
    QCOMPARE(log.names(), QStringList({"modified", "title", "short title"}));
    fixture.setModified(false);
}

void TestViewLifecycle::setModifiedAlwaysEmitsAndLeavesTitles()
{
    ViewFixture fixture;
    QVERIFY(fixture.open());
    QSignalSpy spy(&fixture.view(), &VakInserterView::modificationStatusChanged);
    for (const bool on : {true, true, false, false}) {
        spy.clear();
        fixture.setModified(on);
        QCOMPARE(spy.size(), 1);
        QCOMPARE(spy.at(0).at(0).toBool(), on);
        QCOMPARE(fixture.view().isModified(), on);
        QCOMPARE(fixture.view().windowTitle(), QString("some.rvk"));
        QCOMPARE(fixture.view().shortTitle(), QString());
    }
}

void TestViewLifecycle::setModifiedTrueSilencesTheNextEdit()
{
    ViewFixture fixture;
    QVERIFY(fixture.open());
    fixture.setModified(true);
    QSignalSpy spy(&fixture.view(), &VakInserterView::modificationStatusChanged);
    fixture.call("onModified");
    QCOMPARE(spy.size(), 0);
    QCOMPARE(fixture.view().windowTitle(), QString("some.rvk"));
    fixture.setModified(false);
}

void TestViewLifecycle::destructionFreesTheNetlist()
{
    const int before = fakes::liveNetlists();
    ViewFixture fixture;
    QVERIFY(fixture.open(2));
    QCOMPARE(fakes::liveNetlists(), before + 1);
    fixture.kill();
    QCOMPARE(fakes::liveNetlists(), before);
    QCOMPARE(fakes::subscriptionCount(), 0);
}

void TestViewLifecycle::destructionOfAnUnopenedView()
{
    const auto view = makeView(currentMode());
    QVERIFY(!view->isModified());
}

QTEST_MAIN(TestViewLifecycle)
#include "tst_inserterview_lifecycle.moc"

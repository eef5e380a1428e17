// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "viewfixture.h"

#include "widgets/changedbanner.h"

#include <QDockWidget>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QtTest>

using namespace RTLVAK;
using namespace support;

/// The construction, opening, modified flag and destruction of the Standard view.
class TestStandardViewLifecycle : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();

    void slotsAreDeclaredInTheFixedOrder();
    void noSignalsOfItsOwn();
    void formHasTheFixedNamesAndSizes();
    void bannerContainerIsPreparedAndHidden();
    void netlistChangedBannerIsHiddenAndOkHidesItAgain();
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

    void firstEditMarksTheDocument();
    void aSecondChangeKeepsTheTitleWithASingleStar();
    void notificationComesBeforeTitles();
    void setModifiedAlwaysEmitsAndLeavesTitles();
    void setModifiedTrueSilencesTheNextEdit();

    void destructionFreesTheNetlist();
    void destructionOfAnUnopenedView();
    void pagesAreSilentWhileTheViewDies();
};

void TestStandardViewLifecycle::initTestCase()
{
    QCOMPARE(missingDoubles(), QString());
}

void TestStandardViewLifecycle::slotsAreDeclaredInTheFixedOrder()
{
    const QStringList expected{"onModified()",
                               "on_treeWidget_customContextMenuRequested(QPoint)",
                               "on_treeWidget_doubleClicked(QModelIndex)",
                               "on_treeWidget_clicked(QModelIndex)",
                               "onOKBtn()",
                               "onFileChange()",
                               "checkForReload()",
                               "onBannerReload()",
                               "onBannerCancel()",
                               "onBannerKeep()",
                               "onBannerClose()",
                               "subscribeEvent()",
                               "unsubscribeEvent()",
                               "readRtlNetlist()",
                               "onRtlReload()",
                               "onReloadCancel()"};
    QCOMPARE(ownSlots(VakStandardInserterView::staticMetaObject), expected);
}

void TestStandardViewLifecycle::noSignalsOfItsOwn()
{
    QCOMPARE(ownSignals(VakStandardInserterView::staticMetaObject), QStringList());
    QCOMPARE(ownMethods(VakStandardInserterView::staticMetaObject).size(), 16);
}

void TestStandardViewLifecycle::formHasTheFixedNamesAndSizes()
{
    VakStandardInserterView view;
    QCOMPARE(view.size(), QSize(672, 471));
    QCOMPARE(view.windowTitle(), QString("RTLVAK::VakStandardInserterView"));
    QCOMPARE(view.layout()->objectName(), QString("verticalLayout_3"));
    QCOMPARE(view.layout()->count(), 3);
    QCOMPARE(view.layout()->itemAt(0)->widget()->objectName(), QString("widget_3"));
    QCOMPARE(view.layout()->itemAt(1)->widget()->objectName(), QString("widget_2"));
    QCOMPARE(view.layout()->itemAt(2)->widget()->objectName(), QString("widget"));
    QCOMPARE(child<QWidget>(view, "widget").layout()->objectName(), QString("horizontalLayout"));

    auto &list = child<QDockWidget>(view, "dockWidget");
    QCOMPARE(list.windowTitle(), QString("Ao Core"));
    QCOMPARE(list.features(), QDockWidget::DockWidgetFeatures(QDockWidget::NoDockWidgetFeatures));
    QCOMPARE(list.widget()->objectName(), QString("dockWidgetContents"));
    QCOMPARE(list.widget()->layout()->objectName(), QString("verticalLayout"));
    auto &tree = child<QTreeWidget>(*list.widget(), "treeWidget");
    QCOMPARE(tree.contextMenuPolicy(), Qt::CustomContextMenu);
    QCOMPARE(tree.selectionMode(), QAbstractItemView::SingleSelection);
    QCOMPARE(tree.columnCount(), 1);

    auto &pages = child<QDockWidget>(view, "dockWidget_2");
    QCOMPARE(pages.features(), QDockWidget::DockWidgetFeatures(QDockWidget::NoDockWidgetFeatures));
    QCOMPARE(pages.widget()->objectName(), QString("dockWidgetContents_2"));
    QCOMPARE(pages.widget()->layout()->objectName(), QString("verticalLayout_2"));
    QCOMPARE(child<QStackedWidget>(*pages.widget(), "stackedWidget").count(), 0);
}

void TestStandardViewLifecycle::bannerContainerIsPreparedAndHidden()
{
    VakStandardInserterView view;
    auto &container = child<QWidget>(view, "widget_3");
    QVERIFY(container.isHidden());
    auto *layout = qobject_cast<QHBoxLayout *>(container.layout());
    QVERIFY(layout);
    QCOMPARE(layout->spacing(), 0);
    QCOMPARE(layout->contentsMargins(), QMargins());
    QCOMPARE(layout->count(), 0);
}

void TestStandardViewLifecycle::netlistChangedBannerIsHiddenAndOkHidesItAgain()
{
    ViewFixture fixture;
    auto &strip = child<QWidget>(fixture.view(), "widget_2");
    QVERIFY(strip.isHidden());
    QCOMPARE(strip.findChildren<ChangedBanner *>().size(), 1);
    strip.show();
    QVERIFY(child<QPushButton>(strip, "okBtn").isVisible());
    clickButton(strip, "okBtn");
    QVERIFY(strip.isHidden());
}

void TestStandardViewLifecycle::constructorSubscribesInOrderAndDestructorUnsubscribesInOrder()
{
    const QStringList types{"TE.File.Add",         "TE.File.Remove",   "TE.File.Change.Enable",
                            "TE.File.Change.Type", "TE.File.Modified", "TE.Option.Change"};
    fakes::resetEvents();
    auto view = std::make_unique<VakStandardInserterView>();
    const QUtil::IEventHandler *handler = view.get();
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

void TestStandardViewLifecycle::startsUnmodifiedAndWithoutFile()
{
    VakStandardInserterView view;
    QCOMPARE(view.file(), QString());
    QVERIFY(!view.isModified());
    QCOMPARE(view.device(), QString());
    QVERIFY(!view.parentWidget());
}

void TestStandardViewLifecycle::theSecondBaseIsTheEventHandler()
{
    VakStandardInserterView view;
    VakInserterView *base = &view;
    QVERIFY(dynamic_cast<QUtil::IEventHandler *>(base));
}

void TestStandardViewLifecycle::openShowsEveryCore()
{
    ViewFixture fixture;
    QTest::ignoreMessage(QtDebugMsg, " This is open file to Ao");
    QVERIFY(fixture.open(3));
    QCOMPARE(fixture.items(), QStringList({"Core 0", "Core 1", "Core 2"}));
    QCOMPARE(fixture.stack().count(), 3);
    for (int i = 0; i < 3; ++i)
        QCOMPARE(fixture.page(i).core()->index(), i);
    QCOMPARE(fixture.stack().currentIndex(), 0);
    QCOMPARE(fixture.currentItem(), QString("Core 0"));
    QCOMPARE(fixture.pageTitle(), QString("Core 0"));
    QCOMPARE(fixture.view().windowTitle(), QString("some.rvk"));
    QVERIFY(!fixture.view().isModified());
}

void TestStandardViewLifecycle::openReportsAFileOfAnotherKind_data()
{
    QTest::addColumn<QByteArray>("contents");
    QTest::newRow("no XML") << QByteArray("module top; endmodule\n");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("Lite") << QByteArray("<?xml version=\"1.0\"?>\n<vak version=\"1\" mode=\"lite\"/>\n");
}

void TestStandardViewLifecycle::openReportsAFileOfAnotherKind()
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

void TestStandardViewLifecycle::openPassesOnTheReadersMessage()
{
    ViewFixture fixture;
    const QString path = writeStandardFile(fixture.dir, "a.rvk", 1);
    const QByteArray damaged = fixture.dir.read("a.rvk").replace("1024", "many");
    fixture.dir.write("a.rvk", damaged);
    bool ok = true;
    QString expected;
    QVERIFY(VAK::readVAKConfigFromXml(path, &ok, &expected).isEmpty());
    QVERIFY(!ok);
    QVERIFY(!expected.isEmpty());

    QString error;
    QVERIFY(!fixture.view().open(path, {}, &error));
    QCOMPARE(error, expected);
    QCOMPARE(fixture.stack().count(), 0);
    QCOMPARE(fakes::modulesCalls().size(), 0);
}

void TestStandardViewLifecycle::openToleratesAMissingErrorText()
{
    ViewFixture fixture;
    QVERIFY(!fixture.view().open(fixture.dir.filePath("none.rvk"), {}, nullptr));
}

void TestStandardViewLifecycle::openFailsWithoutNetlist()
{
    ViewFixture fixture;
    fakes::deliverNull();
    const QString path = writeStandardFile(fixture.dir, "a.rvk", 1);
    QString error;
    QVERIFY(!fixture.view().open(path, {}, &error));
    QCOMPARE(error, QString());
    QCOMPARE(fixture.driver.shownCount(), 0);
}

void TestStandardViewLifecycle::openIgnoresItsSecondArgument()
{
    ViewFixture fixture;
    const QString path = writeStandardFile(fixture.dir, "a.rvk", 1);
    QString error;
    QVERIFY(fixture.view().open(path, "something", &error));
    QCOMPARE(fixture.items(), QStringList{"Core 0"});
}

void TestStandardViewLifecycle::openHandsTheNetlistToEveryPage()
{
    fakes::Instance other("soc");
    other.net("clk"); // "valid", which the cores capture, is gone
    ViewFixture fixture;
    fakes::setDesign(other);
    QVERIFY(fixture.open(2));
    for (int i = 0; i < 2; ++i) {
        auto &tree = child<QTreeWidget>(fixture.page(i), "treeWidgetCapSigs");
        QCOMPARE(topTexts(tree), QStringList{"valid"});
        QCOMPARE(tree.topLevelItem(0)->foreground(0).color(), QColor(Qt::red));
    }
}

void TestStandardViewLifecycle::fileIsThePathAsPassed()
{
    ViewFixture fixture;
    writeStandardFile(fixture.dir, "a.rvk", 1);
    const QString crooked = fixture.dir.path() + "/./sub/../a.rvk";
    fixture.dir.write("sub/x", {});
    QString error;
    QVERIFY(fixture.view().open(crooked, {}, &error));
    QCOMPARE(fixture.view().file(), crooked);
    QCOMPARE(fixture.view().windowTitle(), QString("a.rvk"));
}

void TestStandardViewLifecycle::aFileWithoutCoresOpensWithOneNewCoreAndIsModified()
{
    ViewFixture fixture;
    QSignalSpy spy(&fixture.view(), &VakInserterView::modificationStatusChanged);
    QVERIFY(fixture.open(0));
    QVERIFY(fixture.view().isModified());
    QCOMPARE(spy.size(), 1);
    QCOMPARE(spy.at(0).at(0).toBool(), true);
    QCOMPARE(fixture.view().windowTitle(), QString("some.rvk *"));
    QCOMPARE(fixture.view().shortTitle(), QString("some.rvk *"));
    QCOMPARE(fixture.items(), QStringList{"Core 0"});
    QCOMPARE(fixture.stack().count(), 1);
    QCOMPARE(fixture.pageTitle(), QString("Core 0"));
    fixture.view().setModified(false);
}

void TestStandardViewLifecycle::openLeavesTheShortTitleAlone()
{
    ViewFixture fixture;
    QVERIFY(fixture.open());
    QCOMPARE(fixture.view().shortTitle(), QString());
}

void TestStandardViewLifecycle::openFollowsTheNewFileOnly()
{
    ViewFixture fixture;
    QVERIFY(fixture.open(1, "first.rvk"));
    const QString first = fixture.path;
    QVERIFY(fixture.open(1, "second.rvk"));
    changeClockOnDisk(first, "clk2");
    changeClockOnDisk(fixture.path, "clk2");
    QTRY_COMPARE(fixture.banners().size(), 1);
    QCOMPARE(fixture.bannerTexts().first(), "The file '" + fixture.path + "' changed on disk.\nDo you want to reload?");
    QCOMPARE(fixture.items(), QStringList{"Core 0"});
}

void TestStandardViewLifecycle::firstEditMarksTheDocument()
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
    fixture.view().setModified(false);
}

void TestStandardViewLifecycle::aSecondChangeKeepsTheTitleWithASingleStar()
{
    ViewFixture fixture;
    QVERIFY(fixture.open());
    QSignalSpy spy(&fixture.view(), &VakInserterView::modificationStatusChanged);
    fixture.view().onModified();
    fixture.view().onModified();
    QCOMPARE(spy.size(), 1);
    QCOMPARE(fixture.view().windowTitle(), QString("some.rvk *"));
    QCOMPARE(fixture.view().shortTitle(), QString("some.rvk *"));
    fixture.view().setModified(false);
}

void TestStandardViewLifecycle::notificationComesBeforeTitles()
{
    ViewFixture fixture;
    QVERIFY(fixture.open());
    SignalLog log;
    log.watch(&fixture.view(), &VakInserterView::modificationStatusChanged, "modified");
    log.watch(&fixture.view(), &QWidget::windowTitleChanged, "title");
    log.watch(&fixture.view(), &Core::IView::shortTitleChanged, "short title");
    fixture.view().onModified();
    QCOMPARE(log.names(), QStringList({"modified", "title", "short title"}));
    fixture.view().setModified(false);
}

void TestStandardViewLifecycle::setModifiedAlwaysEmitsAndLeavesTitles()
{
    ViewFixture fixture;
    QVERIFY(fixture.open());
    QSignalSpy spy(&fixture.view(), &VakInserterView::modificationStatusChanged);
    for (const bool on : {true, true, false, false}) {
        spy.clear();
        fixture.view().setModified(on);
        QCOMPARE(spy.size(), 1);
        QCOMPARE(spy.at(0).at(0).toBool(), on);
        QCOMPARE(fixture.view().isModified(), on);
        QCOMPARE(fixture.view().windowTitle(), QString("some.rvk"));
        QCOMPARE(fixture.view().shortTitle(), QString());
    }
}

void TestStandardViewLifecycle::setModifiedTrueSilencesTheNextEdit()
{
    ViewFixture fixture;
    QVERIFY(fixture.open());
    fixture.view().setModified(true);
    QSignalSpy spy(&fixture.view(), &VakInserterView::modificationStatusChanged);
    fixture.view().onModified();
    QCOMPARE(spy.size(), 0);
    QCOMPARE(fixture.view().windowTitle(), QString("some.rvk"));
    fixture.view().setModified(false);
}

void TestStandardViewLifecycle::destructionFreesTheNetlist()
{
    const int before = fakes::liveNetlists();
    ViewFixture fixture;
    QVERIFY(fixture.open(2));
    QCOMPARE(fakes::liveNetlists(), before + 1);
    fixture.kill();
    QCOMPARE(fakes::liveNetlists(), before);
    QCOMPARE(fakes::subscriptionCount(), 0);
}

void TestStandardViewLifecycle::destructionOfAnUnopenedView()
{
    const auto view = std::make_unique<VakStandardInserterView>();
    QVERIFY(!view->isModified());
}

/// Emits while it dies, as a page does whose focused editor loses the focus.
class NoisyPage : public AoOptionWidget
{
public:
    using AoOptionWidget::AoOptionWidget;
    ~NoisyPage() override { emit modifed(); }
};

void TestStandardViewLifecycle::pagesAreSilentWhileTheViewDies()
{
    ViewFixture fixture;
    QVERIFY(fixture.open());
    QSignalSpy spy(&fixture.view(), &VakInserterView::modificationStatusChanged);
    const auto core = completeCore(1);
    fixture.view().addAoOptionWidget(new NoisyPage(core.get(), nullptr, &fixture.view()));
    fixture.kill();
    QCOMPARE(spy.size(), 0);
}

QTEST_MAIN(TestStandardViewLifecycle)
#include "tst_vakstandardinserterview_lifecycle.moc"

// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "viewfixture.h"

#include "widgets/changedbanner.h"

#include <QAction>
#include <QDockWidget>
#include <QLayout>
#include <QMenu>
#include <QPushButton>
#include <QSignalSpy>
#include <QtTest>

using namespace RTLVAK;
using namespace support;

/// What only the Standard view has: its form and its own interface.
class TestStandardViewForm : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QCOMPARE(missingDoubles(), QString()); }

    void slotsAreDeclaredInTheFixedOrder();
    void noSignalsOfItsOwn();
    void formHasTheFixedNamesAndSizes();
    void netlistChangedBannerIsHiddenAndOkHidesItAgain();
    void pagesAreSilentWhileTheViewDies();
    void theViewDiesInOrder();
};

void TestStandardViewForm::slotsAreDeclaredInTheFixedOrder()
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

void TestStandardViewForm::noSignalsOfItsOwn()
{
    QCOMPARE(ownSignals(VakStandardInserterView::staticMetaObject), QStringList());
    QCOMPARE(ownMethods(VakStandardInserterView::staticMetaObject).size(), 16);
}

void TestStandardViewForm::formHasTheFixedNamesAndSizes()
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

void TestStandardViewForm::netlistChangedBannerIsHiddenAndOkHidesItAgain()
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

/// Emits while it dies, as a page does whose focused editor loses the focus.
class NoisyPage : public AoOptionWidget
{
public:
    using AoOptionWidget::AoOptionWidget;
    ~NoisyPage() override { emit modifed(); }
};

void TestStandardViewForm::pagesAreSilentWhileTheViewDies()
{
    ViewFixture fixture;
    QVERIFY(fixture.open());
    QSignalSpy spy(&fixture.view(), &VakInserterView::modificationStatusChanged);
    const auto core = completeCore(1);
    fixture.standardView().addAoOptionWidget(new NoisyPage(core.get(), nullptr, &fixture.view()));
    fixture.kill();
    QCOMPARE(spy.size(), 0);
}

void TestStandardViewForm::theViewDiesInOrder()
{
    ViewFixture fixture;
    QVERIFY(fixture.open());
    const int netlists = fakes::liveNetlists();
    SignalLog log;
    const auto note = [&log, netlists](QObject *dying, const QString &name) {
        connect(dying, &QObject::destroyed, &log, [&log, name, netlists] {
            log.note(fakes::liveNetlists() == netlists ? name + " with netlist" : name);
        });
    };
    note(&fixture.page(0), "page");
    const QUtil::IEventHandler *handler = &fixture.standardView();
    connect(&fixture.page(0), &QObject::destroyed, &log,
            [&log, handler] { log.note(fakes::subscriptionsOf(handler).isEmpty() ? "unsubscribed" : "subscribed"); });
    fixture.driver.actOnMenu([&note](QMenu &menu) {
        for (QAction *action : menu.actions()) {
            QCOMPARE(action->parent()->metaObject()->className(),
                     "RTLVAK::private_impl::VakStandardInserterViewPrivate");
            note(action, action->text());
        }
        menu.close();
    });
    fixture.contextMenu(0);
    fixture.kill();
    QCOMPARE(log.names(), QStringList({"page with netlist", "unsubscribed", "Add", "Remove"}));
}

QTEST_MAIN(TestStandardViewForm)
#include "tst_vakstandardinserterview_form.moc"

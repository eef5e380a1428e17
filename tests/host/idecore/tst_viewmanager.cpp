// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "scriptedview.h"

#include "hostlibs/idecore/viewarea.h"

#include <IdeCore/viewmanager.h>

#include <QPointer>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>

#include <memory>

using namespace Core;

class TestViewManager : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void instanceIsAlwaysTheSame();
    void everyViewHasAContainerOfItsOwn();
    void shownViewIsActive();
    void showingAgainActivates();
    void showingTheActiveViewEmitsNothing();
    void tabShowsShortTitleElseWindowTitle();
    void tabShowsAmpersandLiterally();
    void closeViewAsksAndTells();
    void closeViewHonoursRefusal();
    void closeViewOfUnknownViewIsFalse();
    void closingTheParentWithDeleteOnCloseClosesThisViewOnly();
    void closingTheParentHonoursRefusal();
    void viewIsAliveInViewClosed();
    void lastClosedViewLeavesNullActive();
    void deletedViewTakesItsTabAlong();
    void viewClosedInsideItsOwnQuestionIsAskedOnce();
    void closeAllKeepsEverythingAfterOneRefusal();
    void closeAllClosesEverythingWhenAllAgree();
    void destroyedAreaTellsAboutTheViewsLeft();
    void tabCloseButtonCloses();
    void neighbourTabsWrapAround();
    void withoutAnAreaAViewIsAWindow();
    void dialogParentIsTheWindowOfTheArea();
    void emptyPageShowsWhileNoViewIsOpen();

private:
    ScriptedView *open(const QString &name);
    QTabWidget *tabs() const { return area->findChild<QTabWidget *>(); }
    QStringList openNames() const;

    QStringList log;
    std::unique_ptr<QWidget> window;
    ViewArea *area = nullptr;
};

ScriptedView *TestViewManager::open(const QString &name)
{
    auto *view = new ScriptedView(name, &log);
    ViewManager::showView(view);
    return view;
}

QStringList TestViewManager::openNames() const
{
    QStringList names;
    for (const IView *view : area->views())
        names.append(view->windowTitle());
    return names;
}

void TestViewManager::initTestCase()
{
    connect(ViewManager::instance(), &ViewManager::viewActiveted, this, [this](IView *view) {
        log.append("active: " + (view == nullptr ? QString("none") : view->windowTitle()));
    });
    connect(ViewManager::instance(), &ViewManager::viewClosed, this,
            [this](IView *view) { log.append("closed: " + view->windowTitle()); });
}

void TestViewManager::init()
{
    window = std::make_unique<QWidget>();
    area = new ViewArea(window.get());
    window->resize(600, 400);
    window->show();
    log.clear();
}

void TestViewManager::cleanup()
{
    window.reset();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void TestViewManager::instanceIsAlwaysTheSame()
{
    QVERIFY(ViewManager::instance() != nullptr);
    QCOMPARE(ViewManager::instance(), ViewManager::instance());
}

void TestViewManager::everyViewHasAContainerOfItsOwn()
{
    const ScriptedView *a = open("a");
    const ScriptedView *b = open("b");
    QVERIFY(a->parentWidget() != nullptr);
    QVERIFY(a->parentWidget() != b->parentWidget());
    QVERIFY(a->parentWidget() != area && a->parentWidget() != tabs());
    QCOMPARE(openNames(), QStringList({"a", "b"}));
}

void TestViewManager::shownViewIsActive()
{
    open("a");
    open("b");
    QCOMPARE(log, QStringList({"a activated", "active: a", "a deactivated", "b activated", "active: b"}));
    QCOMPARE(area->activeView()->windowTitle(), QString("b"));
}

void TestViewManager::showingAgainActivates()
{
    ScriptedView *a = open("a");
    open("b");
    log.clear();
    ViewManager::showView(a);
    QCOMPARE(log, QStringList({"b deactivated", "a activated", "active: a"}));
    QCOMPARE(openNames(), QStringList({"a", "b"}));
    QVERIFY(a->isVisible());
}

void TestViewManager::showingTheActiveViewEmitsNothing()
{
    ScriptedView *a = open("a");
    log.clear();
    ViewManager::showView(a);
    ViewManager::showView(nullptr);
    QVERIFY(log.isEmpty());
}

void TestViewManager::tabShowsShortTitleElseWindowTitle()
{
    ScriptedView *a = open("a");
    QCOMPARE(tabs()->tabText(0), QString("a"));
    a->setWindowTitle("long a");
    QCOMPARE(tabs()->tabText(0), QString("long a"));
    a->setShortTitle("short");
    QCOMPARE(tabs()->tabText(0), QString("short"));
    a->setWindowTitle("longer a");
    QCOMPARE(tabs()->tabText(0), QString("short"));
    QCOMPARE(tabs()->tabToolTip(0), QString("longer a"));
    a->setWindowFilePath("/tmp/a.rvk");
    a->setShortTitle("short *");
    QCOMPARE(tabs()->tabText(0), QString("short *"));
    QCOMPARE(tabs()->tabToolTip(0), QString("/tmp/a.rvk"));
}

void TestViewManager::tabShowsAmpersandLiterally()
{
    ScriptedView *a = open("a");
    a->setShortTitle("r&d.rvk");
    QCOMPARE(tabs()->tabText(0), QString("r&&d.rvk"));
}

void TestViewManager::closeViewAsksAndTells()
{
    QPointer<ScriptedView> a = open("a");
    open("b");
    log.clear();
    QVERIFY(ViewManager::closeView(a));
    QCOMPARE(log, QStringList({"a asked", "closed: a"}));
    QCOMPARE(openNames(), QStringList({"b"}));
    QTRY_VERIFY(a.isNull());
}

void TestViewManager::closeViewHonoursRefusal()
{
    ScriptedView *a = open("a");
    a->mayClose = false;
    log.clear();
    QVERIFY(!ViewManager::closeView(a));
    QVERIFY(!ViewManager::closeView(a));
    QCOMPARE(log, QStringList({"a asked", "a asked"}));
    QCOMPARE(openNames(), QStringList({"a"}));
    QVERIFY(a->isVisible());
}

void TestViewManager::closeViewOfUnknownViewIsFalse()
{
    ScriptedView stranger("stranger", &log);
    QVERIFY(!ViewManager::closeView(&stranger));
    QVERIFY(!ViewManager::closeView(nullptr));
    QVERIFY(log.isEmpty());
}

void TestViewManager::closingTheParentWithDeleteOnCloseClosesThisViewOnly()
{
    QPointer<ScriptedView> a = open("a");
    QPointer<ScriptedView> b = open("b");
    log.clear();
    b->parentWidget()->setAttribute(Qt::WA_DeleteOnClose);
    QVERIFY(b->parentWidget()->close());
    QCOMPARE(log, QStringList({"b asked", "closed: b", "b deactivated", "a activated", "active: a"}));
    QVERIFY(!b.isNull());
    QTRY_VERIFY(b.isNull());
    QVERIFY(!a.isNull());
    QVERIFY(a->isVisible());
    QCOMPARE(openNames(), QStringList({"a"}));
}

void TestViewManager::closingTheParentHonoursRefusal()
{
    QPointer<ScriptedView> a = open("a");
    a->mayClose = false;
    a->parentWidget()->setAttribute(Qt::WA_DeleteOnClose);
    QVERIFY(!a->parentWidget()->close());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!a.isNull());
    QVERIFY(a->isVisible());
    QCOMPARE(openNames(), QStringList({"a"}));
}

void TestViewManager::viewIsAliveInViewClosed()
{
    ScriptedView *a = open("a");
    int seen = 0;
    const auto connection = connect(ViewManager::instance(), &ViewManager::viewClosed, this, [&](IView *view) {
        seen += qobject_cast<ScriptedView *>(view) == a && view->parentWidget() != nullptr ? 1 : 0;
    });
    ViewManager::closeView(a);
    disconnect(connection);
    QCOMPARE(seen, 1);
}

void TestViewManager::lastClosedViewLeavesNullActive()
{
    ScriptedView *a = open("a");
    log.clear();
    ViewManager::closeView(a);
    QCOMPARE(log, QStringList({"a asked", "closed: a", "a deactivated", "active: none"}));
    QVERIFY(area->activeView() == nullptr);
}

void TestViewManager::deletedViewTakesItsTabAlong()
{
    ScriptedView *a = open("a");
    ScriptedView *b = open("b");
    log.clear();
    delete b;
    QCOMPARE(log, QStringList({"b destroyed", "a activated", "active: a"}));
    QCOMPARE(tabs()->count(), 1);
    delete a;
    QCOMPARE(log.last(), QString("active: none"));
    QCOMPARE(tabs()->count(), 0);
}

void TestViewManager::viewClosedInsideItsOwnQuestionIsAskedOnce()
{
    ScriptedView *a = open("a");
    bool inner = true;
    a->whenAsked = [&] { inner = ViewManager::closeView(a); };
    log.clear();
    QVERIFY(ViewManager::closeView(a));
    QVERIFY(!inner);
    QCOMPARE(log.count("a asked"), 1);
    QCOMPARE(log.count("closed: a"), 1);
}

void TestViewManager::closeAllKeepsEverythingAfterOneRefusal()
{
    ScriptedView *a = open("a");
    ScriptedView *b = open("b");
    ScriptedView *c = open("c");
    b->mayClose = false;
    log.clear();
    QVERIFY(!area->closeAll());
    QCOMPARE(log.filter("asked"), QStringList({"a asked", "b asked"}));
    QVERIFY(log.filter("closed").isEmpty());
    QCOMPARE(openNames(), QStringList({"a", "b", "c"}));
    for (ScriptedView *view : {a, b, c}) {
        ViewManager::showView(view);
        QVERIFY(view->isVisible());
    }
    log.clear();
    QVERIFY(ViewManager::closeView(a));
    QCOMPARE(log.filter("asked"), QStringList({"a asked"}));
}

void TestViewManager::closeAllClosesEverythingWhenAllAgree()
{
    open("a");
    open("b");
    log.clear();
    QVERIFY(area->closeAll());
    QCOMPARE(log.filter("asked"), QStringList({"a asked", "b asked"}));
    QCOMPARE(log.filter("closed"), QStringList({"closed: a", "closed: b"}));
    QVERIFY(openNames().isEmpty());
    QCOMPARE(log.last(), QString("active: none"));
    QVERIFY(area->closeAll());
}

void TestViewManager::destroyedAreaTellsAboutTheViewsLeft()
{
    open("a");
    open("b");
    log.clear();
    window.reset();
    QCOMPARE(log, QStringList({"closed: a", "a destroyed", "closed: b", "b destroyed", "active: none"}));
}

void TestViewManager::tabCloseButtonCloses()
{
    open("a");
    open("b");
    emit tabs()->tabCloseRequested(0);
    QCOMPARE(openNames(), QStringList({"b"}));
}

void TestViewManager::neighbourTabsWrapAround()
{
    area->activateNeighbour(1);
    open("a");
    open("b");
    open("c");
    area->activateNeighbour(1);
    QCOMPARE(area->activeView()->windowTitle(), QString("a"));
    area->activateNeighbour(-1);
    QCOMPARE(area->activeView()->windowTitle(), QString("c"));
    area->activateNeighbour(-1);
    QCOMPARE(area->activeView()->windowTitle(), QString("b"));
}

void TestViewManager::withoutAnAreaAViewIsAWindow()
{
    window.reset();
    QPointer<ScriptedView> a = open("a");
    QVERIFY(a->parentWidget() != nullptr);
    QVERIFY(a->parentWidget()->isWindow());
    QVERIFY(a->isVisible());
    QCOMPARE(log, QStringList({"a activated", "active: a"}));
    a->mayClose = false;
    QVERIFY(!ViewManager::closeView(a));
    a->mayClose = true;
    QVERIFY(ViewManager::closeView(a));
    QCOMPARE(log.mid(4), QStringList({"closed: a", "a deactivated", "active: none"}));
    QTRY_VERIFY(a.isNull());
}

void TestViewManager::dialogParentIsTheWindowOfTheArea()
{
    QCOMPARE(ViewManager::dialogParent(), window.get());
    window.reset();
    QVERIFY(ViewManager::dialogParent() == nullptr);
}

void TestViewManager::emptyPageShowsWhileNoViewIsOpen()
{
    auto *page = new QWidget;
    area->setEmptyPage(page);
    QVERIFY(page->isVisible());
    ScriptedView *a = open("a");
    QVERIFY(!page->isVisible());
    ViewManager::closeView(a);
    QVERIFY(page->isVisible());
}

QTEST_MAIN(TestViewManager)
#include "tst_viewmanager.moc"

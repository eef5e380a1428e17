// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "scriptedview.h"

#include "hostlibs/idecore/command.h"
#include "hostlibs/idecore/viewarea.h"

#include <IdeCore/actionmanager.h>
#include <IdeCore/viewmanager.h>

#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>

#include <memory>

using namespace Core;

class TestActionManager : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void registeringAnswersTheHostAction();
    void oneIdHasOneActionForEachContext();
    void registeringAgainReplaces();
    void deletedActionIsForgotten();
    void commandMirrorsTheActiveContext();
    void commandFollowsTextToolTipAndState();
    void commandTriggersTheRegisteredAction();
    void commandIsDisabledWithNothingRegistered();
    void commandSurvivesItsTarget();
    void actionRegisteredLateIsFound();
    void commandMadeLateFindsTheAction();
    void contextCanBeTakenBack();
    void focusedWidgetsContextComesFirst();

private:
    IView *open(const QString &context);

    QStringList log;
    std::unique_ptr<QWidget> window;
};

void TestActionManager::init()
{
    window = std::make_unique<QWidget>();
    new ViewArea(window.get());
    window->show();
}

void TestActionManager::cleanup()
{
    window.reset();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

IView *TestActionManager::open(const QString &context)
{
    auto *view = new ScriptedView(context, &log);
    if (!context.isEmpty())
        ViewManager::registerContext(view, context, true);
    ViewManager::showView(view);
    return view;
}

void TestActionManager::registeringAnswersTheHostAction()
{
    QAction action;
    IAction *registered = ActionManager::registerAction(&action, "id.answers", "ctx");
    QVERIFY(registered != nullptr);
    QCOMPARE(registered->id(), QString("id.answers"));
    QCOMPARE(registered->action("ctx"), &action);
    QVERIFY(registered->action("other") == nullptr);
}

void TestActionManager::oneIdHasOneActionForEachContext()
{
    QAction a;
    QAction b;
    IAction *first = ActionManager::registerAction(&a, "id.contexts", "a");
    IAction *second = ActionManager::registerAction(&b, "id.contexts", "b");
    QCOMPARE(first, second);
    QCOMPARE(first->action("a"), &a);
    QCOMPARE(first->action("b"), &b);
}

void TestActionManager::registeringAgainReplaces()
{
    QAction a;
    QAction b;
    ActionManager::registerAction(&a, "id.again", "ctx");
    QCOMPARE(ActionManager::registerAction(&b, "id.again", "ctx")->action("ctx"), &b);
}

void TestActionManager::deletedActionIsForgotten()
{
    auto action = std::make_unique<QAction>();
    IAction *registered = ActionManager::registerAction(action.get(), "id.deleted", "ctx");
    action.reset();
    QVERIFY(registered->action("ctx") == nullptr);
}

void TestActionManager::commandMirrorsTheActiveContext()
{
    QAction a("Save A");
    QAction b("Save B");
    b.setEnabled(false);
    ActionManager::registerAction(&a, "id.mirror", "ctx.a");
    ActionManager::registerAction(&b, "id.mirror", "ctx.b");
    Command command("id.mirror", "Save", nullptr);
    IView *viewA = open("ctx.a");
    QCOMPARE(command.text(), QString("Save A"));
    QVERIFY(command.isEnabled());
    IView *viewB = open("ctx.b");
    QCOMPARE(command.text(), QString("Save B"));
    QVERIFY(!command.isEnabled());
    ViewManager::showView(viewA);
    QCOMPARE(command.text(), QString("Save A"));
    ViewManager::closeView(viewA);
    ViewManager::closeView(viewB);
    QCOMPARE(command.text(), QString("Save"));
    QVERIFY(!command.isEnabled());
}

void TestActionManager::commandFollowsTextToolTipAndState()
{
    QAction action("one");
    ActionManager::registerAction(&action, "id.follow", "ctx");
    Command command("id.follow", "Save", nullptr);
    open("ctx");
    action.setText("&Save \"soc.rvk\"");
    action.setToolTip("Save \"soc.rvk\"");
    QCOMPARE(command.text(), QString("&Save \"soc.rvk\""));
    QCOMPARE(command.toolTip(), QString("Save \"soc.rvk\""));
    action.setEnabled(false);
    QVERIFY(!command.isEnabled());
    action.setEnabled(true);
    QVERIFY(command.isEnabled());
}

void TestActionManager::commandTriggersTheRegisteredAction()
{
    QAction a;
    QAction b;
    QSignalSpy spyA(&a, &QAction::triggered);
    QSignalSpy spyB(&b, &QAction::triggered);
    ActionManager::registerAction(&a, "id.trigger", "ctx.a");
    ActionManager::registerAction(&b, "id.trigger", "ctx.b");
    Command command("id.trigger", "Save", nullptr);
    open("ctx.a");
    command.trigger();
    QCOMPARE(spyA.count(), 1);
    open("ctx.b");
    command.trigger();
    QCOMPARE(spyA.count(), 1);
    QCOMPARE(spyB.count(), 1);
}

void TestActionManager::commandIsDisabledWithNothingRegistered()
{
    Command command("id.nothing", "&Save", nullptr);
    QCOMPARE(command.text(), QString("&Save"));
    QVERIFY(!command.isEnabled());
    open("ctx");
    QVERIFY(!command.isEnabled());
    open("");
    QVERIFY(!command.isEnabled());
}

void TestActionManager::commandSurvivesItsTarget()
{
    auto action = std::make_unique<QAction>("target");
    ActionManager::registerAction(action.get(), "id.survive", "ctx");
    Command command("id.survive", "Save", nullptr);
    open("ctx");
    QVERIFY(command.isEnabled());
    action.reset();
    QVERIFY(!command.isEnabled());
    QCOMPARE(command.text(), QString("Save"));
    command.trigger();
}

void TestActionManager::actionRegisteredLateIsFound()
{
    Command command("id.late", "Save", nullptr);
    open("ctx");
    QVERIFY(!command.isEnabled());
    QAction action("late");
    ActionManager::registerAction(&action, "id.late", "ctx");
    QCOMPARE(command.text(), QString("late"));
    QVERIFY(command.isEnabled());
}

void TestActionManager::commandMadeLateFindsTheAction()
{
    QAction action("early");
    ActionManager::registerAction(&action, "id.early", "ctx");
    open("ctx");
    Command command("id.early", "Save", nullptr);
    QCOMPARE(command.text(), QString("early"));
    QVERIFY(command.isEnabled());
}

void TestActionManager::contextCanBeTakenBack()
{
    QAction action("target");
    ActionManager::registerAction(&action, "id.back", "ctx");
    Command command("id.back", "Save", nullptr);
    IView *view = open("ctx");
    QVERIFY(command.isEnabled());
    ViewManager::registerContext(view, "ctx", false);
    QVERIFY(!command.isEnabled());
}

void TestActionManager::focusedWidgetsContextComesFirst()
{
    QAction inView("view");
    QAction inPanel("panel");
    ActionManager::registerAction(&inView, "id.focus", "ctx.view");
    ActionManager::registerAction(&inPanel, "id.focus", "ctx.panel");
    Command command("id.focus", "Save", nullptr);
    QWidget panel(window.get());
    QLineEdit edit(&panel);
    panel.show();
    IView *view = open("ctx.view");
    ViewManager::registerContext(&panel, "ctx.panel", true);
    window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(window.get()));
    edit.setFocus();
    QTRY_COMPARE(command.text(), QString("panel"));
    view->setFocusPolicy(Qt::StrongFocus);
    view->setFocus();
    QTRY_COMPARE(command.text(), QString("view"));
}

QTEST_MAIN(TestActionManager)
#include "tst_actionmanager.moc"

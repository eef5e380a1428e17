// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "fakes/fakeviews.h"

#include <IdeCore/actionmanager.h>
#include <IdeCore/iview.h>
#include <IdeCore/viewmanager.h>

#include <QAction>

#include <memory>
#include <vector>

namespace {

class FakeAction : public Core::IAction
{
public:
    FakeAction(const QString &id, const QString &context, QAction *action)
        : actionId(id)
        , actionContext(context)
        , implementation(action)
    {
    }

    QString id() const override { return actionId; }
    bool belongsTo(const QString &context) const { return context == actionContext; }
    QAction *action(const QString &context) const override
    {
        return belongsTo(context) ? implementation.data() : nullptr;
    }

private:
    QString actionId;
    QString actionContext;
    QPointer<QAction> implementation;
};

struct Script
{
    QList<fakes::ViewCall> calls;
    std::function<void(Core::IView *)> showHandler;
    bool closeAnswer = true;
    std::function<bool(Core::IView *)> closeHandler;
    QPointer<QWidget> dialogParent;
};

Script &script()
{
    static Script instance;
    return instance;
}

std::vector<std::unique_ptr<FakeAction>> &registered()
{
    static std::vector<std::unique_ptr<FakeAction>> instance;
    return instance;
}

QList<Core::IView *> viewsOf(fakes::ViewCall::Kind kind)
{
    QList<Core::IView *> views;
    for (const fakes::ViewCall &call : script().calls) {
        if (call.kind == kind)
            views.append(static_cast<Core::IView *>(call.widget));
    }
    return views;
}

fakes::ViewCall widgetCall(fakes::ViewCall::Kind kind, QWidget *widget)
{
    fakes::ViewCall call;
    call.kind = kind;
    call.widget = widget;
    return call;
}

} // namespace

namespace Core {

IAction::~IAction() = default;

IAction *ActionManager::registerAction(QAction *action, const QString &id, const QString &context)
{
    fakes::ViewCall call;
    call.kind = fakes::ViewCall::RegisterAction;
    call.action = action;
    call.id = id;
    call.context = context;
    call.actionEnabled = action->isEnabled();
    script().calls.append(call);
    registered().push_back(std::make_unique<FakeAction>(id, context, action));
    return registered().back().get();
}

ViewManager::ViewManager() = default;
ViewManager::~ViewManager() = default;

ViewManager *ViewManager::instance()
{
    static ViewManager manager;
    return &manager;
}

void ViewManager::showView(IView *view)
{
    script().calls.append(widgetCall(fakes::ViewCall::ShowView, view));
    if (script().showHandler)
        script().showHandler(view);
}

bool ViewManager::closeView(IView *view)
{
    script().calls.append(widgetCall(fakes::ViewCall::CloseView, view));
    return script().closeHandler ? script().closeHandler(view) : script().closeAnswer;
}

void ViewManager::registerContext(QWidget *widget, const QString &context, bool enable)
{
    fakes::ViewCall call = widgetCall(fakes::ViewCall::RegisterContext, widget);
    call.context = context;
    call.enable = enable;
    script().calls.append(call);
}

QWidget *ViewManager::dialogParent()
{
    return script().dialogParent;
}

} // namespace Core

namespace fakes {

void resetViews()
{
    script() = {};
}

QList<ViewCall> viewCalls()
{
    return script().calls;
}

QList<Core::IView *> shownViews()
{
    return viewsOf(ViewCall::ShowView);
}

QList<Core::IView *> closedViews()
{
    return viewsOf(ViewCall::CloseView);
}

QAction *registeredAction(const QString &id, const QString &context)
{
    for (auto it = registered().rbegin(); it != registered().rend(); ++it) {
        if ((*it)->id() == id && (*it)->action(context))
            return (*it)->action(context);
    }
    return nullptr;
}

int registrations(const QString &id, const QString &context)
{
    int count = 0;
    for (const auto &action : registered())
        count += action->id() == id && action->belongsTo(context);
    return count;
}

void onShowView(const std::function<void(Core::IView *)> &handler)
{
    script().showHandler = handler;
}

void setCloseAnswer(bool answer)
{
    script().closeAnswer = answer;
}

void onCloseView(const std::function<bool(Core::IView *)> &handler)
{
    script().closeHandler = handler;
}

void setDialogParent(QWidget *parent)
{
    script().dialogParent = parent;
}

void emitViewActivated(Core::IView *view)
{
    emit Core::ViewManager::instance()->viewActiveted(view);
}

void emitViewClosed(Core::IView *view)
{
    emit Core::ViewManager::instance()->viewClosed(view);
}

} // namespace fakes

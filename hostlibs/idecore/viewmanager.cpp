// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include <IdeCore/viewmanager.h>

#include "hostlibs/idecore/activeview.h"
#include "hostlibs/idecore/contexts.h"
#include "hostlibs/idecore/viewarea.h"
#include "hostlibs/idecore/viewcontainer.h"

#include <IdeCore/iview.h>

#include <QPointer>

namespace Core {

namespace {

/// The pointer as it was when the view became active, also after the view died, and whether it still lives.
struct Active
{
    IView *view = nullptr;
    QPointer<IView> alive;
};

} // namespace

static Active &active()
{
    static Active theActive;
    return theActive;
}

IView *activeView()
{
    return active().alive;
}

void setActiveView(IView *view)
{
    const bool isNewcomerAtOldAddress = view != nullptr && active().alive.isNull();
    if (active().view == view && !isNewcomerAtOldAddress)
        return;
    const QPointer<IView> old = active().alive;
    const QPointer<IView> next = view;
    active() = {view, next};
    if (!old.isNull())
        old->onDeactivated();
    if (!next.isNull())
        next->onActivated();
    if (active().view == view)
        emit ViewManager::instance()->viewActiveted(next);
}

static void showAsWindow(ViewContainer *container)
{
    QObject::connect(container, &ViewContainer::closed, container, [container] {
        if (activeView() == container->view())
            setActiveView(nullptr);
    });
    container->setWindowTitle(container->view()->windowTitle());
    container->show();
}

ViewManager::ViewManager() = default;

ViewManager::~ViewManager() = default;

ViewManager *ViewManager::instance()
{
    static auto *const manager = new ViewManager;
    return manager;
}

void ViewManager::showView(IView *view)
{
    if (view == nullptr)
        return;
    auto *area = ViewArea::current();
    if (auto *shown = ViewContainer::of(view); shown != nullptr && area != nullptr)
        area->activate(shown);
    else if (shown != nullptr)
        shown->raise();
    else if (area != nullptr)
        area->insert(new ViewContainer(view));
    else
        showAsWindow(new ViewContainer(view));
    setActiveView(view);
}

bool ViewManager::closeView(IView *view)
{
    const QPointer<ViewContainer> container = ViewContainer::of(view);
    if (container.isNull())
        return false;
    // QWidget::close() answers true, too, while an earlier call is still asking: the outcome is what counts.
    container->close();
    return container.isNull() || container->isClosed();
}

void ViewManager::registerContext(QWidget *widget, const QString &context, bool enable)
{
    if (enable)
        ContextTracker::instance()->bind(widget, context);
    else
        ContextTracker::instance()->unbind(widget);
}

QWidget *ViewManager::dialogParent()
{
    auto *area = ViewArea::current();
    return area == nullptr ? nullptr : area->window();
}

} // namespace Core

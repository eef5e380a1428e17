// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "hostlibs/idecore/contexts.h"

#include "hostlibs/idecore/actionregistry.h"
#include "hostlibs/idecore/activeview.h"

#include <IdeCore/iview.h>
#include <IdeCore/viewmanager.h>

#include <QAction>
#include <QApplication>

namespace Core {

/// A binding lies in the widget itself, so that it ends with it.
constexpr char ContextProperty[] = "_core_context";

ContextTracker::ContextTracker()
{
    connect(ViewManager::instance(), &ViewManager::viewActiveted, this, &ContextTracker::changed);
    connect(qApp, &QApplication::focusChanged, this, &ContextTracker::changed);
}

ContextTracker *ContextTracker::instance()
{
    static auto *const tracker = new ContextTracker;
    return tracker;
}

QString ContextTracker::contextOf(const QWidget *widget) const
{
    return widget == nullptr ? QString() : widget->property(ContextProperty).toString();
}

QString ContextTracker::activeContext() const
{
    for (const QWidget *widget = QApplication::focusWidget(); widget != nullptr; widget = widget->parentWidget()) {
        const QString context = contextOf(widget);
        if (!context.isEmpty())
            return context;
    }
    return contextOf(activeView());
}

QAction *ContextTracker::activeAction(const QString &id) const
{
    return registeredAction(id, activeContext());
}

void ContextTracker::bind(QWidget *widget, const QString &context)
{
    if (widget == nullptr)
        return;
    widget->setProperty(ContextProperty, context);
    emit changed();
}

void ContextTracker::unbind(QWidget *widget)
{
    bind(widget, {});
}

} // namespace Core

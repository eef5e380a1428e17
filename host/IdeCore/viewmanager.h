// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <hostglobal.h>

#include <QObject>

namespace Core {

class IView;

/// Shows views, follows which one is active and closes them.
///
/// Views are owned by the container that the manager puts them into, from showView() on.
class HOST_EXPORT ViewManager : public QObject
{
    Q_OBJECT

public:
    /// The one view manager; created on first use, never null.
    static ViewManager *instance();

    /// Shows `view` and makes it active. A view that is not yet shown gets a container, which takes ownership.
    static void showView(Core::IView *view);
    /// Closes the container of `view`. Returns false when the view refused to close or is not shown.
    static bool closeView(Core::IView *view);
    /// Binds `context` to `widget`: actions registered for `context` apply while `widget` is active. With `enable`
    /// false the binding is removed. A widget has at most one context; a later call replaces it.
    static void registerContext(QWidget *widget, const QString &context, bool enable);
    /// The widget that message boxes without a view of their own use as parent; null when the host has no window.
    static QWidget *dialogParent();

signals:
    /// Emitted on every change of the active view; null when none is left.
    void viewActiveted(Core::IView *view); // spelling fixed by the interface
    /// Emitted when `view` is closed for good, while it is still alive.
    void viewClosed(Core::IView *view);

private:
    ViewManager();
    ~ViewManager() override;
};

} // namespace Core

// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <hostglobal.h>

#include <QList>
#include <QPointer>
#include <QString>
#include <QWidget>

#include <functional>

class QAction;

namespace Core {
class IView;
}

/// Control of the IDE core's double: what views and actions it was given, and the signals of its view manager at will.
namespace fakes {

struct ViewCall
{
    enum Kind { ShowView, CloseView, RegisterContext, RegisterAction };
    Kind kind;
    QWidget *widget = nullptr;  ///< the view, or the widget of a context; only an address once it was deleted
    QAction *action = nullptr;  ///< RegisterAction
    QString id;                 ///< RegisterAction
    QString context;            ///< RegisterContext and RegisterAction
    bool enable = false;        ///< RegisterContext
    bool actionEnabled = false; ///< RegisterAction: whether the action was enabled at the call
};

/// Forgets the calls and the script. Actions that were registered before are still known to registeredAction().
HOST_EXPORT void resetViews();

/// Every call of the view and action managers since the reset, in order.
HOST_EXPORT QList<ViewCall> viewCalls();
/// The views given to showView() (closeView()), in order.
HOST_EXPORT QList<Core::IView *> shownViews();
HOST_EXPORT QList<Core::IView *> closedViews();
/// The action registered last under `id` for `context`; null when there is none or when it was deleted.
HOST_EXPORT QAction *registeredAction(const QString &id, const QString &context);
/// How often an action was registered under `id` for `context` since the program began.
HOST_EXPORT int registrations(const QString &id, const QString &context);

/// Called at the end of showView().
HOST_EXPORT void onShowView(const std::function<void(Core::IView *)> &handler);
/// What closeView() answers; true until set. `handler`, when set, decides it for each view instead.
HOST_EXPORT void setCloseAnswer(bool answer);
HOST_EXPORT void onCloseView(const std::function<bool(Core::IView *)> &handler);
/// What dialogParent() answers; null until set.
HOST_EXPORT void setDialogParent(QWidget *parent);

/// The signals of the view manager.
HOST_EXPORT void emitViewActivated(Core::IView *view);
HOST_EXPORT void emitViewClosed(Core::IView *view);

} // namespace fakes

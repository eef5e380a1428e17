// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <hostglobal.h>

#include <QList>
#include <QObject>
#include <QString>

class QAction;
class QWidget;

namespace Core {

/// Which context is active and which action implements an id in it. Commands of the host follow its signal.
class HOST_EXPORT ContextTracker : public QObject
{
    Q_OBJECT

public:
    /// The one tracker; created on first use, never null.
    static ContextTracker *instance();

    /// The context bound to the widget that has the focus or to the nearest of its ancestors, else the active view's;
    /// empty for none.
    QString activeContext() const;
    /// The action registered for `id` and the active context; null when there is none.
    QAction *activeAction(const QString &id) const;

    void bind(QWidget *widget, const QString &context);
    void unbind(QWidget *widget);

signals:
    /// The active context may be another one, or another action may implement an id.
    void changed();

private:
    ContextTracker();
    QString contextOf(const QWidget *widget) const;
};

} // namespace Core

// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <hostglobal.h>

#include <QAction>
#include <QPointer>

namespace Core {

/// An action of the host's menus that stands for whatever is registered under its id for the active context: it shows
/// that action's text, tool tip and enabled state and triggers it. With nothing registered it is disabled and shows its
/// own text.
class HOST_EXPORT Command : public QAction
{
    Q_OBJECT

public:
    Command(const QString &id, const QString &text, QObject *parent);

private:
    void follow();
    void mirror();
    void forward();

    QString m_id;
    QString m_ownText;
    QPointer<QAction> m_target;
};

} // namespace Core

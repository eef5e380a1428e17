// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <hostglobal.h>

#include <QString>

class QAction;

namespace Core {

/// An action as the host knows it: one id, one implementation for each context.
class HOST_EXPORT IAction
{
public:
    virtual ~IAction();

    virtual QString id() const = 0;
    /// The implementation registered for `context`; null when there is none.
    virtual QAction *action(const QString &context) const = 0;
};

/// Registers implementations of the host's actions.
class HOST_EXPORT ActionManager
{
public:
    /// Makes `action` the implementation of the host action `id` while `context` is active. The action stays the
    /// caller's and may be deleted at any time. Registering again for the same id and context replaces the
    /// implementation. The result belongs to the manager and is never null.
    static Core::IAction *registerAction(QAction *action, const QString &id, const QString &context);
};

} // namespace Core

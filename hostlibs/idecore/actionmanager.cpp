// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include <IdeCore/actionmanager.h>

#include "hostlibs/idecore/actionregistry.h"
#include "hostlibs/idecore/contexts.h"

#include <QAction>
#include <QHash>
#include <QPointer>

namespace Core {

namespace {

class RegisteredAction : public IAction
{
public:
    explicit RegisteredAction(const QString &id)
        : m_id(id)
    {
    }

    QString id() const override { return m_id; }
    QAction *action(const QString &context) const override { return m_actions.value(context); }
    void setAction(const QString &context, QAction *action) { m_actions.insert(context, action); }

private:
    QString m_id;
    QHash<QString, QPointer<QAction>> m_actions;
};

} // namespace

/// Lives as long as the process: plug-ins keep what registerAction() gave them.
static QHash<QString, RegisteredAction *> &registry()
{
    static auto *const theRegistry = new QHash<QString, RegisteredAction *>;
    return *theRegistry;
}

IAction::~IAction() = default;

QAction *registeredAction(const QString &id, const QString &context)
{
    const RegisteredAction *found = registry().value(id);
    return found == nullptr ? nullptr : found->action(context);
}

IAction *ActionManager::registerAction(QAction *action, const QString &id, const QString &context)
{
    RegisteredAction *&entry = registry()[id];
    if (entry == nullptr)
        entry = new RegisteredAction(id);
    RegisteredAction *const result = entry;
    result->setAction(context, action);
    emit ContextTracker::instance()->changed();
    return result;
}

} // namespace Core

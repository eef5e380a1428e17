// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "hostlibs/idecore/command.h"

#include "hostlibs/idecore/contexts.h"

namespace Core {

Command::Command(const QString &id, const QString &text, QObject *parent)
    : QAction(text, parent)
    , m_id(id)
    , m_ownText(text)
{
    connect(ContextTracker::instance(), &ContextTracker::changed, this, &Command::follow);
    connect(this, &QAction::triggered, this, &Command::forward);
    mirror();
    follow();
}

void Command::follow()
{
    QAction *const target = ContextTracker::instance()->activeAction(m_id);
    if (target == m_target)
        return;
    if (!m_target.isNull())
        disconnect(m_target, nullptr, this, nullptr);
    m_target = target;
    if (target != nullptr) {
        connect(target, &QAction::changed, this, &Command::mirror);
        connect(target, &QObject::destroyed, this, &Command::mirror);
    }
    mirror();
}

void Command::mirror()
{
    setText(m_target.isNull() || m_target->text().isEmpty() ? m_ownText : m_target->text());
    setToolTip(m_target.isNull() ? QString() : m_target->toolTip());
    setEnabled(!m_target.isNull() && m_target->isEnabled());
}

void Command::forward()
{
    if (!m_target.isNull())
        m_target->trigger();
}

} // namespace Core

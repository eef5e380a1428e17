// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "workbench/hostmessages.h"

#include <QUtility/ievent.h>
#include <QUtility/messageevent.h>

namespace Workbench {

static Severity severityOf(const QString &name)
{
    if (name == QLatin1String(QUtil::MessageEvent::Error))
        return Severity::Error;
    return name == QLatin1String(QUtil::MessageEvent::Warning) ? Severity::Warning : Severity::Info;
}

HostMessages::HostMessages(QObject *parent)
    : QObject(parent)
{
    subscribe(QUtil::MessageEvent::Type);
}

void HostMessages::handleIEvent(const QUtil::IEvent *event)
{
    emit message(severityOf(event->get(QUtil::MessageEvent::Severity).toString()),
                 event->get(QUtil::MessageEvent::Text).toString());
}

} // namespace Workbench

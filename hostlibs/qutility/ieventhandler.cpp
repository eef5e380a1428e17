// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include <QUtility/ieventhandler.h>

#include <QUtility/eventmanager.h>

namespace QUtil {

IEventHandler::IEventHandler() = default;

IEventHandler::~IEventHandler()
{
    EventManager::instance()->unsubscribeAll(this);
}

void IEventHandler::subscribe(const QString &type)
{
    EventManager::instance()->subscribe(this, type);
}

} // namespace QUtil

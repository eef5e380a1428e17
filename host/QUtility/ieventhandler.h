// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <hostglobal.h>

#include <QString>

namespace QUtil {

class IEvent;

/// Receives events. A handler that is destroyed is unsubscribed from everything.
class HOST_EXPORT IEventHandler
{
public:
    IEventHandler();
    virtual ~IEventHandler();
    IEventHandler(const IEventHandler &) = delete;
    IEventHandler &operator=(const IEventHandler &) = delete;

    /// Shorthand for EventManager::instance()->subscribe(this, type).
    void subscribe(const QString &type);
    /// Called on the GUI thread for each published event of a subscribed type. The event lives until the call returns.
    virtual void handleIEvent(const QUtil::IEvent *event) = 0;
};

} // namespace QUtil

// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <hostglobal.h>

#include <QString>

namespace QUtil {

class IEvent;
class IEventHandler;

/// The event bus. Delivery is synchronous, in the order of subscription; subscribing and unsubscribing during a
/// delivery is allowed (a handler subscribed meanwhile gets the next event, one unsubscribed meanwhile gets no more).
class HOST_EXPORT EventManager
{
public:
    /// The one bus; created on first use, never null.
    static EventManager *instance();

    /// A second subscription of the same handler to the same type changes nothing.
    void subscribe(QUtil::IEventHandler *handler, const QString &type);
    void unsubscribe(QUtil::IEventHandler *handler, const QString &type);
    void unsubscribeAll(QUtil::IEventHandler *handler);
    /// Delivers `event` to every handler subscribed to its type.
    void publish(const QUtil::IEvent &event);

private:
    EventManager();
    ~EventManager();
};

} // namespace QUtil

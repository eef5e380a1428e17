// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <hostglobal.h>

#include <QMap>
#include <QString>
#include <QStringList>
#include <QVariant>

namespace QUtil {
class IEventHandler;
}

/// Control of the event bus's double: what was asked of it, in order, and events at will.
namespace fakes {

struct BusCall
{
    enum Kind { Subscribe, Unsubscribe, UnsubscribeAll };
    Kind kind;
    QUtil::IEventHandler *handler;
    QString type; ///< empty for UnsubscribeAll
};

/// Forgets every subscription and every recorded call.
HOST_EXPORT void resetEvents();

/// Every call of the bus since the reset, in order. Handlers that were destroyed are not recorded as calls.
HOST_EXPORT QList<BusCall> busCalls();
/// The types that `handler` is subscribed to now, in the order of subscription.
HOST_EXPORT QStringList subscriptionsOf(const QUtil::IEventHandler *handler);
/// The number of subscriptions of everyone now.
HOST_EXPORT int subscriptionCount();

/// Publishes an event through the bus.
HOST_EXPORT void publish(const QString &type, const QMap<QString, QVariant> &values = {});

} // namespace fakes

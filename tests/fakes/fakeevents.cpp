// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "fakes/fakeevents.h"

#include <QUtility/eventmanager.h>
#include <QUtility/ievent.h>
#include <QUtility/ieventhandler.h>

#include <algorithm>

namespace {

struct Subscription
{
    QUtil::IEventHandler *handler;
    QString type;
};

struct Bus
{
    QList<Subscription> subscriptions;
    QList<fakes::BusCall> calls;

    bool holds(const QUtil::IEventHandler *handler, const QString &type) const
    {
        return std::any_of(subscriptions.begin(), subscriptions.end(),
                           [&](const Subscription &s) { return s.handler == handler && s.type == type; });
    }

    template <typename Predicate>
    void drop(Predicate predicate)
    {
        subscriptions.erase(std::remove_if(subscriptions.begin(), subscriptions.end(), predicate), subscriptions.end());
    }
};

Bus &bus()
{
    static Bus instance;
    return instance;
}

} // namespace

namespace QUtil {

EventManager::EventManager() = default;
EventManager::~EventManager() = default;

EventManager *EventManager::instance()
{
    bus(); // outlives the manager
    static EventManager manager;
    return &manager;
}

void EventManager::subscribe(IEventHandler *handler, const QString &type)
{
    bus().calls.append({fakes::BusCall::Subscribe, handler, type});
    if (!bus().holds(handler, type))
        bus().subscriptions.append({handler, type});
}

void EventManager::unsubscribe(IEventHandler *handler, const QString &type)
{
    bus().calls.append({fakes::BusCall::Unsubscribe, handler, type});
    bus().drop([&](const Subscription &s) { return s.handler == handler && s.type == type; });
}

void EventManager::unsubscribeAll(IEventHandler *handler)
{
    bus().calls.append({fakes::BusCall::UnsubscribeAll, handler, {}});
    bus().drop([&](const Subscription &s) { return s.handler == handler; });
}

void EventManager::publish(const IEvent &event)
{
    const QList<Subscription> receivers = bus().subscriptions;
    for (const Subscription &s : receivers) {
        if (s.type == event.type() && bus().holds(s.handler, s.type))
            s.handler->handleIEvent(&event);
    }
}

IEventHandler::IEventHandler() = default;

IEventHandler::~IEventHandler()
{
    bus().drop([this](const Subscription &s) { return s.handler == this; });
}

void IEventHandler::subscribe(const QString &type)
{
    EventManager::instance()->subscribe(this, type);
}

} // namespace QUtil

namespace fakes {

void resetEvents()
{
    bus() = {};
}

QList<BusCall> busCalls()
{
    return bus().calls;
}

QStringList subscriptionsOf(const QUtil::IEventHandler *handler)
{
    QStringList types;
    for (const Subscription &s : bus().subscriptions) {
        if (s.handler == handler)
            types.append(s.type);
    }
    return types;
}

int subscriptionCount()
{
    return bus().subscriptions.size();
}

void publish(const QString &type, const QMap<QString, QVariant> &values)
{
    QUtil::EventManager::instance()->publish(QUtil::IEvent(type, values));
}

} // namespace fakes

// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include <QUtility/eventmanager.h>

#include <QUtility/ievent.h>
#include <QUtility/ieventhandler.h>

#include <QHash>
#include <QVector>

#include <algorithm>

namespace QUtil {

namespace {

/// The number tells a subscription from a later one of a handler that happens to lie at the same address.
struct Subscription
{
    IEventHandler *handler;
    quint64 number;
};

struct Bus
{
    QHash<QString, QVector<Subscription>> subscriptions;
    quint64 lastNumber = 0;
};

} // namespace

/// Lives as long as the process: handlers may be destroyed by static destructors of other libraries.
static Bus &bus()
{
    static Bus *const theBus = new Bus;
    return *theBus;
}

static bool isSubscribed(const QString &type, quint64 number)
{
    const auto found = bus().subscriptions.constFind(type);
    return found != bus().subscriptions.constEnd() &&
           std::any_of(found->cbegin(), found->cend(), [number](const auto &one) { return one.number == number; });
}

static void removeHandler(QVector<Subscription> &list, const IEventHandler *handler)
{
    const auto isOurs = [handler](const Subscription &one) { return one.handler == handler; };
    list.erase(std::remove_if(list.begin(), list.end(), isOurs), list.end());
}

EventManager::EventManager() = default;

EventManager::~EventManager() = default;

EventManager *EventManager::instance()
{
    static auto *const manager = new EventManager;
    return manager;
}

void EventManager::subscribe(IEventHandler *handler, const QString &type)
{
    if (handler == nullptr)
        return;
    auto &list = bus().subscriptions[type];
    const auto isOurs = [handler](const Subscription &one) { return one.handler == handler; };
    if (std::none_of(list.cbegin(), list.cend(), isOurs))
        list.append({handler, ++bus().lastNumber});
}

void EventManager::unsubscribe(IEventHandler *handler, const QString &type)
{
    const auto found = bus().subscriptions.find(type);
    if (found == bus().subscriptions.end())
        return;
    removeHandler(*found, handler);
    if (found->isEmpty())
        bus().subscriptions.erase(found);
}

void EventManager::unsubscribeAll(IEventHandler *handler)
{
    for (auto it = bus().subscriptions.begin(); it != bus().subscriptions.end();) {
        removeHandler(*it, handler);
        it = it->isEmpty() ? bus().subscriptions.erase(it) : std::next(it);
    }
}

void EventManager::publish(const IEvent &event)
{
    const QString type = event.type();
    const QVector<Subscription> receivers = bus().subscriptions.value(type);
    for (const Subscription &one : receivers) {
        if (isSubscribed(type, one.number))
            one.handler->handleIEvent(&event);
    }
}

} // namespace QUtil

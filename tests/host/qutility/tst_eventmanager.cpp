// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include <QUtility/eventmanager.h>
#include <QUtility/ievent.h>
#include <QUtility/ieventhandler.h>

#include <QTest>

#include <functional>
#include <memory>

using namespace QUtil;

namespace {

class Handler : public IEventHandler
{
public:
    explicit Handler(const QString &name, QStringList *log)
        : m_name(name)
        , m_log(log)
    {
    }

    void handleIEvent(const IEvent *event) override
    {
        m_log->append(m_name + ':' + event->type());
        // The copy outlives a handler that destroys itself or replaces its action.
        if (const auto action = then)
            action();
    }

    std::function<void()> then;

private:
    QString m_name;
    QStringList *m_log;
};

} // namespace

class TestEventManager : public QObject
{
    Q_OBJECT

private slots:
    void init() { log.clear(); }

    void instanceIsAlwaysTheSame();
    void eventCarriesTypeAndValues();
    void deliversInOrderOfSubscription();
    void deliversOnlySubscribedTypes();
    void secondSubscriptionChangesNothing();
    void unsubscribedHandlerGetsNothing();
    void unsubscribeAllCoversEveryType();
    void destroyedHandlerIsUnsubscribed();
    void handlerShorthandSubscribes();
    void nullHandlerIsIgnored();
    void handlerUnsubscribedDuringDeliveryGetsNoMore();
    void handlerSubscribedDuringDeliveryGetsTheNextEvent();
    void handlerMayUnsubscribeItself();
    void handlerMayDestroyItself();
    void handlerMayDestroyANeighbour();
    void successorAtTheSameAddressWaitsForTheNextEvent();
    void publishingInsideADeliveryIsNested();

private:
    void publish(const QString &type) { EventManager::instance()->publish(IEvent(type)); }

    QStringList log;
};

void TestEventManager::instanceIsAlwaysTheSame()
{
    QVERIFY(EventManager::instance() != nullptr);
    QCOMPARE(EventManager::instance(), EventManager::instance());
}

void TestEventManager::eventCarriesTypeAndValues()
{
    IEvent event("T", {{"file", "a.v"}});
    event.set("type", 2);
    QCOMPARE(event.type(), QString("T"));
    QCOMPARE(event.get("file").toString(), QString("a.v"));
    QCOMPARE(event.get("type").toInt(), 2);
    QVERIFY(!event.get("other").isValid());
}

void TestEventManager::deliversInOrderOfSubscription()
{
    Handler b("b", &log);
    Handler a("a", &log);
    Handler c("c", &log);
    for (Handler *one : {&a, &b, &c})
        EventManager::instance()->subscribe(one, "T");
    publish("T");
    QCOMPARE(log, QStringList({"a:T", "b:T", "c:T"}));
}

void TestEventManager::deliversOnlySubscribedTypes()
{
    Handler a("a", &log);
    EventManager::instance()->subscribe(&a, "T");
    EventManager::instance()->subscribe(&a, "U");
    publish("V");
    publish("U");
    publish("t");
    publish("T");
    QCOMPARE(log, QStringList({"a:U", "a:T"}));
}

void TestEventManager::secondSubscriptionChangesNothing()
{
    Handler a("a", &log);
    Handler b("b", &log);
    for (Handler *one : {&a, &b, &a})
        EventManager::instance()->subscribe(one, "T");
    publish("T");
    QCOMPARE(log, QStringList({"a:T", "b:T"}));
    EventManager::instance()->unsubscribe(&a, "T");
    publish("T");
    QCOMPARE(log, QStringList({"a:T", "b:T", "b:T"}));
}

void TestEventManager::unsubscribedHandlerGetsNothing()
{
    Handler a("a", &log);
    EventManager::instance()->subscribe(&a, "T");
    EventManager::instance()->subscribe(&a, "U");
    EventManager::instance()->unsubscribe(&a, "T");
    EventManager::instance()->unsubscribe(&a, "never subscribed");
    publish("T");
    publish("U");
    QCOMPARE(log, QStringList({"a:U"}));
}

void TestEventManager::unsubscribeAllCoversEveryType()
{
    Handler a("a", &log);
    Handler b("b", &log);
    for (const char *type : {"T", "U"}) {
        EventManager::instance()->subscribe(&a, type);
        EventManager::instance()->subscribe(&b, type);
    }
    EventManager::instance()->unsubscribeAll(&a);
    publish("T");
    publish("U");
    QCOMPARE(log, QStringList({"b:T", "b:U"}));
}

void TestEventManager::destroyedHandlerIsUnsubscribed()
{
    auto a = std::make_unique<Handler>("a", &log);
    EventManager::instance()->subscribe(a.get(), "T");
    a.reset();
    publish("T");
    QVERIFY(log.isEmpty());
}

void TestEventManager::handlerShorthandSubscribes()
{
    Handler a("a", &log);
    a.subscribe("T");
    publish("T");
    QCOMPARE(log, QStringList({"a:T"}));
}

void TestEventManager::nullHandlerIsIgnored()
{
    EventManager::instance()->subscribe(nullptr, "T");
    EventManager::instance()->unsubscribe(nullptr, "T");
    publish("T");
    QVERIFY(log.isEmpty());
}

void TestEventManager::handlerUnsubscribedDuringDeliveryGetsNoMore()
{
    Handler a("a", &log);
    Handler b("b", &log);
    a.subscribe("T");
    b.subscribe("T");
    a.then = [&b] { EventManager::instance()->unsubscribe(&b, "T"); };
    publish("T");
    QCOMPARE(log, QStringList({"a:T"}));
}

void TestEventManager::handlerSubscribedDuringDeliveryGetsTheNextEvent()
{
    Handler a("a", &log);
    Handler b("b", &log);
    a.subscribe("T");
    a.then = [&b] { b.subscribe("T"); };
    publish("T");
    QCOMPARE(log, QStringList({"a:T"}));
    publish("T");
    QCOMPARE(log, QStringList({"a:T", "a:T", "b:T"}));
}

void TestEventManager::handlerMayUnsubscribeItself()
{
    Handler a("a", &log);
    Handler b("b", &log);
    a.subscribe("T");
    b.subscribe("T");
    a.then = [&a] { EventManager::instance()->unsubscribeAll(&a); };
    publish("T");
    publish("T");
    QCOMPARE(log, QStringList({"a:T", "b:T", "b:T"}));
}

void TestEventManager::handlerMayDestroyItself()
{
    auto a = std::make_unique<Handler>("a", &log);
    Handler b("b", &log);
    a->subscribe("T");
    b.subscribe("T");
    a->then = [&a] { delete a.release(); };
    publish("T");
    QCOMPARE(log, QStringList({"a:T", "b:T"}));
}

void TestEventManager::handlerMayDestroyANeighbour()
{
    Handler a("a", &log);
    auto b = std::make_unique<Handler>("b", &log);
    Handler c("c", &log);
    for (Handler *one : {&a, b.get(), &c})
        one->subscribe("T");
    a.then = [&b] { b.reset(); };
    publish("T");
    QCOMPARE(log, QStringList({"a:T", "c:T"}));
}

void TestEventManager::successorAtTheSameAddressWaitsForTheNextEvent()
{
    alignas(Handler) unsigned char place[sizeof(Handler)];
    Handler a("a", &log);
    a.subscribe("T");
    auto *old = new (place) Handler("old", &log);
    old->subscribe("T");
    Handler *successor = nullptr;
    a.then = [&] {
        old->~Handler();
        successor = new (place) Handler("new", &log);
        successor->subscribe("T");
        a.then = nullptr;
    };
    publish("T");
    QCOMPARE(log, QStringList({"a:T"}));
    publish("T");
    QCOMPARE(log, QStringList({"a:T", "a:T", "new:T"}));
    successor->~Handler();
}

void TestEventManager::publishingInsideADeliveryIsNested()
{
    Handler a("a", &log);
    Handler b("b", &log);
    for (const char *type : {"T", "U"}) {
        a.subscribe(type);
        b.subscribe(type);
    }
    a.then = [this, &a] {
        a.then = nullptr;
        publish("U");
    };
    publish("T");
    QCOMPARE(log, QStringList({"a:T", "a:U", "b:U", "b:T"}));
}

QTEST_APPLESS_MAIN(TestEventManager)
#include "tst_eventmanager.moc"

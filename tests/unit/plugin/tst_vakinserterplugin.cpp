// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "fakes/fakeviews.h"
#include "plugin/vakviewmanager.h"
#include "support/doubles.h"
#include "support/widgethelpers.h"

#include <ExtSys/iplugin.h>

#include <QAction>
#include <QPointer>
#include <QTest>

extern "C" QObject *qt_plugin_instance();

class TestVakInserterPlugin : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void managerExistsBeforeThePlugin();
    void instanceIsTheSameTwice();
    void destroyedInstanceIsReplaced();
    void castsToItselfAndToTheHostsInterface();
    void declaresNothingOfItsOwn();
    void initializeStartsTheManagerAndNeverFails();
    void allPluginsReadyDoesNothing();
    void shutdownEndsTheManager();
};

static ExtSys::IPlugin *plugin()
{
    return qobject_cast<ExtSys::IPlugin *>(qt_plugin_instance());
}

static const char saveId[] = "Core.Action.Save";
static const char contextId[] = "RTLVAK.VakViewManager.Context";

void TestVakInserterPlugin::initTestCase()
{
    QCOMPARE(support::missingDoubles(), QString());
}

void TestVakInserterPlugin::managerExistsBeforeThePlugin()
{
    QVERIFY(RTLVAK::VakViewManager::instance());
    QCOMPARE(RTLVAK::VakViewManager::instance(), RTLVAK::VakViewManager::instance());
    QCOMPARE(RTLVAK::VakViewManager::instance()->parent(), nullptr);
    QVERIFY(RTLVAK::VakViewManager::instance()->vakViews().isEmpty());
    QCOMPARE(fakes::viewCalls().size(), 0);
}

void TestVakInserterPlugin::instanceIsTheSameTwice()
{
    QObject *first = qt_plugin_instance();
    QVERIFY(first);
    QCOMPARE(first->parent(), nullptr);
    QCOMPARE(qt_plugin_instance(), first);
}

void TestVakInserterPlugin::destroyedInstanceIsReplaced()
{
    const QPointer<QObject> first = qt_plugin_instance();
    delete first;
    QVERIFY(!first);
    QObject *second = qt_plugin_instance();
    QVERIFY(second);
    QCOMPARE(second->metaObject()->className(), "RTLVAK::VakInserterPlugin");
}

void TestVakInserterPlugin::castsToItselfAndToTheHostsInterface()
{
    QObject *object = qt_plugin_instance();
    QCOMPARE(object->qt_metacast("RTLVAK::VakInserterPlugin"), object);
    QCOMPARE(object->qt_metacast("org.fpgaworkbench.plugins.IPlugin/1.0"),
             static_cast<void *>(static_cast<ExtSys::IPlugin *>(object)));
    QCOMPARE(object->qt_metacast("ExtSys::IPlugin"), object);
    QCOMPARE(object->qt_metacast("org.fpgaworkbench.plugins.IPlugin/2.0"), nullptr);
    QCOMPARE(object->qt_metacast("RTLVAK::Other"), nullptr);
}

void TestVakInserterPlugin::declaresNothingOfItsOwn()
{
    const QMetaObject *metaObject = qt_plugin_instance()->metaObject();
    QCOMPARE(support::ownMethods(*metaObject), QStringList());
    QCOMPARE(metaObject->propertyCount(), metaObject->propertyOffset());
    QCOMPARE(metaObject->superClass()->className(), "ExtSys::IPlugin");
}

void TestVakInserterPlugin::initializeStartsTheManagerAndNeverFails()
{
    QVERIFY(plugin()->initialize());
    QCOMPARE(fakes::registrations(saveId, contextId), 1);
    const QPointer<QAction> first = fakes::registeredAction(saveId, contextId);
    QVERIFY(first);

    QVERIFY(plugin()->initialize());
    QCOMPARE(fakes::registrations(saveId, contextId), 2);
    QVERIFY(first);
    QVERIFY(fakes::registeredAction(saveId, contextId) != first);
}

void TestVakInserterPlugin::allPluginsReadyDoesNothing()
{
    fakes::resetViews();
    plugin()->allPluginsReady();
    QCOMPARE(fakes::viewCalls().size(), 0);
}

void TestVakInserterPlugin::shutdownEndsTheManager()
{
    const QPointer<QObject> manager = RTLVAK::VakViewManager::instance();
    const QPointer<QAction> action = fakes::registeredAction(saveId, contextId);
    QVERIFY(manager && action);
    plugin()->shutdown();
    QVERIFY(!manager);
    QVERIFY(!action);
    fakes::emitViewActivated(nullptr);
    fakes::emitViewClosed(nullptr);
    delete plugin();
}

QTEST_MAIN(TestVakInserterPlugin)

#include "tst_vakinserterplugin.moc"

// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "fakes/fakedesign.h"
#include "fakes/fakeevents.h"
#include "fakes/fakenetcatcher.h"
#include "fakes/fakeviews.h"
#include "support/doubles.h"
#include "support/signallog.h"
#include "support/tempdir.h"

#include <IdeCore/actionmanager.h>
#include <IdeCore/iview.h>
#include <IdeCore/viewmanager.h>
#include <OVTE/designmanager.h>
#include <OVTE/taskengine.h>
#include <QUtility/eventmanager.h>
#include <QUtility/ievent.h>
#include <QUtility/ieventhandler.h>
#include <netcatcher/netcatcher.h>

#include <QAction>
#include <QFileInfo>
#include <QTest>

#include <memory>

class TestDoubles : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void netlistIsBuiltAsDescribed();
    void bitsOfADescendingAndAnAscendingBus();
    void unusableFlags();
    void scriptedModulesAreAppended();
    void eachNetsCallDeliversANewNetlist();
    void projectAnswersAsScripted();
    void busDeliversInOrderAndForgetsDestroyedHandlers();
    void viewCallsAreRecorded();
    void hostImagesAreThere();
};

static fakes::Instance sampleDesign()
{
    fakes::Instance top("soc_top");
    top.net("clk").net("tie", fakes::Unusable).bus("data", 7, 0, fakes::Usable, {3});
    fakes::Instance &core = top.child("u_core", "core");
    core.net("halt").bus("up", 0, 2);
    core.child("u_alu", "alu").bus("acc", 1, 0, fakes::Unusable);
    return top;
}

template <typename T>
static QStringList paths(const QList<T *> &nets)
{
    QStringList list;
    for (const T *net : nets) {
        if constexpr (std::is_same_v<T, NETCATCHER::RtlNet>)
            list.append(net->fullPathName());
        else
            list.append(net->fullBusName());
    }
    return list;
}

void TestDoubles::initTestCase()
{
    QCOMPARE(support::missingDoubles(), QString());
}

void TestDoubles::netlistIsBuiltAsDescribed()
{
    const std::unique_ptr<NETCATCHER::RtlNetlist> netlist(fakes::makeNetlist(sampleDesign(), true));
    QVERIFY(netlist->jtagUsed());
    NETCATCHER::Hierachy *top = netlist->topHierarchy();
    QCOMPARE(top->name(), QString("soc_top"));
    QCOMPARE(top->module(), QString("soc_top"));
    QCOMPARE(top->parent(), nullptr);
    QCOMPARE(top->children().size(), 1);
    QCOMPARE(top->children().at(0)->module(), QString("core"));
    QCOMPARE(top->children().at(0)->parent(), top);
    QCOMPARE(paths(top->singleNets()), QStringList({"clk", "tie"}));
    QCOMPARE(paths(top->singleNetsIncludeSub()), QStringList({"clk", "tie", "u_core/halt"}));
    QCOMPARE(paths(top->netbuses()), QStringList({"data[7:0]"}));
    QCOMPARE(paths(top->netbusesIncludeSub()), QStringList({"data[7:0]", "u_core/up[0:2]", "u_core/u_alu/acc[1:0]"}));
    QCOMPARE(netlist->findNet("u_core/up[1]")->name(), QString("up[1]"));
    QCOMPARE(netlist->findNet("clk")->fullPathName(), QString("clk"));
    QCOMPARE(netlist->findNet("u_core/up"), nullptr);
}

void TestDoubles::bitsOfADescendingAndAnAscendingBus()
{
    const std::unique_ptr<NETCATCHER::RtlNetlist> netlist(fakes::makeNetlist(sampleDesign()));
    const QList<NETCATCHER::RtlNetBus *> buses = netlist->topHierarchy()->netbusesIncludeSub();
    QCOMPARE(buses.at(0)->BusName(), QString("data[7:0]"));
    QCOMPARE(paths(buses.at(0)->nets()).mid(0, 2), QStringList({"data[7]", "data[6]"}));
    QCOMPARE(buses.at(0)->nets().size(), 8);
    QCOMPARE(paths(buses.at(1)->nets()), QStringList({"u_core/up[0]", "u_core/up[1]", "u_core/up[2]"}));
}

void TestDoubles::unusableFlags()
{
    const std::unique_ptr<NETCATCHER::RtlNetlist> netlist(fakes::makeNetlist(sampleDesign()));
    QVERIFY(!netlist->findNet("clk")->isUnusable());
    QVERIFY(netlist->findNet("tie")->isUnusable());
    QVERIFY(netlist->findNet("data[3]")->isUnusable());
    QVERIFY(!netlist->findNet("data[2]")->isUnusable());
    const QList<NETCATCHER::RtlNetBus *> buses = netlist->topHierarchy()->netbusesIncludeSub();
    QVERIFY(!buses.at(0)->isUnusable());
    QVERIFY(buses.at(2)->isUnusable());
    QVERIFY(netlist->findNet("u_core/u_alu/acc[0]")->isUnusable());
}

void TestDoubles::scriptedModulesAreAppended()
{
    fakes::resetNetcatcher();
    fakes::setModules({"a"}, {"a", "b"}, {"WARNING: x"});
    QStringList tops;
    QStringList modules("first");
    QStringList messages;
    QMap<QString, QVariant> info{{"Top", "a"}};
    NETCATCHER::catchRtlModules(tops, modules, messages, info, nullptr);
    QCOMPARE(tops, QStringList("a"));
    QCOMPARE(modules, QStringList({"first", "a", "b"}));
    QCOMPARE(messages, QStringList("WARNING: x"));
    QCOMPARE(fakes::modulesCalls().size(), 1);
    QCOMPARE(fakes::modulesCalls().at(0).modules, QStringList("first"));
    QCOMPARE(fakes::modulesCalls().at(0).sourceInfo, info);
    QCOMPARE(fakes::modulesCalls().at(0).parent, nullptr);
}

void TestDoubles::eachNetsCallDeliversANewNetlist()
{
    fakes::resetNetcatcher();
    fakes::deliverNetlist(sampleDesign());
    int handled = 0;
    fakes::whileCatchingNets([&] { ++handled; });
    QStringList none;
    NETCATCHER::RtlNetlist *first = nullptr;
    NETCATCHER::catchRtlNetsWithProgressDialog(&first, none, nullptr);
    NETCATCHER::RtlNetlist *second = nullptr;
    NETCATCHER::catchRtlNetsWithProgressDialog(&second, none, nullptr);
    QVERIFY(first && second && first != second);
    QCOMPARE(fakes::liveNetlists(), 2);
    fakes::deliverNull();
    delete second;
    NETCATCHER::RtlNetlist *third = first;
    NETCATCHER::catchRtlNetsWithProgressDialog(&third, none, nullptr);
    QCOMPARE(third, nullptr);
    QCOMPARE(fakes::netsCalls().size(), 3);
    QVERIFY(fakes::netsCalls().at(0).outWasNull);
    QVERIFY(!fakes::netsCalls().at(2).outWasNull);
    QCOMPARE(handled, 3);
    delete first;
    QCOMPARE(fakes::liveNetlists(), 0);
}

void TestDoubles::projectAnswersAsScripted()
{
    fakes::resetDesign();
    fakes::setOption("TopModule", "soc");
    fakes::addSource("/d/a.v");
    fakes::addSource("/d/b.vhd", TE::VhdlFile, "lib");
    fakes::setTop("soc");
    fakes::setFileInfo("/d/a.v", TE::VerilogFile, true);
    fakes::setWorkingDir("/d");
    fakes::setCurrentDevice("KX9", "P1");
    const TE::DesignManager *manager = TE::TaskEngine::instance()->designManager();
    QCOMPARE(manager->getOptionValue("TopModule").toString(), QString("soc"));
    QVERIFY(!manager->getOptionValue("Other").isValid());
    QCOMPARE(fakes::optionsAsked(), QStringList({"TopModule", "Other"}));
    const QVariantList files = manager->getSourceFileInfo().value("Files").toList();
    QCOMPARE(files.size(), 2);
    QCOMPARE(files.at(1).toMap().value("Path").toString(), QString("/d/b.vhd"));
    QCOMPARE(files.at(1).toMap().value("Type").toInt(), int(TE::VhdlFile));
    QCOMPARE(manager->getSourceFileInfo().value("Top").toString(), QString("soc"));
    QVERIFY(manager->getFileInfo("/d/a.v").enabled);
    QCOMPARE(manager->getFileInfo("/d/none.v").type, 0);
    QVERIFY(!manager->getFileInfo("/d/none.v").enabled);
    QCOMPARE(manager->workingDir(), QString("/d"));
    QCOMPARE(manager->currentDevice().package, QString("P1"));
    fakes::resetDesign();
    QVERIFY(manager->getSourceFileInfo().isEmpty());
}

namespace {
class Handler : public QUtil::IEventHandler
{
public:
    Handler(const QString &name, QStringList *received)
        : handlerName(name)
        , log(received)
    {
    }
    void handleIEvent(const QUtil::IEvent *event) override
    {
        log->append(handlerName + ' ' + event->type() + ' ' + event->get("file").toString());
    }

private:
    QString handlerName;
    QStringList *log;
};
} // namespace

void TestDoubles::busDeliversInOrderAndForgetsDestroyedHandlers()
{
    fakes::resetEvents();
    QStringList log;
    Handler a("a", &log);
    auto b = std::make_unique<Handler>("b", &log);
    b->subscribe("E.1");
    a.subscribe("E.2");
    a.subscribe("E.1");
    QCOMPARE(fakes::subscriptionsOf(&a), QStringList({"E.2", "E.1"}));
    QCOMPARE(fakes::busCalls().size(), 3);
    QCOMPARE(fakes::busCalls().at(2).type, QString("E.1"));
    fakes::publish("E.1", {{"file", "x"}});
    QCOMPARE(log, QStringList({"b E.1 x", "a E.1 x"}));
    b.reset();
    fakes::publish("E.1");
    QCOMPARE(log.size(), 3);
    QUtil::EventManager::instance()->unsubscribeAll(&a);
    QCOMPARE(fakes::subscriptionCount(), 0);
    QCOMPARE(fakes::busCalls().last().kind, fakes::BusCall::UnsubscribeAll);
}

void TestDoubles::viewCallsAreRecorded()
{
    fakes::resetViews();
    Core::IView view;
    QAction action;
    action.setEnabled(false);
    Core::IAction *registered = Core::ActionManager::registerAction(&action, "id", "context");
    QCOMPARE(registered->action("context"), &action);
    QCOMPARE(registered->action("other"), nullptr);
    Core::ViewManager::registerContext(&view, "context", true);
    Core::ViewManager::showView(&view);
    fakes::setCloseAnswer(false);
    QVERIFY(!Core::ViewManager::closeView(&view));
    QCOMPARE(fakes::shownViews(), QList<Core::IView *>({&view}));
    QCOMPARE(fakes::closedViews(), QList<Core::IView *>({&view}));
    QCOMPARE(fakes::registeredAction("id", "context"), &action);
    QVERIFY(!fakes::viewCalls().at(0).actionEnabled);
    QVERIFY(fakes::viewCalls().at(1).enable);

    support::SignalLog log;
    log.watch(Core::ViewManager::instance(), &Core::ViewManager::viewActiveted, "activated");
    log.watch(Core::ViewManager::instance(), &Core::ViewManager::viewClosed, "closed");
    fakes::emitViewActivated(&view);
    fakes::emitViewClosed(&view);
    QCOMPARE(log.names(), QStringList({"activated", "closed"}));
}

void TestDoubles::hostImagesAreThere()
{
    for (const char *path : {":/fpgaprj/image/warning.png", ":/netlist/image/magnifier.png",
                             ":/netlist/image/module.png", ":/utils/image/attention.png"})
        QVERIFY2(QFileInfo(QLatin1String(path)).size() > 0, path);
}

QTEST_MAIN(TestDoubles)

#include "tst_doubles.moc"

// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "hostlibs/idecore/command.h"
#include "hostlibs/idecore/viewarea.h"
#include "hostlibs/ovte/projectengine.h"
#include "plugin/vakinserterview.h"
#include "plugin/vakviewmanager.h"
#include "support/dialogdriver.h"
#include "support/doubles.h"
#include "support/tempdir.h"
#include "support/widgethelpers.h"

#include <Device/devicearg.h>
#include <ExtSys/iplugin.h>
#include <IdeCore/iview.h>
#include <IdeCore/viewmanager.h>
#include <VakUtils/aocore.h>
#include <VakUtils/aocorelite.h>
#include <VakUtils/matchunit.h>
#include <VakUtils/triggerport.h>
#include <VakUtils/vakfile.h>

#include <QFileInfo>
#include <QJsonObject>
#include <QPluginLoader>
#include <QPointer>
#include <QRadioButton>
#include <QSignalSpy>
#include <QTest>

#include <memory>

using RTLVAK::VakInserterView;
using RTLVAK::VakViewManager;
using support::child;
using support::DialogDriver;

/// The whole life of the plug-in, one test function a stage: they build on each other.
class TestPluginLife : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void realHostLibrariesAreLoaded();
    void metadataNamesInterfaceAndClass();
    void managerExistsBeforeThePluginIsAskedFor();
    void instanceIsTheSameTwice();
    void castsToTheHostsInterface();
    void unknownInterfaceFails();
    void initializeNeverFails();
    void realFileOpensInAView();
    void editedFileIsSavedByTheHost();
    void openingAgainShowsTheSameView();
    void liteFileOpensInATabOfItsOwn();
    void refusalKeepsTheViewOpen();
    void viewClosesAndIsForgotten();
    void shutdownEndsTheManager();

private:
    ExtSys::IPlugin *plugin() { return qobject_cast<ExtSys::IPlugin *>(loader.instance()); }

    support::TempDir dir;
    QString configuration;
    QPluginLoader loader{QStringLiteral(VAK_PLUGIN_FILE)};
    std::unique_ptr<Core::ViewArea> area;
};

static const char design[] = "module counter(input clk, input rst, output reg [7:0] count);\n"
                             "  always @(posedge clk) if (rst) count <= 0; else count <= count + 1;\n"
                             "endmodule\n";

namespace {

struct Cores
{
    explicit Cores(const QString &path)
        : list(VAK::readVAKConfigFromXml(path))
    {
    }
    ~Cores() { qDeleteAll(list); }
    Q_DISABLE_COPY(Cores)

    QList<VAK::AoCore *> list;
};

} // namespace

/// One core that validates against the design.
static bool writeCompleteCore(const QString &path)
{
    VAK::SignalItem reset;
    reset.name = QStringLiteral("rst");
    VAK::AoCore core(0);
    core.setSampleClock(QStringLiteral("clk"));
    core.setallCapSignal({reset});
    core.setDataSignal({reset});
    core.getTrigger(0)->setSignalNet({reset});
    core.matchUnit(0)->setEnabled(true);
    core.matchUnit(0)->setTriggerPort(core.getTrigger(0));
    core.matchUnit(0)->setValue0(QStringLiteral("1"));
    core.setExpression({QStringLiteral("M0")});
    return VAK::writeVAKConfigToXml({&core}, path);
}

void TestPluginLife::initTestCase()
{
    qRegisterMetaType<Core::IView *>();
    const QString source = dir.write("counter.v", design);
    TE::ProjectEngine *engine = TE::ProjectEngine::instance();
    QString error;
    QVERIFY2(engine->createProject(dir.filePath("counter.vakproj"), &error), qPrintable(error));
    QVERIFY(engine->addFile(source));

    configuration = dir.filePath("counter.rvk");
    QVERIFY(writeCompleteCore(configuration));

    area = std::make_unique<Core::ViewArea>();
    area->show();
}

void TestPluginLife::realHostLibrariesAreLoaded()
{
    const QString folder = QFileInfo(QStringLiteral(VAK_PLUGIN_FILE)).canonicalPath() + "/../lib/";
    QCOMPARE(support::libraryOf(&Core::ViewManager::staticMetaObject),
             QFileInfo(folder + "libIdeCore.so").canonicalFilePath());
}

void TestPluginLife::metadataNamesInterfaceAndClass()
{
    const QJsonObject metadata = loader.metaData();
    QCOMPARE(metadata.value("IID").toString(), QString("RTLVAK.VakInserterPlugin/1.0"));
    QCOMPARE(metadata.value("className").toString(), QString("VakInserterPlugin"));
    QVERIFY(!metadata.contains("MetaData"));
}

void TestPluginLife::managerExistsBeforeThePluginIsAskedFor()
{
    QVERIFY(VakViewManager::instance());
    QVERIFY(VakViewManager::instance()->vakViews().isEmpty());
}

void TestPluginLife::instanceIsTheSameTwice()
{
    QObject *first = loader.instance();
    QVERIFY2(first, qPrintable(loader.errorString()));
    QCOMPARE(loader.instance(), first);
    QPluginLoader again(QStringLiteral(VAK_PLUGIN_FILE));
    QCOMPARE(again.instance(), first);
    QVERIFY(!again.unload()); // the first loader still needs it
    QCOMPARE(loader.instance(), first);
    QCOMPARE(first->parent(), nullptr);
    QCOMPARE(support::libraryOf(first->metaObject()), QFileInfo(QStringLiteral(VAK_PLUGIN_FILE)).canonicalFilePath());
}

void TestPluginLife::castsToTheHostsInterface()
{
    QVERIFY(plugin());
    QCOMPARE(loader.instance()->qt_metacast("org.fpgaworkbench.plugins.IPlugin/1.0"), static_cast<void *>(plugin()));
    QCOMPARE(loader.instance()->qt_metacast("RTLVAK::VakInserterPlugin"), static_cast<void *>(loader.instance()));
}

void TestPluginLife::unknownInterfaceFails()
{
    QCOMPARE(loader.instance()->qt_metacast("org.fpgaworkbench.plugins.IOther/1.0"), nullptr);
}

void TestPluginLife::initializeNeverFails()
{
    QVERIFY(plugin()->initialize());
    QVERIFY(plugin()->initialize());
    plugin()->allPluginsReady();
}

void TestPluginLife::realFileOpensInAView()
{
    QSignalSpy activated(Core::ViewManager::instance(), &Core::ViewManager::viewActiveted);
    DialogDriver driver;
    QVERIFY(VakViewManager::openInserterView(configuration, DEV::DeviceArg("KX-20")));
    QVERIFY(driver.finish());
    QCOMPARE(driver.shownCount(), 0);
    QCOMPARE(VakViewManager::instance()->vakViews().size(), 1);
    VakInserterView *view = VakViewManager::instance()->vakViews().at(0);
    QCOMPARE(view->windowTitle(), QString("counter.rvk"));
    QCOMPARE(view->device(), QString("KX-20"));
    QVERIFY(!view->isModified());
    QCOMPARE(area->activeView(), view);
    QVERIFY(activated.count() >= 1);
    QCOMPARE(activated.last().at(0).value<Core::IView *>(), view);
}

void TestPluginLife::editedFileIsSavedByTheHost()
{
    VakInserterView *view = VakViewManager::instance()->vakViews().at(0);
    Core::Command save("Core.Action.Save", "Save", nullptr);
    QVERIFY(!save.isEnabled());
    child<QRadioButton>(*view, "radioButtonFalling").click();
    QVERIFY(view->isModified());
    QVERIFY(save.isEnabled());
    QCOMPARE(view->windowTitle(), QString("counter.rvk *"));
    QCOMPARE(view->shortTitle(), QString("counter.rvk *"));

    DialogDriver driver;
    save.trigger();
    QVERIFY(!view->isModified());
    QVERIFY(!save.isEnabled());
    QCOMPARE(view->windowTitle(), QString("counter.rvk"));
    const Cores cores(configuration);
    QCOMPARE(cores.list.size(), 1);
    QCOMPARE(cores.list.at(0)->sampleEdge(), int(VAK::FallingEdge));
    QCOMPARE(cores.list.at(0)->moduleName(), QString("counter"));
}

void TestPluginLife::openingAgainShowsTheSameView()
{
    const QList<VakInserterView *> before = VakViewManager::instance()->vakViews();
    QVERIFY(VakViewManager::openInserterView(dir.path() + "/../" + QFileInfo(dir.path()).fileName() + "/counter.rvk",
                                             DEV::DeviceArg()));
    QCOMPARE(VakViewManager::instance()->vakViews(), before);
    QCOMPARE(area->views().size(), 1);
}

void TestPluginLife::liteFileOpensInATabOfItsOwn()
{
    VakInserterView *first = VakViewManager::instance()->vakViews().at(0);
    const QString path = dir.filePath("lite.rvk");
    VAK::AOCore_Lite core(0);
    QVERIFY(VAK::writeVAKConfigToXml_Lite({&core}, path));
    DialogDriver driver;
    QVERIFY(VakViewManager::openInserterView(path, DEV::DeviceArg()));
    QCOMPARE(area->views().size(), 2);
    QCOMPARE(area->activeView(), VakViewManager::instance()->vakViews().last());
    QCOMPARE(area->activeView()->windowTitle(), QString("lite.rvk"));

    QVERIFY(VakViewManager::closeInserterView(path));
    QCOMPARE(VakViewManager::instance()->vakViews(), QList<VakInserterView *>({first}));
    QCOMPARE(area->activeView(), first);
    QCOMPARE(driver.shownCount(), 0);
}

void TestPluginLife::refusalKeepsTheViewOpen()
{
    VakInserterView *view = VakViewManager::instance()->vakViews().at(0);
    child<QRadioButton>(*view, "radioButtonRising").click();
    DialogDriver driver;
    driver.answerBox(QMessageBox::Cancel);
    QVERIFY(VakViewManager::closeInserterView(configuration));
    QVERIFY(driver.finish());
    QCOMPARE(driver.boxes().at(0).text, "Save changes to \"" + configuration + "\" ?");
    QCOMPARE(VakViewManager::instance()->vakViews(), QList<VakInserterView *>({view}));
    QCOMPARE(area->views(), QList<Core::IView *>({view}));
    QVERIFY(view->isModified());
}

void TestPluginLife::viewClosesAndIsForgotten()
{
    const QPointer<VakInserterView> view = VakViewManager::instance()->vakViews().at(0);
    QSignalSpy closed(Core::ViewManager::instance(), &Core::ViewManager::viewClosed);
    DialogDriver driver;
    driver.answerBox(QMessageBox::Discard);
    QVERIFY(VakViewManager::closeInserterView(configuration));
    QVERIFY(driver.finish());
    QCOMPARE(closed.count(), 1);
    QVERIFY(VakViewManager::instance()->vakViews().isEmpty());
    QTRY_VERIFY(!view);
    QVERIFY(!VakViewManager::closeInserterView(configuration));
    QCOMPARE(Cores(configuration).list.at(0)->sampleEdge(), int(VAK::FallingEdge));
}

void TestPluginLife::shutdownEndsTheManager()
{
    const QPointer<QObject> manager = VakViewManager::instance();
    plugin()->shutdown();
    QVERIFY(!manager);
    area.reset();
    const QPointer<QObject> instance = loader.instance();
    QVERIFY2(loader.unload(), qPrintable(loader.errorString()));
    QVERIFY(!instance);
}

QTEST_MAIN(TestPluginLife)

#include "tst_pluginlife.moc"

// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "workbenchtest.h"

#include "support/widgethelpers.h"

#include "hostlibs/idecore/viewarea.h"
#include "hostlibs/ovte/projectengine.h"
#include "workbench/mainwindow.h"
#include "workbench/pluginhost.h"

#include <QAction>
#include <QApplication>
#include <QSettings>
#include <QTabWidget>
#include <QTest>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>

static const char project[] = R"({
  "vakproj": 1,
  "device": "KXB-M8",
  "package": "",
  "top": "blink",
  "standard": "1800-2017",
  "synthesisTool": "OrvaneSynthesis",
  "includePaths": [],
  "defines": [],
  "files": [
    { "path": "blink.v", "type": "verilog", "enabled": true, "library": "" },
    { "path": "divider.v", "type": "verilog", "enabled": true, "library": "" }
  ]
}
)";

static const char blink[] = R"(module blink(input clk, input rst, output led);
    wire tick;
    reg [3:0] count;
    divider u_divider(.clk(clk), .rst(rst), .tick(tick));
    always @(posedge clk) if (rst) count <= 0; else if (tick) count <= count + 1;
    assign led = count[3];
endmodule
)";

static const char divider[] = R"(module divider(input clk, input rst, output tick);
    reg [7:0] value;
    always @(posedge clk) if (rst) value <= 0; else value <= value + 1;
    assign tick = value == 8'hff;
endmodule
)";

WorkbenchTest::WorkbenchTest() = default;

WorkbenchTest::~WorkbenchTest() = default;

void WorkbenchTest::initTestCase()
{
    QCoreApplication::setOrganizationName("RtlVakIns tests");
    QCoreApplication::setApplicationName("workbench");
    settings = std::make_unique<support::TempDir>();
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, settings->path());
    plugins = std::make_unique<Workbench::PluginHost>();
    plugins->load(VAK_PLUGIN_FOLDER);
    QVERIFY(plugins->has("VakInserterPlugin"));
}

void WorkbenchTest::cleanupTestCase()
{
    plugins.reset();
}

void WorkbenchTest::init()
{
    QSettings().clear();
    dir = std::make_unique<support::TempDir>();
    dir->write("blink.vakproj", project);
    dir->write("blink.v", blink);
    dir->write("divider.v", divider);
    window = std::make_unique<Workbench::MainWindow>(*plugins);
    window->show();
    QVERIFY(QTest::qWaitForWindowExposed(window.get()));
}

void WorkbenchTest::cleanup()
{
    window.reset();
    support::runDeferredDeletes();
    TE::ProjectEngine::instance()->closeProject();
    dir.reset();
}

QAction &WorkbenchTest::action(const char *name) const
{
    return support::child<QAction>(*window, name);
}

void WorkbenchTest::trigger(const char *name) const
{
    QVERIFY2(action(name).isEnabled(), name);
    action(name).trigger();
}

QStringList WorkbenchTest::tabs() const
{
    const auto *widget = window->viewArea()->findChild<QTabWidget *>();
    QStringList texts;
    for (int i = 0; i < widget->count(); ++i)
        texts.append(widget->tabText(i));
    return texts;
}

Core::IView *WorkbenchTest::activeView() const
{
    return window->viewArea()->activeView();
}

QTreeWidget &WorkbenchTest::projectTree() const
{
    // What the tree shows follows the project in the next round of the event loop.
    QCoreApplication::processEvents();
    return support::child<QTreeWidget>(*window, "projectTree");
}

QTreeWidgetItem *WorkbenchTest::projectItem(const QString &relativePath) const
{
    for (QTreeWidgetItemIterator it(&projectTree()); *it != nullptr; ++it) {
        if ((*it)->text(0) == relativePath)
            return *it;
    }
    qFatal("no %s in the project tree", qPrintable(relativePath));
}

QStringList WorkbenchTest::messages() const
{
    return window->messages()->texts();
}

QByteArray WorkbenchTest::savedProject() const
{
    QCoreApplication::processEvents();
    return dir->read("blink.vakproj");
}

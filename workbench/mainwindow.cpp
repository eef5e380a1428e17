// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "workbench/mainwindow_p.h"

#include "workbench/devicedialog.h"
#include "workbench/documents.h"
#include "workbench/filedialogs.h"
#include "workbench/hostmessages.h"
#include "workbench/pluginhost.h"
#include "workbench/pluginsdialog.h"
#include "workbench/projectcontroller.h"
#include "workbench/projectpanel.h"
#include "workbench/recentfiles.h"
#include "workbench/welcomepage.h"

#include "hostlibs/idecore/viewarea.h"
#include "hostlibs/ovte/projectengine.h"

#include <IdeCore/iview.h>
#include <IdeCore/viewmanager.h>

#include <QApplication>
#include <QCloseEvent>
#include <QDir>
#include <QDockWidget>
#include <QDragEnterEvent>
#include <QFileInfo>
#include <QMenuBar>
#include <QMessageBox>
#include <QMimeData>
#include <QStatusBar>
#include <QToolButton>

/// The linker drops the pictures of a static library unless they are asked for, which must be done outside a namespace.
static void loadPictures()
{
    Q_INIT_RESOURCE(workbench);
}

namespace Workbench {

static TE::ProjectEngine &engine()
{
    return *TE::ProjectEngine::instance();
}

MainWindow::MainWindow(const PluginHost &plugins, QWidget *parent)
    : QMainWindow(parent)
    , m_plugins(plugins)
    , m_actions(std::make_unique<Actions>())
    , m_area(new Core::ViewArea(this))
    , m_messages(new MessagesPanel(this))
    , m_documents(new Documents(plugins, this))
    , m_project(new ProjectController(*m_documents, this))
    , m_recent(new RecentFiles(this))
{
    loadPictures();
    setObjectName("mainWindow");
    setWindowIcon(QIcon(":/workbench/image/rtlvak.png"));
    setCentralWidget(m_area);
    setAcceptDrops(true);
    createActions();
    connectActions();
    createMenus();
    createToolBar();
    createPanels();
    createStatusBar();
    createWelcomePage();
    connect(m_documents, &Documents::opened, m_recent, &RecentFiles::add);
    connect(m_documents, &Documents::message, m_messages, &MessagesPanel::add);
    connect(m_project, &ProjectController::message, m_messages, &MessagesPanel::add);
    connect(new HostMessages(this), &HostMessages::message, m_messages, &MessagesPanel::add);
    connect(m_project, &ProjectController::messages, m_messages, &MessagesPanel::addLines);
    connect(m_messages, &MessagesPanel::placeRequested, m_documents, &Documents::openPlace);
    connect(m_area, &Core::ViewArea::viewTitleChanged, this, &MainWindow::updateTitle);
    connect(Core::ViewManager::instance(), &Core::ViewManager::viewActiveted, this, &MainWindow::updateState);
    connect(&engine(), &TE::ProjectEngine::projectChanged, this, &MainWindow::updateState);
    connect(&engine(), &TE::ProjectEngine::optionChanged, this, &MainWindow::updateState);
    connect(&engine(), &TE::ProjectEngine::deviceChanged, this, &MainWindow::updateState);
    resize(1360, 860);
    resizeDocks(findChildren<QDockWidget *>("projectDock"), {340}, Qt::Horizontal);
    resizeDocks(findChildren<QDockWidget *>("messagesDock"), {96}, Qt::Vertical);
    updateState();
}

MainWindow::~MainWindow()
{
    // Views that are left are closed while everything that they and their listeners use is still there.
    delete takeCentralWidget();
}

void MainWindow::createPanels()
{
    auto *panel = new ProjectPanel(this);
    connect(panel, &ProjectPanel::openRequested, m_documents, &Documents::open);
    connect(panel, &ProjectPanel::addFilesRequested, m_project, &ProjectController::addFiles);
    QMenu *view = menuBar()->findChild<QMenu *>("viewMenu");
    const auto addDock = [&](const char *name, const QString &title, QWidget *widget, Qt::DockWidgetArea area) {
        auto *dock = new QDockWidget(title, this);
        dock->setObjectName(name);
        dock->setWidget(widget);
        dock->setFeatures(QDockWidget::DockWidgetClosable | QDockWidget::DockWidgetMovable);
        addDockWidget(area, dock);
        view->addAction(dock->toggleViewAction());
    };
    setCorner(Qt::BottomLeftCorner, Qt::LeftDockWidgetArea);
    addDock("projectDock", tr("Project"), panel, Qt::LeftDockWidgetArea);
    addDock("messagesDock", tr("Messages"), m_messages, Qt::BottomDockWidgetArea);
}

void MainWindow::createStatusBar()
{
    const auto addButton = [this](const char *name, QAction *action, const QString &tip) {
        auto *button = new QToolButton(this);
        button->setObjectName(name);
        button->setAutoRaise(true);
        button->setToolTip(tip);
        button->setFocusPolicy(Qt::NoFocus);
        connect(button, &QToolButton::clicked, action, &QAction::trigger);
        statusBar()->addPermanentWidget(button);
        return button;
    };
    m_topButton = addButton("topModuleButton", m_actions->configuration, tr("The top module; click to change it"));
    m_deviceButton = addButton("deviceButton", m_actions->device, tr("The device; click to choose another one"));
}

void MainWindow::createWelcomePage()
{
    const Actions &a = *m_actions;
    auto *page = new WelcomePage(
        {
            {tr("Open the project of your design"),
             tr("A project lists the HDL files. Make a new one, or take the files from a Verilog file list."),
             {a.openProject, a.newProject, a.importList}},
            {tr("Say what it is built for"),
             tr("The top module, include paths and defines; and the device."),
             {a.configuration, a.device}},
            {tr("Open or make an analyzer file"),
             tr("Standard has trigger ports and expressions, Lite captures without a trigger of its own."),
             {a.newStandard, a.newLite, a.open}},
        },
        *m_recent, this);
    connect(page, &WelcomePage::openRequested, m_documents, &Documents::open);
    m_area->setEmptyPage(page);
}

bool MainWindow::open(const QString &path)
{
    return m_documents->open(path);
}

void MainWindow::askToOpen()
{
    const QString folder = engine().isOpen() ? engine().workingDir() : QDir::homePath();
    for (const QString &path : askForFiles(this, tr("Open"), folder, FileFilter::everythingKnown()))
        open(path);
}

void MainWindow::newAnalyzer(bool lite)
{
    const QString name = lite ? "lite.rvk" : "analyzer.rvk";
    const QString path = askForNewFile(this, tr("New Analyzer File"), QDir(engine().workingDir()).filePath(name),
                                       FileFilter::analyzers(), "rvk");
    if (!path.isEmpty())
        m_documents->createAnalyzer(path, lite ? VAK::VakMode::Lite : VAK::VakMode::Standard);
}

void MainWindow::fillRecentMenu()
{
    m_recentMenu->clear();
    for (const QString &path : m_recent->paths()) {
        QString name = QFileInfo(path).fileName();
        QAction *action = m_recentMenu->addAction(name.replace('&', "&&"));
        action->setToolTip(QDir::toNativeSeparators(path));
        action->setEnabled(QFileInfo::exists(path));
        connect(action, &QAction::triggered, this, [this, path] { open(path); });
    }
    if (m_recentMenu->isEmpty()) {
        m_recentMenu->addAction(tr("(nothing yet)"))->setEnabled(false);
        return;
    }
    m_recentMenu->addSeparator();
    connect(m_recentMenu->addAction(tr("Clear This List")), &QAction::triggered, m_recent, &RecentFiles::clear);
}

void MainWindow::closeActiveView()
{
    Core::ViewManager::closeView(m_area->activeView());
}

void MainWindow::showPlugins()
{
    PluginsDialog(m_plugins, this).exec();
}

void MainWindow::showAbout()
{
    QMessageBox::about(
        this, tr("About"),
        tr("<b>RtlVakIns Workbench %1</b><br>Configures embedded logic analyzers for FPGA designs.<br><br>"
           "Licensed under the Apache License 2.0.")
            .arg(QApplication::applicationVersion()));
}

void MainWindow::updateState()
{
    const bool hasProject = engine().isOpen();
    const bool hasView = m_area->activeView() != nullptr;
    const Actions &a = *m_actions;
    for (QAction *action :
         {a.newStandard, a.newLite, a.addFiles, a.configuration, a.device, a.saveProjectAs, a.closeProject})
        action->setEnabled(hasProject);
    for (QAction *action : {a.close, a.closeAll, a.nextTab, a.previousTab})
        action->setEnabled(hasView);
    const TE::Project &project = engine().project();
    m_topButton->setVisible(hasProject);
    m_deviceButton->setVisible(hasProject);
    m_topButton->setText(project.topModule.isEmpty() ? tr("Top: found from the design")
                                                     : tr("Top: %1").arg(project.topModule));
    m_deviceButton->setText(deviceSummary(project.device));
    updateTitle();
}

void MainWindow::updateTitle()
{
    QStringList parts;
    if (const Core::IView *view = m_area->activeView())
        parts.append(view->windowTitle());
    if (engine().isOpen()) {
        const QString file = engine().projectFile();
        parts.append(file.isEmpty() ? QDir(engine().workingDir()).dirName() : QFileInfo(file).completeBaseName());
    }
    parts.append(tr("RtlVakIns Workbench"));
    setWindowTitle(parts.join(QString(" %1 ").arg(QChar(0x2013))));
}

void MainWindow::closeEvent(QCloseEvent *event)
{
    event->setAccepted(m_area->closeAll() && m_project->saveBeforeQuit());
}

void MainWindow::dragEnterEvent(QDragEnterEvent *event)
{
    if (event->mimeData()->hasUrls())
        event->acceptProposedAction();
}

void MainWindow::dropEvent(QDropEvent *event)
{
    for (const QUrl &url : event->mimeData()->urls()) {
        if (url.isLocalFile())
            open(url.toLocalFile());
    }
}

} // namespace Workbench

// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "workbench/mainwindow.h"

#include "workbench/actionids.h"
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

#include "hostlibs/idecore/command.h"
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
#include <QToolBar>
#include <QToolButton>

/// The linker drops the pictures of a static library unless they are asked for, which must be done outside a namespace.
static void loadPictures()
{
    Q_INIT_RESOURCE(workbench);
}

namespace Workbench {

/// The actions of the menus, in the order in which they appear there.
struct MainWindow::Actions
{
    QAction *newProject;
    QAction *newStandard;
    QAction *newLite;
    QAction *open;
    QAction *openProject;
    QAction *save;
    QAction *close;
    QAction *closeAll;
    QAction *quit;
    QAction *find;
    QAction *findNext;
    QAction *findPrevious;
    QAction *goToLine;
    QAction *addFiles;
    QAction *importList;
    QAction *configuration;
    QAction *device;
    QAction *closeProject;
    QAction *nextTab;
    QAction *previousTab;
    QAction *plugins;
    QAction *about;
};

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

QAction *MainWindow::makeAction(const char *name, const char *icon, const QString &text, const QKeySequence &shortcut)
{
    auto *action = new QAction(text, this);
    action->setObjectName(name);
    if (icon != nullptr)
        action->setIcon(QIcon(QString(":/workbench/image/%1.png").arg(icon)));
    action->setShortcut(shortcut);
    return action;
}

QAction *MainWindow::makeCommand(const char *name, const char *icon, const char *id, const QString &text,
                                 const QKeySequence &shortcut)
{
    auto *command = new Core::Command(id, text, this);
    command->setObjectName(name);
    if (icon != nullptr)
        command->setIcon(QIcon(QString(":/workbench/image/%1.png").arg(icon)));
    command->setShortcut(shortcut);
    return command;
}

void MainWindow::createActions()
{
    Actions &a = *m_actions;
    a.newProject = makeAction("actionNewProject", "project", tr("New &Project..."));
    a.newStandard =
        makeAction("actionNewStandard", "analyzer", tr("New &Analyzer File (Standard)..."), QKeySequence::New);
    a.newLite = makeAction("actionNewLite", "analyzer", tr("New Analyzer File (&Lite)..."));
    // What buttons show; the menu's texts are too long for them.
    a.newStandard->setIconText(tr("New Standard File"));
    a.newLite->setIconText(tr("New Lite File"));
    a.open = makeAction("actionOpen", "open", tr("&Open..."), QKeySequence::Open);
    a.openProject = makeAction("actionOpenProject", "open", tr("Open P&roject..."), tr("Ctrl+Shift+O"));
    a.save = makeCommand("actionSave", "save", ActionId::Save, tr("&Save"), QKeySequence::Save);
    a.close = makeAction("actionClose", nullptr, tr("&Close"), tr("Ctrl+W"));
    a.closeAll = makeAction("actionCloseAll", nullptr, tr("Close A&ll"), tr("Ctrl+Shift+W"));
    a.quit = makeAction("actionQuit", nullptr, tr("&Quit"), tr("Ctrl+Q"));
    a.find = makeCommand("actionFind", "find", ActionId::Find, tr("&Find..."), QKeySequence::Find);
    a.findNext = makeCommand("actionFindNext", nullptr, ActionId::FindNext, tr("Find &Next"), tr("F3"));
    a.findPrevious =
        makeCommand("actionFindPrevious", nullptr, ActionId::FindPrevious, tr("Find &Previous"), tr("Shift+F3"));
    a.goToLine = makeCommand("actionGoToLine", nullptr, ActionId::GoToLine, tr("&Go to Line..."), tr("Ctrl+G"));
    a.addFiles = makeAction("actionAddFiles", "add", tr("&Add Files..."));
    a.importList = makeAction("actionImportList", "import", tr("&Import File List..."), tr("Ctrl+I"));
    a.configuration = makeAction("actionConfiguration", "configuration", tr("&Configuration..."), tr("Ctrl+,"));
    a.device = makeAction("actionDevice", "device", tr("&Device..."), tr("Ctrl+D"));
    a.closeProject = makeAction("actionCloseProject", nullptr, tr("Close &Project"));
    a.nextTab = makeAction("actionNextTab", nullptr, tr("&Next Tab"), tr("Ctrl+Tab"));
    a.previousTab = makeAction("actionPreviousTab", nullptr, tr("&Previous Tab"), tr("Ctrl+Shift+Tab"));
    a.plugins = makeAction("actionPlugins", nullptr, tr("About &Plug-ins..."));
    a.about = makeAction("actionAbout", nullptr, tr("&About..."));

    connect(a.newProject, &QAction::triggered, m_project, &ProjectController::newProject);
    connect(a.newStandard, &QAction::triggered, this, [this] { newAnalyzer(false); });
    connect(a.newLite, &QAction::triggered, this, [this] { newAnalyzer(true); });
    connect(a.open, &QAction::triggered, this, &MainWindow::askToOpen);
    connect(a.openProject, &QAction::triggered, m_project, &ProjectController::openProject);
    connect(a.close, &QAction::triggered, this, &MainWindow::closeActiveView);
    connect(a.closeAll, &QAction::triggered, m_area, &Core::ViewArea::closeAll);
    connect(a.quit, &QAction::triggered, this, &QWidget::close);
    connect(a.addFiles, &QAction::triggered, m_project, &ProjectController::addFiles);
    connect(a.importList, &QAction::triggered, m_project, &ProjectController::importFileList);
    connect(a.configuration, &QAction::triggered, m_project, &ProjectController::configure);
    connect(a.device, &QAction::triggered, m_project, &ProjectController::chooseDevice);
    connect(a.closeProject, &QAction::triggered, m_project, &ProjectController::closeProject);
    connect(a.nextTab, &QAction::triggered, this, [this] { m_area->activateNeighbour(1); });
    connect(a.previousTab, &QAction::triggered, this, [this] { m_area->activateNeighbour(-1); });
    connect(a.plugins, &QAction::triggered, this, &MainWindow::showPlugins);
    connect(a.about, &QAction::triggered, this, &MainWindow::showAbout);
}

void MainWindow::createMenus()
{
    const Actions &a = *m_actions;
    QMenu *file = menuBar()->addMenu(tr("&File"));
    file->addActions({a.newProject, a.newStandard, a.newLite});
    file->addSeparator();
    file->addActions({a.open, a.openProject});
    m_recentMenu = file->addMenu(tr("Open R&ecent"));
    m_recentMenu->setObjectName("recentMenu");
    m_recentMenu->setToolTipsVisible(true);
    connect(m_recentMenu, &QMenu::aboutToShow, this, &MainWindow::fillRecentMenu);
    file->addSeparator();
    file->addActions({a.save, a.close, a.closeAll});
    file->addSeparator();
    file->addAction(a.importList);
    file->addSeparator();
    file->addAction(a.quit);
    QMenu *edit = menuBar()->addMenu(tr("&Edit"));
    edit->addActions({a.find, a.findNext, a.findPrevious, a.goToLine});
    QMenu *project = menuBar()->addMenu(tr("&Project"));
    project->addActions({a.addFiles, a.configuration, a.device});
    project->addSeparator();
    project->addAction(a.closeProject);
    QMenu *view = menuBar()->addMenu(tr("&View"));
    view->setObjectName("viewMenu");
    view->addActions({a.nextTab, a.previousTab});
    view->addSeparator();
    menuBar()->addMenu(tr("&Help"))->addActions({a.plugins, a.about});
}

void MainWindow::createToolBar()
{
    const Actions &a = *m_actions;
    QToolBar *bar = addToolBar(tr("Tools"));
    bar->setObjectName("toolBar");
    bar->setMovable(false);
    bar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    bar->setIconSize({20, 20});
    // The command's own text names the file, which would make the button jump.
    a.save->setIconText(tr("Save"));
    bar->addActions({a.open, a.save});
    bar->addSeparator();
    bar->addActions({a.newStandard, a.configuration, a.device});
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
    for (QAction *action : {a.newStandard, a.newLite, a.addFiles, a.configuration, a.device, a.closeProject})
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

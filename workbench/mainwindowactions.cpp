// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "workbench/mainwindow_p.h"

#include "workbench/actionids.h"
#include "workbench/projectcontroller.h"

#include "hostlibs/idecore/command.h"
#include "hostlibs/idecore/viewarea.h"

#include <QAction>
#include <QMenuBar>
#include <QToolBar>

namespace Workbench {

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
    a.saveProjectAs = makeAction("actionSaveProjectAs", nullptr, tr("&Save Project As..."));
    a.closeProject = makeAction("actionCloseProject", nullptr, tr("Close &Project"));
    a.nextTab = makeAction("actionNextTab", nullptr, tr("&Next Tab"), tr("Ctrl+Tab"));
    a.previousTab = makeAction("actionPreviousTab", nullptr, tr("&Previous Tab"), tr("Ctrl+Shift+Tab"));
    a.plugins = makeAction("actionPlugins", nullptr, tr("About &Plug-ins..."));
    a.about = makeAction("actionAbout", nullptr, tr("&About..."));
}

void MainWindow::connectActions()
{
    const Actions &a = *m_actions;
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
    connect(a.saveProjectAs, &QAction::triggered, m_project, &ProjectController::saveProjectAs);
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
    project->addActions({a.saveProjectAs, a.closeProject});
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

} // namespace Workbench

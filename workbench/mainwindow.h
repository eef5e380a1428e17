// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "workbench/messagespanel.h"

#include <QMainWindow>

class QToolButton;

namespace Core {
class ViewArea;
}

namespace Workbench {

class Documents;
class PluginHost;
class ProjectController;
class RecentFiles;

/// The window of the environment: the project on the left, the views in the middle, the messages below.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    /// `plugins` must outlive the window.
    explicit MainWindow(const Workbench::PluginHost &plugins, QWidget *parent = nullptr);
    ~MainWindow() override;

    /// Opens a project, a file list, an analyzer file or a text.
    bool open(const QString &path);
    Core::ViewArea *viewArea() const { return m_area; }
    MessagesPanel *messages() const { return m_messages; }

protected:
    void closeEvent(QCloseEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    struct Actions;
    void createActions();
    void connectActions();
    void createMenus();
    void createToolBar();
    void createPanels();
    void createStatusBar();
    void createWelcomePage();
    QAction *makeAction(const char *name, const char *icon, const QString &text, const QKeySequence &shortcut = {});
    QAction *makeCommand(const char *name, const char *icon, const char *id, const QString &text,
                         const QKeySequence &shortcut);

    void askToOpen();
    void newAnalyzer(bool lite);
    void fillRecentMenu();
    void closeActiveView();
    void showAbout();
    void showPlugins();
    void updateState();
    void updateTitle();

    const PluginHost &m_plugins;
    std::unique_ptr<Actions> m_actions;
    Core::ViewArea *m_area;
    MessagesPanel *m_messages;
    Documents *m_documents;
    ProjectController *m_project;
    RecentFiles *m_recent;
    QMenu *m_recentMenu = nullptr;
    QToolButton *m_topButton = nullptr;
    QToolButton *m_deviceButton = nullptr;
};

} // namespace Workbench

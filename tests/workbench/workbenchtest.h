// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "support/tempdir.h"

#include <QObject>

#include <memory>

class QAction;
class QTreeWidget;
class QTreeWidgetItem;

namespace Core {
class IView;
}

namespace Workbench {
class MainWindow;
class PluginHost;
} // namespace Workbench

/// Base of the tests that drive the real window with the real plug-in and the real host libraries, each test function
/// in a folder of its own that holds a small project.
class WorkbenchTest : public QObject
{
    Q_OBJECT

public:
    WorkbenchTest();
    ~WorkbenchTest() override;

private slots:
    void initTestCase();
    void cleanupTestCase();
    void init();
    void cleanup();

protected:
    QString path(const QString &name) const { return dir->filePath(name); }
    /// The action of that object name; the test can not go on without it.
    QAction &action(const char *name) const;
    /// Triggers the action, which must be enabled.
    void trigger(const char *name) const;
    /// The texts of the tabs, from left to right.
    QStringList tabs() const;
    Core::IView *activeView() const;
    QTreeWidget &projectTree() const;
    QTreeWidgetItem *projectItem(const QString &relativePath) const;
    QStringList messages() const;
    /// The project file as it is once the window has saved what changed.
    QByteArray savedProject() const;

    std::unique_ptr<support::TempDir> dir;
    std::unique_ptr<Workbench::MainWindow> window;

private:
    std::unique_ptr<support::TempDir> settings;
    std::unique_ptr<Workbench::PluginHost> plugins;
};

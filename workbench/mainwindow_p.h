// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "workbench/mainwindow.h"

class QAction;

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
    QAction *saveProjectAs;
    QAction *closeProject;
    QAction *nextTab;
    QAction *previousTab;
    QAction *plugins;
    QAction *about;
};

} // namespace Workbench

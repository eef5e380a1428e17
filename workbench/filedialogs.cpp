// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "workbench/filedialogs.h"

#include <QCoreApplication>
#include <QFileDialog>
#include <QFileInfo>

namespace Workbench {

static QString tr(const char *text)
{
    return QCoreApplication::translate("Workbench::FileDialogs", text);
}

static QString withAllFiles(const QString &filter)
{
    return filter + ";;" + tr("All files (*)");
}

QString FileFilter::everythingKnown()
{
    return withAllFiles(tr("Projects, analyzers and sources (*.vakproj *.rvk *.v *.sv *.vh *.svh *.vhd *.vhdl *.f)"));
}

QString FileFilter::projects()
{
    return withAllFiles(tr("Projects (*.vakproj)"));
}

QString FileFilter::fileLists()
{
    return withAllFiles(tr("Verilog file lists (*.f *.vc *.lst)"));
}

QString FileFilter::analyzers()
{
    return withAllFiles(tr("Analyzer configurations (*.rvk)"));
}

QString FileFilter::sources()
{
    return withAllFiles(tr("HDL sources (*.v *.sv *.vh *.svh *.vhd *.vhdl)"));
}

static QStringList run(QFileDialog &dialog)
{
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles() : QStringList();
}

QString askForFile(QWidget *parent, const QString &title, const QString &folder, const QString &filters)
{
    QFileDialog dialog(parent, title, folder, filters);
    dialog.setFileMode(QFileDialog::ExistingFile);
    return run(dialog).value(0);
}

QStringList askForFiles(QWidget *parent, const QString &title, const QString &folder, const QString &filters)
{
    QFileDialog dialog(parent, title, folder, filters);
    dialog.setFileMode(QFileDialog::ExistingFiles);
    return run(dialog);
}

QString askForNewFile(QWidget *parent, const QString &title, const QString &proposal, const QString &filters,
                      const QString &suffix)
{
    QFileDialog dialog(parent, title, QFileInfo(proposal).absolutePath(), filters);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(suffix);
    dialog.selectFile(QFileInfo(proposal).fileName());
    return run(dialog).value(0);
}

} // namespace Workbench

// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QString>

class QWidget;

namespace Workbench {

/// The filters of the file dialogs, as the toolkit writes them.
namespace FileFilter {
QString everythingKnown();
QString projects();
QString fileLists();
QString analyzers();
QString sources();
} // namespace FileFilter

/// Asks for a file to open; empty when the person cancels.
QString askForFile(QWidget *parent, const QString &title, const QString &folder, const QString &filters);
QStringList askForFiles(QWidget *parent, const QString &title, const QString &folder, const QString &filters);
/// Asks for a file to write, which gets `suffix` when the name has none; asks before an existing one is replaced.
QString askForNewFile(QWidget *parent, const QString &title, const QString &proposal, const QString &filters,
                      const QString &suffix);

} // namespace Workbench

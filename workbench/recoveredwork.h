// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QString>

class QWidget;

namespace Workbench {

/// Where the editor keeps the unsaved work on an analyzer file whose view it has to close.
QString recoveredCopyOf(const QString &analyzerFile);

/// Asks what to do about work on `analyzerFile` that was kept so, if there is any: put it in the file's place (the file
/// as it was stays beside it), drop it, or leave it for later. False with a text in `*error` when a file could not be
/// moved.
bool settleRecoveredWork(const QString &analyzerFile, QWidget *parent, QString *error);

} // namespace Workbench

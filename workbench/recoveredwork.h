// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QString>

class QWidget;

namespace Workbench {

/// Asks what to do about unsaved work on `analyzerFile` that the editor kept beside it when it had to close, the latest
/// first: put it in the file's place (the file as it was stays beside it), drop it, or leave it for later. False with a
/// text in `*error` when a file could not be moved or deleted.
bool settleRecoveredWork(const QString &analyzerFile, QWidget *parent, QString *error);

} // namespace Workbench

// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QString>

namespace RTLVAK {

/// The first of FILE.SUFFIX, FILE.SUFFIX2, FILE.SUFFIX3, ... that does not exist, so that no copy replaces an older
/// one.
QString freeBackupName(const QString &file, const QString &suffix);

/// The last of the names above that exists; empty when there is none.
QString latestBackup(const QString &file, const QString &suffix);

} // namespace RTLVAK

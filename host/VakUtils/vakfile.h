// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <hostglobal.h>

#include <QList>
#include <QString>

namespace VAK {

class AoCore;
class AOCore_Lite;

enum class VakMode { Standard, Lite, Invalid };

/// The mode that the file's root element names; looks at nothing else. Invalid also for an unreadable file.
HOST_EXPORT VakMode vakModeFromVakConfigFile(const QString &path);

/// Whether the file is well-formed and has the structure of a Standard (Lite) file. Values are checked by the readers.
HOST_EXPORT bool checkVAKStandardFile(const QString &path);
HOST_EXPORT bool checkVAKLiteFile(const QString &path);

/// Reads every core; the caller owns them. On failure `*ok` is false, the list is empty and `*error` says where (line
/// and column), what was found and what was expected. `ok` and `error` may be null.
HOST_EXPORT QList<VAK::AoCore *> readVAKConfigFromXml(const QString &path, bool *ok = nullptr,
                                                      QString *error = nullptr);
HOST_EXPORT QList<VAK::AOCore_Lite *> readVAKConfigFromXml_Lite(const QString &path, bool *ok = nullptr,
                                                                QString *error = nullptr);

/// Writes every core in list order to a temporary beside `path` and renames it over `path`. On failure the old file is
/// as it was and the result is false.
HOST_EXPORT bool writeVAKConfigToXml(const QList<VAK::AoCore *> &cores, const QString &path);
HOST_EXPORT bool writeVAKConfigToXml_Lite(const QList<VAK::AOCore_Lite *> &cores, const QString &path);

} // namespace VAK

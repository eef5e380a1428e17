// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "fileerror.h"

#include <QByteArray>
#include <QList>

namespace VAK {

class AoCore;
class AOCore_Lite;

/// The content of a regular file of at most 64 MiB; empty with `*error` set when it cannot be had.
QByteArray loadFile(const QString &path, FileError *error);
/// Writes `data` to a temporary beside `path` and renames it over `path`, once it is on the disk. Keeps the permissions
/// of an existing file; where `path` is a symbolic link, its target is replaced. On failure everything is as it was.
bool replaceFile(const QString &path, const QByteArray &data);

/// Read a file with the place of the first error apart from its text; the caller owns the cores.
QList<AoCore *> readStandardFile(const QString &path, FileError *error);
QList<AOCore_Lite *> readLiteFile(const QString &path, FileError *error);

} // namespace VAK

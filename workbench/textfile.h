// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QByteArray>
#include <QString>

namespace Workbench {

/// A text and how it was stored, so that saving it changes nothing but what a person changed.
struct TextFile
{
    enum class Encoding { Utf8, Latin1 };

    QString text; ///< lines end with '\n'
    Encoding encoding = Encoding::Utf8;
    bool hasByteOrderMark = false;
    bool hasCarriageReturns = false;
};

/// Takes a file's bytes apart. False when they are no text (they hold a zero byte).
bool decodeText(const QByteArray &bytes, Workbench::TextFile *file);
QByteArray encodeText(const Workbench::TextFile &file);
/// Whether the encoding of `file` can spell its text.
bool canEncode(const Workbench::TextFile &file);

bool readTextFile(const QString &path, Workbench::TextFile *file, QString *error);
/// Writes to a temporary and renames it; on failure the old file is as it was.
bool writeTextFile(const QString &path, const Workbench::TextFile &file, QString *error);

} // namespace Workbench

// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QList>
#include <QString>

namespace TE {

/// A word of a file list and the line, from 1, on which it begins.
struct FileListWord
{
    QString text;
    int line = 0;
};

/// Divides a file list into words: drops comments, takes quotes and backslashes away, puts environment variables in. On
/// failure the result is false, `*errorLine` the line and `*error` what is wrong there.
bool splitFileList(const QString &text, QList<FileListWord> *words, int *errorLine, QString *error);

} // namespace TE

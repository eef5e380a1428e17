// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QByteArray>
#include <QStringList>

namespace TE {

/// The line, from 1, of the byte at `offset`.
int lineOfOffset(const QByteArray &text, int offset);

/// The line, from 1, of the value that `path` leads to in a well-formed JSON text; names lead into objects, decimal
/// numbers into arrays. Where the path ends early the line of the last value found is given.
int lineOfJsonValue(const QByteArray &json, const QStringList &path);

} // namespace TE

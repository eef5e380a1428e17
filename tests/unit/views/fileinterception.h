// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QStringList>

#include <functional>

namespace support {

/// Decides what becomes of a call of one of the two writers of configuration files: true lets the library write, false
/// makes it fail. Each core is given as its number and its module's name: "0 soc".
using WriteDecision = std::function<bool(const QStringList &cores, const QString &path)>;

/// Puts `decision` before the library's writers, in the whole program; an empty one takes it away.
void interceptWrites(const WriteDecision &decision);

} // namespace support

// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QList>
#include <QString>

#include <functional>

namespace VAK {
class AoCore;
}

namespace support {

/// Decides what becomes of a call of VAK::writeVAKConfigToXml(): true lets the library write, false makes it fail.
using WriteDecision = std::function<bool(const QList<VAK::AoCore *> &cores, const QString &path)>;

/// Puts `decision` before the library's writer, in the whole program; an empty one takes it away.
void interceptWrites(const WriteDecision &decision);

} // namespace support

// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QByteArray>
#include <QList>

namespace VAK {

class AoCore;
class AOCore_Lite;

/// The text of a configuration file; the same cores always give the same bytes.
QByteArray standardFile(const QList<AoCore *> &cores);
QByteArray liteFile(const QList<AOCore_Lite *> &cores);

} // namespace VAK

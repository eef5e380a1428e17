// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "hostlibs/netcatcher/vhdl/ghwdesign.h"

#include <QStringList>

namespace probe {

/// What GHDL writes about a design in one VHDL-2008 file; empty with its output behind `error` when it does not.
QByteArray waveFile(const QString &source, const QString &top, QString *error);
/// The same for a text.
QByteArray waveFileOf(const QByteArray &text, const QString &top, QString *error);

/// The reader's error about a file that it refuses; "(none)" for one that it reads. It must leave nothing behind.
QString ghwErrorOf(const QByteArray &bytes);

/// `headers[0 to 1] of header{valid: std_logic(std_ulogic), ...}`.
QString typeText(const NETCATCHER::GhwDesign &design, int type);
/// A line a scope or signal, indented: `  signal x: bit = 3`.
QStringList hierarchyLines(const NETCATCHER::GhwDesign &design);
/// The signal with a name, in the first scope that has one; null when there is none.
const NETCATCHER::GhwSignal *findSignal(const NETCATCHER::GhwDesign &design, const QByteArray &name);
/// The first promise of the design's types that does not hold; empty when all do.
QString brokenPromise(const NETCATCHER::GhwDesign &design);

} // namespace probe

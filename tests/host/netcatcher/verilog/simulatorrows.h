// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <netcatcher/rtlnetlist.h>

#include <QMap>
#include <QStringList>

namespace probe {

/// What a simulator that shares no code with the engine says about the nets of designs: for each of `tops` its rows,
/// sorted, name and width separated by a tabulator. A module of the tests' own asks it through its programming
/// interface. Empty, with a warning printed, when the simulator does not read the source.
QMap<QString, QStringList> simulatorRows(const QString &source, const QStringList &tops,
                                         const QStringList &defines = {});

/// A netlist in the same form. The simulator does not tell `[0:0]` from a scalar, and it numbers generate blocks
/// without names in its own way; neither is in these rows.
QStringList rowsAsOfSimulator(const NETCATCHER::RtlNetlist &netlist);

} // namespace probe

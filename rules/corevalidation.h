// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QList>
#include <QString>

namespace NETCATCHER {
class RtlNetlist;
}
namespace VAK {
class AoCore;
class AOCore_Lite;
} // namespace VAK

namespace RTLVAK {

/// Checks every core of a Standard file and collects one line for each error; true when there is none. `*errors`
/// receives the lines joined with "\n" (it may be null). Without a netlist no clock exists. Changes nothing.
bool validateCores(const QList<VAK::AoCore *> &cores, NETCATCHER::RtlNetlist *netlist, QString *errors = nullptr);

/// The same for a Lite file.
bool validateLiteCores(const QList<VAK::AOCore_Lite *> &cores, NETCATCHER::RtlNetlist *netlist,
                       QString *errors = nullptr);

} // namespace RTLVAK

// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <VakUtils/signalitem.h>

#include <functional>

namespace NETCATCHER {
class RtlNetlist;
}

namespace RTLVAK {

/// What a design knows of a net's name.
enum class NetState { Missing, Unusable, Usable };

using NetLookup = std::function<NetState(const QString &name)>;

/// Looks names up in the whole of `netlist`, which outlives the result and is not null.
NetLookup netLookup(const NETCATCHER::RtlNetlist *netlist);

/// `signal` with its flags brought up to date with the design. A single signal is present while its net is there and
/// usable; a group while all its members are there. A member's enabled flag follows the net's usability. Names, order,
/// members, the user's switch and a record's own enabled flag stay.
VAK::SignalItem resolvedSignal(VAK::SignalItem signal, const NetLookup &lookup);
QList<VAK::SignalItem> resolvedSignals(QList<VAK::SignalItem> signalItems, const NetLookup &lookup);

} // namespace RTLVAK

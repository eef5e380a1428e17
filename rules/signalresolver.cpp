// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "rules/signalresolver.h"

#include <netcatcher/rtlnetlist.h>

namespace RTLVAK {

NetLookup netLookup(const NETCATCHER::RtlNetlist *netlist)
{
    return [netlist](const QString &name) {
        const NETCATCHER::RtlNet *net = netlist->findNet(name);
        if (!net)
            return NetState::Missing;
        return net->isUnusable() ? NetState::Unusable : NetState::Usable;
    };
}

VAK::SignalItem resolvedSignal(VAK::SignalItem signal, const NetLookup &lookup)
{
    if (signal.members.isEmpty()) {
        signal.present = lookup(signal.name) == NetState::Usable;
        return signal;
    }
    signal.present = true;
    for (VAK::SignalItem &member : signal.members) {
        const NetState state = lookup(member.name);
        member.present = state != NetState::Missing;
        if (member.present)
            member.enabled = state == NetState::Usable;
        signal.present = signal.present && member.present;
    }
    return signal;
}

QList<VAK::SignalItem> resolvedSignals(QList<VAK::SignalItem> signalItems, const NetLookup &lookup)
{
    for (VAK::SignalItem &signal : signalItems)
        signal = resolvedSignal(signal, lookup);
    return signalItems;
}

} // namespace RTLVAK

// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <VakUtils/signalitem.h>

#include <QList>

namespace RTLVAK {

/// One selected row as far as it decides which actions of the tree's menu make sense.
struct SelectedRow
{
    bool isTopLevel = true;
    bool isGroup = false;
    bool isActive = true;
};

/// Which of the tree's actions the menu offers.
struct OfferedActions
{
    bool ungroup = false;
    bool group = false;
    bool rename = false;
    bool restore = false;
    bool reverse = false;
    bool enable = false;
    bool disable = false;
};

OfferedActions offeredActions(const QList<SelectedRow> &selection);

/// The group of these records, in their order; members of groups become members themselves. `otherGroups` are the texts
/// of the groups that stay beside it.
VAK::SignalItem groupedSignals(const QList<VAK::SignalItem> &records, const QStringList &otherGroups);

/// The record or member under a new name; its own netlist name clears the display name.
VAK::SignalItem renamedSignal(VAK::SignalItem record, const QString &text);

/// Bits the other way round; the name stays on purpose.
VAK::SignalItem reversedSignal(VAK::SignalItem record);

/// The record and its members switched on (1) or off (0).
VAK::SignalItem switchedSignal(VAK::SignalItem record, int active);

} // namespace RTLVAK

// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "signals/signaledits.h"

#include "signals/signalrow.h"

#include "rules/groupname.h"

#include <algorithm>

namespace RTLVAK {

OfferedActions offeredActions(const QList<SelectedRow> &selection)
{
    const auto some = [&selection](auto predicate) {
        return std::any_of(selection.cbegin(), selection.cend(), predicate);
    };
    OfferedActions offered;
    offered.restore = !selection.isEmpty();
    offered.rename = selection.size() == 1;
    offered.ungroup = some([](const SelectedRow &row) { return row.isTopLevel && row.isGroup; });
    offered.reverse = offered.rename && offered.ungroup;
    offered.enable = some([](const SelectedRow &row) { return !row.isActive; });
    offered.disable = some([](const SelectedRow &row) { return row.isActive; });
    offered.group = selection.size() >= 2 && offered.enable != offered.disable &&
                    !some([](const SelectedRow &row) { return !row.isTopLevel; });
    return offered;
}

VAK::SignalItem groupedSignals(const QList<VAK::SignalItem> &records, const QStringList &otherGroups)
{
    VAK::SignalItem group;
    QList<GroupedRow> rows;
    for (const VAK::SignalItem &record : records) {
        const bool isGroup = !record.members.isEmpty();
        rows.append({signalText(record), isGroup});
        group.members += isGroup ? record.members : QList<VAK::SignalItem>{record};
    }
    const GroupName name = groupName(rows, otherGroups);
    group.name = name.isNew ? name.text + groupRange(group.members.size()) : name.text;
    group.active = std::all_of(group.members.cbegin(), group.members.cend(),
                               [](const VAK::SignalItem &member) { return member.active != 0; });
    return group;
}

VAK::SignalItem renamedSignal(VAK::SignalItem record, const QString &text)
{
    record.displayName = text == record.name ? QString() : text;
    return record;
}

VAK::SignalItem reversedSignal(VAK::SignalItem record)
{
    std::reverse(record.members.begin(), record.members.end());
    return record;
}

VAK::SignalItem switchedSignal(VAK::SignalItem record, int active)
{
    record.active = active;
    for (VAK::SignalItem &member : record.members)
        member.active = active;
    return record;
}

} // namespace RTLVAK

// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QList>
#include <QStringList>

namespace RTLVAK {

/// A row that is about to become part of a group.
struct GroupedRow
{
    QString text;         ///< as shown
    bool isGroup = false; ///< has members
};

/// A name for a group.
struct GroupName
{
    QString text;
    bool isNew = false; ///< `group_N`, to be completed by groupRange(); else `base[first:last]`
};

/// The name for the rows in the order of their selection: `base[first:last]` when they are the bits of one bus in
/// ascending or descending order, else the first free `group_N`. `otherGroups` are the texts of the groups that stay.
GroupName groupName(const QList<GroupedRow> &rows, const QStringList &otherGroups);

/// `group_N` with the smallest N that none of the groups `group_N[first:last]` uses.
QString freeGroupName(const QStringList &groups);

/// The range of a new group: `[7:0]` for eight members.
QString groupRange(int memberCount);

} // namespace RTLVAK

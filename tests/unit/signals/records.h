// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <VakUtils/signalitem.h>

#include <QStringList>

/// Records as the tests of signal trees need them.
namespace records {

inline VAK::SignalItem net(const QString &name)
{
    VAK::SignalItem record;
    record.name = name;
    return record;
}

inline VAK::SignalItem shownAs(VAK::SignalItem record, const QString &displayName)
{
    record.displayName = displayName;
    return record;
}

inline VAK::SignalItem inactive(VAK::SignalItem record)
{
    record.active = 0;
    for (VAK::SignalItem &member : record.members)
        member.active = 0;
    return record;
}

inline VAK::SignalItem group(const QString &name, const QStringList &members)
{
    VAK::SignalItem record = net(name);
    for (const QString &member : members)
        record.members.append(net(member));
    return record;
}

/// The netlist's bus base[first:last].
inline VAK::SignalItem bus(const QString &base, int first, int last)
{
    QStringList bits;
    const int step = first > last ? -1 : 1;
    for (int i = first; i != last + step; i += step)
        bits.append(QStringLiteral("%1[%2]").arg(base).arg(i));
    VAK::SignalItem record = group(QStringLiteral("%1[%2:%3]").arg(base).arg(first).arg(last), bits);
    record.kind = 1;
    return record;
}

inline QStringList names(const QList<VAK::SignalItem> &items)
{
    QStringList result;
    for (const VAK::SignalItem &item : items)
        result.append(item.name);
    return result;
}

} // namespace records

// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "rules/groupname.h"

#include <QRegExp>
#include <QSet>

#include <optional>

namespace RTLVAK {

namespace private_impl {

/// One bit of a bus as its name tells: `d[3]`.
struct Bit
{
    QString base;
    qint64 index;
};

static std::optional<Bit> bitOf(const QString &text)
{
    QRegExp bitPattern(QStringLiteral("^(.+)(\\[[1-9]\\d*\\]|\\[0\\])$"));
    QRegExp indexPattern(QStringLiteral("^\\[([1-9]\\d*|0)\\]$"));
    if (!bitPattern.exactMatch(text) || !indexPattern.exactMatch(bitPattern.cap(2)))
        return std::nullopt;
    bool ok = false;
    const qint64 index = indexPattern.cap(1).toLongLong(&ok);
    return ok ? std::optional<Bit>({bitPattern.cap(1), index}) : std::nullopt;
}

/// The bits of the rows; nothing unless every row is a bit.
static QList<Bit> bitsOf(const QList<GroupedRow> &rows)
{
    QList<Bit> bits;
    for (const GroupedRow &row : rows) {
        const std::optional<Bit> bit = row.isGroup ? std::nullopt : bitOf(row.text);
        if (!bit)
            return {};
        bits.append(*bit);
    }
    return bits;
}

/// Whether the bits are neighbours of one bus, all the way up or all the way down.
static bool isBus(const QList<Bit> &bits)
{
    if (bits.size() < 2)
        return false;
    const qint64 step = bits.at(1).index - bits.at(0).index;
    if (step != 1 && step != -1)
        return false;
    for (int i = 1; i < bits.size(); ++i) {
        if (bits.at(i).base != bits.at(0).base || bits.at(i).index - bits.at(i - 1).index != step)
            return false;
    }
    return true;
}

} // namespace private_impl

GroupName groupName(const QList<GroupedRow> &rows, const QStringList &otherGroups)
{
    const QList<private_impl::Bit> bits = private_impl::bitsOf(rows);
    if (!private_impl::isBus(bits))
        return {freeGroupName(otherGroups), true};
    const auto range = QStringLiteral("[%1:%2]").arg(bits.first().index).arg(bits.last().index);
    return {bits.first().base + range, false};
}

QString freeGroupName(const QStringList &groups)
{
    QRegExp pattern(QStringLiteral("^(group_)(0|[1-9]\\d*)(\\[(0|[1-9]\\d*):(0|[1-9]\\d*)\\]$)"));
    QSet<qint64> used;
    for (const QString &group : groups) {
        bool ok = false;
        const qint64 number = pattern.exactMatch(group) ? pattern.cap(2).toLongLong(&ok) : 0;
        if (ok)
            used.insert(number);
    }
    qint64 number = 0;
    while (used.contains(number))
        ++number;
    return QStringLiteral("group_%1").arg(number);
}

QString groupRange(int memberCount)
{
    return QStringLiteral("[%1:0]").arg(memberCount - 1);
}

} // namespace RTLVAK

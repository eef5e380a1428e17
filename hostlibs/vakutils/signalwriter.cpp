// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "signalwriter.h"

#include "filewords.h"
#include "xmlwriter.h"

#include <optional>

namespace VAK {

using namespace FileWords;

/// Members base[first] .. base[last], counting up or down by one.
struct BitRange
{
    QString base;
    int first = 0;
    int last = 0;
};

static XmlText::Attributes signalAttributes(const SignalItem &signal)
{
    return {{QStringLiteral("name"), signal.name},
            {QStringLiteral("displayName"), signal.displayName},
            {QStringLiteral("enabled"), flagText(signal.enabled)},
            {QStringLiteral("present"), flagText(signal.present)},
            {QStringLiteral("active"), flagText(signal.active != 0)}};
}

/// A member that says nothing but its name.
static bool isPlain(const SignalItem &member)
{
    return member.displayName.isEmpty() && member.enabled && member.present && member.active != 0 &&
           member.foreign.isEmpty();
}

/// Takes `name` apart as base[index].
static bool splitBitName(const QString &name, QString *base, int *index)
{
    const int bracket = name.lastIndexOf(QLatin1Char('['));
    if (bracket < 0 || !name.endsWith(QLatin1Char(']')))
        return false;
    bool ok = false;
    *base = name.left(bracket);
    *index = name.mid(bracket + 1, name.size() - bracket - 2).toInt(&ok);
    return ok && bitName(*base, *index) == name;
}

static std::optional<BitRange> rangeOf(const SignalItem &signal)
{
    BitRange range;
    QString lastBase;
    if (signal.members.isEmpty() || !signal.foreign.isEmpty() ||
        !splitBitName(signal.members.first().name, &range.base, &range.first) ||
        !splitBitName(signal.members.last().name, &lastBase, &range.last) ||
        qAbs(qint64(range.last) - range.first) + 1 != signal.members.size())
        return std::nullopt;
    const int step = range.first <= range.last ? 1 : -1;
    int index = range.first;
    for (const SignalItem &member : signal.members) {
        if (!isPlain(member) || member.name != bitName(range.base, index))
            return std::nullopt;
        index += step;
    }
    return range;
}

static void writeMembers(XmlWriter *writer, const QList<SignalItem> &members)
{
    for (const SignalItem &member : members) {
        writer->open(Bit, signalAttributes(member) + member.foreign.attributes);
        writer->foreignElements(member.foreign.elements);
        writer->close();
    }
}

void writeSignal(XmlWriter *writer, const SignalItem &signal)
{
    XmlText::Attributes attributes = signalAttributes(signal);
    const std::optional<BitRange> range = rangeOf(signal);
    if (range) {
        attributes += {{QStringLiteral("base"), range->base},
                       {QStringLiteral("first"), QString::number(range->first)},
                       {QStringLiteral("last"), QString::number(range->last)}};
    }
    const QLatin1String withMembers = signal.kind == 1 ? Bus : Group;
    writer->open(signal.members.isEmpty() && signal.kind != 1 ? Net : withMembers,
                 attributes + signal.foreign.attributes);
    if (!range)
        writeMembers(writer, signal.members);
    writer->foreignElements(signal.foreign.elements);
    writer->close();
}

} // namespace VAK

// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "signalreader.h"

#include "filewords.h"
#include "xmlcursor.h"

#include <limits>

namespace VAK {

using namespace FileWords;

SignalReader::SignalReader(XmlCursor *cursor)
    : m_cursor(cursor)
{
}

SignalItem SignalReader::readFields(XmlElement &element)
{
    SignalItem signal;
    signal.name = element.text(QStringLiteral("name"));
    signal.displayName = element.text(QStringLiteral("displayName"));
    signal.enabled = element.flag(QStringLiteral("enabled"));
    signal.present = element.flag(QStringLiteral("present"));
    signal.active = element.flag(QStringLiteral("active")) ? 1 : 0;
    return signal;
}

std::optional<SignalItem> SignalReader::read(XmlElement &element)
{
    const bool isNet = element.name() == Net;
    const bool isBus = element.name() == Bus;
    if (!isNet && !isBus && element.name() != Group)
        return std::nullopt;
    SignalItem signal = readFields(element);
    signal.kind = isBus ? 1 : -1;
    countInputs(element, 0, 1);
    const bool compact = !isNet && element.has(QStringLiteral("base"));
    if (compact)
        readRange(element, &signal);
    signal.foreign.attributes = element.unread();
    if (isNet || compact)
        signal.foreign.elements = m_cursor->takeRest(element).elements;
    else
        readMembers(element, &signal);
    return signal;
}

void SignalReader::readMembers(XmlElement &element, SignalItem *signal)
{
    bool any = false;
    while (auto child = m_cursor->nextChild(element)) {
        if (child->name() != Bit) {
            signal->foreign.elements += m_cursor->takeForeign(*child);
            continue;
        }
        any = true;
        SignalItem member = readFields(*child);
        member.foreign = m_cursor->takeRest(*child);
        if (countInputs(*child, signal->members.size() + 1, 1))
            signal->members.append(member);
    }
    if (!any && element.name() == Group) {
        m_cursor->failStructure(element.line(), element.column(), QStringLiteral("<group> without members"),
                                QStringLiteral("<bit> elements, or the attributes base, first and last"));
    }
}

void SignalReader::readRange(XmlElement &element, SignalItem *signal)
{
    static constexpr int most = std::numeric_limits<int>::max() - 1;
    const QString base = element.text(QStringLiteral("base"));
    const int first = element.number(QStringLiteral("first"), -most, most);
    const int last = element.number(QStringLiteral("last"), -most, most);
    const qint64 count = qAbs(qint64(first) - last) + 1;
    if (!m_cursor->checksValues() || !countInputs(element, count, count))
        return;
    const int step = first <= last ? 1 : -1;
    signal->members.reserve(int(count));
    for (int bit = first; bit != last + step; bit += step) {
        SignalItem member;
        member.name = bitName(base, bit);
        signal->members.append(member);
    }
}

bool SignalReader::countInputs(const XmlElement &element, qint64 members, qint64 added)
{
    m_inputs += added;
    if (members > MaxMembers) {
        m_cursor->failValue(element.line(), element.column(), QStringLiteral("%1 members").arg(members),
                            QStringLiteral("at most %1").arg(MaxMembers));
    } else if (m_inputs > MaxInputsInFile) {
        m_cursor->failValue(element.line(), element.column(), QStringLiteral("signal inputs beyond the limit"),
                            QStringLiteral("at most %1 in a file").arg(MaxInputsInFile));
    } else {
        return true;
    }
    return false;
}

} // namespace VAK

// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "ghwdesign.h"

#include <limits>

namespace NETCATCHER {

qint64 GhwRange::length() const
{
    const qint64 low = isDescending ? right : left;
    const qint64 high = isDescending ? left : right;
    if (low > high)
        return 0;
    const quint64 distance = quint64(high) - quint64(low);
    const quint64 longest = quint64(std::numeric_limits<qint64>::max());
    return qint64(qMin(distance, longest - 1) + 1);
}

bool GhwType::isBit() const
{
    return kind == Enumeration && (wellKnown != NotKnown || literals.size() <= 2);
}

static int bitsOf(quint64 value)
{
    int bits = 0;
    for (; value; value >>= 1)
        ++bits;
    return bits;
}

static int bitsOf(const GhwRange &range)
{
    const qint64 low = qMin(range.left, range.right);
    const qint64 high = qMax(range.left, range.right);
    if (low >= 0)
        return bitsOf(quint64(high));
    // A negative number needs as many bits as its complement, and both kinds of number the sign.
    return 1 + qMax(bitsOf(quint64(~low)), high < 0 ? 0 : bitsOf(quint64(high)));
}

int GhwType::encodedBits() const
{
    if (isBit())
        return 1;
    if (kind == Enumeration)
        return bitsOf(quint64(literals.size() - 1));
    return kind == Integer ? qMax(1, bitsOf(range)) : 0;
}

std::vector<quint32> GhwDesign::leavesOf(const GhwSignal &signal) const
{
    std::vector<quint32> leaves;
    for (quint32 place = signal.firstRun; place != signal.firstRun + signal.runCount; ++place) {
        for (quint32 i = 0; i != runs[place].count; ++i)
            leaves.push_back(runs[place].first + i);
    }
    return leaves;
}

QByteArray GhwDesign::indexTextOf(int type, qint64 value) const
{
    const QVector<QByteArray> &literals = types[size_t(type)].literals;
    if (value >= 0 && value < literals.size())
        return literals[int(value)];
    return QByteArray::number(value);
}

} // namespace NETCATCHER

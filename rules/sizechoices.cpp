// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "rules/sizechoices.h"

namespace RTLVAK {

static constexpr int SmallestSegment = 4;
static constexpr int LargestStorage = 65536;

static QList<int> doublingFrom(int first, int last)
{
    QList<int> values;
    for (int value = first; value <= last; value *= 2)
        values.append(value);
    return values;
}

static int nextPowerOfTwo(int number)
{
    int power = 1;
    while (power < number && power < LargestStorage)
        power *= 2;
    return power;
}

QList<int> storageSizeChoices()
{
    return doublingFrom(SmallestSegment, LargestStorage);
}

QList<int> liteCaptureAmountChoices()
{
    return doublingFrom(2, LargestStorage);
}

int segmentChoiceCount(int storage)
{
    return qMax(0, storage / SmallestSegment);
}

QList<int> captureAmountChoices(int storage, int segments)
{
    if (segments <= 0)
        return {};
    return doublingFrom(SmallestSegment, qMin(storage / nextPowerOfTwo(segments), LargestStorage));
}

int maxTriggerPosition(int captureAmount)
{
    // The last four places leave room for the cycles that pass before a trigger is recognised.
    return qMax(0, captureAmount - 4);
}

int numberShown(const QString &text)
{
    return text.toInt(nullptr, 10);
}

} // namespace RTLVAK

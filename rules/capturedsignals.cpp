// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "rules/capturedsignals.h"

#include <algorithm>

namespace RTLVAK {

QList<VAK::SignalItem> capturedSignals(const QList<VAK::SignalItem> &signalItems)
{
    QList<VAK::SignalItem> captured;
    std::copy_if(signalItems.begin(), signalItems.end(), std::back_inserter(captured),
                 [](const VAK::SignalItem &signal) { return signal.isCaptured(); });
    return captured;
}

int captureWidth(const QList<VAK::SignalItem> &signalItems)
{
    int width = 0;
    for (const VAK::SignalItem &signal : signalItems)
        width += signal.isCaptured() ? signal.inputCount() : 0;
    return width;
}

int captureInsertionRow(const QList<VAK::SignalItem> &signalItems)
{
    const auto first = std::find_if_not(signalItems.begin(), signalItems.end(),
                                        [](const VAK::SignalItem &signal) { return signal.isCaptured(); });
    return int(std::distance(signalItems.begin(), first));
}

} // namespace RTLVAK

// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <VakUtils/signalitem.h>

namespace RTLVAK {

/// Those of `signalItems` that are captured (usable and switched on), in order.
QList<VAK::SignalItem> capturedSignals(const QList<VAK::SignalItem> &signalItems);
/// The bits of a captured word: the members of each captured signal, 1 for one without members.
int captureWidth(const QList<VAK::SignalItem> &signalItems);
/// Where new signals go: the position of the first signal that is not captured, else the end.
int captureInsertionRow(const QList<VAK::SignalItem> &signalItems);

} // namespace RTLVAK

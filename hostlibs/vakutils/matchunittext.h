// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <VakUtils/matchunit.h>

/// How a match unit reads on the screen and in reports.
namespace VAK {

/// `M0` to `M15`.
QString matchUnitName(const MatchUnit &unit);
/// `Trigger Port n`.
QString triggerPortName(const TriggerPort &port);
/// The full names of the port's signals in order; empty for null.
QStringList portSignalNames(const TriggerPort *port);
/// The compare value; both bounds for a range.
QString matchValueText(const MatchUnit &unit);
/// The counter's mode, with the count when it is on.
QString counterText(const MatchUnit &unit);
/// What a counter does, in a sentence.
QString counterExplanation(CounterMode mode, int count);

} // namespace VAK

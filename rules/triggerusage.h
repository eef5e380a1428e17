// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QStringList>

namespace TE {
struct DeviceInfo;
}

namespace RTLVAK {

/// The match units that the Dynamic trigger can use: M0 to M9.
constexpr int DynamicMatchUnits = 10;

/// Whether `expression` is out of force in Dynamic mode because it names one of M10 to M15.
bool isOutOfForceWhenDynamic(const QString &expression);

/// Shadow RAM cells for `expressions` truth tables over `matchUnits` match units: one each, doubled for every unit
/// above four.
int triggerSsramNeed(int expressions, int matchUnits);
/// Registers for the same, (2^(matchUnits - 4) + 1) * expressions truncated; also a fraction of a table counts below
/// four units.
int triggerRegisterNeed(int expressions, int matchUnits);

/// The usage of the Dynamic trigger for a label; a null text when `implementation` is not a known one.
QString triggerUsageText(const TE::DeviceInfo &device, const QString &implementation, int expressions, int matchUnits);

} // namespace RTLVAK

// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <hostglobal.h>

#include <QString>

/// What a device offers and what a capture needs. Width W is in bits, depth S in samples; both 0 or more; the width
/// comes first in every call.
///
/// Block RAMs: blocks(W, S) is the minimum over the family's block shapes (depth d, width w) of ceil(S/d) * ceil(W/w),
/// 0 when W or S is 0, computed in 64 bits and saturated to int. The "WithAdjust" functions use W + 1, for the trigger
/// mark that is stored beside each sample.
namespace VAK_TOOL {

/// Capacities from the device catalogue; 0 for a device that it does not hold. An empty package means any.
HOST_EXPORT int currentDeviceBsramAmount(const QString &device, const QString &package = {});
HOST_EXPORT int currentDeviceSsramAmount(const QString &device, const QString &package = {});
HOST_EXPORT int currentDeviceRegAmount(const QString &device, const QString &package = {});

/// General devices: 18-kbit blocks.
HOST_EXPORT int bsramNumberRequired(int width, int depth);
HOST_EXPORT int bsramNumberRequiredWithAdjust(int width, int depth);
/// Q1: 9-kbit blocks.
HOST_EXPORT int bsramNumberRequiredForQ1(int width, int depth);
HOST_EXPORT int bsramNumberRequiredWithAdjustForQ1(int width, int depth);
/// T2k: 18-kbit blocks without the 512x36 shape.
HOST_EXPORT int bsramNumberRequiredAdjustForT2k(int width, int depth);
HOST_EXPORT int bsramNumberRequiredWithAdjustForT2k(int width, int depth);

/// Cells of 16x4: ceil(S/16) * ceil((W + m)/4) with m = 1 when `withTriggerMark`, else 0; 0 when W + m or S is 0.
HOST_EXPORT int ssramNumberRequiredWithAdjust(int width, int depth, bool withTriggerMark);
/// Registers: (W + m) * S with m = 1 when `withTriggerMark`, else 0.
HOST_EXPORT int regNumberRequiredWidthAdjust(int width, int depth,
                                             bool withTriggerMark); // spelling fixed by the interface

} // namespace VAK_TOOL

// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QString>

namespace TE {
struct DeviceInfo;
}

namespace RTLVAK {

enum class CaptureMode { Standard, Lite };

/// What a capture needs of a resource and what the device has of it.
struct CaptureUsage
{
    QString title; ///< "BSRAM Usage :" and its like; empty when the implementation is none of the known ones
    int need = 0;
    int available = 0;
};

/// The usage of `implementation` ("BSRAM", "SSRAM" or "REG") for `width` bits in `depth` samples on `device`.
CaptureUsage captureUsage(CaptureMode mode, const TE::DeviceInfo &device, const QString &implementation, int width,
                          int depth);
/// "need/available" for a label, the need in red when it exceeds what is available.
QString captureUsageText(int need, int available);

} // namespace RTLVAK

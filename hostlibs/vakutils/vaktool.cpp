// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include <VakUtils/vaktool.h>

#include "hostlibs/device/devicecatalogue.h"

#include <algorithm>
#include <limits>

namespace VAK_TOOL {

static int saturated(qint64 number)
{
    return int(std::min<qint64>(number, std::numeric_limits<int>::max()));
}

static qint64 ceilDiv(qint64 dividend, qint64 divisor)
{
    return (dividend + divisor - 1) / divisor;
}

/// The bits stored for a sample of `width` bits, in 64 bits so that the mark beside the widest sample does not
/// overflow.
static qint64 storedBits(int width, bool withTriggerMark)
{
    return std::max<qint64>(width, 0) + (withTriggerMark ? 1 : 0);
}

static int blocks(const char *kind, int width, int depth, bool withTriggerMark)
{
    return DEV::blocksRequired(DEV::blockShapes(QLatin1String(kind)), storedBits(width, withTriggerMark), depth);
}

static int capacity(const QString &device, const QString &package, int DEV::Device::*figure)
{
    const DEV::Device *found = DEV::DeviceCatalogue::instance().find(device, package);
    return found ? found->*figure : 0;
}

int currentDeviceBsramAmount(const QString &device, const QString &package)
{
    return capacity(device, package, &DEV::Device::blockRams);
}

int currentDeviceSsramAmount(const QString &device, const QString &package)
{
    return capacity(device, package, &DEV::Device::shadowRamCells);
}

int currentDeviceRegAmount(const QString &device, const QString &package)
{
    return capacity(device, package, &DEV::Device::registers);
}

int bsramNumberRequired(int width, int depth)
{
    return blocks("18k", width, depth, false);
}

int bsramNumberRequiredWithAdjust(int width, int depth)
{
    return blocks("18k", width, depth, true);
}

int bsramNumberRequiredForQ1(int width, int depth)
{
    return blocks("9k", width, depth, false);
}

int bsramNumberRequiredWithAdjustForQ1(int width, int depth)
{
    return blocks("9k", width, depth, true);
}

int bsramNumberRequiredAdjustForT2k(int width, int depth)
{
    return blocks("18k-no36", width, depth, false);
}

int bsramNumberRequiredWithAdjustForT2k(int width, int depth)
{
    return blocks("18k-no36", width, depth, true);
}

int ssramNumberRequiredWithAdjust(int width, int depth, bool withTriggerMark)
{
    return saturated(ceilDiv(std::max(depth, 0), 16) * ceilDiv(storedBits(width, withTriggerMark), 4));
}

int regNumberRequiredWidthAdjust(int width, int depth, bool withTriggerMark)
{
    return saturated(storedBits(width, withTriggerMark) * std::max(depth, 0));
}

} // namespace VAK_TOOL

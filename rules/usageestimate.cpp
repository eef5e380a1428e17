// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "rules/usageestimate.h"

#include <OVTE/designtypes.h>
#include <VakUtils/vaktool.h>

#include <QCoreApplication>

namespace RTLVAK {

using BsramFunction = int (*)(int width, int depth);

/// The functions of one family of block RAM.
struct BsramFamily
{
    BsramFunction standard;
    BsramFunction lite;
};

struct FamilyMember
{
    const char *device;
    BsramFamily family;
};

static constexpr BsramFamily GeneralFamily{&VAK_TOOL::bsramNumberRequiredWithAdjust, &VAK_TOOL::bsramNumberRequired};
static constexpr BsramFamily Q1Family{&VAK_TOOL::bsramNumberRequiredWithAdjustForQ1,
                                      &VAK_TOOL::bsramNumberRequiredForQ1};
static constexpr BsramFamily T2kFamily{&VAK_TOOL::bsramNumberRequiredWithAdjustForT2k,
                                       &VAK_TOOL::bsramNumberRequiredAdjustForT2k};

// Names are compared exactly, letter case included: a device that is spelled otherwise is a general one.
static constexpr FamilyMember FamilyMembers[] = {
    {"KXA-Q1", Q1Family},   {"KXA-Q1R", Q1Family}, {"KXC-T2", T2kFamily},
    {"KXC-T2R", T2kFamily}, {"KXC-T1", T2kFamily}, {"KXC-T0N", T2kFamily},
};

static BsramFamily familyOf(const QString &device)
{
    for (const FamilyMember &member : FamilyMembers) {
        if (device == QLatin1String(member.device))
            return member.family;
    }
    return GeneralFamily;
}

CaptureUsage captureUsage(CaptureMode mode, const TE::DeviceInfo &device, const QString &implementation, int width,
                          int depth)
{
    const bool standard = mode == CaptureMode::Standard;
    if (implementation == QLatin1String("BSRAM")) {
        const BsramFamily family = familyOf(device.name);
        return {QStringLiteral("BSRAM Usage :"), (standard ? family.standard : family.lite)(width, depth),
                VAK_TOOL::currentDeviceBsramAmount(device.name, device.package)};
    }
    if (implementation == QLatin1String("SSRAM")) {
        return {QStringLiteral("SSRAM Usage :"), VAK_TOOL::ssramNumberRequiredWithAdjust(width, depth, standard),
                VAK_TOOL::currentDeviceSsramAmount(device.name, device.package)};
    }
    if (implementation == QLatin1String("REG")) {
        return {QStringLiteral("Register Usage :"), VAK_TOOL::regNumberRequiredWidthAdjust(width, depth, standard),
                VAK_TOOL::currentDeviceRegAmount(device.name, device.package)};
    }
    return {};
}

QString captureUsageText(int need, int available)
{
    if (need <= available)
        return QStringLiteral("%1/%2").arg(need).arg(available);
    return QCoreApplication::translate("RTLVAK::CaptureUsage", "<font color = red>%1</font>").arg(need) +
           QStringLiteral("/%1").arg(available);
}

} // namespace RTLVAK

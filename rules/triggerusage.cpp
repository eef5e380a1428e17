// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "rules/triggerusage.h"

#include <OVTE/designtypes.h>
#include <VakUtils/aocore.h>
#include <VakUtils/vaktool.h>

#include <cmath>

namespace RTLVAK {

bool isOutOfForceWhenDynamic(const QString &expression)
{
    for (int unit = VAK::MatchUnitsPerCore - 1; unit >= DynamicMatchUnits; --unit) {
        if (expression.contains(QStringLiteral("M%1").arg(unit)))
            return true;
    }
    return false;
}

int triggerSsramNeed(int expressions, int matchUnits)
{
    if (matchUnits <= 4)
        return expressions;
    return int(expressions * std::pow(2.0, matchUnits - 4));
}

int triggerRegisterNeed(int expressions, int matchUnits)
{
    // No lower limit on the number of units, unlike shadow RAM: deliberate.
    return int((std::pow(2.0, matchUnits - 4) + 1) * expressions);
}

QString triggerUsageText(const TE::DeviceInfo &device, const QString &implementation, int expressions, int matchUnits)
{
    if (implementation == QLatin1String("BSRAM")) {
        const int available = VAK_TOOL::currentDeviceBsramAmount(device.name, device.package);
        const QString text = QStringLiteral("BSRAM Usage : %1").arg(expressions);
        return available == 0 ? text : text + QStringLiteral("/%1").arg(available);
    }
    if (implementation == QLatin1String("SSRAM")) {
        return QStringLiteral("SSRAM Usage : %1/%2")
            .arg(triggerSsramNeed(expressions, matchUnits))
            .arg(VAK_TOOL::currentDeviceSsramAmount(device.name, device.package));
    }
    if (implementation == QLatin1String("REG")) {
        return QStringLiteral("Register Usage : %1/%2")
            .arg(triggerRegisterNeed(expressions, matchUnits))
            .arg(VAK_TOOL::currentDeviceRegAmount(device.name, device.package));
    }
    return {};
}

} // namespace RTLVAK

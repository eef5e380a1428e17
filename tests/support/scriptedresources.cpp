// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "scriptedresources.h"

#include <VakUtils/vaktool.h>

namespace support {

struct Script
{
    Capacity capacity;
    int need = 0;
    QStringList calls;
};

static Script script;

void resetResources()
{
    script = Script();
}

void setCapacity(const Capacity &capacity)
{
    script.capacity = capacity;
}

void setNeed(int need)
{
    script.need = need;
}

QStringList resourceCalls()
{
    return script.calls;
}

QStringList resourceCalls(const QString &prefix)
{
    QStringList found;
    for (const QString &call : qAsConst(script.calls)) {
        if (call.startsWith(prefix))
            found.append(call);
    }
    return found;
}

static int amount(const char *function, const QString &device, const QString &package, int answer)
{
    script.calls.append(QStringLiteral("%1(%2,%3)").arg(QLatin1String(function), device, package));
    return answer;
}

static int required(const char *function, int width, int depth)
{
    script.calls.append(QStringLiteral("%1(%2,%3)").arg(QLatin1String(function)).arg(width).arg(depth));
    return script.need;
}

static int required(const char *function, int width, int depth, bool flag)
{
    script.calls.append(QStringLiteral("%1(%2,%3,%4)")
                            .arg(QLatin1String(function))
                            .arg(width)
                            .arg(depth)
                            .arg(flag ? QStringLiteral("true") : QStringLiteral("false")));
    return script.need;
}

} // namespace support

namespace VAK_TOOL {

int currentDeviceBsramAmount(const QString &device, const QString &package)
{
    return support::amount("bsramAmount", device, package, support::script.capacity.bsram);
}

int currentDeviceSsramAmount(const QString &device, const QString &package)
{
    return support::amount("ssramAmount", device, package, support::script.capacity.ssram);
}

int currentDeviceRegAmount(const QString &device, const QString &package)
{
    return support::amount("regAmount", device, package, support::script.capacity.reg);
}

int bsramNumberRequired(int width, int depth)
{
    return support::required("bsramNumberRequired", width, depth);
}

int bsramNumberRequiredWithAdjust(int width, int depth)
{
    return support::required("bsramNumberRequiredWithAdjust", width, depth);
}

int bsramNumberRequiredForQ1(int width, int depth)
{
    return support::required("bsramNumberRequiredForQ1", width, depth);
}

int bsramNumberRequiredWithAdjustForQ1(int width, int depth)
{
    return support::required("bsramNumberRequiredWithAdjustForQ1", width, depth);
}

int bsramNumberRequiredAdjustForT2k(int width, int depth)
{
    return support::required("bsramNumberRequiredAdjustForT2k", width, depth);
}

int bsramNumberRequiredWithAdjustForT2k(int width, int depth)
{
    return support::required("bsramNumberRequiredWithAdjustForT2k", width, depth);
}

int ssramNumberRequiredWithAdjust(int width, int depth, bool withTriggerMark)
{
    return support::required("ssramNumberRequiredWithAdjust", width, depth, withTriggerMark);
}

int regNumberRequiredWidthAdjust(int width, int depth, bool withTriggerMark)
{
    return support::required("regNumberRequiredWidthAdjust", width, depth, withTriggerMark);
}

} // namespace VAK_TOOL

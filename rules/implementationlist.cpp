// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "rules/implementationlist.h"

#include <VakUtils/aocore.h>

namespace RTLVAK {

/// More bits than these are not offered in registers.
static constexpr qint64 MaxRegisterBits = 512;

static QString bsram()
{
    return QStringLiteral("BSRAM");
}

static QString ssram()
{
    return QStringLiteral("SSRAM");
}

static QString reg()
{
    return QStringLiteral("REG");
}

QString implementationName(int code)
{
    switch (code) {
    case VAK::BsramImplementation:
        return bsram();
    case VAK::RegImplementation:
        return reg();
    case VAK::SsramImplementation:
        return ssram();
    default:
        return {};
    }
}

int implementationCode(const QString &name)
{
    if (name == ssram())
        return VAK::SsramImplementation;
    if (name == reg())
        return VAK::RegImplementation;
    return VAK::BsramImplementation;
}

int liteImplementationCode(const QString &name)
{
    if (name == bsram())
        return VAK::BsramImplementation;
    return name == ssram() ? VAK::SsramImplementation : VAK::RegImplementation;
}

std::optional<bool> inputRegisterFor(const QString &implementation)
{
    if (implementation == bsram())
        return true;
    if (implementation == reg() || implementation == ssram())
        return false;
    return std::nullopt;
}

qint64 standardCaptureBits(int width, int depth)
{
    return (qint64(width) + 1) * depth;
}

qint64 liteCaptureBits(int width, int depth)
{
    return qint64(width) * depth;
}

QStringList captureImplementations(bool hasShadowRam, qint64 bits)
{
    QStringList offered{bsram()};
    if (hasShadowRam)
        offered.append(ssram());
    if (bits <= MaxRegisterBits)
        offered.append(reg());
    return offered;
}

bool isImplementationListCurrent(const QStringList &offered, int count, const QString &current)
{
    return count == offered.size() && (count != 2 || current == offered.last());
}

int reselectedImplementation(const QStringList &offered, const QString &previous)
{
    return qMax(0, int(offered.indexOf(previous)));
}

QStringList triggerImplementations(bool hasShadowRam)
{
    return hasShadowRam ? QStringList{bsram(), ssram(), reg()} : QStringList{bsram(), reg()};
}

} // namespace RTLVAK

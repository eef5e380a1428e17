// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include <Device/devicearg.h>

namespace DEV {

DeviceArg::DeviceArg(const QString &device, const QString &package)
    : deviceName(device)
    , packageName(package)
{
}

QString DeviceArg::device() const
{
    return deviceName;
}

QString DeviceArg::package() const
{
    return packageName;
}

} // namespace DEV

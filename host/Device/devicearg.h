// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <hostglobal.h>

#include <QString>

namespace DEV {

/// The device that a document is opened for.
class HOST_EXPORT DeviceArg
{
public:
    explicit DeviceArg(const QString &device = {}, const QString &package = {});

    /// The device's name as the catalogue spells it; empty for none.
    QString device() const;
    QString package() const;

private:
    QString deviceName;
    QString packageName;
};

} // namespace DEV

// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "hostlibs/vakutils/fileerror.h"

#include <VakUtils/aocore.h>
#include <VakUtils/aocorelite.h>
#include <VakUtils/vakfile.h>

#include <memory>
#include <optional>
#include <vector>

namespace DEV {
struct Device;
}

/// A configuration as `rtlvak show` looks at it.
struct ShownConfig
{
    QString path;
    VAK::VakMode mode = VAK::VakMode::Invalid;
    std::vector<std::unique_ptr<VAK::AoCore>> standardCores;
    std::vector<std::unique_ptr<VAK::AOCore_Lite>> liteCores;
    const DEV::Device *device = nullptr; ///< null when none was asked for
};

/// Reads the file, of whatever mode.
std::optional<ShownConfig> loadConfig(const QString &path, VAK::FileError *error);

/// What a core's capture needs.
struct CaptureNeed
{
    QString implementation;
    int width = 0; ///< captured bits
    int depth = 0; ///< samples stored
    int need = 0;  ///< as the editor shows it for the device; 0 without one
    int available = 0;
    int ownBlocks = 0; ///< block RAMs of the device's own shapes; 0 where the editor's figure is meant for them
};

CaptureNeed captureNeed(const VAK::AoCore &core, const DEV::Device *device);
CaptureNeed captureNeed(const VAK::AOCore_Lite &core, const DEV::Device *device);
/// What the Dynamic trigger needs, in the editor's words; empty in Static mode and without a device.
QString triggerNeed(const VAK::AoCore &core, const DEV::Device *device);

/// The words for the stored codes.
QString implementationName(int implementation);
QString edgeName(int edge);

/// The two forms of the report.
QString textReport(const ShownConfig &config);
QByteArray jsonReport(const ShownConfig &config);

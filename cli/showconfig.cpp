// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "showconfig.h"

#include "hostlibs/device/devicecatalogue.h"
#include "hostlibs/vakutils/configfile.h"

#include "rules/capturedsignals.h"
#include "rules/triggerusage.h"
#include "rules/usageestimate.h"

#include <OVTE/designtypes.h>

template <class Core>
static void own(std::vector<std::unique_ptr<Core>> *owner, const QList<Core *> &cores)
{
    for (Core *core : cores)
        owner->emplace_back(core);
}

std::optional<ShownConfig> loadConfig(const QString &path, VAK::FileError *error)
{
    ShownConfig config;
    config.path = path;
    config.mode = VAK::vakModeFromVakConfigFile(path);
    if (config.mode == VAK::VakMode::Lite)
        own(&config.liteCores, VAK::readLiteFile(path, error));
    else // a file of no mode, too: the reader says what is wrong with it
        own(&config.standardCores, VAK::readStandardFile(path, error));
    if (error->isSet())
        return std::nullopt;
    return config;
}

QString implementationName(int implementation)
{
    switch (implementation) {
    case VAK::RegImplementation:
        return QStringLiteral("REG");
    case VAK::SsramImplementation:
        return QStringLiteral("SSRAM");
    default:
        return QStringLiteral("BSRAM");
    }
}

QString edgeName(int edge)
{
    return edge == VAK::FallingEdge ? QStringLiteral("falling") : QStringLiteral("rising");
}

static CaptureNeed captureNeed(RTLVAK::CaptureMode mode, int implementation, int width, int depth,
                               const DEV::Device *device)
{
    CaptureNeed need{implementationName(implementation), width, depth, 0, 0, 0};
    if (!device)
        return need;
    const RTLVAK::CaptureUsage usage =
        RTLVAK::captureUsage(mode, TE::DeviceInfo{device->name, {}}, need.implementation, width, depth);
    need.need = usage.need;
    need.available = usage.available;
    const int mark = mode == RTLVAK::CaptureMode::Standard ? 1 : 0;
    const int blocks = DEV::blocksRequired(device->blockShapes, width + mark, depth);
    if (implementation == VAK::BsramImplementation && blocks != usage.need)
        need.ownBlocks = blocks;
    return need;
}

CaptureNeed captureNeed(const VAK::AoCore &core, const DEV::Device *device)
{
    return captureNeed(RTLVAK::CaptureMode::Standard, core.captureImplementation(),
                       RTLVAK::captureWidth(core.getallCapSignal()), core.storageSize(), device);
}

CaptureNeed captureNeed(const VAK::AOCore_Lite &core, const DEV::Device *device)
{
    return captureNeed(RTLVAK::CaptureMode::Lite, core.captureImplementation(),
                       RTLVAK::captureWidth(core.getallCapSignal()), core.captureAmount(), device);
}

QString triggerNeed(const VAK::AoCore &core, const DEV::Device *device)
{
    if (!device || core.triggerMode() != VAK::DynamicTrigger)
        return {};
    return RTLVAK::triggerUsageText(TE::DeviceInfo{device->name, {}}, implementationName(core.triggerImplementation()),
                                    core.expressions().size(), core.enabledMatchUnits().size());
}

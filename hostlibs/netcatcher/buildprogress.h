// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtGlobal>

#include <functional>

namespace NETCATCHER {

/// How far the building of a netlist is.
struct BuildProgress
{
    enum Stage {
        ReadingSources,
        RunningEngine, ///< silent while it works, so that nothing is known but the time
        ReadingResult,
        BuildingNetlist,
    };

    Stage stage = ReadingSources;
    qint64 doneBytes = 0;
    qint64 totalBytes = 0; ///< 0: unknown
};

using ProgressFunction = std::function<void(const BuildProgress &)>;

} // namespace NETCATCHER

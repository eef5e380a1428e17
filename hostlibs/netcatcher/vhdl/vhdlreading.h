// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "hostlibs/netcatcher/buildprogress.h"
#include "hostlibs/netcatcher/engine/engineprocess.h"
#include "hostlibs/netcatcher/readresult.h"

namespace NETCATCHER {

class ReadManifest;
struct DesignSources;

/// Reads the VHDL files of a design: runs the engine, and makes the table of modules from its result. False when the
/// design has errors; the messages tell them.
bool readVhdl(const DesignSources &sources, const EngineLimits &limits, const ProgressFunction &progress,
              ReadManifest &manifest, ReadResult *result);

} // namespace NETCATCHER

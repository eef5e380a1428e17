// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "ghdltree.h"
#include "ghwdesign.h"
#include "vhdlscan.h"

#include "hostlibs/netcatcher/store/moduletable.h"

#include <QStringList>

namespace NETCATCHER {

/// Turns what the engine says about every instance into tables of what modules declare: instances with the same
/// content share one. When the top `isPart` of a larger design, its ports are no pins of the chip. Adds a line to
/// `warnings` for each bus that is too wide. Empty when the design has no top.
ModuleTable expandVhdl(const GhwDesign &design, const GhdlTree &tree, const VhdlScan &scan, bool isPart,
                       QStringList *warnings);

} // namespace NETCATCHER

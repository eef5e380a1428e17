// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "plugin/vakinserterplugin.h"

namespace RTLVAK {

bool VakInserterPlugin::initialize()
{
    return true;
}

void VakInserterPlugin::allPluginsReady() {}

void VakInserterPlugin::shutdown() {}

} // namespace RTLVAK

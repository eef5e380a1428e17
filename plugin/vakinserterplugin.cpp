// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "plugin/vakinserterplugin.h"

#include "plugin/vakviewmanager.h"

namespace RTLVAK {

bool VakInserterPlugin::initialize()
{
    VakViewManager::instance()->initialize();
    return true;
}

void VakInserterPlugin::allPluginsReady() {}

void VakInserterPlugin::shutdown()
{
    VakViewManager::instance()->deinit();
}

} // namespace RTLVAK

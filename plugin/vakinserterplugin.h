// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <ExtSys/iplugin.h>

namespace RTLVAK {

/// The root object of the plug-in: starts and stops the view manager.
class VakInserterPlugin : public ExtSys::IPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "RTLVAK.VakInserterPlugin/1.0")
    Q_INTERFACES(ExtSys::IPlugin)

public:
    bool initialize() override;
    void allPluginsReady() override;
    void shutdown() override;
};

} // namespace RTLVAK

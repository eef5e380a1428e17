// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include <ExtSys/iplugin.h>

namespace ExtSys {

IPlugin::IPlugin(QObject *parent)
    : QObject(parent)
{
}

IPlugin::~IPlugin() = default;

} // namespace ExtSys

// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <hostglobal.h>

#include <QObject>

namespace ExtSys {

/// What the host's plug-in loader expects of the root object of a plug-in.
class HOST_EXPORT IPlugin : public QObject
{
    Q_OBJECT

public:
    explicit IPlugin(QObject *parent = nullptr);
    ~IPlugin() override;

    /// Called once after loading. False makes the host give the plug-in up.
    virtual bool initialize() = 0;
    /// Called once after every plug-in was initialised.
    virtual void allPluginsReady() = 0;
    /// Called once before the host ends.
    virtual void shutdown() = 0;
};

} // namespace ExtSys

Q_DECLARE_INTERFACE(ExtSys::IPlugin, "org.fpgaworkbench.plugins.IPlugin/1.0")

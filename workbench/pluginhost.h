// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QList>
#include <QPointer>
#include <QString>
#include <QStringList>

#include <memory>
#include <vector>

class QPluginLoader;

namespace ExtSys {
class IPlugin;
}

namespace Workbench {

/// What is known about a plug-in file.
struct PluginInfo
{
    QString path;
    QString iid;
    QString className;
    QString error; ///< empty when the plug-in works

    bool isWorking() const { return error.isEmpty(); }
};

/// Loads the plug-ins of a folder, starts them, and shuts them down in reverse order when it is destroyed.
class PluginHost
{
public:
    PluginHost();
    ~PluginHost();
    PluginHost(const PluginHost &) = delete;
    PluginHost &operator=(const PluginHost &) = delete;

    /// Loads and initialises every plug-in in `folder`, in the order of their names.
    void load(const QString &folder);
    const QList<PluginInfo> &plugins() const { return m_plugins; }
    /// Whether a plug-in of this class works.
    bool has(const QString &className) const;

private:
    void loadFile(const QString &path);

    QList<PluginInfo> m_plugins;
    std::vector<std::unique_ptr<QPluginLoader>> m_loaders;
    QList<QPointer<ExtSys::IPlugin>> m_running;
};

} // namespace Workbench

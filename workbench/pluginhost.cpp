// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "workbench/pluginhost.h"

#include <ExtSys/iplugin.h>

#include <QDir>
#include <QJsonObject>
#include <QLibrary>
#include <QPluginLoader>

#include <algorithm>

namespace Workbench {

PluginHost::PluginHost() = default;

PluginHost::~PluginHost()
{
    for (auto it = m_running.rbegin(); it != m_running.rend(); ++it) {
        if (!it->isNull())
            (*it)->shutdown();
    }
    // The libraries stay loaded until the process ends: objects of theirs may still lie around.
}

void PluginHost::load(const QString &folder)
{
    const int first = m_running.size();
    const QDir dir(folder);
    for (const QString &name : dir.entryList(QDir::Files, QDir::Name)) {
        if (QLibrary::isLibrary(name))
            loadFile(QDir::cleanPath(dir.absoluteFilePath(name)));
    }
    for (int i = first; i < m_running.size(); ++i)
        m_running.at(i)->allPluginsReady();
}

void PluginHost::loadFile(const QString &path)
{
    auto loader = std::make_unique<QPluginLoader>(path);
    const QJsonObject metaData = loader->metaData();
    PluginInfo info;
    info.path = path;
    info.iid = metaData.value("IID").toString();
    info.className = metaData.value("className").toString();
    auto *plugin = qobject_cast<ExtSys::IPlugin *>(loader->instance());
    if (!loader->isLoaded())
        info.error = loader->errorString();
    else if (plugin == nullptr)
        info.error = "It is not made for this program: its root object has another interface.";
    else if (!plugin->initialize())
        info.error = "It could not be initialised.";
    if (info.isWorking())
        m_running.append(plugin);
    m_plugins.append(info);
    m_loaders.push_back(std::move(loader));
}

bool PluginHost::has(const QString &className) const
{
    return std::any_of(m_plugins.cbegin(), m_plugins.cend(),
                       [&](const PluginInfo &info) { return info.isWorking() && info.className == className; });
}

} // namespace Workbench

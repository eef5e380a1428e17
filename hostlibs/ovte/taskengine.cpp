// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include <OVTE/taskengine.h>

#include "hostlibs/ovte/projectengine.h"

#include <OVTE/designmanager.h>

#include <QDir>

namespace TE {

namespace {

/// What others see of the open project.
class ProjectDesignManager : public DesignManager
{
public:
    QVariant getOptionValue(const QString &name) const override { return engine().option(name); }
    DesignFile getFileInfo(const QString &path) const override { return engine().file(path); }
    QString workingDir() const override { return engine().workingDir(); }
    DeviceInfo currentDevice() const override { return engine().project().device; }
    QMap<QString, QVariant> getSourceFileInfo() const override;

private:
    static const ProjectEngine &engine() { return *ProjectEngine::instance(); }
};

QMap<QString, QVariant> ProjectDesignManager::getSourceFileInfo() const
{
    const Project &project = engine().project();
    QVariantList files;
    for (const DesignFile &file : project.files) {
        if (!file.enabled || !isDesignSource(file.type))
            continue;
        files.append(QVariantMap{
            {SourceKey::Path, file.path}, {SourceKey::Type, file.type}, {SourceKey::Library, file.library}});
    }
    QStringList includePaths;
    for (const QString &path : project.includePaths)
        includePaths.append(QDir::cleanPath(QDir(workingDir()).absoluteFilePath(path)));
    return {
        {SourceKey::Top, project.topModule},
        {SourceKey::Files, files},
        {SourceKey::IncludePath, includePaths},
        {SourceKey::Defines, project.defines},
        {SourceKey::Standard, project.verilogStandard},
    };
}

} // namespace

TaskEngine::TaskEngine() = default;

TaskEngine::~TaskEngine() = default;

TaskEngine *TaskEngine::instance()
{
    static auto *const engine = new TaskEngine;
    return engine;
}

DesignManager *TaskEngine::designManager() const
{
    static auto *const manager = new ProjectDesignManager;
    return manager;
}

} // namespace TE

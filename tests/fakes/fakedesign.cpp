// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "fakes/fakedesign.h"

#include <OVTE/designmanager.h>
#include <OVTE/taskengine.h>

namespace {

struct Design
{
    QMap<QString, QVariant> options;
    QMap<QString, QVariant> sourceInfo;
    QMap<QString, TE::DesignFile> files;
    QString workingDir;
    TE::DeviceInfo device;
    QStringList optionsAsked;
    QStringList fileInfosAsked;
    int sourceInfoCalls = 0;
    int deviceCalls = 0;
};

Design &design()
{
    static Design instance;
    return instance;
}

class FakeDesignManager : public TE::DesignManager
{
public:
    QVariant getOptionValue(const QString &name) const override
    {
        design().optionsAsked.append(name);
        return design().options.value(name);
    }

    QMap<QString, QVariant> getSourceFileInfo() const override
    {
        ++design().sourceInfoCalls;
        return design().sourceInfo;
    }

    TE::DesignFile getFileInfo(const QString &path) const override
    {
        design().fileInfosAsked.append(path);
        TE::DesignFile unknown;
        unknown.path = path;
        return design().files.value(path, unknown);
    }

    QString workingDir() const override { return design().workingDir; }

    TE::DeviceInfo currentDevice() const override
    {
        ++design().deviceCalls;
        return design().device;
    }
};

} // namespace

namespace TE {

DesignManager::~DesignManager() = default;

TaskEngine::TaskEngine() = default;
TaskEngine::~TaskEngine() = default;

TaskEngine *TaskEngine::instance()
{
    static TaskEngine engine;
    return &engine;
}

DesignManager *TaskEngine::designManager() const
{
    design(); // outlives the manager
    static FakeDesignManager manager;
    return &manager;
}

} // namespace TE

namespace fakes {

void resetDesign()
{
    design() = {};
}

void setOption(const QString &name, const QVariant &value)
{
    design().options.insert(name, value);
}

void setWorkingDir(const QString &path)
{
    design().workingDir = path;
}

void setCurrentDevice(const QString &name, const QString &package)
{
    design().device.name = name;
    design().device.package = package;
}

void setFileInfo(const QString &path, int type, bool enabled, const QString &library)
{
    TE::DesignFile file;
    file.path = path;
    file.type = type;
    file.enabled = enabled;
    file.library = library;
    design().files.insert(path, file);
}

void setSourceFileInfo(const QMap<QString, QVariant> &info)
{
    design().sourceInfo = info;
}

void setTop(const QString &module)
{
    design().sourceInfo.insert(QLatin1String(TE::SourceKey::Top), module);
}

void addSource(const QString &path, int type, const QString &library)
{
    QVariantList files = design().sourceInfo.value(QLatin1String(TE::SourceKey::Files)).toList();
    files.append(QVariantMap{{QLatin1String(TE::SourceKey::Path), path},
                             {QLatin1String(TE::SourceKey::Type), type},
                             {QLatin1String(TE::SourceKey::Library), library}});
    design().sourceInfo.insert(QLatin1String(TE::SourceKey::Files), files);
}

QStringList optionsAsked()
{
    return design().optionsAsked;
}

QStringList fileInfosAsked()
{
    return design().fileInfosAsked;
}

int sourceFileInfoCalls()
{
    return design().sourceInfoCalls;
}

int currentDeviceCalls()
{
    return design().deviceCalls;
}

} // namespace fakes

// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "hostlibs/ovte/projectengine.h"

#include "hostlibs/ovte/filelist.h"
#include "hostlibs/ovte/filewatcher.h"
#include "hostlibs/ovte/projectfile.h"

#include <OVTE/designmanager.h>
#include <OVTE/taskevents.h>
#include <QUtility/eventmanager.h>
#include <QUtility/ievent.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>

namespace TE {

struct ProjectEngine::Private
{
    Project project;
    QString projectFile;
    QString folder;    ///< empty with no project
    QByteArray onDisk; ///< the project file as read or written last
    bool modified = false;
    std::unique_ptr<FileWatcher> watcher;
};

static void publish(const char *type, const QMap<QString, QVariant> &values = {})
{
    QUtil::EventManager::instance()->publish(QUtil::IEvent(type, values));
}

static void assign(QString *error, const QString &text)
{
    if (error != nullptr)
        *error = text;
}

static QString absoluteCleanPath(const QString &path)
{
    return QDir::cleanPath(QFileInfo(path).absoluteFilePath());
}

static QByteArray contentsOf(const QString &path)
{
    if (path.isEmpty())
        return {};
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// A list as a person means it: without blank entries and repetitions.
static QStringList tidied(const QStringList &list)
{
    QStringList result;
    for (const QString &entry : list) {
        if (!entry.trimmed().isEmpty())
            result.append(entry.trimmed());
    }
    result.removeDuplicates();
    return result;
}

ProjectEngine::ProjectEngine()
    : d(std::make_unique<Private>())
{
}

ProjectEngine::~ProjectEngine() = default;

ProjectEngine *ProjectEngine::instance()
{
    static auto *const engine = new ProjectEngine;
    return engine;
}

bool ProjectEngine::createProject(const QString &projectFile, QString *error)
{
    const QString path = absoluteCleanPath(projectFile);
    QString text;
    if (!writeProjectFile({}, path, &text)) {
        assign(error, text);
        return false;
    }
    replaceProject({}, path, QFileInfo(path).absolutePath());
    return true;
}

bool ProjectEngine::openProject(const QString &projectFile, QString *error)
{
    const QString path = absoluteCleanPath(projectFile);
    Project project;
    QString text;
    if (!readProjectFile(path, &project, &text)) {
        assign(error, text);
        return false;
    }
    replaceProject(project, path, QFileInfo(path).absolutePath());
    return true;
}

bool ProjectEngine::openFileList(const QString &listFile, QStringList *notes, QString *error)
{
    FileList list;
    QString text;
    if (!readFileList(listFile, &list, &text)) {
        assign(error, text);
        return false;
    }
    Project project;
    project.files = list.files;
    project.includePaths = list.includePaths;
    project.defines = list.defines;
    project.topModule = list.topModule;
    replaceProject(project, {}, QFileInfo(absoluteCleanPath(listFile)).absolutePath());
    if (notes != nullptr)
        *notes = list.notes;
    return true;
}

bool ProjectEngine::importFileList(const QString &listFile, QStringList *notes, QString *error)
{
    FileList list;
    QString text = "No project is open; open or create one first.";
    if (!isOpen() || !readFileList(listFile, &list, &text)) {
        assign(error, text);
        return false;
    }
    for (const DesignFile &file : qAsConst(list.files))
        addFile(file.path, file.type);
    const QDir folder(d->folder);
    QStringList includePaths = d->project.includePaths;
    for (const QString &path : qAsConst(list.includePaths))
        includePaths.append(folder.relativeFilePath(path));
    setOption(OptionName::IncludePath, includePaths);
    setOption(OptionName::Defines, d->project.defines + list.defines);
    if (!list.topModule.isEmpty())
        setOption(OptionName::TopModule, list.topModule);
    if (notes != nullptr)
        *notes = list.notes;
    return true;
}

bool ProjectEngine::saveProject(QString *error)
{
    if (d->projectFile.isEmpty())
        return true;
    QString text;
    if (!writeProjectFile(d->project, d->projectFile, &text)) {
        assign(error, text);
        return false;
    }
    d->onDisk = contentsOf(d->projectFile);
    setModified(false);
    return true;
}

bool ProjectEngine::saveProjectAs(const QString &projectFile, QString *error)
{
    const QString path = absoluteCleanPath(projectFile);
    const QDir oldFolder(d->folder);
    const QDir newFolder(QFileInfo(path).absolutePath());
    Project moved = d->project;
    for (QString &includePath : moved.includePaths) {
        if (QDir::isRelativePath(includePath))
            includePath = newFolder.relativeFilePath(oldFolder.absoluteFilePath(includePath));
    }
    QString text;
    if (!writeProjectFile(moved, path, &text)) {
        assign(error, text);
        return false;
    }
    replaceProject(moved, path, newFolder.path());
    return true;
}

bool ProjectEngine::isChangedOutside() const
{
    return !d->projectFile.isEmpty() && QFileInfo::exists(d->projectFile) && contentsOf(d->projectFile) != d->onDisk;
}

void ProjectEngine::closeProject()
{
    if (isOpen())
        replaceProject({}, {}, {});
}

void ProjectEngine::replaceProject(const Project &project, const QString &projectFile, const QString &folder)
{
    const DeviceInfo oldDevice = d->project.device;
    d->project = project;
    d->projectFile = projectFile;
    d->folder = folder;
    d->onDisk = contentsOf(projectFile);
    setModified(false);
    updateWatcher();
    emit projectChanged();
    if (oldDevice.name == project.device.name && oldDevice.package == project.device.package)
        return;
    emit deviceChanged();
    publish(EventType::DeviceChange);
}

bool ProjectEngine::isOpen() const
{
    return !d->folder.isEmpty();
}

QString ProjectEngine::projectFile() const
{
    return d->projectFile;
}

QString ProjectEngine::workingDir() const
{
    return d->folder;
}

bool ProjectEngine::isModified() const
{
    return d->modified;
}

const Project &ProjectEngine::project() const
{
    return d->project;
}

int ProjectEngine::indexOf(const QString &path) const
{
    const QString clean = QDir::cleanPath(QDir(d->folder).absoluteFilePath(path));
    const auto &files = d->project.files;
    const auto found =
        std::find_if(files.cbegin(), files.cend(), [&](const DesignFile &file) { return file.path == clean; });
    return found == files.cend() ? -1 : int(found - files.cbegin());
}

DesignFile ProjectEngine::file(const QString &path) const
{
    const int index = indexOf(path);
    DesignFile unknown;
    unknown.path = path;
    return index < 0 ? unknown : d->project.files.at(index);
}

bool ProjectEngine::addFile(const QString &path, int type)
{
    if (!isOpen() || path.isEmpty() || indexOf(path) >= 0)
        return false;
    DesignFile file;
    file.path = QDir::cleanPath(QDir(d->folder).absoluteFilePath(path));
    file.type = type < 0 ? fileTypeOfPath(path) : type;
    file.enabled = true;
    d->project.files.append(file);
    onFilesChanged();
    publish(EventType::FileAdd, {{EventKey::File, file.path}});
    return true;
}

bool ProjectEngine::removeFile(const QString &path)
{
    const int index = indexOf(path);
    if (index < 0)
        return false;
    const DesignFile file = d->project.files.takeAt(index);
    d->project.foreignOfFiles.remove(file.path);
    onFilesChanged();
    publish(EventType::FileRemove,
            {{EventKey::File, file.path}, {EventKey::Type, file.type}, {EventKey::Enable, file.enabled}});
    return true;
}

bool ProjectEngine::setFileEnabled(const QString &path, bool enabled)
{
    const int index = indexOf(path);
    if (index < 0 || d->project.files.at(index).enabled == enabled)
        return false;
    d->project.files[index].enabled = enabled;
    const DesignFile file = d->project.files.at(index);
    onFilesChanged();
    publish(EventType::FileChangeEnable,
            {{EventKey::File, file.path}, {EventKey::Type, file.type}, {EventKey::Enable, enabled}});
    return true;
}

bool ProjectEngine::setFileType(const QString &path, int type)
{
    const int index = indexOf(path);
    if (index < 0 || d->project.files.at(index).type == type || fileTypeName(type).isEmpty())
        return false;
    const DesignFile before = d->project.files.at(index);
    d->project.files[index].type = type;
    onFilesChanged();
    publish(EventType::FileChangeType,
            {{EventKey::File, before.path}, {EventKey::Type, type}, {EventKey::Previous, before.type}});
    return true;
}

bool ProjectEngine::setFileLibrary(const QString &path, const QString &library)
{
    const int index = indexOf(path);
    if (index < 0 || d->project.files.at(index).library == library)
        return false;
    d->project.files[index].library = library;
    const DesignFile file = d->project.files.at(index);
    onFilesChanged();
    // There is no event of its own for the library; what depends on it is in the file's meaning for the design.
    publish(EventType::FileModified, {{EventKey::File, file.path}});
    return true;
}

QVariant ProjectEngine::option(const QString &name) const
{
    if (name == OptionName::TopModule)
        return d->project.topModule;
    if (name == OptionName::IncludePath)
        return d->project.includePaths;
    if (name == OptionName::Defines)
        return d->project.defines;
    if (name == OptionName::SynthesizeTool)
        return d->project.synthesisTool;
    if (name == OptionName::VerilogStandard)
        return d->project.verilogStandard;
    return {};
}

/// Brings `value` into the form of option `name`; an invalid variant when it is not offered.
static QVariant acceptedValue(const QString &name, const QVariant &value)
{
    const QString text = value.toString().trimmed();
    if (name == OptionName::IncludePath || name == OptionName::Defines)
        return tidied(value.toStringList());
    if (name == OptionName::SynthesizeTool)
        return synthesisTools().contains(text) ? QVariant(text) : QVariant();
    if (name == OptionName::VerilogStandard)
        return verilogStandards().contains(text) ? QVariant(text) : QVariant();
    return name == OptionName::TopModule ? QVariant(text) : QVariant();
}

bool ProjectEngine::setOption(const QString &name, const QVariant &value, QString *error)
{
    const QVariant accepted = acceptedValue(name, value);
    if (!isOpen() || !accepted.isValid()) {
        assign(error, isOpen() ? QString("The option \"%1\" does not take \"%2\".").arg(name, value.toString())
                               : QString("No project is open; open or create one first."));
        return false;
    }
    if (accepted == option(name))
        return true;
    if (name == OptionName::TopModule)
        d->project.topModule = accepted.toString();
    else if (name == OptionName::IncludePath)
        d->project.includePaths = accepted.toStringList();
    else if (name == OptionName::Defines)
        d->project.defines = accepted.toStringList();
    else if (name == OptionName::SynthesizeTool)
        d->project.synthesisTool = accepted.toString();
    else
        d->project.verilogStandard = accepted.toString();
    setModified(true);
    emit optionChanged(name);
    publish(EventType::OptionChange, {{EventKey::Option, name}});
    return true;
}

void ProjectEngine::setDevice(const DeviceInfo &device)
{
    const DeviceInfo &current = d->project.device;
    if (!isOpen() || (current.name == device.name && current.package == device.package))
        return;
    d->project.device = device;
    setModified(true);
    emit deviceChanged();
    publish(EventType::DeviceChange);
}

void ProjectEngine::setModified(bool modified)
{
    if (d->modified == modified)
        return;
    d->modified = modified;
    emit modifiedChanged(modified);
}

void ProjectEngine::onFilesChanged()
{
    setModified(true);
    updateWatcher();
    emit filesChanged();
}

void ProjectEngine::setWatching(bool on)
{
    if (on == (d->watcher != nullptr))
        return;
    d->watcher.reset();
    if (!on)
        return;
    d->watcher = std::make_unique<FileWatcher>();
    connect(d->watcher.get(), &FileWatcher::changed, this, [this](const QString &path) {
        emit fileModified(path);
        publish(EventType::FileModified, {{EventKey::File, path}});
    });
    updateWatcher();
}

void ProjectEngine::updateWatcher()
{
    if (d->watcher == nullptr)
        return;
    QStringList paths;
    for (const DesignFile &file : qAsConst(d->project.files))
        paths.append(file.path);
    d->watcher->setFiles(paths);
}

void ProjectEngine::checkFile(const QString &path)
{
    if (d->watcher != nullptr)
        d->watcher->check(absoluteCleanPath(path));
}

} // namespace TE

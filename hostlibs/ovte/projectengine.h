// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "hostlibs/ovte/project.h"

#include <OVTE/designtypes.h>

#include <hostglobal.h>

#include <QObject>
#include <QVariant>

#include <memory>

namespace TE {

/// The host's control over the open project: opens, changes and saves it. What a change means to others is published on
/// the event bus (TE::EventType), and only when a value really changes. Opening and closing a project publishes
/// nothing but a change of the device.
class HOST_EXPORT ProjectEngine : public QObject
{
    Q_OBJECT

public:
    /// The one engine; created on first use, never null. TE::TaskEngine answers from it.
    static ProjectEngine *instance();

    /// Makes a project without files and writes it to `projectFile`.
    bool createProject(const QString &projectFile, QString *error = nullptr);
    /// Opens a project file in place of the open project. On failure the open project stays as it is and `*error` names
    /// file and line.
    bool openProject(const QString &projectFile, QString *error = nullptr);
    /// Opens a Verilog file list as a project that has no file of its own; its folder is that of the list. `notes`
    /// receives what was left out, each with file and line.
    bool openFileList(const QString &listFile, QStringList *notes = nullptr, QString *error = nullptr);
    /// Adds what a Verilog file list names to the open project: files, include paths, defines, top module.
    bool importFileList(const QString &listFile, QStringList *notes = nullptr, QString *error = nullptr);
    /// Writes the project file unless it already says the same. A project without a file of its own is never written.
    bool saveProject(QString *error = nullptr);
    /// Writes the project to another file, which is the project's from then on. Paths are kept: relative ones are
    /// written anew from the other folder.
    bool saveProjectAs(const QString &projectFile, QString *error = nullptr);
    /// Whether the project file on disk is another one than was read or written here last.
    bool isChangedOutside() const;
    void closeProject();

    bool isOpen() const;
    /// Absolute; empty with no project and for one opened from a file list.
    QString projectFile() const;
    /// Absolute; empty with no project.
    QString workingDir() const;
    bool isModified() const;
    const TE::Project &project() const;

    /// The record of `path`, which may be relative to the project's folder; type 0 and not enabled for an unknown path.
    TE::DesignFile file(const QString &path) const;
    /// Adds a file at the end, enabled; the type comes from the suffix unless given. False when the project already has
    /// it or none is open.
    bool addFile(const QString &path, int type = -1);
    bool removeFile(const QString &path);
    bool setFileEnabled(const QString &path, bool enabled);
    bool setFileType(const QString &path, int type);
    bool setFileLibrary(const QString &path, const QString &library);

    /// Sets one of TE::OptionName. False and a text in `*error` for an unknown name or a value that is not offered.
    bool setOption(const QString &name, const QVariant &value, QString *error = nullptr);
    QVariant option(const QString &name) const;
    void setDevice(const TE::DeviceInfo &device);

    /// Follows the project's files on disk and publishes "TE.File.Modified" for each whose contents change. Needs an
    /// event loop; off at first.
    void setWatching(bool on);
    /// Looks at `path` at once; the host calls it after it has written a file itself.
    void checkFile(const QString &path);

signals:
    /// Another project is open, or none.
    void projectChanged();
    /// The list of files or a record in it changed.
    void filesChanged();
    void optionChanged(const QString &name);
    void deviceChanged();
    void modifiedChanged(bool modified);
    /// The contents of a file of the project changed on disk.
    void fileModified(const QString &path);

private:
    ProjectEngine();
    ~ProjectEngine() override;

    void replaceProject(const TE::Project &project, const QString &projectFile, const QString &folder);
    int indexOf(const QString &path) const;
    void setModified(bool modified);
    void onFilesChanged();
    void updateWatcher();

    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace TE

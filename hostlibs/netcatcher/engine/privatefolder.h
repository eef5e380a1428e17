// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "hostlibs/netcatcher/designsources.h"

#include <QHash>
#include <QMap>
#include <QTemporaryDir>

#include <optional>

namespace NETCATCHER {

class ReadManifest;

/// The folder in which an engine works: links with plain names stand for the user's files, so that no name of the
/// user's is ever seen, let alone interpreted, by the engine. Maps the plain names back.
class PrivateFolder
{
public:
    /// `manifest` takes note of every place of the user's that is looked at.
    explicit PrivateFolder(ReadManifest &manifest);

    bool isValid() const { return m_isValid; }
    QString path() const;
    QString filePath(const QString &plainName) const { return path() + QLatin1Char('/') + plainName; }

    /// Links a source file and answers its plain name, relative to the folder; empty when that fails. Files of one
    /// folder of the user's get into one folder here, so that they find each other's includes.
    QString addSource(const SourceFile &file);
    /// Links a file that the engine looks for under `plainName`, which must lead nowhere else than into this folder.
    bool addData(const QString &path, const QString &plainName) { return link(path, plainName); }
    /// Gives a source another suffix and answers its new plain name; its old one when that fails.
    QString changeSuffix(const QString &plainName, const QString &suffix);
    /// Takes a folder to look for includes in, behind those added before.
    void addIncludeFolder(const QString &path);
    /// The plain names of the folders to look for includes in.
    QStringList includeFolders() const;
    /// Copies what the file with plain name `includer` includes as `name`: the file beside it, or the one in the first
    /// include folder that has it. Answers its plain name; nothing when there is none.
    std::optional<QString> addInclude(const QString &includer, const QString &name);

    /// The pipe, device or socket that such an include would open; empty when there is none.
    QString irregularInclude(const QString &includer, const QString &name) const;

    /// The user's path behind a plain name; the name itself when there is none.
    QString userPath(const QString &plainName) const;
    /// The text with all plain names replaced.
    QString withUserPaths(const QString &text) const;

private:
    bool link(const QString &target, const QString &plainName);
    bool makeCopy(const QString &plainName);
    std::optional<QString> addIncludeFrom(const QString &userFolder, const QString &plainFolder, const QString &name);
    QString folderFor(const QString &userFolder);

    ReadManifest &m_manifest;
    QTemporaryDir m_folder;
    bool m_isValid = false;
    QHash<QString, QString> m_folders;  ///< user's folder to plain folder of sources
    QStringList m_includeFolders;       ///< the user's
    QMap<QString, QString> m_userPaths; ///< plain name to user's path
    int m_sourceCount = 0;
};

} // namespace NETCATCHER

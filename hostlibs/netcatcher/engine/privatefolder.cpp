// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "privatefolder.h"

#include "hostlibs/netcatcher/cache/readmanifest.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QRegularExpression>

namespace NETCATCHER {

/// Sources lie this deep, so that an include of `../common/x.vh` stays below its plain folder. The engine itself works
/// as deep again: it tries such a name from there, too, and would find other people's files beside the private folder.
static const char depth[] = "/u/u/u/u/u/u/u/u/u/u/u/u/u/u/u/u";

/// The folder for temporary files, unless its own name could be misread by an engine.
static QString plainTemporaryFolder()
{
    static const QRegularExpression plain(QStringLiteral("\\A[A-Za-z0-9_./-]+\\z"));
    const QString path = QDir::tempPath();
    return plain.match(path).hasMatch() ? path : QStringLiteral("/tmp");
}

PrivateFolder::PrivateFolder(ReadManifest &manifest)
    : m_manifest(manifest)
    , m_folder(plainTemporaryFolder() + QStringLiteral("/rtlvak-XXXXXX"))
{
    m_isValid = m_folder.isValid() && QDir().mkpath(path());
}

QString PrivateFolder::path() const
{
    return m_folder.path() + QLatin1String(depth);
}

bool PrivateFolder::link(const QString &target, const QString &plainName)
{
    const QString place = filePath(plainName);
    return QDir().mkpath(QFileInfo(place).path()) && QFile::link(QFileInfo(target).absoluteFilePath(), place);
}

QString PrivateFolder::folderFor(const QString &userFolder)
{
    const auto found = m_folders.constFind(userFolder);
    if (found != m_folders.constEnd())
        return *found;
    return *m_folders.insert(userFolder, QStringLiteral("vakdir%1%2").arg(m_folders.size()).arg(QLatin1String(depth)));
}

QString PrivateFolder::addSource(const SourceFile &file)
{
    static const QHash<int, QString> suffixes{{SourceFile::Verilog, QStringLiteral("v")},
                                              {SourceFile::SystemVerilog, QStringLiteral("sv")},
                                              {SourceFile::Vhdl, QStringLiteral("vhd")}};
    const QString plainName = QStringLiteral("%1/vaksrc%2.%3")
                                  .arg(folderFor(QFileInfo(file.path).absolutePath()))
                                  .arg(m_sourceCount++)
                                  .arg(suffixes.value(file.language));
    if (!link(file.path, plainName))
        return {};
    m_userPaths.insert(plainName, file.path);
    return plainName;
}

QString PrivateFolder::changeSuffix(const QString &plainName, const QString &suffix)
{
    const QFileInfo info(plainName);
    const QString newName = info.path() + QLatin1Char('/') + info.completeBaseName() + QLatin1Char('.') + suffix;
    if (!QFile::rename(filePath(plainName), filePath(newName)))
        return plainName;
    m_userPaths.insert(newName, m_userPaths.take(plainName));
    return newName;
}

void PrivateFolder::addIncludeFolder(const QString &path)
{
    m_includeFolders.append(path);
}

static QString includeFolder(int index)
{
    return QStringLiteral("vakinc%1%2").arg(index).arg(QLatin1String(depth));
}

QStringList PrivateFolder::includeFolders() const
{
    QStringList names;
    for (int i = 0; i < m_includeFolders.size(); ++i)
        names.append(includeFolder(i));
    return names;
}

/// Replaces a link by a copy. The engine follows the links of files that include others and of files that are included,
/// and would meet the user's own names there.
bool PrivateFolder::makeCopy(const QString &plainName)
{
    const QString place = filePath(plainName);
    const QFileInfo info(place);
    if (!info.isSymLink())
        return true;
    const QString target = info.symLinkTarget();
    return QFile::remove(place) && QFile::copy(target, place);
}

/// Where the file system leads; above the root there is the root again.
static QString placeOf(const QString &folder, const QString &name)
{
    QString path = QDir::cleanPath(QDir(folder).absoluteFilePath(name));
    while (path.startsWith(QLatin1String("/../")))
        path.remove(0, 3);
    return path;
}

std::optional<QString> PrivateFolder::addIncludeFrom(const QString &userFolder, const QString &plainFolder,
                                                     const QString &name)
{
    const QString plainName = QDir::cleanPath(plainFolder + QLatin1Char('/') + name);
    const QString original = placeOf(userFolder, name);
    if (!plainName.startsWith(QLatin1String("vak")))
        return {};
    m_manifest.look(original);
    if (!QFileInfo(original).isFile())
        return {};
    if (!m_userPaths.contains(plainName)) {
        if (!link(original, plainName) || !makeCopy(plainName))
            return {};
        m_userPaths.insert(plainName, original);
    }
    return plainName;
}

std::optional<QString> PrivateFolder::addInclude(const QString &includer, const QString &name)
{
    if (!m_userPaths.contains(includer) || QFileInfo(name).isAbsolute() || !makeCopy(includer))
        return {};
    std::optional<QString> found =
        addIncludeFrom(QFileInfo(userPath(includer)).absolutePath(), QFileInfo(includer).path(), name);
    for (int i = 0; !found && i < m_includeFolders.size(); ++i)
        found = addIncludeFrom(m_includeFolders[i], includeFolder(i), name);
    return found;
}

QString PrivateFolder::irregularInclude(const QString &includer, const QString &name) const
{
    const QStringList folders = QStringList(QFileInfo(userPath(includer)).absolutePath()) + m_includeFolders;
    for (const QString &folder : folders) {
        const QString place = placeOf(folder, name); // an absolute name leaves the folder aside
        const QFileInfo info(place);
        if (info.exists() && !info.isFile() && !info.isDir() && place != QProcess::nullDevice())
            return place;
    }
    return {};
}

QString PrivateFolder::userPath(const QString &plainName) const
{
    const auto found = m_userPaths.constFind(plainName);
    if (found != m_userPaths.constEnd())
        return *found;
    // Messages from a running design name files without their folders; sources are numbered through.
    for (auto it = m_userPaths.cbegin(); it != m_userPaths.cend(); ++it) {
        if (it.key().endsWith(QLatin1Char('/') + plainName))
            return *it;
    }
    // The engine cuts the name of an include at its first blank.
    const auto longer = m_userPaths.lowerBound(plainName + QLatin1Char(' '));
    if (longer != m_userPaths.constEnd() && longer.key().startsWith(plainName + QLatin1Char(' ')))
        return *longer;
    return plainName;
}

QString PrivateFolder::withUserPaths(const QString &text) const
{
    static const QRegularExpression plain(QStringLiteral("vak(?:dir|inc)\\d+/[^\\s:'\"]+"));
    QString result;
    int end = 0;
    for (auto it = plain.globalMatch(text); it.hasNext();) {
        const QRegularExpressionMatch match = it.next();
        result += text.midRef(end, match.capturedStart() - end) + userPath(match.captured());
        end = match.capturedEnd();
    }
    return result + text.midRef(end);
}

} // namespace NETCATCHER

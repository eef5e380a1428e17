// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "privatefolder.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

namespace NETCATCHER {

/// Sources lie this deep, so that an include of `../common/x.vh` stays inside the private folder.
static const char depth[] = "/u/u/u/u";

PrivateFolder::PrivateFolder()
    : m_folder(QDir::tempPath() + QStringLiteral("/rtlvak-XXXXXX"))
{
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
    const QString suffix = file.language == SourceFile::SystemVerilog ? QStringLiteral("sv") : QStringLiteral("v");
    const QString plainName = QStringLiteral("%1/vaksrc%2.%3")
                                  .arg(folderFor(QFileInfo(file.path).absolutePath()))
                                  .arg(m_sourceCount++)
                                  .arg(suffix);
    if (!link(file.path, plainName))
        return {};
    m_userPaths.insert(plainName, file.path);
    return plainName;
}

QString PrivateFolder::addIncludeFolder(const QString &path)
{
    const QString plainName = QStringLiteral("vakinc%1").arg(m_includeFolders.size());
    if (!link(path, plainName))
        return {};
    m_includeFolders.insert(plainName, path);
    return plainName;
}

std::optional<QString> PrivateFolder::addInclude(const QString &includer, const QString &name)
{
    const QString plainName = QDir::cleanPath(QFileInfo(includer).path() + QLatin1Char('/') + name);
    const QString original = QFileInfo(userPath(includer)).path() + QLatin1Char('/') + name;
    const bool stays = plainName.startsWith(QLatin1String("vakdir")) && !QFileInfo(name).isAbsolute();
    if (!stays || !QFileInfo(original).isFile())
        return {};
    if (!m_userPaths.contains(plainName)) {
        if (!link(original, plainName))
            return {};
        m_userPaths.insert(plainName, QDir::cleanPath(original));
    }
    return plainName;
}

QString PrivateFolder::userPath(const QString &plainName) const
{
    const auto found = m_userPaths.constFind(plainName);
    if (found != m_userPaths.constEnd())
        return *found;
    const QString folder = plainName.section(QLatin1Char('/'), 0, 0);
    const auto includeFolder = m_includeFolders.constFind(folder);
    if (includeFolder != m_includeFolders.constEnd())
        return QDir::cleanPath(*includeFolder + plainName.mid(folder.size()));
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

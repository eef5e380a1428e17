// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "hostlibs/ovte/filewatcher.h"

#include <QCryptographicHash>
#include <QFile>
#include <QFileInfo>

namespace TE {

/// Long enough for an editor that writes a file in several steps, short enough to go unnoticed.
constexpr int SettleDelayMs = 200;

static QByteArray digest(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QCryptographicHash hash(QCryptographicHash::Sha1);
    hash.addData(&file);
    return hash.result();
}

FileWatcher::FileWatcher(QObject *parent)
    : QObject(parent)
{
    m_delay.setSingleShot(true);
    m_delay.setInterval(SettleDelayMs);
    connect(&m_delay, &QTimer::timeout, this, &FileWatcher::checkPending);
    connect(&m_watcher, &QFileSystemWatcher::fileChanged, this, &FileWatcher::onFileChanged);
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, this, &FileWatcher::onFolderChanged);
}

void FileWatcher::setFiles(const QStringList &paths)
{
    QHash<QString, QByteArray> seen;
    QSet<QString> folders;
    for (const QString &path : paths) {
        const auto known = m_seen.constFind(path);
        seen.insert(path, known == m_seen.constEnd() ? digest(path) : *known);
        folders.insert(QFileInfo(path).absolutePath());
    }
    m_seen = seen;
    // The folders tell about files that appear; a file's own watch is lost when the file is replaced.
    QStringList stale;
    for (const QString &watched : m_watcher.files() + m_watcher.directories()) {
        if (!m_seen.contains(watched) && !folders.contains(watched))
            stale.append(watched);
    }
    if (!stale.isEmpty())
        m_watcher.removePaths(stale);
    for (const QString &folder : qAsConst(folders)) {
        if (QFileInfo(folder).isDir() && !m_watcher.directories().contains(folder))
            m_watcher.addPath(folder);
    }
    watchExisting();
}

void FileWatcher::watchExisting()
{
    const QStringList watchedList = m_watcher.files();
    const QSet<QString> watched(watchedList.cbegin(), watchedList.cend());
    for (auto it = m_seen.cbegin(); it != m_seen.cend(); ++it) {
        if (!watched.contains(it.key()) && QFileInfo::exists(it.key()))
            m_watcher.addPath(it.key());
    }
}

void FileWatcher::check(const QString &path)
{
    const auto seen = m_seen.find(path);
    if (seen == m_seen.end())
        return;
    const QByteArray now = digest(path);
    if (now == *seen)
        return;
    *seen = now;
    emit changed(path);
}

void FileWatcher::onFileChanged(const QString &path)
{
    m_pending.insert(path);
    m_delay.start();
}

void FileWatcher::onFolderChanged(const QString &folder)
{
    for (auto it = m_seen.cbegin(); it != m_seen.cend(); ++it) {
        if (QFileInfo(it.key()).absolutePath() == folder)
            m_pending.insert(it.key());
    }
    m_delay.start();
}

void FileWatcher::checkPending()
{
    const QSet<QString> pending = m_pending;
    m_pending.clear();
    // Watched again first: what happens after the comparison is then noticed.
    watchExisting();
    for (const QString &path : pending)
        check(path);
}

} // namespace TE

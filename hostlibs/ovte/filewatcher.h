// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QFileSystemWatcher>
#include <QHash>
#include <QObject>
#include <QSet>
#include <QTimer>

namespace TE {

/// Tells when the contents of files change, however it is done: writing, replacing by rename, deleting and making anew.
/// A burst of changes is reported once, and only if the contents differ in the end; a missing file counts as another
/// contents.
class FileWatcher : public QObject
{
    Q_OBJECT

public:
    explicit FileWatcher(QObject *parent = nullptr);

    /// Follows exactly these files, which need not exist. Files that are new here are taken as they are now.
    void setFiles(const QStringList &paths);
    /// Compares `path` with what was last seen, at once.
    void check(const QString &path);

signals:
    void changed(const QString &path);

private:
    void onFolderChanged(const QString &folder);
    void onFileChanged(const QString &path);
    void checkPending();
    void watchExisting();

    QFileSystemWatcher m_watcher;
    QTimer m_delay;
    QHash<QString, QByteArray> m_seen; ///< path and digest of the contents, empty for a missing file
    QSet<QString> m_pending;
};

} // namespace TE

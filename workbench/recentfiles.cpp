// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "workbench/recentfiles.h"

#include <QSettings>

namespace Workbench {

constexpr char SettingsKey[] = "recentFiles";
constexpr int MostRecentFiles = 10;

RecentFiles::RecentFiles(QObject *parent)
    : QObject(parent)
{
}

QStringList RecentFiles::paths() const
{
    return QSettings().value(SettingsKey).toStringList();
}

void RecentFiles::add(const QString &path)
{
    QStringList list = paths();
    list.removeAll(path);
    list.prepend(path);
    store(list.mid(0, MostRecentFiles));
}

void RecentFiles::remove(const QString &path)
{
    QStringList list = paths();
    if (list.removeAll(path) > 0)
        store(list);
}

void RecentFiles::clear()
{
    store({});
}

void RecentFiles::store(const QStringList &paths)
{
    QSettings().setValue(SettingsKey, paths);
    emit changed();
}

} // namespace Workbench

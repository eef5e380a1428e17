// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QObject>
#include <QStringList>

namespace Workbench {

/// The projects and files opened last, the latest first, remembered from one start to the next.
class RecentFiles : public QObject
{
    Q_OBJECT

public:
    explicit RecentFiles(QObject *parent = nullptr);

    QStringList paths() const;
    void add(const QString &path);
    void remove(const QString &path);
    void clear();

signals:
    void changed();

private:
    void store(const QStringList &paths);
};

} // namespace Workbench

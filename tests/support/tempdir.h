// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QByteArray>
#include <QString>
#include <QTemporaryDir>

namespace support {

/// A folder that is removed with the object. Paths are absolute and canonical.
class TempDir
{
public:
    TempDir();

    QString path() const { return root; }
    /// The absolute path of `name` in the folder.
    QString filePath(const QString &name) const;
    /// Writes a file, folders on the way included, and gives its absolute path back.
    QString write(const QString &name, const QByteArray &contents) const;
    /// The file's contents; null when it cannot be read.
    QByteArray read(const QString &name) const;
    void remove(const QString &name) const;

private:
    QTemporaryDir dir;
    QString root;
};

} // namespace support

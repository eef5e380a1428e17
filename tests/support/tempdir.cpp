// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "support/tempdir.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace support {

TempDir::TempDir()
    : root(QFileInfo(dir.path()).canonicalFilePath())
{
    if (!dir.isValid())
        qFatal("no temporary folder: %s", qPrintable(dir.errorString()));
}

QString TempDir::filePath(const QString &name) const
{
    return root + QLatin1Char('/') + name;
}

QString TempDir::write(const QString &name, const QByteArray &contents) const
{
    const QString target = filePath(name);
    QDir().mkpath(QFileInfo(target).path());
    QFile file(target);
    if (!file.open(QIODevice::WriteOnly) || file.write(contents) != contents.size())
        qFatal("cannot write %s: %s", qPrintable(target), qPrintable(file.errorString()));
    return target;
}

QByteArray TempDir::read(const QString &name) const
{
    QFile file(filePath(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void TempDir::remove(const QString &name) const
{
    if (!QFile::remove(filePath(name)))
        qFatal("cannot remove %s", qPrintable(filePath(name)));
}

} // namespace support

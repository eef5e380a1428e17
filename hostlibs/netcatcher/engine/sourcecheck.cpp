// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "sourcecheck.h"

#include <QFile>
#include <QFileInfo>

namespace NETCATCHER {

/// Engines take such text for an empty file, or for garbage.
static bool isWideText(const QString &path)
{
    QFile file(path);
    const QByteArray mark = file.open(QIODevice::ReadOnly) ? file.read(2) : QByteArray();
    return mark == "\xff\xfe" || mark == "\xfe\xff";
}

QString problemWithSource(const QString &path)
{
    const QFileInfo info(path);
    if (!info.exists())
        return QStringLiteral("There is no such file.");
    if (!info.isFile())
        return QStringLiteral("This is no regular file.");
    if (!info.isReadable())
        return QStringLiteral("The file cannot be read.");
    if (isWideText(path))
        return QStringLiteral("The file is UTF-16 text; save it as UTF-8.");
    return {};
}

} // namespace NETCATCHER

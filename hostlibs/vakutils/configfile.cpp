// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "configfile.h"

#include "corereader.h"
#include "filewords.h"

#include <QFile>
#include <QFileInfo>
#include <QLoggingCategory>
#include <QSaveFile>

Q_LOGGING_CATEGORY(fileLog, "rtlvak.file")

namespace VAK {

QByteArray loadFile(const QString &path, FileError *error)
{
    const QFileInfo info(path);
    if (info.exists() && !info.isFile()) { // a pipe would make us wait, a device would never end
        error->message = QStringLiteral("found something that is not a file, expected a file");
        return {};
    }
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        error->message = file.errorString();
        return {};
    }
    const QByteArray data = file.read(FileWords::MaxFileBytes + 1);
    if (file.error() != QFileDevice::NoError)
        error->message = file.errorString();
    else if (data.size() > FileWords::MaxFileBytes)
        error->message = QStringLiteral("found a file of more than 64 MiB, expected at most that");
    return error->isSet() ? QByteArray() : data;
}

bool replaceFile(const QString &path, const QByteArray &data)
{
    QSaveFile file(path);
    const bool written = file.open(QIODevice::WriteOnly) && file.write(data) == data.size() && file.commit();
    if (!written)
        qCWarning(fileLog).noquote() << path << file.errorString();
    return written;
}

QList<AoCore *> readStandardFile(const QString &path, FileError *error)
{
    const QByteArray data = loadFile(path, error);
    return error->isSet() ? QList<AoCore *>() : readStandardCores(data, Checks::StructureAndValues, error);
}

QList<AOCore_Lite *> readLiteFile(const QString &path, FileError *error)
{
    const QByteArray data = loadFile(path, error);
    return error->isSet() ? QList<AOCore_Lite *>() : readLiteCores(data, Checks::StructureAndValues, error);
}

} // namespace VAK

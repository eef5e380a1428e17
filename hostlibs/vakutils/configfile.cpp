// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "configfile.h"

#include "corereader.h"
#include "filewords.h"

#include <QFile>
#include <QFileInfo>
#include <QLoggingCategory>
#include <QSaveFile>

#include <cerrno>

#include <sys/stat.h>
#include <unistd.h>

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

/// Gives the temporary the owner and the permissions of the file that it will replace. The toolkit's own way would let
/// everything be writable that root can write.
static void takeAttributes(const QString &path, int temporary)
{
    struct stat status = {};
    if (stat(QFile::encodeName(path).constData(), &status) != 0)
        return;
    if (fchown(temporary, status.st_uid, status.st_gid) != 0)
        qCDebug(fileLog) << "the owner of" << path << "cannot be kept";
    fchmod(temporary, status.st_mode & 07777);
}

static bool isOnDisk(int temporary)
{
    return fsync(temporary) == 0 || errno == EINVAL; // file systems without such a thing
}

bool replaceFile(const QString &path, const QByteArray &data)
{
    QSaveFile file(path);
    bool written = file.open(QIODevice::WriteOnly) && file.write(data) == data.size() && file.flush();
    if (written) {
        takeAttributes(path, file.handle());
        written = isOnDisk(file.handle()) && file.commit();
    }
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

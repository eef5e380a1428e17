// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "netlistcache.h"

#include "archivebytes.h"
#include "netlistarchive.h"
#include "readmanifest.h"

#include "hostlibs/netcatcher/designsources.h"

#include <QCryptographicHash>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLoggingCategory>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTemporaryFile>

#include <cstdio>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace NETCATCHER {

Q_LOGGING_CATEGORY(cacheLog, "netcatcher.cache", QtWarningMsg)

static const QString entrySuffix = QStringLiteral(".netlist");
/// A file that a program is writing is younger; an older one was left behind by a crash.
constexpr qint64 leftoverSeconds = 3600;

QString NetlistCache::defaultFolder()
{
    const QString base = QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation);
    return QDir::isAbsolutePath(base) ? base + QStringLiteral("/rtlvakins/netlists") : QString();
}

/// Messages hold paths as the user gave them; files are found by their absolute ones.
static void putPath(const QString &path, ByteWriter &out)
{
    out.putText(path);
    out.putText(QFileInfo(path).absoluteFilePath());
}

static void putProgram(const QString &path, ByteWriter &out)
{
    const QFileInfo program(QFileInfo(path).canonicalFilePath());
    out.putText(program.filePath());
    out.putText(QString::number(program.size()));
    out.putText(QString::number(program.lastModified().toMSecsSinceEpoch()));
}

QByteArray NetlistCache::keyOf(const DesignSources &sources, const QStringList &engines, const QByteArray &reader)
{
    ByteWriter out;
    out.putBytes(reader);
    out.putNumber(quint32(engines.size()));
    for (const QString &engine : engines)
        putProgram(engine, out);
    out.putNumber(quint32(sources.files.size()));
    for (const SourceFile &file : sources.files) {
        putPath(file.path, out);
        out.putByte(file.language);
        out.putText(file.library);
    }
    out.putText(sources.top);
    out.putNumber(quint32(sources.includePaths.size()));
    for (const QString &path : sources.includePaths)
        putPath(path, out);
    out.putTexts(sources.defines);
    out.putText(sources.standard);
    return QCryptographicHash::hash(out.bytes(), QCryptographicHash::Sha256).toHex();
}

NetlistCache::NetlistCache(const QString &folder, qint64 maxBytes)
    : m_folder(folder)
    , m_maxBytes(maxBytes)
{
}

QString NetlistCache::pathOf(const QByteArray &key) const
{
    return m_folder + QLatin1Char('/') + QString::fromLatin1(key) + entrySuffix;
}

bool NetlistCache::isOurs() const
{
    const QFileInfo info(m_folder);
    return !m_folder.isEmpty() && info.isDir() && info.ownerId() == geteuid() &&
           !(info.permissions() & (QFile::WriteGroup | QFile::WriteOther));
}

bool NetlistCache::makeFolder() const
{
    if (QDir().mkpath(QFileInfo(m_folder).path()))
        mkdir(QFile::encodeName(m_folder).constData(), S_IRWXU);
    return isOurs();
}

std::optional<ReadResult> NetlistCache::find(const QByteArray &key, const std::function<void()> &idle) const
{
    const QString path = pathOf(key);
    const QFileInfo info(path);
    QFile file(path);
    if (!isOurs() || !info.isFile() || info.size() > m_maxBytes / 4 || !file.open(QIODevice::ReadOnly)) {
        qCDebug(cacheLog) << "no entry" << path;
        return {};
    }
    ReadManifest manifest(idle);
    std::optional<ReadResult> result = readArchive(file.readAll(), key, &manifest);
    if (!result || !manifest.holds()) {
        qCDebug(cacheLog) << (result ? "outdated entry" : "damaged entry") << path;
        return {};
    }
    qCDebug(cacheLog) << "taken from" << path;
    utimensat(AT_FDCWD, QFile::encodeName(path).constData(), nullptr, 0); // it was used last
    return result;
}

/// Puts a file in the place of whatever is there, so that readers see the old one or the new one, both whole. It is not
/// forced to the disk, which takes longer than reading a small design: what a power failure damages is noticed.
static bool replaceFile(const QString &path, const QByteArray &bytes)
{
    if (QFileInfo(path).isDir())
        QDir().rmdir(path);
    QTemporaryFile file(path + QStringLiteral(".XXXXXX")); // for the user only
    if (!file.open() || file.write(bytes) != bytes.size() || !file.flush())
        return false;
    const QByteArray from = QFile::encodeName(file.fileName());
    const bool isReplaced = std::rename(from.constData(), QFile::encodeName(path).constData()) == 0;
    file.setAutoRemove(!isReplaced);
    return isReplaced;
}

bool NetlistCache::store(const QByteArray &key, const ReadManifest &manifest, const ReadResult &result) const
{
    if (!manifest.isComplete() || !makeFolder()) {
        qCDebug(cacheLog) << "nothing is kept in" << m_folder;
        return false;
    }
    const QByteArray bytes = writeArchive(key, manifest, result, m_maxBytes / 4);
    const bool isKept = !bytes.isEmpty() && manifest.holds() && replaceFile(pathOf(key), bytes);
    qCDebug(cacheLog) << (isKept ? "kept" : "not kept") << pathOf(key);
    tidy();
    return isKept;
}

/// Removes what crashed programs left and what was not used for longest. Another program may do the same meanwhile.
void NetlistCache::tidy() const
{
    static const QRegularExpression ours(QStringLiteral("\\A[0-9a-f]{64}\\.netlist(\\..*)?\\z"));
    const QFileInfoList files = QDir(m_folder).entryInfoList(QDir::Files | QDir::Hidden, QDir::Time);
    qint64 bytes = 0;
    for (const QFileInfo &file : files) {
        const QRegularExpressionMatch match = ours.match(file.fileName());
        if (!match.hasMatch())
            continue;
        if (match.capturedLength(1) > 0) {
            if (file.lastModified().secsTo(QDateTime::currentDateTime()) > leftoverSeconds)
                QFile::remove(file.filePath());
            continue;
        }
        bytes += file.size();
        if (bytes > m_maxBytes)
            QFile::remove(file.filePath());
    }
}

} // namespace NETCATCHER

// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "readmanifest.h"

#include "archivebytes.h"

#include <QCryptographicHash>
#include <QFile>
#include <QFileInfo>

#include <algorithm>

namespace NETCATCHER {

constexpr int pieceBytes = 1 << 20;

ReadManifest::ReadManifest(const std::function<void()> &idle)
    : m_idle(idle)
{
}

void ReadManifest::look(const QString &path)
{
    if (!m_isComplete)
        return;
    const QString absolute = QFileInfo(path).absoluteFilePath();
    if (!m_states.contains(absolute))
        m_states.insert(absolute, stateOf(absolute));
}

bool ReadManifest::holds() const
{
    for (auto it = m_states.cbegin(); it != m_states.cend(); ++it) {
        if (stateOf(it.key()) != it.value())
            return false;
    }
    return true;
}

/// The SHA-256 of a file's content; one word for everything else, which cannot be mistaken for one.
QByteArray ReadManifest::stateOf(const QString &path) const
{
    const QFileInfo info(path);
    if (info.isDir())
        return QByteArrayLiteral("folder");
    if (!info.isFile())
        return QByteArrayLiteral("nothing");
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        return QByteArrayLiteral("unreadable");
    QCryptographicHash hash(QCryptographicHash::Sha256);
    QByteArray piece(int(std::clamp(file.size() + 1, qint64(1), qint64(pieceBytes))), Qt::Uninitialized);
    for (;;) {
        const qint64 size = file.read(piece.data(), piece.size());
        if (size < 0)
            return QByteArrayLiteral("unreadable");
        if (size == 0)
            return hash.result();
        hash.addData(piece.constData(), int(size));
        if (m_idle && size == pieceBytes)
            m_idle();
    }
}

void ReadManifest::write(ByteWriter &out) const
{
    out.putNumber(quint32(m_states.size()));
    for (auto it = m_states.cbegin(); it != m_states.cend(); ++it) {
        out.putText(it.key());
        out.putBytes(it.value());
    }
}

void ReadManifest::read(ByteReader &in)
{
    const quint32 count = in.takeCount(2 * sizeof(quint32));
    for (quint32 i = 0; i < count && in.isGood(); ++i) {
        const QString path = in.takeText();
        m_states.insert(path, in.takeBytes());
    }
}

} // namespace NETCATCHER

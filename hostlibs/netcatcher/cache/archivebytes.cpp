// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "archivebytes.h"

#include <QtEndian>

namespace NETCATCHER {

ByteWriter::ByteWriter(qint64 maxBytes)
    : m_maxBytes(maxBytes)
{
}

void ByteWriter::put(const char *begin, int size)
{
    m_isFull = m_isFull || m_bytes.size() + qint64(size) > m_maxBytes;
    if (!m_isFull)
        m_bytes.append(begin, size);
}

void ByteWriter::putByte(quint8 value)
{
    const char stored = char(value);
    put(&stored, 1);
}

void ByteWriter::putNumber(quint32 value)
{
    const quint32 stored = qToLittleEndian(value);
    put(reinterpret_cast<const char *>(&stored), int(sizeof stored));
}

void ByteWriter::putBytes(const QByteArray &value)
{
    putNumber(quint32(value.size()));
    put(value.constData(), value.size());
}

void ByteWriter::putText(const QString &value)
{
    putBytes(value.toUtf8());
}

void ByteWriter::putTexts(const QStringList &values)
{
    putNumber(quint32(values.size()));
    for (const QString &value : values)
        putText(value);
}

ByteReader::ByteReader(const QByteArray &bytes)
    : m_bytes(bytes)
{
}

const char *ByteReader::take(quint32 size)
{
    if (!m_isGood || size > quint32(m_bytes.size() - m_position)) {
        m_isGood = false;
        return nullptr;
    }
    const char *begin = m_bytes.constData() + m_position;
    m_position += int(size);
    return begin;
}

quint8 ByteReader::takeByte()
{
    const char *byte = take(1);
    return byte ? quint8(*byte) : 0;
}

quint32 ByteReader::takeNumber()
{
    const char *number = take(sizeof(quint32));
    return number ? qFromLittleEndian<quint32>(number) : 0;
}

QByteArray ByteReader::takeBytes()
{
    const quint32 size = takeNumber();
    const char *begin = take(size);
    return begin ? QByteArray(begin, int(size)) : QByteArray();
}

QString ByteReader::takeText()
{
    return QString::fromUtf8(takeBytes());
}

QStringList ByteReader::takeTexts()
{
    QStringList values;
    const quint32 count = takeCount(sizeof(quint32));
    for (quint32 i = 0; i < count && m_isGood; ++i)
        values.append(takeText());
    return values;
}

quint32 ByteReader::takeCount(int entryBytes)
{
    const quint32 count = takeNumber();
    if (count <= quint32(m_bytes.size() - m_position) / quint32(entryBytes))
        return count;
    m_isGood = false;
    return 0;
}

} // namespace NETCATCHER

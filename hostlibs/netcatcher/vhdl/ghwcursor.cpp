// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "ghwcursor.h"

#include <QtEndian>

namespace NETCATCHER {

GhwCursor::GhwCursor(const QByteArray &bytes)
    : m_bytes(bytes)
{
}

bool GhwCursor::fail(const QString &text)
{
    if (isGood())
        m_error = QStringLiteral("byte %1: %2").arg(m_position).arg(text);
    m_position = m_bytes.size();
    return false;
}

bool GhwCursor::skip(int size)
{
    if (size > left())
        return fail(QStringLiteral("the file ends too early"));
    m_position += size;
    return true;
}

bool GhwCursor::expect(const QByteArray &text)
{
    const int begin = m_position;
    if (!skip(text.size()))
        return false;
    if (memcmp(m_bytes.constData() + begin, text.constData(), size_t(text.size())) == 0)
        return true;
    m_position = begin;
    return fail(QStringLiteral("%1 is missing").arg(QString::fromLatin1(text.toPercentEncoding())));
}

bool GhwCursor::expectEntries(quint64 count)
{
    return count <= quint64(left()) || fail(QStringLiteral("%1 entries cannot be in the bytes left").arg(count));
}

quint8 GhwCursor::peekByte() const
{
    return left() > 0 ? quint8(m_bytes[m_position]) : quint8(0);
}

quint8 GhwCursor::takeByte()
{
    const quint8 byte = peekByte();
    skip(1);
    return byte;
}

quint32 GhwCursor::takeWord()
{
    const char *begin = m_bytes.constData() + m_position;
    if (!skip(4))
        return 0;
    return m_isBigEndian ? qFromBigEndian<quint32>(begin) : qFromLittleEndian<quint32>(begin);
}

quint32 GhwCursor::takeNumber()
{
    quint64 number = 0;
    for (int shift = 0; shift < 35; shift += 7) {
        const quint8 byte = takeByte();
        number |= quint64(byte & 0x7f) << shift;
        if (byte < 0x80)
            return number <= 0xffffffff ? quint32(number) : quint32(fail(QStringLiteral("a number is too large")));
    }
    return quint32(fail(QStringLiteral("a number is too long")));
}

qint64 GhwCursor::takeSigned()
{
    quint64 number = 0;
    for (int shift = 0; shift < 70; shift += 7) {
        const quint8 byte = takeByte();
        number |= quint64(byte & 0x7f) << shift;
        if (byte >= 0x80)
            continue;
        const int used = shift + 7;
        if ((byte & 0x40) && used < 64)
            number |= ~quint64(0) << used;
        return qint64(number);
    }
    return qint64(fail(QStringLiteral("a number is too long")));
}

} // namespace NETCATCHER

// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

namespace NETCATCHER {

/// Puts numbers and texts into a block of bytes: little endian, each text and list behind its length.
class ByteWriter
{
public:
    /// Takes up to about `maxBytes`; what is put in after that is lost.
    explicit ByteWriter(qint64 maxBytes = 1 << 30);

    void putByte(quint8 value);
    void putNumber(quint32 value);
    void putBytes(const QByteArray &value);
    void putText(const QString &value);
    void putTexts(const QStringList &values);

    /// Whether something was lost.
    bool isFull() const { return m_isFull; }
    const QByteArray &bytes() const { return m_bytes; }

private:
    void put(const char *begin, int size);

    const qint64 m_maxBytes;
    QByteArray m_bytes;
    bool m_isFull = false;
};

/// Takes out of a block of bytes what a ByteWriter put in. The bytes may be anything: whatever is not there reads as
/// nothing, and isGood() is false from then on.
class ByteReader
{
public:
    explicit ByteReader(const QByteArray &bytes);

    quint8 takeByte();
    quint32 takeNumber();
    QByteArray takeBytes();
    QString takeText();
    QStringList takeTexts();
    /// A number of entries that take at least `entryBytes` each; 0 when there cannot be so many.
    quint32 takeCount(int entryBytes);

    void fail() { m_isGood = false; }
    bool isGood() const { return m_isGood; }
    bool isAtEnd() const { return m_position == m_bytes.size(); }

private:
    /// Steps over `size` bytes and answers where they begin; null when there are not so many.
    const char *take(quint32 size);

    const QByteArray m_bytes;
    int m_position = 0;
    bool m_isGood = true;
};

} // namespace NETCATCHER

// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QByteArray>
#include <QString>

namespace NETCATCHER {

/// Steps through the bytes of a GHW file, which may be anything: from the first failure on everything reads as nothing,
/// and error() says what failed and where.
class GhwCursor
{
public:
    explicit GhwCursor(const QByteArray &bytes);

    void setBigEndian(bool isBigEndian) { m_isBigEndian = isBigEndian; }

    quint8 takeByte();
    /// The next byte, which stays; 0 at the end.
    quint8 peekByte() const;
    /// A number of four bytes in the file's order.
    quint32 takeWord();
    /// Seven bits a byte, the lowest first, the eighth bit set where more follow.
    quint32 takeNumber();
    /// The same in two's complement: the last byte's seventh bit is the sign.
    qint64 takeSigned();
    /// Steps over `size` bytes; false when there are not so many.
    bool skip(int size);
    /// Steps over `text` and fails when something else is there.
    bool expect(const QByteArray &text);
    /// Fails when fewer than `count` bytes are left, which is less than `count` entries of any kind take.
    bool expectEntries(quint64 count);

    /// Keeps the first text only. Answers false, for the caller to hand on.
    bool fail(const QString &text);
    bool isGood() const { return m_error.isEmpty(); }
    const QString &error() const { return m_error; }
    int left() const { return m_bytes.size() - m_position; }

private:
    const QByteArray m_bytes;
    int m_position = 0;
    bool m_isBigEndian = false;
    QString m_error;
};

} // namespace NETCATCHER

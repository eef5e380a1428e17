// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QByteArray>
#include <QIODevice>

namespace NETCATCHER {

/// Verilator's XML in a form that every reader of XML takes. A source may hold any byte, in a string for instance, and
/// Verilator writes most of those that are no ASCII as a character reference each and some as they are. Here each byte
/// comes as the character of the same number, so that `toLatin1()` gives the bytes back; a character that XML forbids
/// comes as question marks.
class XmlBytes : public QIODevice
{
public:
    explicit XmlBytes(QIODevice &device);

    bool isSequential() const override { return true; }
    bool atEnd() const override;

protected:
    qint64 readData(char *data, qint64 maxSize) override;
    qint64 writeData(const char *data, qint64 size) override;

private:
    void take(const QByteArray &piece);
    void endReference();

    QIODevice &source;
    QByteArray ready;
    int given = 0;        ///< how much of `ready` was handed out
    QByteArray reference; ///< what was read of `&...;`
};

} // namespace NETCATCHER

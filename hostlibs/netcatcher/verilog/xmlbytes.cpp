// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "xmlbytes.h"

#include <algorithm>
#include <cstring>

namespace NETCATCHER {

constexpr int pieceBytes = 1 << 16;
/// `&#255;` and `&quot;` are the longest.
constexpr int maxReferenceBytes = 6;

XmlBytes::XmlBytes(QIODevice &device)
    : source(device)
{
    open(QIODevice::ReadOnly | QIODevice::Unbuffered);
}

bool XmlBytes::atEnd() const
{
    return given == ready.size() && reference.isEmpty() && source.atEnd();
}

static bool isAscii(char byte)
{
    return quint8(byte) < 0x80;
}

/// `&#27;` and its like, which XML forbids though it could name them.
static bool isForbidden(const QByteArray &reference)
{
    if (!reference.startsWith("&#") || !reference.endsWith(';'))
        return false;
    const int number = reference.mid(2, reference.size() - 3).toInt();
    return number < ' ' && number != '\t' && number != '\n' && number != '\r';
}

void XmlBytes::endReference()
{
    ready += isForbidden(reference) ? QByteArray(reference.size(), '?') : reference;
    reference.clear();
}

/// Characters that are handed on as they are.
static bool isPlain(char byte)
{
    return isAscii(byte) && byte != '&' && (byte >= ' ' || byte == '\t' || byte == '\n' || byte == '\r');
}

void XmlBytes::take(const QByteArray &piece)
{
    for (auto at = piece.cbegin(); at != piece.cend();) {
        const char byte = *at;
        if (!reference.isEmpty() && isPlain(byte)) {
            reference += byte;
            if (byte == ';' || reference.size() == maxReferenceBytes)
                endReference();
            ++at;
            continue;
        }
        if (!reference.isEmpty())
            endReference();
        const auto end = std::find_if_not(at, piece.cend(), isPlain);
        ready.append(at, int(end - at));
        at = end;
        if (at == piece.cend())
            break;
        if (*at == '&')
            reference += *at;
        else
            ready += isAscii(*at) ? QByteArray(1, '?') : QString(QLatin1Char(*at)).toUtf8();
        ++at;
    }
}

qint64 XmlBytes::readData(char *data, qint64 maxSize)
{
    if (given == ready.size()) {
        ready.clear();
        given = 0;
        while (ready.isEmpty() && !source.atEnd())
            take(source.read(pieceBytes));
        if (source.atEnd())
            endReference();
    }
    const qint64 size = std::min(maxSize, qint64(ready.size() - given));
    std::memcpy(data, ready.constData() + given, std::size_t(size));
    given += int(size);
    return size;
}

qint64 XmlBytes::writeData(const char *, qint64)
{
    return -1;
}

} // namespace NETCATCHER

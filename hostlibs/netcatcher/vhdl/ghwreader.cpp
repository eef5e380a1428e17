// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "ghwreader.h"

#include "ghwcursor.h"
#include "ghwhierarchy.h"
#include "ghwtypes.h"

namespace NETCATCHER {

/// Far above any design that the engine gets through; both can be much more than the bytes that a forged file spends.
static constexpr quint32 maxStrings = 1 << 22;
static constexpr quint32 maxStringBytes = 1 << 27;

/// Begins each section; its name and a zero.
static QByteArray tag(const char *name)
{
    return QByteArray(name, 4);
}

static bool readHeader(GhwCursor &in)
{
    if (!in.expect("GHDLwave\n\x10"))
        return false;
    const int major = in.takeByte();
    const int minor = in.takeByte();
    if (major != 0 || minor > 1)
        return in.fail(QStringLiteral("version %1.%2 is not known").arg(major).arg(minor));
    const int order = in.takeByte();
    if (order != 1 && order != 2)
        return in.fail(QStringLiteral("order of bytes %1 is not known").arg(order));
    in.setBigEndian(order == 2);
    const int wordBytes = in.takeByte();
    if (wordBytes != 4)
        return in.fail(QStringLiteral("words of %1 bytes are not known").arg(wordBytes));
    // How wide offsets are matters to the directory behind the waveforms only.
    return in.skip(2);
}

/// How many bytes the string before gives to the next: five bits a byte, the lowest first, the eighth bit set where
/// more follow. Such a byte is no character of Latin-1, and so it ends the string.
static quint32 takePrefix(GhwCursor &in)
{
    quint32 prefix = 0;
    for (int shift = 0; shift < 30; shift += 5) {
        const quint8 byte = in.takeByte();
        prefix |= quint32(byte & 0x1f) << shift;
        if (byte < 0x80)
            return prefix;
    }
    return quint32(in.fail(QStringLiteral("a string is too long")));
}

static QByteArray takeRest(GhwCursor &in, QByteArray string)
{
    while (in.peekByte() & 0x60)
        string.append(char(in.takeByte()));
    string.squeeze();
    return string;
}

/// The strings, sorted, each given as what it has beyond the one before.
static QVector<QByteArray> readStrings(GhwCursor &in)
{
    QVector<QByteArray> strings{QByteArray()};
    in.expect(QByteArray(4, '\0'));
    const quint32 count = in.takeWord();
    const quint32 size = in.takeWord();
    if (count > maxStrings || size > maxStringBytes)
        in.fail(QStringLiteral("there are too many strings"));
    in.expectEntries(count);
    quint64 prefix = 0;
    quint64 total = 0;
    for (quint32 i = 0; i != count && in.isGood(); ++i) {
        total += prefix;
        if (prefix > quint64(strings.last().size()) || total > size) {
            in.fail(QStringLiteral("a string is longer than said"));
            break;
        }
        strings.append(takeRest(in, strings.last().left(int(prefix))));
        total += quint64(strings.last().size()) - prefix;
        prefix = takePrefix(in);
    }
    if (total != size)
        in.fail(QStringLiteral("strings are of another length than said"));
    in.expect(tag("EOS"));
    return strings;
}

/// The number of the last leaf.
static quint32 readLastLeaf(GhwCursor &in, int fileSize)
{
    in.expect(QByteArray(4, '\0'));
    in.takeWord(); // scopes and signals: not all of those counted are written, and some written are not counted
    in.takeWord();
    const quint32 last = in.takeWord();
    // Each has a value behind the hierarchy. Who reads the design may make a table of them.
    if (last > quint32(fileSize))
        in.fail(QStringLiteral("%1 signals cannot be in the file").arg(last));
    return last;
}

bool readGhw(const QByteArray &bytes, GhwDesign *design, QString *error)
{
    *design = {};
    GhwCursor in(bytes);
    readHeader(in);
    in.expect(tag("STR"));
    const QVector<QByteArray> strings = readStrings(in);
    GhwTypes types(in, strings, *design);
    in.expect(tag("TYP"));
    types.readTypes();
    in.expect(tag("WKT"));
    types.readWellKnown();
    in.expect(tag("HIE"));
    GhwHierarchy hierarchy(in, types, *design);
    hierarchy.read(readLastLeaf(in, bytes.size()));
    in.expect(tag("EOH"));
    if (in.isGood())
        return true;
    *design = {};
    *error = in.error();
    return false;
}

} // namespace NETCATCHER

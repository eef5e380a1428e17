// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "ghwprobe.h"

#include "hostlibs/netcatcher/vhdl/ghwreader.h"

#include <QtEndian>
#include <QtTest>

using namespace NETCATCHER;

/// The reader of GHDL's waveform files, on forged files.
class TestGhwForgeries : public QObject
{
    Q_OBJECT

private slots:
    void forgedFileIsRead();
    void headers_data();
    void headers();
    void strings_data();
    void strings();
    void types_data();
    void types();
    void hierarchies_data();
    void hierarchies();
    void manyTypesAreRefused();
    void manyCopiesOfRecordsAreRefused();
    void deepTypesAreRefused();
    void deepScopesAreRefused();
    void manyScopesBesideEachOtherAreRead();
    void manyEntriesAreRefused_data();
    void manyEntriesAreRefused();
    void recordsOfManyLeavesAreRefused();
    void signalsOfManyLeavesAreRefused_data();
    void signalsOfManyLeavesAreRefused();
    void unknownWellKnownTypesAreIgnored();
    void wellKnownTypeMustHaveLiterals();
};

/// The parts of a file, good ones to begin with.
struct Forge
{
    QByteArray header = QByteArray("GHDLwave\n\x10\x00\x01\x01\x04\x01\x00", 16);
    quint32 stringCount = 3;
    quint32 stringSize = 4;
    /// a, ab, b
    QByteArray strings = QByteArray("a\x01"
                                    "b\x00"
                                    "b\x00",
                                    6);
    /// 1 a two-literal type, 2 an integer type, 3 an array of 1, 4 an array of bounds 3 downto 0, 5 a record of 1 and 3
    quint32 typeCount = 5;
    QByteArray types = QByteArray::fromHex("1601020103"
                                           "1902"
                                           "1f03010102"
                                           "230003990300"
                                           "20010201010303");
    QByteArray wellKnown = QByteArray::fromHex("020100");
    quint32 leafCount = 5;
    /// an instance a with a signal ab of type 4 and a port b of type 1, which is the signal's third leaf
    QByteArray hierarchy = QByteArray::fromHex("0601"
                                               "100204"
                                               "01020304"
                                               "11030103"
                                               "0f00");

    void add(const char *typeInHex)
    {
        ++typeCount;
        types += QByteArray::fromHex(typeInHex);
    }
    QByteArray bytes() const;
};

static QByteArray word(quint32 number)
{
    const quint32 stored = qToLittleEndian(number);
    return QByteArray(reinterpret_cast<const char *>(&stored), 4);
}

QByteArray Forge::bytes() const
{
    const QByteArray zeros(4, '\0');
    const auto tag = [](const char *name) { return QByteArray(name, 4); };
    return header + tag("STR") + zeros + word(stringCount) + word(stringSize) + strings + tag("EOS") + tag("TYP") +
           zeros + word(typeCount) + types + '\0' + tag("WKT") + zeros + wellKnown + tag("HIE") + zeros + word(0) +
           word(0) + word(leafCount) + hierarchy + tag("EOH");
}

static void compareError(const QByteArray &bytes, const QString &expected)
{
    const QString error = probe::ghwErrorOf(bytes);
    QVERIFY2(error.startsWith(QLatin1String("byte ")) && error.contains(expected), qPrintable(error));
}

void TestGhwForgeries::forgedFileIsRead()
{
    GhwDesign design;
    QString error;
    QVERIFY2(readGhw(Forge().bytes(), &design, &error), qPrintable(error));
    const QStringList expected{"root", "  instance a", "    signal ab = 1-4", "    in b = 3"};
    QCOMPARE(probe::hierarchyLines(design), expected);
    QCOMPARE(probe::typeText(design, 3), QStringLiteral("b[3 downto 0] of a"));
    QCOMPARE(design.leafCount, 4u);
}

void TestGhwForgeries::headers_data()
{
    QTest::addColumn<int>("place");
    QTest::addColumn<int>("value");
    QTest::addColumn<QString>("error");
    QTest::newRow("other file") << 0 << 103 << "GHDLwave";
    QTest::newRow("other length") << 9 << 17 << "GHDLwave";
    QTest::newRow("major version") << 10 << 1 << "version 1.1";
    QTest::newRow("minor version") << 11 << 2 << "version 0.2";
    QTest::newRow("no order") << 12 << 0 << "order of bytes 0";
    QTest::newRow("other order") << 12 << 3 << "order of bytes 3";
    QTest::newRow("long words") << 13 << 8 << "words of 8";
    QTest::newRow("no strings") << 16 << 84 << "STR";
}

void TestGhwForgeries::headers()
{
    QFETCH(int, place);
    QFETCH(int, value);
    QFETCH(QString, error);
    QByteArray bytes = Forge().bytes();
    bytes[place] = char(value);
    compareError(bytes, error);
}

void TestGhwForgeries::strings_data()
{
    QTest::addColumn<quint32>("count");
    QTest::addColumn<quint32>("size");
    QTest::addColumn<QByteArray>("strings");
    QTest::addColumn<QString>("error");
    const QByteArray good = Forge().strings;
    QTest::newRow("none") << 0u << 0u << QByteArray() << "no name";
    QTest::newRow("less") << 2u << 3u << good << "EOS";
    QTest::newRow("more than bytes") << 1000u << 4u << good << "1000 entries";
    QTest::newRow("far more") << 0xffffffffu << 4u << good << "too many strings";
    QTest::newRow("far longer") << 3u << 0xffffffffu << good << "too many strings";
    QTest::newRow("longer") << 3u << 5u << good << "another length";
    QTest::newRow("shorter") << 3u << 3u << good << "another length";
    QTest::newRow("prefix of nothing") << 3u << 4u
                                       << QByteArray("a\x02"
                                                     "b\x00"
                                                     "b\x00",
                                                     6)
                                       << "longer than said";
    QTest::newRow("prefixes beyond the size") << 4u << 4u << QByteArray("abc\x03\x03\x03\x00", 7) << "longer than said";
    QTest::newRow("endless prefix") << 3u << 4u << QByteArray("a") + QByteArray(20, '\x9f') << "a string is too long";
}

void TestGhwForgeries::strings()
{
    Forge forge;
    QFETCH(quint32, count);
    QFETCH(quint32, size);
    QFETCH(QByteArray, strings);
    QFETCH(QString, error);
    forge.stringCount = count;
    forge.stringSize = size;
    forge.strings = strings;
    compareError(forge.bytes(), error);
}

void TestGhwForgeries::types_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<QString>("error");
    QTest::newRow("kind 0") << "00"
                            << "of kind 0";
    QTest::newRow("kind 24") << "1801020103"
                             << "of kind 24";
    QTest::newRow("kind 255") << "ff"
                              << "of kind 255";
    QTest::newRow("no such name") << "1904"
                                  << "no name 4";
    QTest::newRow("no literals") << "160100"
                                 << "no literals";
    QTest::newRow("literals beyond the file") << "1601ffffff7f01"
                                              << "entries";
    QTest::newRow("array without index") << "1f010100"
                                         << "no index";
    QTest::newRow("indexes beyond the file") << "1f0101ffffff7f02"
                                             << "entries";
    QTest::newRow("array of itself") << "1f01060102"
                                     << "no type 6";
    QTest::newRow("array of a later type") << "1f01070102"
                                           << "no type 7";
    QTest::newRow("array of none") << "1f01000102"
                                   << "no type 0";
    QTest::newRow("index of itself") << "1f01010106"
                                     << "no type 6";
    QTest::newRow("record without fields") << "200100"
                                           << "no fields";
    QTest::newRow("fields beyond the file") << "2001ffffff7f0101"
                                            << "entries";
    QTest::newRow("record of itself") << "2001010106"
                                      << "no type 6";
    QTest::newRow("units beyond the file") << "1d01ffffff7f"
                                           << "no name";
    QTest::newRow("subtype of itself") << "2200061900 01"
                                       << "no type 6";
    QTest::newRow("scalar of an array") << "220003190001"
                                        << "derived of a composite";
    QTest::newRow("array of a scalar") << "230002190001"
                                       << "another kind than its base";
    QTest::newRow("array of a bounded array") << "230004190001"
                                              << "another kind than its base";
    QTest::newRow("array of a record") << "230005190001"
                                       << "another kind than its base";
    QTest::newRow("record of an array") << "260004"
                                        << "another kind than its base";
    QTest::newRow("open array of a record") << "250005"
                                            << "another kind than its base";
    QTest::newRow("open record of an array") << "270003"
                                             << "another kind than its base";
    QTest::newRow("range of a literal") << "2200021600 01"
                                        << "range is of another kind";
    QTest::newRow("no literal so far") << "220001160002"
                                       << "an enumeration ends";
    QTest::newRow("long name") << "19808080808000"
                               << "too long";
    QTest::newRow("large name") << "19ffffffff1f"
                                << "too large";
    QTest::newRow("long bound") << "2200021980808080808080808080808000"
                                << "too long";
}

void TestGhwForgeries::types()
{
    QFETCH(QString, type);
    QFETCH(QString, error);
    Forge forge;
    forge.add(type.toLatin1());
    compareError(forge.bytes(), error);
}

void TestGhwForgeries::hierarchies_data()
{
    QTest::addColumn<QString>("hierarchy");
    QTest::addColumn<quint32>("leafCount");
    QTest::addColumn<QString>("error");
    QTest::newRow("kind 2") << "0201" << 5u << "of kind 2";
    QTest::newRow("kind 14") << "0e01" << 5u << "of kind 14";
    QTest::newRow("kind 22") << "16010101" << 5u << "of kind 22";
    QTest::newRow("no such name") << "0604" << 5u << "no name 4";
    QTest::newRow("no such type") << "100106" << 5u << "no type 6";
    QTest::newRow("no bounds") << "10010301" << 5u << "no bounds";
    QTest::newRow("leaf 0") << "10010100" << 5u << "no signal 0";
    QTest::newRow("leaf beyond the last") << "10010106" << 5u << "no signal 6";
    QTest::newRow("more signals than bytes") << "00" << 1000u << "1000 signals";
    QTest::newRow("far more signals") << "00" << 0xffffffffu << "4294967295 signals";
    QTest::newRow("leaves cut off") << "10010401" << 5u << "no signal";
    QTest::newRow("scope does not end") << "060100" << 5u << "does not end";
    QTest::newRow("end of nothing") << "0f00" << 5u << "did not begin";
    QTest::newRow("one end more") << "06010f0f00" << 5u << "did not begin";
    QTest::newRow("end of a process") << "0d010f00" << 5u << "did not begin";
    QTest::newRow("generate over an array") << "05010400" << 5u << "than a discrete one";
    QTest::newRow("generate beyond the literals") << "05010102" << 5u << "an enumeration ends";
    QTest::newRow("no end") << "06010f" << 5u << "of kind 69";
    QTest::newRow("more") << "0001" << 5u << "EOH";
}

void TestGhwForgeries::hierarchies()
{
    QFETCH(QString, hierarchy);
    QFETCH(quint32, leafCount);
    QFETCH(QString, error);
    Forge forge;
    forge.hierarchy = QByteArray::fromHex(hierarchy.toLatin1());
    forge.leafCount = leafCount;
    compareError(forge.bytes(), error);
}

void TestGhwForgeries::manyTypesAreRefused()
{
    Forge forge;
    const int count = 1 << 20;
    forge.types += QByteArray::fromHex("1902").repeated(count);
    forge.typeCount += count;
    compareError(forge.bytes(), QStringLiteral("too many types"));
}

void TestGhwForgeries::manyCopiesOfRecordsAreRefused()
{
    // A record of many fields, of which one has no bounds: each subtype of a few bytes is a copy of them all.
    Forge forge;
    forge.add("2001818001");
    forge.types += QByteArray::fromHex("0101").repeated(1 << 14) + QByteArray::fromHex("0103");
    const int count = 1 << 9;
    forge.types += QByteArray::fromHex("260006190000").repeated(count);
    forge.typeCount += count;
    compareError(forge.bytes(), QStringLiteral("too many records"));
}

void TestGhwForgeries::deepTypesAreRefused()
{
    Forge forge;
    // Type 5 is one level above an array, so two deep.
    for (int i = 0; i != 62; ++i)
        forge.types += QByteArray::fromHex("200101") + '\x01' + char(5 + i);
    forge.typeCount += 62;
    QCOMPARE(probe::ghwErrorOf(forge.bytes()), QStringLiteral("(none)"));
    forge.add("2001010143");
    compareError(forge.bytes(), QStringLiteral("nest too deep"));
}

void TestGhwForgeries::deepScopesAreRefused()
{
    Forge forge;
    const auto nested = [](int depth) {
        return QByteArray::fromHex("0301").repeated(depth) + QByteArray(depth, '\x0f') + '\0';
    };
    forge.hierarchy = nested(1000);
    QCOMPARE(probe::ghwErrorOf(forge.bytes()), QStringLiteral("(none)"));
    forge.hierarchy = nested(1001);
    compareError(forge.bytes(), QStringLiteral("nest too deep"));
}

void TestGhwForgeries::manyScopesBesideEachOtherAreRead()
{
    Forge forge;
    forge.hierarchy = QByteArray::fromHex("03010f").repeated(2000) + '\0';
    QCOMPARE(probe::ghwErrorOf(forge.bytes()), QStringLiteral("(none)"));
}

void TestGhwForgeries::manyEntriesAreRefused_data()
{
    QTest::addColumn<QByteArray>("hierarchy");
    QTest::addColumn<QString>("error");
    QTest::newRow("scopes") << QByteArray::fromHex("0d01").repeated((1 << 21) + 1) << "too many scopes";
    QTest::newRow("signals") << QByteArray::fromHex("100106").repeated((1 << 22) + 1) << "too many signals";
    QTest::newRow("parts") << QByteArray::fromHex("1001070401040104010401").repeated((1 << 21) + 1) << "too many parts";
}

void TestGhwForgeries::manyEntriesAreRefused()
{
    QFETCH(QByteArray, hierarchy);
    QFETCH(QString, error);
    Forge forge;
    forge.add("230003190100"); // 6: no elements
    forge.add("230003190007"); // 7: eight, none behind its neighbour
    forge.hierarchy = hierarchy;
    compareError(forge.bytes(), error);
}

void TestGhwForgeries::recordsOfManyLeavesAreRefused()
{
    Forge forge;
    forge.add("2300031900ffffffff07");
    forge.add("20010201060106");
    forge.hierarchy = QByteArray::fromHex("10010701020304");
    compareError(forge.bytes(), QStringLiteral("2147483647 entries"));
}

void TestGhwForgeries::signalsOfManyLeavesAreRefused_data()
{
    QTest::addColumn<QString>("bounds");
    QTest::newRow("a million") << "1900bf843d";
    QTest::newRow("all of 63 bits") << "1900ffffffffffffffffff00";
    QTest::newRow("all of 64 bits") << "1980808080808080808 07fffffffffffffffffff00";
}

void TestGhwForgeries::signalsOfManyLeavesAreRefused()
{
    // Of two indexes, the product of which has no number either.
    QFETCH(QString, bounds);
    Forge forge;
    forge.add("1f0301020202");
    forge.add(("230006" + bounds + bounds).toLatin1());
    QCOMPARE(probe::ghwErrorOf(forge.bytes()), QStringLiteral("(none)"));
    forge.hierarchy = QByteArray::fromHex("10010701020304");
    compareError(forge.bytes(), QStringLiteral("2147483647 entries"));
}

void TestGhwForgeries::unknownWellKnownTypesAreIgnored()
{
    Forge forge;
    forge.wellKnown = QByteArray::fromHex("0201070100");
    GhwDesign design;
    QString error;
    QVERIFY2(readGhw(forge.bytes(), &design, &error), qPrintable(error));
    QCOMPARE(design.types[0].wellKnown, GhwType::Bit);
}

void TestGhwForgeries::wellKnownTypeMustHaveLiterals()
{
    Forge forge;
    forge.wellKnown = QByteArray::fromHex("010200");
    compareError(forge.bytes(), QStringLiteral("none of literals"));
}

QTEST_APPLESS_MAIN(TestGhwForgeries)
#include "tst_ghwforgeries.moc"

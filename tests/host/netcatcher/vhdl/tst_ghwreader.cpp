// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "ghwprobe.h"

#include "hostlibs/netcatcher/vhdl/ghwreader.h"

#include <QFile>
#include <QtTest>

using namespace NETCATCHER;

/// The reader of GHDL's waveform files, on what GHDL writes about designs of our own.
class TestGhwReader : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void types_data();
    void types();
    void everySignalIsInTheTable();
    void everyTypeKeepsItsPromises();
    void aliasesAreNoSignals();
    void scopes();
    void portsShareTheNumbersOfWhatTheyAreConnectedTo();
    void lengths_data();
    void lengths();
    void encodedBits_data();
    void encodedBits();
    void bitsOfEnumerations_data();
    void bitsOfEnumerations();

private:
    void read(const QString &top, GhwDesign *design);

    GhwDesign m_types;
    GhwDesign m_scopes;
};

void TestGhwReader::read(const QString &top, GhwDesign *design)
{
    QString error;
    const QByteArray file = probe::waveFile(QStringLiteral(VAK_TEST_DATA "/hdl/%1.vhdl").arg(top), top, &error);
    QVERIFY2(!file.isEmpty(), qPrintable(error));
    QVERIFY2(readGhw(file, design, &error), qPrintable(error));
}

void TestGhwReader::initTestCase()
{
    read(QStringLiteral("ghwtypes"), &m_types);
    read(QStringLiteral("ghwscopes"), &m_scopes);
}

void TestGhwReader::types_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("s_bit") << "bit<enum '0' to '1' bit 1b>";
    QTest::newRow("s_bool") << "boolean<enum false to true boolean 1b>";
    QTest::newRow("s_logic") << "std_logic<enum 'U' to '-' std_ulogic 1b>";
    QTest::newRow("s_ulogic") << "std_ulogic<enum 'U' to '-' std_ulogic 1b>";
    QTest::newRow("s_x01") << "x01<enum 'X' to '1' std_ulogic 1b>";
    QTest::newRow("s_pair") << "pair<enum low to high 1b>";
    QTest::newRow("s_only") << "only<enum one to one 1b>";
    QTest::newRow("s_state") << "state<enum idle to stop 3b>";
    QTest::newRow("s_active") << "active<enum run to stop 3b>";
    QTest::newRow("s_char") << "character<enum nul to '\u00ff' 8b>";
    QTest::newRow("s_range") << "state<enum run to 'x' 3b>";
    QTest::newRow("s_int") << "integer<integer -2147483648 to 2147483647 32b>";
    QTest::newRow("s_natural") << "natural<integer 0 to 2147483647 31b>";
    QTest::newRow("s_tiny") << "tiny<integer -3 to 9 5b>";
    QTest::newRow("s_wide") << "wide<integer 0 to 1099511627776 41b>";
    QTest::newRow("s_small") << "small<integer 0 to 200 8b>";
    QTest::newRow("s_below") << "below<integer -1 downto -8 4b>";
    QTest::newRow("s_anon") << "integer<integer 3 to 6 3b>";
    QTest::newRow("s_real") << "real<real 0b>";
    QTest::newRow("s_level") << "level<real 0b>";
    QTest::newRow("s_time") << "time<physical -9223372036854775808 to 9223372036854775807 0b>";
    QTest::newRow("s_hop") << "hop<physical 1 to 2000 0b>";
    QTest::newRow("a_down") << "std_ulogic_vector[7 downto 0] of std_ulogic";
    QTest::newRow("a_up") << "std_ulogic_vector[0 to 2] of std_ulogic";
    QTest::newRow("a_negative") << "anywhere[-1 downto -4] of bit";
    QTest::newRow("a_null") << "bit_vector[0 downto 1] of bit";
    QTest::newRow("a_unsigned") << "unresolved_unsigned[31 downto 16] of std_ulogic";
    QTest::newRow("a_pairs") << "byname[false to true, 'b' downto 'a'] of pair";
    QTest::newRow("a_grid") << "grid[0 to 1, 2 downto 1] of bit";
    QTest::newRow("a_tally") << "tally[idle to stop] of bit";
    QTest::newRow("a_bytes") << "bytes[1 to 2] of std_ulogic_vector[7 downto 0] of std_ulogic";
    QTest::newRow("a_rows") << "rows[1 downto 0] of std_logic_vector[3 to 5] of std_ulogic";
    QTest::newRow("a_planes") << "planes[-1 to 0] of openrows[2 downto 1] of std_logic_vector[4 to 4] of std_ulogic";
    QTest::newRow("a_grids") << "grids[3 downto 2] of grid[0 to 1, 2 downto 1] of bit";
    QTest::newRow("r_header") << "header{valid: std_logic<enum 'U' to '-' std_ulogic 1b>; kind: state<enum idle to "
                                 "stop 3b>; len: unresolved_unsigned[15 downto 0] of std_ulogic}";
    QTest::newRow("r_same") << "sameheader{valid: std_logic<enum 'U' to '-' std_ulogic 1b>; kind: state<enum idle to "
                               "stop 3b>; len: unresolved_unsigned[15 downto 0] of std_ulogic}";
    QTest::newRow("r_array") << "headers[0 to 1] of header{valid: std_logic<enum 'U' to '-' std_ulogic 1b>; kind: "
                                "state<enum idle to stop 3b>; len: unresolved_unsigned[15 downto 0] of std_ulogic}";
    QTest::newRow("r_frame") << "frame{data: std_logic_vector[6 downto 5] of std_ulogic; last: std_logic<enum 'U' to "
                                "'-' std_ulogic 1b>; rows: rows[0 to 1] of std_logic_vector[3 to 4] of std_ulogic}";
    QTest::newRow("r_nest") << "nest{inner: openframe{data: std_logic_vector[1 to 1] of std_ulogic; last: "
                               "std_logic<enum 'U' to '-' std_ulogic 1b>; rows: rows[2 to 3] of std_logic_vector[0 "
                               "downto 0] of std_ulogic}; other: bit_vector[5 downto 4] of bit}";
    QTest::newRow("r_frames")
        << "frames[0 to 1] of frame{data: std_logic_vector[2 downto 1] of std_ulogic; last: std_logic<enum 'U' to '-' "
           "std_ulogic 1b>; rows: rows[0 to 0] of std_logic_vector[1 to 2] of std_ulogic}";
}

void TestGhwReader::types()
{
    const GhwSignal *signal = probe::findSignal(m_types, QTest::currentDataTag());
    QVERIFY(signal);
    QFETCH(QString, text);
    QCOMPARE(probe::typeText(m_types, signal->type), text);
}

void TestGhwReader::everySignalIsInTheTable()
{
    // So that whoever adds a kind of type to the design adds it to the table, too.
    QCOMPARE(m_types.scopes.back().signalList.size(), size_t(40));
}

void TestGhwReader::everyTypeKeepsItsPromises()
{
    QCOMPARE(probe::brokenPromise(m_types), QString());
    QCOMPARE(probe::brokenPromise(m_scopes), QString());
}

void TestGhwReader::aliasesAreNoSignals()
{
    QVERIFY(probe::findSignal(m_types, "a_down"));
    QVERIFY(!probe::findSignal(m_types, "first"));
}

void TestGhwReader::scopes()
{
    QFile file(QStringLiteral(VAK_TEST_DATA "/hdl/ghwscopes.tree"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QStringList expected = QString::fromLatin1(file.readAll().trimmed()).split(QLatin1Char('\n'));
    const QStringList lines = probe::hierarchyLines(m_scopes);
    for (int i = 0; i < qMin(lines.size(), expected.size()); ++i)
        QCOMPARE(lines[i], expected[i]);
    QCOMPARE(lines.size(), expected.size());
}

void TestGhwReader::portsShareTheNumbersOfWhatTheyAreConnectedTo()
{
    const GhwSignal *bus = probe::findSignal(m_scopes, "bus_a");
    const GhwSignal *port = probe::findSignal(m_scopes, "a");
    QVERIFY(bus && port);
    const std::vector<quint32> whole = m_scopes.leavesOf(*bus);
    QCOMPARE(whole.size(), size_t(8));
    // bus_a(2 to 6)
    QVERIFY(m_scopes.leavesOf(*port) == std::vector<quint32>(whole.begin() + 2, whole.begin() + 7));
}

void TestGhwReader::lengths_data()
{
    QTest::addColumn<qint64>("left");
    QTest::addColumn<qint64>("right");
    QTest::addColumn<bool>("isDescending");
    QTest::addColumn<qint64>("length");
    const qint64 least = std::numeric_limits<qint64>::min();
    const qint64 most = std::numeric_limits<qint64>::max();
    QTest::newRow("up") << qint64(-1) << qint64(3) << false << qint64(5);
    QTest::newRow("down") << qint64(7) << qint64(0) << true << qint64(8);
    QTest::newRow("one") << qint64(4) << qint64(4) << true << qint64(1);
    QTest::newRow("null up") << qint64(0) << qint64(-1) << false << qint64(0);
    QTest::newRow("null down") << qint64(0) << qint64(1) << true << qint64(0);
    QTest::newRow("null by far") << most << least << false << qint64(0);
    QTest::newRow("capped") << least << most << false << most;
    QTest::newRow("capped by one") << qint64(0) << most << false << most;
}

void TestGhwReader::lengths()
{
    QFETCH(qint64, left);
    QFETCH(qint64, right);
    QFETCH(bool, isDescending);
    QFETCH(qint64, length);
    QCOMPARE((GhwRange{left, right, isDescending}.length()), length);
}

void TestGhwReader::encodedBits_data()
{
    QTest::addColumn<qint64>("left");
    QTest::addColumn<qint64>("right");
    QTest::addColumn<int>("bits");
    const qint64 least = std::numeric_limits<qint64>::min();
    const qint64 most = std::numeric_limits<qint64>::max();
    QTest::newRow("0") << qint64(0) << qint64(0) << 1;
    QTest::newRow("0 to 1") << qint64(0) << qint64(1) << 1;
    QTest::newRow("255 downto 3") << qint64(255) << qint64(3) << 8;
    QTest::newRow("0 to 256") << qint64(0) << qint64(256) << 9;
    QTest::newRow("-1") << qint64(-1) << qint64(-1) << 1;
    QTest::newRow("-1 to 0") << qint64(-1) << qint64(0) << 1;
    QTest::newRow("-8 to 7") << qint64(-8) << qint64(7) << 4;
    QTest::newRow("-8 to 8") << qint64(-8) << qint64(8) << 5;
    QTest::newRow("-9 to 7") << qint64(-9) << qint64(7) << 5;
    QTest::newRow("all") << least << most << 64;
}

void TestGhwReader::encodedBits()
{
    QFETCH(qint64, left);
    QFETCH(qint64, right);
    GhwType type;
    type.kind = GhwType::Integer;
    type.range = {left, right, left > right};
    QTEST(type.encodedBits(), "bits");
}

void TestGhwReader::bitsOfEnumerations_data()
{
    QTest::addColumn<int>("literals");
    QTest::addColumn<bool>("isKnown");
    QTest::addColumn<bool>("isBit");
    QTest::addColumn<int>("bits");
    QTest::newRow("one") << 1 << false << true << 1;
    QTest::newRow("two") << 2 << false << true << 1;
    QTest::newRow("three") << 3 << false << false << 2;
    QTest::newRow("four") << 4 << false << false << 2;
    QTest::newRow("five") << 5 << false << false << 3;
    QTest::newRow("std_ulogic") << 9 << true << true << 1;
    QTest::newRow("nine others") << 9 << false << false << 4;
    QTest::newRow("all") << 256 << false << false << 8;
}

void TestGhwReader::bitsOfEnumerations()
{
    QFETCH(int, literals);
    QFETCH(bool, isKnown);
    GhwType type;
    type.kind = GhwType::Enumeration;
    type.wellKnown = isKnown ? GhwType::StdUlogic : GhwType::NotKnown;
    type.literals.resize(literals);
    QTEST(type.isBit(), "isBit");
    QTEST(type.encodedBits(), "bits");
}

QTEST_APPLESS_MAIN(TestGhwReader)
#include "tst_ghwreader.moc"

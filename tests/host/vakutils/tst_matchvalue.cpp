// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "hostlibs/vakutils/matchvalue.h"

#include <QtTest>

using namespace VAK;

Q_DECLARE_METATYPE(VAK::MatchFunction)

class TestMatchValue : public QObject
{
    Q_OBJECT

private slots:
    void inputIsStoredInOneForm_data();
    void inputIsStoredInOneForm();
    void wrongInputIsExplained_data();
    void wrongInputIsExplained();
    void valueIsFittedFromTheMostSignificantSide_data();
    void valueIsFittedFromTheMostSignificantSide();
    void numbersAreShownTwice();
    void hintNamesEachCharacter();
};

void TestMatchValue::inputIsStoredInOneForm_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("width");
    QTest::addColumn<MatchFunction>("function");
    QTest::addColumn<QString>("stored");
    const auto row = [](const char *text, int width, MatchFunction function, const char *stored) {
        QTest::addRow("%s in %d", text, width)
            << QString::fromLatin1(text) << width << function << QString::fromLatin1(stored);
    };
    row("01xr", 4, MatchFunction::Equal, "01XR");
    row("fbn1", 4, MatchFunction::NotEqual, "FBN1");
    row(" 01_01 ", 4, MatchFunction::Greater, "0101");
    row("0b101", 8, MatchFunction::Equal, "00000101");
    row("0B1X", 2, MatchFunction::Equal, "1X");
    row("0B01", 4, MatchFunction::Equal, "0B01"); // bits: either edge in the second
    row("0b01", 4, MatchFunction::Equal, "0001");
    row("0X1", 3, MatchFunction::Equal, "0X1");
    row("0x1", 3, MatchFunction::Equal, "001");
    row("0xA5", 8, MatchFunction::Less, "10100101");
    row("0xa", 8, MatchFunction::Equal, "00001010");
    row("0x0005", 3, MatchFunction::Equal, "101");
    row("0xX", 4, MatchFunction::Equal, "XXXX");
    row("0x1X", 8, MatchFunction::Equal, "0001XXXX");
    row("12", 8, MatchFunction::InRange, "00001100");
    row("1_000", 10, MatchFunction::Equal, "1111101000");
    row("0", 8, MatchFunction::Equal, "00000000");
    row("1", 1, MatchFunction::Equal, "1");
    row("10", 2, MatchFunction::Equal, "10"); // bits, since there is one for each
    row("10", 8, MatchFunction::Equal, "00001010");
    row("18446744073709551615", 64, MatchFunction::Equal,
        "1111111111111111111111111111111111111111111111111111111111111111");
    row("0b0", 3, MatchFunction::Equal, "000");
    row("B", 1, MatchFunction::Equal, "B");
}

void TestMatchValue::inputIsStoredInOneForm()
{
    QFETCH(QString, text);
    QFETCH(int, width);
    QFETCH(MatchFunction, function);
    QFETCH(QString, stored);
    QString error;
    QCOMPARE(storedValue(text, width, function, &error), stored);
    QCOMPARE(error, QString());
}

void TestMatchValue::wrongInputIsExplained_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("width");
    QTest::addColumn<MatchFunction>("function");
    QTest::addColumn<QString>("error");
    const auto row = [](const char *text, int width, MatchFunction function, const char *error) {
        QTest::addRow("%s in %d", text, width)
            << QString::fromLatin1(text) << width << function << QString::fromLatin1(error);
    };
    row("", 4, MatchFunction::Equal, "The value is empty; 4 bits are needed.");
    row("01XR0", 4, MatchFunction::Equal, "The value has 5 of 4 bits.");
    row("0101", 8, MatchFunction::Equal, "The value has 4 of 8 bits.");
    row("01X1", 4, MatchFunction::Greater, "\"X\" cannot stand in this value.");
    row("R", 1, MatchFunction::InRange, "\"R\" cannot stand in this value.");
    row("012", 3, MatchFunction::Equal, "\"2\" cannot stand in this value.");
    row("0xG", 8, MatchFunction::Equal, "\"G\" cannot stand in this value.");
    row("0x1X", 8, MatchFunction::Less, "\"X\" cannot stand in this value.");
    row("16", 4, MatchFunction::Equal, "The number needs 5 bits; the port has 4.");
    row("0xFF", 7, MatchFunction::Equal, "The number needs 8 bits; the port has 7.");
    row("-1", 4, MatchFunction::Equal, "\"-\" cannot stand in this value.");
    row("18446744073709551616", 70, MatchFunction::Equal, "\"8\" cannot stand in this value.");
}

void TestMatchValue::wrongInputIsExplained()
{
    QFETCH(QString, text);
    QFETCH(int, width);
    QFETCH(MatchFunction, function);
    QFETCH(QString, error);
    QString found;
    QCOMPARE(storedValue(text, width, function, &found), QString());
    QCOMPARE(found, error);
}

void TestMatchValue::valueIsFittedFromTheMostSignificantSide_data()
{
    QTest::addColumn<QString>("value");
    QTest::addColumn<int>("width");
    QTest::addColumn<MatchFunction>("function");
    QTest::addColumn<QString>("fitted");
    QTest::newRow("same") << "01XR" << 4 << MatchFunction::Equal << "01XR";
    QTest::newRow("wider") << "01" << 4 << MatchFunction::Equal << "XX01";
    QTest::newRow("narrower") << "RF01" << 2 << MatchFunction::NotEqual << "01";
    QTest::newRow("new") << "" << 3 << MatchFunction::Equal << "XXX";
    QTest::newRow("wider number") << "11" << 4 << MatchFunction::Greater << "0011";
    QTest::newRow("new number") << "" << 3 << MatchFunction::InRange << "000";
}

void TestMatchValue::valueIsFittedFromTheMostSignificantSide()
{
    QFETCH(QString, value);
    QFETCH(int, width);
    QFETCH(MatchFunction, function);
    QFETCH(QString, fitted);
    QCOMPARE(fittedValue(value, width, function), fitted);
}

void TestMatchValue::numbersAreShownTwice()
{
    QCOMPARE(valueAsNumber(QStringLiteral("1010")), QStringLiteral("10 = 0xA"));
    QCOMPARE(valueAsNumber(QString(64, QLatin1Char('1'))), QStringLiteral("18446744073709551615 = 0xFFFFFFFFFFFFFFFF"));
    QCOMPARE(valueAsNumber(QString(65, QLatin1Char('1'))), QString());
    QCOMPARE(valueAsNumber(QStringLiteral("10X0")), QString());
    QCOMPARE(valueAsNumber(QString()), QString());
}

void TestMatchValue::hintNamesEachCharacter()
{
    for (const QChar character : valueCharacters(MatchFunction::Equal))
        QVERIFY(valueHint(MatchFunction::Equal).contains(QString(character) + QLatin1Char(' ')));
    QVERIFY(!valueHint(MatchFunction::Less).contains(QLatin1Char('X')));
}

QTEST_GUILESS_MAIN(TestMatchValue)
#include "tst_matchvalue.moc"

// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "rules/implementationlist.h"

#include <QtTest>

class tst_ImplementationList : public QObject
{
    Q_OBJECT

private slots:
    void codesAndNames();
    void unknownCodeHasNoName();
    void unknownNameCountsAsBlockRam();
    void offered_data();
    void offered();
    void capture511BitsAtStorage1OffersRegisters();
    void neededBitsDoNotOverflow();
    void listIsJudgedByCountAndCurrentText_data();
    void listIsJudgedByCountAndCurrentText();
    void reselection_data();
    void reselection();
    void triggerOffersShadowRamOnlyWhereThereIsSome();
    void codesOfTexts();
    void inputRegisterOfEachImplementation();
};

static const QStringList B{QStringLiteral("BSRAM")};
static const QStringList BR{QStringLiteral("BSRAM"), QStringLiteral("REG")};
static const QStringList BS{QStringLiteral("BSRAM"), QStringLiteral("SSRAM")};
static const QStringList BSR{QStringLiteral("BSRAM"), QStringLiteral("SSRAM"), QStringLiteral("REG")};

void tst_ImplementationList::codesAndNames()
{
    const QStringList names{QStringLiteral("BSRAM"), QStringLiteral("REG"), QStringLiteral("SSRAM")};
    for (int code = 0; code < names.size(); ++code) {
        QCOMPARE(RTLVAK::implementationName(code), names.at(code));
        QCOMPARE(RTLVAK::implementationCode(names.at(code)), code);
    }
}

void tst_ImplementationList::unknownCodeHasNoName()
{
    QCOMPARE(RTLVAK::implementationName(3), QString());
    QCOMPARE(RTLVAK::implementationName(-1), QString());
}

void tst_ImplementationList::unknownNameCountsAsBlockRam()
{
    QCOMPARE(RTLVAK::implementationCode(QString()), 0);
    QCOMPARE(RTLVAK::implementationCode(QStringLiteral("Logic")), 0);
    QCOMPARE(RTLVAK::implementationCode(QStringLiteral("ssram")), 0);
}

void tst_ImplementationList::offered_data()
{
    QTest::addColumn<bool>("shadowRam");
    QTest::addColumn<int>("bits");
    QTest::addColumn<QStringList>("list");
    QTest::newRow("no shadow RAM, above the limit") << false << 513 << B;
    QTest::newRow("no shadow RAM, at the limit") << false << 512 << BR;
    QTest::newRow("shadow RAM, above the limit") << true << 513 << BS;
    QTest::newRow("shadow RAM, at the limit") << true << 512 << BSR;
    QTest::newRow("nothing to capture") << true << 0 << BSR;
}

void tst_ImplementationList::offered()
{
    QFETCH(bool, shadowRam);
    QFETCH(int, bits);
    QTEST(RTLVAK::captureImplementations(shadowRam, bits), "list");
}

void tst_ImplementationList::capture511BitsAtStorage1OffersRegisters()
{
    QCOMPARE(RTLVAK::captureImplementations(false, RTLVAK::standardCaptureBits(511, 1)), BR);
    QCOMPARE(RTLVAK::captureImplementations(false, RTLVAK::standardCaptureBits(512, 1)), B);
    QCOMPARE(RTLVAK::captureImplementations(false, RTLVAK::liteCaptureBits(512, 1)), BR);
    QCOMPARE(RTLVAK::captureImplementations(false, RTLVAK::liteCaptureBits(513, 1)), B);
}

void tst_ImplementationList::neededBitsDoNotOverflow()
{
    QCOMPARE(RTLVAK::standardCaptureBits(65535, 65536), Q_INT64_C(4294967296));
    QCOMPARE(RTLVAK::liteCaptureBits(65536, 65536), Q_INT64_C(4294967296));
}

void tst_ImplementationList::listIsJudgedByCountAndCurrentText_data()
{
    QTest::addColumn<QStringList>("list");
    QTest::addColumn<int>("count");
    QTest::addColumn<QString>("current");
    QTest::addColumn<bool>("right");
    QTest::newRow("one entry") << B << 1 << QStringLiteral("BSRAM") << true;
    QTest::newRow("one entry wanted, three there") << B << 3 << QStringLiteral("BSRAM") << false;
    QTest::newRow("REG current") << BR << 2 << QStringLiteral("REG") << true;
    QTest::newRow("BSRAM of two current, REG offered") << BR << 2 << QStringLiteral("BSRAM") << false;
    QTest::newRow("SSRAM current, REG offered") << BR << 2 << QStringLiteral("SSRAM") << false;
    QTest::newRow("SSRAM current") << BS << 2 << QStringLiteral("SSRAM") << true;
    QTest::newRow("BSRAM of two current, SSRAM offered") << BS << 2 << QStringLiteral("BSRAM") << false;
    QTest::newRow("REG current, SSRAM offered") << BS << 2 << QStringLiteral("REG") << false;
    QTest::newRow("three entries") << BSR << 3 << QStringLiteral("BSRAM") << true;
    QTest::newRow("three entries, none current") << BSR << 3 << QString() << true;
    QTest::newRow("three wanted, two there") << BSR << 2 << QStringLiteral("REG") << false;
}

void tst_ImplementationList::listIsJudgedByCountAndCurrentText()
{
    QFETCH(QStringList, list);
    QFETCH(int, count);
    QFETCH(QString, current);
    QTEST(RTLVAK::isImplementationListCurrent(list, count, current), "right");
}

void tst_ImplementationList::reselection_data()
{
    QTest::addColumn<QStringList>("list");
    QTest::addColumn<QString>("previous");
    QTest::addColumn<int>("index");
    const QStringList names{QStringLiteral("BSRAM"), QStringLiteral("SSRAM"), QStringLiteral("REG"), QString()};
    const QList<QPair<QStringList, QList<int>>> table{
        {B, {0, 0, 0, 0}}, {BR, {0, 0, 1, 0}}, {BS, {0, 1, 0, 0}}, {BSR, {0, 1, 2, 0}}};
    for (const auto &row : table) {
        for (int i = 0; i < names.size(); ++i)
            QTest::addRow("%s in %s", qPrintable(names.at(i)), qPrintable(row.first.join(u'/')))
                << row.first << names.at(i) << row.second.at(i);
    }
}

void tst_ImplementationList::reselection()
{
    QFETCH(QStringList, list);
    QFETCH(QString, previous);
    QTEST(RTLVAK::reselectedImplementation(list, previous), "index");
}

void tst_ImplementationList::triggerOffersShadowRamOnlyWhereThereIsSome()
{
    QCOMPARE(RTLVAK::triggerImplementations(true), BSR);
    QCOMPARE(RTLVAK::triggerImplementations(false), BR);
}

void tst_ImplementationList::codesOfTexts()
{
    const QStringList texts{QStringLiteral("BSRAM"), QStringLiteral("REG"), QStringLiteral("SSRAM"),
                            QStringLiteral("Logic"), QString()};
    QList<int> standard;
    QList<int> lite;
    for (const QString &text : texts) {
        standard.append(RTLVAK::implementationCode(text));
        lite.append(RTLVAK::liteImplementationCode(text));
    }
    QCOMPARE(standard, QList<int>({0, 1, 2, 0, 0}));
    QCOMPARE(lite, QList<int>({0, 1, 2, 1, 1}));
    for (int code = 0; code < 3; ++code)
        QCOMPARE(RTLVAK::implementationName(code), texts.at(code));
    QCOMPARE(RTLVAK::implementationName(3), QString());
}

void tst_ImplementationList::inputRegisterOfEachImplementation()
{
    QCOMPARE(RTLVAK::inputRegisterFor(QStringLiteral("BSRAM")), std::optional<bool>(true));
    QCOMPARE(RTLVAK::inputRegisterFor(QStringLiteral("REG")), std::optional<bool>(false));
    QCOMPARE(RTLVAK::inputRegisterFor(QStringLiteral("SSRAM")), std::optional<bool>(false));
    QCOMPARE(RTLVAK::inputRegisterFor(QString()), std::optional<bool>());
    QCOMPARE(RTLVAK::inputRegisterFor(QStringLiteral("Logic")), std::optional<bool>());
}

QTEST_APPLESS_MAIN(tst_ImplementationList)
#include "tst_implementationlist.moc"

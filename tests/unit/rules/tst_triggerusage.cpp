// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "rules/triggerusage.h"

#include "tests/support/scriptedresources.h"

#include <OVTE/designtypes.h>

#include <QtTest>

class tst_TriggerUsage : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void outOfForce_data();
    void outOfForce();
    void shadowRam_data();
    void shadowRam();
    void registers_data();
    void registers();
    void texts_data();
    void texts();
    void blockRamOfADeviceWithoutAnyHasNoSlash();
    void unknownImplementationGivesNoText();
    void overflowIsNotColoured();
};

void tst_TriggerUsage::init()
{
    support::resetResources();
}

void tst_TriggerUsage::outOfForce_data()
{
    QTest::addColumn<QString>("expression");
    QTest::addColumn<bool>("out");
    QTest::newRow("M1 is no M10") << "M1" << false;
    QTest::newRow("M1&M10") << "M1&M10" << true;
    QTest::newRow("M11") << "M11" << true;
    QTest::newRow("M15 within brackets") << "M0&(M3|!M15)" << true;
    QTest::newRow("all that Dynamic mode has") << "M0|M1|M2|M3|M4|M5|M6|M7|M8|M9" << false;
    QTest::newRow("letter case counts") << "m12" << false;
    QTest::newRow("empty") << "" << false;
    for (int unit = 0; unit < 16; ++unit)
        QTest::addRow("M%d alone", unit) << QStringLiteral("M%1").arg(unit) << (unit >= 10);
}

void tst_TriggerUsage::outOfForce()
{
    QFETCH(QString, expression);
    QTEST(RTLVAK::isOutOfForceWhenDynamic(expression), "out");
}

void tst_TriggerUsage::shadowRam_data()
{
    QTest::addColumn<int>("expressions");
    QTest::addColumn<int>("units");
    QTest::addColumn<int>("need");
    QTest::newRow("no unit") << 3 << 0 << 3;
    QTest::newRow("4 units") << 3 << 4 << 3;
    QTest::newRow("5 units") << 3 << 5 << 6;
    QTest::newRow("6 units, 3 expressions") << 3 << 6 << 12;
    QTest::newRow("10 units") << 16 << 10 << 1024;
    QTest::newRow("no expression") << 0 << 10 << 0;
}

void tst_TriggerUsage::shadowRam()
{
    QFETCH(int, expressions);
    QFETCH(int, units);
    QTEST(RTLVAK::triggerSsramNeed(expressions, units), "need");
}

void tst_TriggerUsage::registers_data()
{
    QTest::addColumn<int>("expressions");
    QTest::addColumn<int>("units");
    QTest::addColumn<int>("need");
    QTest::newRow("no unit, 3 expressions: 3.1875") << 3 << 0 << 3;
    QTest::newRow("no unit, 16 expressions") << 16 << 0 << 17;
    QTest::newRow("no unit, 15 expressions") << 15 << 0 << 15;
    QTest::newRow("3 units, 1 expression") << 1 << 3 << 1;
    QTest::newRow("3 units, 3 expressions: 4.5") << 3 << 3 << 4;
    QTest::newRow("4 units double") << 5 << 4 << 10;
    QTest::newRow("6 units") << 3 << 6 << 15;
    QTest::newRow("10 units") << 2 << 10 << 130;
    QTest::newRow("no expression") << 0 << 10 << 0;
}

void tst_TriggerUsage::registers()
{
    QFETCH(int, expressions);
    QFETCH(int, units);
    QTEST(RTLVAK::triggerRegisterNeed(expressions, units), "need");
}

void tst_TriggerUsage::texts_data()
{
    QTest::addColumn<QString>("implementation");
    QTest::addColumn<int>("expressions");
    QTest::addColumn<int>("units");
    QTest::addColumn<QString>("text");
    QTest::newRow("BSRAM: one each") << "BSRAM" << 3 << 9 << "BSRAM Usage : 3/26";
    QTest::newRow("SSRAM") << "SSRAM" << 3 << 6 << "SSRAM Usage : 12/48";
    QTest::newRow("SSRAM, no unit") << "SSRAM" << 3 << 0 << "SSRAM Usage : 3/48";
    QTest::newRow("REG") << "REG" << 3 << 0 << "Register Usage : 3/1000";
    QTest::newRow("REG, 16 expressions") << "REG" << 16 << 0 << "Register Usage : 17/1000";
}

void tst_TriggerUsage::texts()
{
    QFETCH(QString, implementation);
    QFETCH(int, expressions);
    QFETCH(int, units);
    support::setCapacity({26, 48, 1000});
    QTEST(RTLVAK::triggerUsageText({QStringLiteral("KXB-S4"), QStringLiteral("TQ144")}, implementation, expressions,
                                   units),
          "text");
    QCOMPARE(support::resourceCalls().size(), 1);
    QVERIFY(support::resourceCalls().constFirst().endsWith(QStringLiteral("(KXB-S4,TQ144)")));
}

void tst_TriggerUsage::blockRamOfADeviceWithoutAnyHasNoSlash()
{
    QCOMPARE(RTLVAK::triggerUsageText({}, QStringLiteral("BSRAM"), 3, 6), QStringLiteral("BSRAM Usage : 3"));
    QCOMPARE(RTLVAK::triggerUsageText({}, QStringLiteral("SSRAM"), 3, 6), QStringLiteral("SSRAM Usage : 12/0"));
    QCOMPARE(RTLVAK::triggerUsageText({}, QStringLiteral("REG"), 3, 6), QStringLiteral("Register Usage : 15/0"));
}

void tst_TriggerUsage::unknownImplementationGivesNoText()
{
    QVERIFY(RTLVAK::triggerUsageText({}, QString(), 3, 6).isNull());
    QVERIFY(RTLVAK::triggerUsageText({}, QStringLiteral("Logic"), 3, 6).isNull());
}

void tst_TriggerUsage::overflowIsNotColoured()
{
    support::setCapacity({1, 1, 1});
    for (const char *text : {"BSRAM", "SSRAM", "REG"})
        QVERIFY(!RTLVAK::triggerUsageText({}, QLatin1String(text), 9, 9).contains(QLatin1Char('<')));
}

QTEST_APPLESS_MAIN(tst_TriggerUsage)
#include "tst_triggerusage.moc"

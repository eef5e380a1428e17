// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "rules/usageestimate.h"

#include "tests/support/scriptedresources.h"

#include <OVTE/designtypes.h>

#include <QtTest>

using RTLVAK::CaptureMode;

class tst_UsageEstimate : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void blockRamFunctionOfEachDevice_data();
    void blockRamFunctionOfEachDevice();
    void deviceNameThatDiffersInLetterCaseUsesTheGeneralFunction();
    void amountIsThatOfDeviceAndPackage();
    void flagSaysWhetherThereIsATriggerMark_data();
    void flagSaysWhetherThereIsATriggerMark();
    void titleAndFigures_data();
    void titleAndFigures();
    void widthZeroIsPassedOn();
    void unknownImplementationHasNoTitleAndZeros();
    void needEqualToAvailableIsPlain();
    void needAboveAvailableIsRed();
};

void tst_UsageEstimate::init()
{
    support::resetResources();
}

void tst_UsageEstimate::blockRamFunctionOfEachDevice_data()
{
    QTest::addColumn<QString>("device");
    QTest::addColumn<QString>("standard");
    QTest::addColumn<QString>("lite");
    const QString q1 = QStringLiteral("bsramNumberRequiredWithAdjustForQ1");
    const QString q1Lite = QStringLiteral("bsramNumberRequiredForQ1");
    const QString t2k = QStringLiteral("bsramNumberRequiredWithAdjustForT2k");
    const QString t2kLite = QStringLiteral("bsramNumberRequiredAdjustForT2k");
    for (const char *device : {"KXA-Q1", "KXA-Q1R"})
        QTest::newRow(device) << device << q1 << q1Lite;
    for (const char *device : {"KXC-T2", "KXC-T2R", "KXC-T1", "KXC-T0N"})
        QTest::newRow(device) << device << t2k << t2kLite;
    for (const char *device : {"KXB-S4", "KXA-Q1RX", "KXC-T0", "", "anything"})
        QTest::newRow(device) << device << QStringLiteral("bsramNumberRequiredWithAdjust")
                              << QStringLiteral("bsramNumberRequired");
}

void tst_UsageEstimate::blockRamFunctionOfEachDevice()
{
    QFETCH(QString, device);
    QFETCH(QString, standard);
    QFETCH(QString, lite);
    RTLVAK::captureUsage(CaptureMode::Standard, {device, {}}, QStringLiteral("BSRAM"), 33, 1024);
    QCOMPARE(support::resourceCalls(QStringLiteral("bsramN")), QStringList{standard + QStringLiteral("(33,1024)")});
    support::resetResources();
    RTLVAK::captureUsage(CaptureMode::Lite, {device, {}}, QStringLiteral("BSRAM"), 33, 1024);
    QCOMPARE(support::resourceCalls(QStringLiteral("bsramN")), QStringList{lite + QStringLiteral("(33,1024)")});
}

void tst_UsageEstimate::deviceNameThatDiffersInLetterCaseUsesTheGeneralFunction()
{
    for (const char *device : {"kxa-q1", "KXA-q1R", "Kxc-T2", "KXC-T0n"})
        RTLVAK::captureUsage(CaptureMode::Standard, {device, {}}, QStringLiteral("BSRAM"), 1, 4);
    QCOMPARE(support::resourceCalls(QStringLiteral("bsramNumberRequiredWithAdjust(1,4)")).size(), 4);
    QCOMPARE(support::resourceCalls(QStringLiteral("bsramN")).size(), 4);
}

void tst_UsageEstimate::amountIsThatOfDeviceAndPackage()
{
    RTLVAK::captureUsage(CaptureMode::Standard, {QStringLiteral("KXB-S4"), QStringLiteral("TQ144")},
                         QStringLiteral("BSRAM"), 1, 4);
    QCOMPARE(support::resourceCalls(QStringLiteral("bsramAmount")),
             QStringList{QStringLiteral("bsramAmount(KXB-S4,TQ144)")});
}

void tst_UsageEstimate::flagSaysWhetherThereIsATriggerMark_data()
{
    QTest::addColumn<bool>("standard");
    QTest::addColumn<QString>("implementation");
    QTest::addColumn<QString>("call");
    QTest::newRow("SSRAM") << true << "SSRAM"
                           << "ssramNumberRequiredWithAdjust(7,512,true)";
    QTest::newRow("SSRAM, Lite") << false << "SSRAM"
                                 << "ssramNumberRequiredWithAdjust(7,512,false)";
    QTest::newRow("REG") << true << "REG"
                         << "regNumberRequiredWidthAdjust(7,512,true)";
    QTest::newRow("REG, Lite") << false << "REG"
                               << "regNumberRequiredWidthAdjust(7,512,false)";
}

void tst_UsageEstimate::flagSaysWhetherThereIsATriggerMark()
{
    QFETCH(bool, standard);
    QFETCH(QString, implementation);
    QFETCH(QString, call);
    RTLVAK::captureUsage(standard ? CaptureMode::Standard : CaptureMode::Lite, {QStringLiteral("KXA-Q1"), {}},
                         implementation, 7, 512);
    QVERIFY2(support::resourceCalls().contains(call), qPrintable(support::resourceCalls().join(u' ')));
}

void tst_UsageEstimate::titleAndFigures_data()
{
    QTest::addColumn<QString>("implementation");
    QTest::addColumn<QString>("title");
    QTest::addColumn<int>("available");
    QTest::newRow("BSRAM") << "BSRAM"
                           << "BSRAM Usage :" << 10;
    QTest::newRow("SSRAM") << "SSRAM"
                           << "SSRAM Usage :" << 20;
    QTest::newRow("REG") << "REG"
                         << "Register Usage :" << 30;
}

void tst_UsageEstimate::titleAndFigures()
{
    QFETCH(QString, implementation);
    support::setCapacity({10, 20, 30});
    support::setNeed(5);
    for (CaptureMode mode : {CaptureMode::Standard, CaptureMode::Lite}) {
        const auto usage = RTLVAK::captureUsage(mode, {QStringLiteral("KXB-S4"), {}}, implementation, 8, 64);
        QTEST(usage.title, "title");
        QTEST(usage.available, "available");
        QCOMPARE(usage.need, 5);
    }
}

void tst_UsageEstimate::widthZeroIsPassedOn()
{
    support::setNeed(3);
    const auto usage = RTLVAK::captureUsage(CaptureMode::Standard, {}, QStringLiteral("REG"), 0, 64);
    QVERIFY(support::resourceCalls().contains(QStringLiteral("regNumberRequiredWidthAdjust(0,64,true)")));
    QCOMPARE(usage.need, 3);
}

void tst_UsageEstimate::unknownImplementationHasNoTitleAndZeros()
{
    support::setCapacity({10, 20, 30});
    support::setNeed(5);
    for (const char *text : {"", "Logic", "bsram"}) {
        const auto usage = RTLVAK::captureUsage(CaptureMode::Standard, {}, QLatin1String(text), 8, 64);
        QCOMPARE(usage.title, QString());
        QCOMPARE(RTLVAK::captureUsageText(usage.need, usage.available), QStringLiteral("0/0"));
    }
    QCOMPARE(support::resourceCalls(), QStringList());
}

void tst_UsageEstimate::needEqualToAvailableIsPlain()
{
    QCOMPARE(RTLVAK::captureUsageText(26, 26), QStringLiteral("26/26"));
    QCOMPARE(RTLVAK::captureUsageText(0, 0), QStringLiteral("0/0"));
}

void tst_UsageEstimate::needAboveAvailableIsRed()
{
    QCOMPARE(RTLVAK::captureUsageText(27, 26), QStringLiteral("<font color = red>27</font>/26"));
    QCOMPARE(RTLVAK::captureUsageText(1, 0), QStringLiteral("<font color = red>1</font>/0"));
}

QTEST_APPLESS_MAIN(tst_UsageEstimate)
#include "tst_usageestimate.moc"

// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "capturepage.h"

#include "tests/fakes/fakedesign.h"
#include "tests/fakes/fakeevents.h"
#include "tests/support/doubles.h"
#include "tests/support/scriptedresources.h"

#include <QUtility/ievent.h>

#include <QtTest>

class tst_CaptureUsage : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void offersWhatFitsDeviceAndWidth_data();
    void offersWhatFitsDeviceAndWidth();
    void storedImplementationIsShown_data();
    void storedImplementationIsShown();
    void storedShadowRamOnADeviceWithoutAnyShowsBlockRam();
    void unknownImplementationShowsBlockRam();
    void widthGoesToTheFunctionWithoutTheExtraBit();
    void onlyCapturedSignalsCount();
    void noEnabledSignalMeansWidthZero();
    void needAboveCapacityIsRed();
    void deviceChangeUpdatesListAndUsage();
    void otherEventsAreIgnored();
    void subscriptionEndsWithThePage();
    void storageChangeUpdatesTheUsage();
    void disablingASignalUpdatesTheUsage();
    void segmentsAndAmountLeaveTheUsageAlone();
    void usageIsNewWhenAChosenImplementationIsTold();
};

void tst_CaptureUsage::initTestCase()
{
    QCOMPARE(support::missingDoubles(), QString());
}

void tst_CaptureUsage::offersWhatFitsDeviceAndWidth_data()
{
    QTest::addColumn<int>("ssram");
    QTest::addColumn<int>("width");
    QTest::addColumn<QString>("offered");
    QTest::newRow("no shadow RAM, 508 bits") << 0 << 126 << "BSRAM REG";
    QTest::newRow("no shadow RAM, 512 bits") << 0 << 127 << "BSRAM REG";
    QTest::newRow("no shadow RAM, 516 bits") << 0 << 128 << "BSRAM";
    QTest::newRow("shadow RAM, 512 bits") << 48 << 127 << "BSRAM SSRAM REG";
    QTest::newRow("shadow RAM, 516 bits") << 48 << 128 << "BSRAM SSRAM";
}

void tst_CaptureUsage::offersWhatFitsDeviceAndWidth()
{
    QFETCH(int, ssram);
    QFETCH(int, width);
    CaptureBench bench;
    support::setCapacity({10, ssram, 1000});
    bench.core.setStorageSize(4);
    bench.core.setallCapSignal({bus(QStringLiteral("wide"), width)});
    QTEST(entries(bench.implementation()).join(u' '), "offered");
    QCOMPARE(bench.implementation().currentText(), QStringLiteral("BSRAM"));
}

void tst_CaptureUsage::storedImplementationIsShown_data()
{
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("text");
    QTest::newRow("0") << 0 << "BSRAM";
    QTest::newRow("1") << 1 << "REG";
    QTest::newRow("2") << 2 << "SSRAM";
}

void tst_CaptureUsage::storedImplementationIsShown()
{
    QFETCH(int, code);
    CaptureBench bench;
    support::setCapacity({10, 48, 1000});
    bench.core.setStorageSize(4);
    bench.core.setCaptureImplementation(code);
    QTEST(bench.implementation().currentText(), "text");
    bench.page().applyToCore();
    QCOMPARE(bench.core.captureImplementation(), code);
}

void tst_CaptureUsage::storedShadowRamOnADeviceWithoutAnyShowsBlockRam()
{
    CaptureBench bench;
    bench.core.setCaptureImplementation(VAK::SsramImplementation);
    QCOMPARE(bench.implementation().currentText(), QStringLiteral("BSRAM"));
    QCOMPARE(entries(bench.implementation()), QStringList{QStringLiteral("BSRAM")});
}

void tst_CaptureUsage::unknownImplementationShowsBlockRam()
{
    CaptureBench bench;
    support::setCapacity({10, 48, 1000});
    support::setNeed(5);
    bench.core.setStorageSize(4);
    bench.core.setCaptureImplementation(9);
    QCOMPARE(bench.implementation().currentText(), QStringLiteral("BSRAM"));
    QCOMPARE(bench.usage(), QStringLiteral("BSRAM Usage : 5/10"));
}

void tst_CaptureUsage::widthGoesToTheFunctionWithoutTheExtraBit()
{
    CaptureBench bench;
    fakes::setCurrentDevice(QStringLiteral("KXC-T2"), QStringLiteral("TQ100"));
    bench.core.setallCapSignal({bus(QStringLiteral("data"), 8), single(QStringLiteral("clk"))});
    bench.page();
    QCOMPARE(support::resourceCalls(QStringLiteral("bsramNumber")).constLast(),
             QStringLiteral("bsramNumberRequiredWithAdjustForT2k(9,1024)"));
    QCOMPARE(support::resourceCalls(QStringLiteral("bsramAmount")).constLast(),
             QStringLiteral("bsramAmount(KXC-T2,TQ100)"));
}

void tst_CaptureUsage::onlyCapturedSignalsCount()
{
    CaptureBench bench;
    VAK::SignalItem unusable = bus(QStringLiteral("grey"), 64);
    unusable.enabled = false;
    bench.core.setallCapSignal({bus(QStringLiteral("data"), 8), unusable, bus(QStringLiteral("off"), 32, 0)});
    bench.page();
    QCOMPARE(support::resourceCalls(QStringLiteral("bsramNumber")).constLast(),
             QStringLiteral("bsramNumberRequiredWithAdjust(8,1024)"));
}

void tst_CaptureUsage::noEnabledSignalMeansWidthZero()
{
    CaptureBench bench;
    support::setNeed(1);
    bench.page();
    QCOMPARE(support::resourceCalls(QStringLiteral("bsramNumber")).constLast(),
             QStringLiteral("bsramNumberRequiredWithAdjust(0,1024)"));
    QCOMPARE(bench.usage(), QStringLiteral("BSRAM Usage : 1/10"));
}

void tst_CaptureUsage::needAboveCapacityIsRed()
{
    CaptureBench bench;
    support::setNeed(10);
    QCOMPARE(bench.usage(), QStringLiteral("BSRAM Usage : 10/10"));
    support::setNeed(11);
    fakes::publish(QStringLiteral("TE.Device.Change"));
    QCOMPARE(bench.usage(), QStringLiteral("BSRAM Usage : <font color = red>11</font>/10"));
}

void tst_CaptureUsage::deviceChangeUpdatesListAndUsage()
{
    CaptureBench bench;
    QCOMPARE(entries(bench.implementation()), QStringList({QStringLiteral("BSRAM")}));
    support::setCapacity({20, 48, 1000});
    fakes::publish(QStringLiteral("TE.Device.Change"));
    QCOMPARE(entries(bench.implementation()), QStringList({QStringLiteral("BSRAM"), QStringLiteral("SSRAM")}));
    QCOMPARE(bench.usage(), QStringLiteral("BSRAM Usage : 0/20"));
    bench.implementation().setCurrentText(QStringLiteral("SSRAM"));
    QCOMPARE(bench.usage(), QStringLiteral("SSRAM Usage : 0/48"));
    support::setCapacity({30, 0, 1000});
    fakes::publish(QStringLiteral("TE.Device.Change"));
    QCOMPARE(entries(bench.implementation()), QStringList({QStringLiteral("BSRAM")}));
    QCOMPARE(bench.usage(), QStringLiteral("BSRAM Usage : 0/30"));
}

void tst_CaptureUsage::otherEventsAreIgnored()
{
    CaptureBench bench;
    QCOMPARE(bench.usage(), QStringLiteral("BSRAM Usage : 0/10"));
    support::setCapacity({20, 48, 1000});
    const QUtil::IEventHandler *handler = &bench.page();
    QCOMPARE(fakes::subscriptionsOf(handler), QStringList{QStringLiteral("TE.Device.Change")});
    for (const char *type : {"te.device.change", "TE.Option.Change"})
        bench.page().handleIEvent(std::make_unique<QUtil::IEvent>(QLatin1String(type)).get());
    QCOMPARE(bench.usage(), QStringLiteral("BSRAM Usage : 0/10"));
}

void tst_CaptureUsage::subscriptionEndsWithThePage()
{
    {
        CaptureBench bench;
        bench.page();
        QCOMPARE(fakes::subscriptionCount(), 1);
    }
    QCOMPARE(fakes::subscriptionCount(), 0);
}

void tst_CaptureUsage::storageChangeUpdatesTheUsage()
{
    CaptureBench bench;
    bench.core.setallCapSignal({single(QStringLiteral("clk"))});
    bench.storage().setCurrentText(QStringLiteral("256"));
    QCOMPARE(support::resourceCalls(QStringLiteral("regNumber")).size(), 0);
    QVERIFY(support::resourceCalls().contains(QStringLiteral("bsramNumberRequiredWithAdjust(1,256)")));
    QCOMPARE(entries(bench.implementation()), QStringList({QStringLiteral("BSRAM"), QStringLiteral("REG")}));
    bench.implementation().setCurrentText(QStringLiteral("REG"));
    QCOMPARE(bench.usage(), QStringLiteral("Register Usage : 0/1000"));
    QVERIFY(support::resourceCalls().contains(QStringLiteral("regNumberRequiredWidthAdjust(1,256,true)")));
}

void tst_CaptureUsage::disablingASignalUpdatesTheUsage()
{
    CaptureBench bench;
    bench.core.setallCapSignal({bus(QStringLiteral("data"), 8), single(QStringLiteral("clk"))});
    bench.tree().topLevelItem(0)->setSelected(true);
    bench.tree().onDisable();
    QCOMPARE(support::resourceCalls(QStringLiteral("bsramNumber")).constLast(),
             QStringLiteral("bsramNumberRequiredWithAdjust(1,1024)"));
}

void tst_CaptureUsage::segmentsAndAmountLeaveTheUsageAlone()
{
    CaptureBench bench;
    bench.page();
    support::resetResources();
    bench.segments().setCurrentText(QStringLiteral("2"));
    bench.amount().setCurrentText(QStringLiteral("16"));
    QCOMPARE(support::resourceCalls(), QStringList());
}

void tst_CaptureUsage::usageIsNewWhenAChosenImplementationIsTold()
{
    CaptureBench bench;
    support::setCapacity({10, 48, 1000});
    bench.core.setStorageSize(4);
    QString told;
    connect(&bench.page(), &RTLVAK::CaptureOptionWidget::modified, &bench.page(), [&] { told = bench.usage(); });
    bench.implementation().setCurrentText(QStringLiteral("REG"));
    QCOMPARE(told, QStringLiteral("Register Usage : 0/1000"));
}

QTEST_MAIN(tst_CaptureUsage)
#include "tst_captureusage.moc"

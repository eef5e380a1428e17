// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include <VakUtils/aocore.h>
#include <VakUtils/aocorelite.h>
#include <VakUtils/matchunit.h>
#include <VakUtils/triggerport.h>

#include <QtTest>

using namespace VAK;

static SignalItem single(const QString &name)
{
    SignalItem signal;
    signal.name = name;
    return signal;
}

static SignalItem bus(const QString &name, int bits)
{
    SignalItem signal = single(name);
    signal.kind = 1;
    for (int bit = bits - 1; bit >= 0; --bit)
        signal.members.append(single(QStringLiteral("%1[%2]").arg(name).arg(bit)));
    return signal;
}

class TestAoCore : public QObject
{
    Q_OBJECT

private slots:
    void newSignalHasTheDefaults();
    void signalTypeIsKnownByName();
    void signalsCompareEveryField_data();
    void signalsCompareEveryField();
    void capturedMeansEnabledAndActive();
    void newCoreHasTheDefaults();
    void newLiteCoreHasTheDefaults();
    void portsAndUnitsAreSixteenInOrder();
    void portOutsideTheRangeIsNull();
    void widthCountsMembersWhateverTheirFlags();
    void portIsAvailableWhenItHasASignal();
    void signalNetComesBackInOrder();
    void changingASignalNetLeavesValuesAlone();
    void severalUnitsWatchOnePort();
    void enabledUnitsAreThoseSwitchedOn();
    void triggerAndCaptureStorageAreTwoFields();
    void functionTextsFollowTheEnumeration();
};

void TestAoCore::newSignalHasTheDefaults()
{
    const SignalItem signal;
    QVERIFY(signal.name.isEmpty());
    QVERIFY(signal.displayName.isEmpty());
    QVERIFY(signal.members.isEmpty());
    QVERIFY(signal.enabled);
    QVERIFY(signal.present);
    QCOMPARE(signal.kind, -1);
    QCOMPARE(signal.active, 1);
    QVERIFY(signal.foreign.isEmpty());
}

void TestAoCore::signalTypeIsKnownByName()
{
    QVERIFY(QMetaType::type("VAK::SignalItem") != QMetaType::UnknownType);
    const QVariant stored = QVariant::fromValue(bus(QStringLiteral("d"), 2));
    QCOMPARE(stored.typeName(), "VAK::SignalItem");
    QCOMPARE(stored.value<SignalItem>(), bus(QStringLiteral("d"), 2));
}

void TestAoCore::signalsCompareEveryField_data()
{
    QTest::addColumn<SignalItem>("changed");
    SignalItem signal = bus(QStringLiteral("d"), 2);
    const auto row = [](const char *field, SignalItem base, auto change) {
        change(base);
        QTest::newRow(field) << base;
    };
    row("name", signal, [](SignalItem &s) { s.name = QStringLiteral("e"); });
    row("display name", signal, [](SignalItem &s) { s.displayName = QStringLiteral("e"); });
    row("members", signal, [](SignalItem &s) { s.members.removeLast(); });
    row("member order", signal, [](SignalItem &s) { s.members.swapItemsAt(0, 1); });
    row("member field", signal, [](SignalItem &s) { s.members[0].enabled = false; });
    row("enabled", signal, [](SignalItem &s) { s.enabled = false; });
    row("present", signal, [](SignalItem &s) { s.present = false; });
    row("kind", signal, [](SignalItem &s) { s.kind = -1; });
    row("active", signal, [](SignalItem &s) { s.active = 0; });
    row("foreign attribute", signal, [](SignalItem &s) { s.foreign.attributes.append({QStringLiteral("a"), {}}); });
    row("foreign element", signal, [](SignalItem &s) { s.foreign.elements = QStringLiteral("<a/>"); });
}

void TestAoCore::signalsCompareEveryField()
{
    QFETCH(SignalItem, changed);
    QVERIFY(bus(QStringLiteral("d"), 2) == bus(QStringLiteral("d"), 2));
    QVERIFY(changed != bus(QStringLiteral("d"), 2));
}

void TestAoCore::capturedMeansEnabledAndActive()
{
    SignalItem signal;
    QVERIFY(signal.isCaptured());
    signal.active = 0;
    QVERIFY(!signal.isCaptured());
    signal.active = 1;
    signal.enabled = false;
    QVERIFY(!signal.isCaptured());
}

void TestAoCore::newCoreHasTheDefaults()
{
    const AoCore core(3);
    QCOMPARE(core.index(), 3);
    QVERIFY(core.sampleClock().isEmpty());
    QCOMPARE(core.sampleEdge(), int(RisingEdge));
    QCOMPARE(core.storageSize(), 1024);
    QCOMPARE(core.segmentNumber(), 1);
    QCOMPARE(core.captureAmount(), 1024);
    QCOMPARE(core.triggerPosition(), 0);
    QCOMPARE(core.captureImplementation(), int(BsramImplementation));
    QCOMPARE(core.triggerMode(), int(StaticTrigger));
    QCOMPARE(core.triggerImplementation(), int(BsramImplementation));
    QVERIFY(!core.forceTriggerByFallingEdge());
    QVERIFY(!core.captureInitialData());
    QVERIFY(core.expressions().isEmpty());
    QVERIFY(core.availableTriggers().isEmpty());
    QVERIFY(core.enabledMatchUnits().isEmpty());
    QVERIFY(core.getallCapSignal().isEmpty());
    QVERIFY(core.getDataSignal().isEmpty());
    QVERIFY(core.moduleName().isEmpty());
    const MatchUnit *unit = core.matchUnit(0);
    QCOMPARE(unit->function(), MatchFunction::Equal);
    QCOMPARE(unit->counterMode(), CounterMode::Off);
    QCOMPARE(unit->counterValue(), 1);
    QVERIFY(!unit->triggerPort());
    QVERIFY(unit->value0().isEmpty());
    QVERIFY(unit->value1().isEmpty());
}

void TestAoCore::newLiteCoreHasTheDefaults()
{
    const AOCore_Lite core(2);
    QCOMPARE(core.index(), 2);
    QVERIFY(core.sampleClock().isEmpty());
    QCOMPARE(core.sampleEdge(), int(RisingEdge));
    QCOMPARE(core.captureAmount(), 1024);
    QCOMPARE(core.captureImplementation(), int(BsramImplementation));
    QVERIFY(!core.enableInputRegister());
    QVERIFY(!core.captureInitialData());
    QVERIFY(core.getallCapSignal().isEmpty());
    QVERIFY(core.getDataSignal().isEmpty());
}

void TestAoCore::portsAndUnitsAreSixteenInOrder()
{
    const AoCore core(0);
    QCOMPARE(core.allTriggers().size(), 16);
    QCOMPARE(core.allMatchUnits().size(), 16);
    for (int i = 0; i < 16; ++i) {
        QCOMPARE(core.getTrigger(i), core.allTriggers().at(i));
        QCOMPARE(core.getTrigger(i)->index(), i);
        QCOMPARE(core.matchUnit(i), core.allMatchUnits().at(i));
        QCOMPARE(core.matchUnit(i)->index(), i);
        QCOMPARE(core.matchUnit(i)->core(), &core);
    }
}

void TestAoCore::portOutsideTheRangeIsNull()
{
    const AoCore core(0);
    QVERIFY(!core.getTrigger(-1));
    QVERIFY(!core.getTrigger(16));
    QVERIFY(!core.matchUnit(-1));
    QVERIFY(!core.matchUnit(16));
}

void TestAoCore::widthCountsMembersWhateverTheirFlags()
{
    const AoCore core(0);
    TriggerPort *port = core.getTrigger(0);
    QCOMPARE(port->width(), 0);
    SignalItem wide = bus(QStringLiteral("d"), 8);
    wide.members[3].enabled = false;
    SignalItem off = single(QStringLiteral("a"));
    off.active = 0;
    off.enabled = false;
    off.present = false;
    port->setSignalNet({wide, off});
    QCOMPARE(port->width(), 9);
}

void TestAoCore::portIsAvailableWhenItHasASignal()
{
    const AoCore core(0);
    core.getTrigger(4)->setSignalNet({single(QStringLiteral("a"))});
    QVERIFY(core.getTrigger(4)->isAvailable());
    QCOMPARE(core.availableTriggers(), {core.getTrigger(4)});
    core.getTrigger(4)->setSignalNet({});
    QVERIFY(!core.getTrigger(4)->isAvailable());
    QVERIFY(core.availableTriggers().isEmpty());
}

void TestAoCore::signalNetComesBackInOrder()
{
    TriggerPort port(7);
    const QList<SignalItem> net = {single(QStringLiteral("b")), bus(QStringLiteral("d"), 3),
                                   single(QStringLiteral("a"))};
    port.setSignalNet(net);
    QCOMPARE(port.getSignalNet(), net);
}

void TestAoCore::changingASignalNetLeavesValuesAlone()
{
    const AoCore core(0);
    core.getTrigger(1)->setSignalNet({bus(QStringLiteral("d"), 4)});
    core.matchUnit(0)->setTriggerPort(core.getTrigger(1));
    core.matchUnit(0)->setValue0(QStringLiteral("01XR"));
    core.getTrigger(1)->setSignalNet({});
    QCOMPARE(core.matchUnit(0)->value0(), QStringLiteral("01XR"));
    QCOMPARE(core.matchUnit(0)->triggerPort(), core.getTrigger(1));
}

void TestAoCore::severalUnitsWatchOnePort()
{
    const AoCore core(0);
    core.matchUnit(0)->setTriggerPort(core.getTrigger(5));
    core.matchUnit(15)->setTriggerPort(core.getTrigger(5));
    QCOMPARE(core.matchUnit(0)->triggerPort(), core.getTrigger(5));
    QCOMPARE(core.matchUnit(15)->triggerPort(), core.getTrigger(5));
    core.matchUnit(0)->setTriggerPort(nullptr);
    QVERIFY(!core.matchUnit(0)->triggerPort());
    QCOMPARE(core.matchUnit(15)->triggerPort(), core.getTrigger(5));
}

void TestAoCore::enabledUnitsAreThoseSwitchedOn()
{
    const AoCore core(0);
    core.matchUnit(9)->setEnabled(true);
    core.matchUnit(2)->setEnabled(true);
    QCOMPARE(core.enabledMatchUnits(), (QList<MatchUnit *>{core.matchUnit(2), core.matchUnit(9)}));
}

void TestAoCore::triggerAndCaptureStorageAreTwoFields()
{
    AoCore core(0);
    core.setTriggerImplementation(SsramImplementation);
    core.setCaptureImplementation(RegImplementation);
    QCOMPARE(core.triggerImplementation(), int(SsramImplementation));
    QCOMPARE(core.captureImplementation(), int(RegImplementation));
}

void TestAoCore::functionTextsFollowTheEnumeration()
{
    QCOMPARE(matchFunctionTexts(), QStringList({"==", "!=", ">", ">=", "<", "<=", "in range", "out of range"}));
    QCOMPARE(matchFunctionText(MatchFunction::OutOfRange), QStringLiteral("out of range"));
    QVERIFY(isRangeFunction(MatchFunction::InRange));
    QVERIFY(isRangeFunction(MatchFunction::OutOfRange));
    QVERIFY(!isRangeFunction(MatchFunction::LessEqual));
}

QTEST_GUILESS_MAIN(TestAoCore)
#include "tst_aocore.moc"

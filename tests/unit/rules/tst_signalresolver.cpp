// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "rules/signalresolver.h"

#include "tests/fakes/fakenetlist.h"
#include "tests/support/doubles.h"

#include <netcatcher/rtlnetlist.h>

#include <QtTest>

#include <memory>

using VAK::SignalItem;

class tst_SignalResolver : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void single_data();
    void single();
    void groupIsPresentWhileAllItsMembersAre();
    void unusableMemberIsDisabledAndUsableAgainEnabled();
    void missingMemberKeepsItsEnabledFlag();
    void namesOrderAndSwitchStay();
    void namesAreLookedUpInTheWholeDesign();
};

static SignalItem named(const QString &name)
{
    SignalItem signal;
    signal.name = name;
    return signal;
}

static SignalItem bus(const QString &base, int width)
{
    SignalItem signal = named(QStringLiteral("%1[%2:0]").arg(base).arg(width - 1));
    signal.kind = 1;
    for (int bit = width - 1; bit >= 0; --bit)
        signal.members.append(named(QStringLiteral("%1[%2]").arg(base).arg(bit)));
    return signal;
}

static RTLVAK::NetLookup lookupOf(const NETCATCHER::RtlNetlist &netlist)
{
    return RTLVAK::netLookup(&netlist);
}

static std::unique_ptr<NETCATCHER::RtlNetlist> design()
{
    fakes::Instance top(QStringLiteral("top"));
    top.net(QStringLiteral("clk")).net(QStringLiteral("pad"), fakes::Unusable);
    top.bus(QStringLiteral("data"), 3, 0).bus(QStringLiteral("mem"), 1, 0, fakes::Usable, {1});
    top.child(QStringLiteral("u_core"), QStringLiteral("core")).net(QStringLiteral("halt"));
    return std::unique_ptr<NETCATCHER::RtlNetlist>(fakes::makeNetlist(top));
}

void tst_SignalResolver::initTestCase()
{
    QCOMPARE(support::missingDoubles(), QString());
}

void tst_SignalResolver::single_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("wasPresent");
    QTest::addColumn<bool>("present");
    QTest::newRow("there") << "clk" << true << true;
    QTest::newRow("found again") << "clk" << false << true;
    QTest::newRow("gone") << "old" << true << false;
    QTest::newRow("become unusable") << "pad" << true << false;
    QTest::newRow("bit of a bus") << "data[2]" << true << true;
    QTest::newRow("letter case counts") << "CLK" << true << false;
}

void tst_SignalResolver::single()
{
    QFETCH(QString, name);
    QFETCH(bool, wasPresent);
    SignalItem before = named(name);
    before.present = wasPresent;
    const auto netlist = design();
    const SignalItem after = RTLVAK::resolvedSignal(before, lookupOf(*netlist));
    QTEST(after.present, "present");
    QVERIFY(after.enabled); // stays selectable, so that it can be removed
}

void tst_SignalResolver::groupIsPresentWhileAllItsMembersAre()
{
    const auto netlist = design();
    QVERIFY(RTLVAK::resolvedSignal(bus(QStringLiteral("data"), 4), lookupOf(*netlist)).present);
    const SignalItem wider = RTLVAK::resolvedSignal(bus(QStringLiteral("data"), 5), lookupOf(*netlist));
    QVERIFY(!wider.present);
    QVERIFY(!wider.members.at(0).present);
    QVERIFY(wider.members.at(1).present);
    QCOMPARE(wider.members.size(), 5);
}

void tst_SignalResolver::unusableMemberIsDisabledAndUsableAgainEnabled()
{
    const auto netlist = design();
    SignalItem before = bus(QStringLiteral("mem"), 2);
    before.members[1].enabled = false;
    const SignalItem after = RTLVAK::resolvedSignal(before, lookupOf(*netlist));
    QVERIFY(after.present);
    QVERIFY(after.members.at(0).present);
    QVERIFY(!after.members.at(0).enabled);
    QVERIFY(after.members.at(1).enabled);
}

void tst_SignalResolver::missingMemberKeepsItsEnabledFlag()
{
    const auto netlist = design();
    SignalItem before = bus(QStringLiteral("gone"), 2);
    before.members[0].enabled = false;
    const SignalItem after = RTLVAK::resolvedSignal(before, lookupOf(*netlist));
    QVERIFY(!after.members.at(0).enabled);
    QVERIFY(after.members.at(1).enabled);
}

void tst_SignalResolver::namesOrderAndSwitchStay()
{
    const auto netlist = design();
    QList<SignalItem> before{bus(QStringLiteral("data"), 4), named(QStringLiteral("old")),
                             named(QStringLiteral("clk"))};
    before[0].displayName = QStringLiteral("payload");
    before[0].members[1].displayName = QStringLiteral("bit two");
    std::reverse(before[0].members.begin(), before[0].members.end());
    before[1].active = 0;
    before[2].enabled = false;
    QList<SignalItem> expected = before;
    expected[1].present = false;
    QCOMPARE(RTLVAK::resolvedSignals(before, lookupOf(*netlist)), expected);
}

void tst_SignalResolver::namesAreLookedUpInTheWholeDesign()
{
    const auto netlist = design();
    QVERIFY(RTLVAK::resolvedSignal(named(QStringLiteral("u_core/halt")), lookupOf(*netlist)).present);
    QVERIFY(!RTLVAK::resolvedSignal(named(QStringLiteral("halt")), lookupOf(*netlist)).present);
}

QTEST_APPLESS_MAIN(tst_SignalResolver)
#include "tst_signalresolver.moc"

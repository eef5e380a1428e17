// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "rules/signalmerge.h"

#include <QtTest>

using namespace RTLVAK;

using Records = QList<VAK::SignalItem>;

static VAK::SignalItem net(const QString &name)
{
    VAK::SignalItem record;
    record.name = name;
    return record;
}

static Records nets(const QStringList &names)
{
    Records records;
    for (const QString &name : names)
        records.append(net(name));
    return records;
}

static VAK::SignalItem group(const QString &name, const QStringList &members)
{
    VAK::SignalItem record = net(name);
    record.members = nets(members);
    return record;
}

static VAK::SignalItem bus(const QString &name, const QStringList &members)
{
    VAK::SignalItem record = group(name, members);
    record.kind = 1;
    return record;
}

static QStringList names(const Records &records)
{
    QStringList result;
    for (const VAK::SignalItem &record : records)
        result.append(record.name);
    return result;
}

class TestSignalMerge : public QObject
{
    Q_OBJECT

private slots:
    void sameSignal_data();
    void sameSignal();
    void singlesAndGroupsAreDividedInTheirOrder();
    void recordsThatAreNotEnabledAreDropped();
    void laterDuplicatesAmongTheIncomingAreDropped();
    void knownRecordIsNotAddedAgain();
    void knownRecordIsPresentAndEnabledAgain();
    void knownRecordKeepsWhatTheUserGaveIt();
    void matchedPositionsComeOnceInTheOrderAsked();
    void netBesideItsBusIsAdded();
    void groupWhoseNameIsTakenGetsTheNextFreeOne();
    void incomingGroupsOfOneNameGetDifferentNames();
    void busKeepsItsNameBesideAGroupOfThatName();
    void emptyListsGiveNothing();
    void listBeingPutTogetherKeepsOrderAndUnusableOnes();
    void unusableRecordStaysSoWhenItIsFoundAgain();
};

void TestSignalMerge::sameSignal_data()
{
    QTest::addColumn<VAK::SignalItem>("a");
    QTest::addColumn<VAK::SignalItem>("b");
    QTest::addColumn<bool>("same");

    const VAK::SignalItem d = bus("d[1:0]", {"d[1]", "d[0]"});
    const VAK::SignalItem g = group("group_0[1:0]", {"a", "b"});
    VAK::SignalItem renamed = net("clk");
    renamed.displayName = "clock";
    renamed.active = 0;
    QTest::newRow("nets of one name") << net("clk") << renamed << true;
    QTest::newRow("other net") << net("clk") << net("clk2") << false;
    QTest::newRow("case counts") << net("clk") << net("CLK") << false;
    QTest::newRow("bus, bits reversed") << d << bus("d[1:0]", {"d[0]", "d[1]"}) << true;
    QTest::newRow("bus, other name") << d << bus("e[1:0]", {"d[1]", "d[0]"}) << false;
    QTest::newRow("bus with a bit less") << d << bus("d[1:0]", {"d[1]"}) << false;
    QTest::newRow("bus, other bits") << d << bus("d[1:0]", {"d[1]", "d[2]"}) << false;
    QTest::newRow("group, other name") << g << group("mine[1:0]", {"a", "b"}) << true;
    QTest::newRow("group, other order") << g << group("group_0[1:0]", {"b", "a"}) << false;
    QTest::newRow("group with a member more") << g << group("group_0[1:0]", {"a", "b", "c"}) << false;
    QTest::newRow("group against bus") << group("d[1:0]", {"d[1]", "d[0]"}) << d << false;
    QTest::newRow("net against bus") << net("d[1:0]") << d << false;
}

void TestSignalMerge::sameSignal()
{
    QFETCH(const VAK::SignalItem, a);
    QFETCH(const VAK::SignalItem, b);
    QTEST(isSameSignal(a, b), "same");
    QTEST(isSameSignal(b, a), "same");
}

void TestSignalMerge::singlesAndGroupsAreDividedInTheirOrder()
{
    const Records incoming{net("b"), bus("d[1:0]", {"d[1]", "d[0]"}), net("a"), group("g", {"x", "y"}), net("c")};
    const SignalMerge merge = mergeSignals({}, incoming);
    QCOMPARE(names(merge.singles), QStringList({"b", "a", "c"}));
    QCOMPARE(names(merge.groups), QStringList({"d[1:0]", "g"}));
    QCOMPARE(merge.groups.at(0), incoming.at(1));
    QVERIFY(merge.matched.isEmpty());
}

void TestSignalMerge::recordsThatAreNotEnabledAreDropped()
{
    VAK::SignalItem unusable = net("supply");
    unusable.enabled = false;
    VAK::SignalItem unusableBus = bus("m[1:0]", {"m[1]", "m[0]"});
    unusableBus.enabled = false;
    const SignalMerge merge = mergeSignals(nets({"supply"}), {unusable, unusableBus, net("a")});
    QCOMPARE(names(merge.singles), QStringList({"a"}));
    QVERIFY(merge.groups.isEmpty());
    QVERIFY(merge.matched.isEmpty());
}

void TestSignalMerge::laterDuplicatesAmongTheIncomingAreDropped()
{
    VAK::SignalItem second = net("a");
    second.displayName = "second";
    const SignalMerge merge = mergeSignals(
        {}, {net("a"), net("b"), second, bus("d[1:0]", {"d[1]", "d[0]"}), bus("d[1:0]", {"d[0]", "d[1]"})});
    QCOMPARE(merge.singles, Records({net("a"), net("b")}));
    QCOMPARE(merge.groups, Records({bus("d[1:0]", {"d[1]", "d[0]"})}));
}

void TestSignalMerge::knownRecordIsNotAddedAgain()
{
    const Records existing{net("a"), bus("d[1:0]", {"d[1]", "d[0]"}), group("g", {"x", "y"})};
    const SignalMerge merge = mergeSignals(existing, existing);
    QVERIFY(merge.singles.isEmpty());
    QVERIFY(merge.groups.isEmpty());
    QCOMPARE(merge.existing, existing);
    QCOMPARE(merge.matched, QList<int>({0, 1, 2}));
}

void TestSignalMerge::knownRecordIsPresentAndEnabledAgain()
{
    VAK::SignalItem lost = bus("d[1:0]", {"d[1]", "d[0]"});
    lost.present = false;
    lost.enabled = false;
    lost.members[0].present = false;
    lost.members[1].enabled = false;
    const SignalMerge merge = mergeSignals({net("a"), lost}, {bus("d[1:0]", {"d[1]", "d[0]"})});
    QCOMPARE(merge.existing, Records({net("a"), bus("d[1:0]", {"d[1]", "d[0]"})}));
}

void TestSignalMerge::knownRecordKeepsWhatTheUserGaveIt()
{
    VAK::SignalItem edited = bus("d[1:0]", {"d[0]", "d[1]"});
    edited.displayName = "data";
    edited.active = 0;
    edited.members[0].displayName = "low";
    edited.members[1].active = 0;
    VAK::SignalItem again = bus("d[1:0]", {"d[1]", "d[0]"});
    again.displayName = "other";
    again.members[0].displayName = "other bit";
    const SignalMerge merge = mergeSignals({net("a"), edited, net("b")}, {again});
    QCOMPARE(merge.existing, Records({net("a"), edited, net("b")}));
}

void TestSignalMerge::matchedPositionsComeOnceInTheOrderAsked()
{
    const SignalMerge merge = mergeSignals(nets({"a", "b", "c"}), nets({"c", "a", "c", "x", "a"}));
    QCOMPARE(merge.matched, QList<int>({2, 0}));
    QCOMPARE(names(merge.singles), QStringList({"x"}));
}

void TestSignalMerge::netBesideItsBusIsAdded()
{
    const SignalMerge merge = mergeSignals({bus("d[1:0]", {"d[1]", "d[0]"})}, nets({"d[1]"}));
    QCOMPARE(names(merge.singles), QStringList({"d[1]"}));
}

void TestSignalMerge::groupWhoseNameIsTakenGetsTheNextFreeOne()
{
    const Records existing{group("group_0[1:0]", {"a", "b"}), group("group_2[1:0]", {"c", "d"})};
    const SignalMerge merge = mergeSignals(existing, {group("group_0[1:0]", {"x", "y"})});
    QCOMPARE(merge.groups, Records({group("group_1[1:0]", {"x", "y"})}));
    QCOMPARE(merge.existing, existing);

    const SignalMerge longer = mergeSignals({group("mine", {"a", "b"})}, {group("mine", {"x", "y", "z"})});
    QCOMPARE(names(longer.groups), QStringList({"group_0[2:0]"}));
}

void TestSignalMerge::incomingGroupsOfOneNameGetDifferentNames()
{
    const SignalMerge merge = mergeSignals(
        {}, {group("group_0[1:0]", {"a", "b"}), group("group_0[1:0]", {"c", "d"}), group("group_0[1:0]", {"e", "f"})});
    QCOMPARE(names(merge.groups), QStringList({"group_0[1:0]", "group_1[1:0]", "group_2[1:0]"}));
}

void TestSignalMerge::busKeepsItsNameBesideAGroupOfThatName()
{
    const SignalMerge merge =
        mergeSignals({group("d[1:0]", {"d[0]", "d[1]"})}, {bus("d[1:0]", {"d[1]", "d[0]"}), bus("d[1:0]", {"d[1]"})});
    QCOMPARE(names(merge.groups), QStringList({"d[1:0]", "d[1:0]"}));
}

void TestSignalMerge::emptyListsGiveNothing()
{
    const SignalMerge merge = mergeSignals({}, {});
    QVERIFY(merge.existing.isEmpty() && merge.matched.isEmpty() && merge.singles.isEmpty() && merge.groups.isEmpty());
}

void TestSignalMerge::listBeingPutTogetherKeepsOrderAndUnusableOnes()
{
    VAK::SignalItem unusable = net("supply");
    unusable.enabled = false;
    VAK::SignalItem lost = net("a");
    lost.present = false;
    Records chosen{lost};
    const Records added =
        takeNewSignals(chosen, {bus("d[1:0]", {"d[1]", "d[0]"}), net("a"), unusable, net("b"), net("b")});
    QCOMPARE(names(added), QStringList({"d[1:0]", "supply", "b"}));
    QCOMPARE(chosen, nets({"a"}));
}

void TestSignalMerge::unusableRecordStaysSoWhenItIsFoundAgain()
{
    VAK::SignalItem unusable = net("supply");
    unusable.enabled = false;
    Records chosen{unusable};
    QVERIFY(takeNewSignals(chosen, {unusable}).isEmpty());
    QCOMPARE(chosen, Records{unusable});
    takeNewSignals(chosen, nets({"supply"}));
    QCOMPARE(chosen, nets({"supply"}));
}

QTEST_APPLESS_MAIN(TestSignalMerge)
#include "tst_signalmerge.moc"

// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "rules/groupname.h"

#include <QtTest>

using namespace RTLVAK;

class TestGroupName : public QObject
{
    Q_OBJECT

private slots:
    void nameOfSelection_data();
    void nameOfSelection();
    void groupAmongTheRowsIsNeverABus();
    void newNameTakesTheFirstFreeNumber_data();
    void newNameTakesTheFirstFreeNumber();
    void rangeCountsTheMembers();
};

void TestGroupName::nameOfSelection_data()
{
    QTest::addColumn<QStringList>("texts");
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("isNew");

    const auto bus = [](const char *tag, const QStringList &texts, const char *name) {
        QTest::newRow(tag) << texts << name << false;
    };
    const auto group = [](const char *tag, const QStringList &texts) {
        QTest::newRow(tag) << texts << "group_0" << true;
    };
    bus("downwards", {"d[3]", "d[2]", "d[1]"}, "d[3:1]");
    bus("upwards", {"d[0]", "d[1]", "d[2]", "d[3]"}, "d[0:3]");
    bus("down to zero", {"d[3]", "d[2]", "d[1]", "d[0]"}, "d[3:0]");
    bus("two bits", {"u1/q[10]", "u1/q[9]"}, "u1/q[10:9]");
    bus("last bracket counts", {"m[1][4]", "m[1][5]"}, "m[1][4:5]");
    bus("percent in the base", {"\\a%1 [1]", "\\a%1 [0]"}, "\\a%1 [1:0]");
    bus("large index", {"d[4294967296]", "d[4294967297]"}, "d[4294967296:4294967297]");
    group("broken step", {"d[5]", "d[3]", "d[2]", "d[1]"});
    group("broken step at the end", {"d[3]", "d[2]", "d[1]", "d[5]"});
    group("turn", {"d[1]", "d[2]", "d[1]"});
    group("step of two", {"d[0]", "d[2]"});
    group("same bit twice", {"d[1]", "d[1]"});
    group("other base", {"a[0]", "b[1]"});
    group("other base at the end", {"a[0]", "a[1]", "b[2]"});
    group("base differs in case", {"a[0]", "A[1]"});
    group("single bit", {"d[3]"});
    group("no bits", {"clk", "rst"});
    group("plain net among bits", {"d[1]", "d[0]", "clk"});
    group("leading zero", {"x[01]", "x[02]"});
    group("leading zero beside a bit", {"x[0]", "x[01]"});
    group("double zero", {"x[00]", "x[1]"});
    group("no base", {"[0]", "[1]"});
    group("range is no bit", {"d[3:0]", "d[4]"});
    group("text after the bracket", {"d[0]x", "d[1]x"});
    group("index too large for a number", {"d[99999999999999999998]", "d[99999999999999999999]"});
}

void TestGroupName::nameOfSelection()
{
    QFETCH(const QStringList, texts);
    QList<GroupedRow> rows;
    for (const QString &text : texts)
        rows.append({text, false});
    const GroupName name = groupName(rows, {});
    QTEST(name.text, "name");
    QTEST(name.isNew, "isNew");
}

void TestGroupName::groupAmongTheRowsIsNeverABus()
{
    for (int at = 0; at < 3; ++at) {
        QList<GroupedRow> rows{{"d[2]", false}, {"d[1]", false}, {"d[0]", false}};
        rows[at].isGroup = true;
        QCOMPARE(groupName(rows, {}).text, QString("group_0"));
        QVERIFY(groupName(rows, {}).isNew);
    }
}

void TestGroupName::newNameTakesTheFirstFreeNumber_data()
{
    QTest::addColumn<QStringList>("others");
    QTest::addColumn<QString>("name");

    QTest::newRow("none") << QStringList() << "group_0";
    QTest::newRow("gap") << QStringList{"group_0[3:0]", "group_2[3:0]"} << "group_1";
    QTest::newRow("zero is free") << QStringList{"group_1[3:0]", "group_2[3:0]"} << "group_0";
    QTest::newRow("dense") << QStringList{"group_2[0:0]", "group_0[1:0]", "group_1[2:0]"} << "group_3";
    QTest::newRow("repeats") << QStringList{"group_0[1:0]", "group_0[2:0]", "group_1[0:0]"} << "group_2";
    QTest::newRow("sorted as numbers") << QStringList{"group_10[1:0]", "group_0[1:0]", "group_9[1:0]"} << "group_1";
    QTest::newRow("without a range") << QStringList{"group_0"} << "group_0";
    QTest::newRow("leading zero in the number") << QStringList{"group_00[1:0]"} << "group_0";
    QTest::newRow("leading zero in the range") << QStringList{"group_0[01:0]"} << "group_0";
    QTest::newRow("upper case") << QStringList{"GROUP_0[1:0]"} << "group_0";
    QTest::newRow("prefix") << QStringList{"my_group_0[1:0]"} << "group_0";
    QTest::newRow("suffix") << QStringList{"group_0[1:0]_"} << "group_0";
    QTest::newRow("number beyond any count") << QStringList{"group_99999999999999999999[1:0]"} << "group_0";
}

void TestGroupName::newNameTakesTheFirstFreeNumber()
{
    QFETCH(const QStringList, others);
    QTEST(groupName({{"a", false}, {"b", false}}, others).text, "name");
    QTEST(freeGroupName(others), "name");
}

void TestGroupName::rangeCountsTheMembers()
{
    QCOMPARE(groupRange(8), QString("[7:0]"));
    QCOMPARE(groupRange(1), QString("[0:0]"));
}

QTEST_APPLESS_MAIN(TestGroupName)
#include "tst_groupname.moc"

// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "rules/netsearch.h"

#include "fakes/fakenetlist.h"
#include "support/doubles.h"

#include <netcatcher/rtlnetlist.h>

#include <QtTest>

#include <memory>

using namespace RTLVAK;

using Netlist = std::unique_ptr<NETCATCHER::RtlNetlist>;

/// top: clk, unusable vdd, data[3:0] with unusable data[3]; u1[alu]: cnt; u1/u_add[adder]: nothing; u2[alu]: cnt.
static Netlist netlist()
{
    fakes::Instance top("top");
    top.net("clk").net("vdd", fakes::Unusable).bus("data", 3, 0, fakes::Usable, {3});
    top.child("u1", "alu").net("cnt").child("u_add", "adder");
    top.child("u2", "alu").net("cnt");
    return Netlist(fakes::makeNetlist(top));
}

static QStringList names(const SearchHits &hits)
{
    QStringList result;
    for (const VAK::SignalItem &record : signalItems(hits))
        result.append(record.name);
    return result;
}

/// The nodes of a result with what was found in them, one line each.
static QStringList lines(const HierarchyHits &hits, const QString &indent = {})
{
    QStringList result{indent + hits.node->name() + QLatin1Char(':') + names(hits.hits).join(QLatin1Char(','))};
    for (const HierarchyHits &child : hits.children)
        result += lines(child, indent + QLatin1Char(' '));
    return result;
}

class TestNetSearch : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void patterns_data();
    void patterns();
    void scopeAndSubentries();
    void hierarchyListsEveryNode();
    void nothingWithoutANetlist();
    void errorsOfPatterns();
    void recordsOfNetsAndBuses();
};

void TestNetSearch::initTestCase()
{
    QCOMPARE(support::missingDoubles(), QString());
}

void TestNetSearch::patterns_data()
{
    QTest::addColumn<QString>("mode"); // p plain, w wildcard, r regular expression; an upper case letter: case counts
    QTest::addColumn<QString>("pattern");
    QTest::addColumn<QStringList>("found");

    const QStringList everything{"data[3:0]", "clk", "vdd", "u1/cnt", "u2/cnt"};
    QTest::newRow("empty") << "p"
                           << "" << everything;
    QTest::newRow("empty wildcard") << "w"
                                    << "" << everything;
    QTest::newRow("empty expression") << "r"
                                      << "" << everything;
    QTest::newRow("plain part") << "p"
                                << "cnt" << QStringList{"u1/cnt", "u2/cnt"};
    QTest::newRow("plain part of a bus") << "p"
                                         << "a[3:" << QStringList{"data[3:0]"};
    QTest::newRow("bits are no candidates") << "p"
                                            << "data[1]" << QStringList{};
    QTest::newRow("plain is no pattern") << "p"
                                         << "c?k" << QStringList{};
    QTest::newRow("plain, any case") << "p"
                                     << "CLK" << QStringList{"clk"};
    QTest::newRow("plain, case counts") << "P"
                                        << "CLK" << QStringList{};
    QTest::newRow("wildcard, part") << "w"
                                    << "cnt*" << QStringList{};
    QTest::newRow("wildcard, whole") << "w"
                                     << "*cnt" << QStringList{"u1/cnt", "u2/cnt"};
    QTest::newRow("wildcard, any case") << "w"
                                        << "C?K" << QStringList{"clk"};
    QTest::newRow("wildcard, case counts") << "W"
                                           << "C?K" << QStringList{};
    QTest::newRow("wildcard, escaped") << "w"
                                       << "data\\[*" << QStringList{"data[3:0]"};
    QTest::newRow("expression, part") << "r"
                                      << "cnt" << QStringList{};
    QTest::newRow("expression, whole") << "r"
                                       << "u[12]/c.*" << QStringList{"u1/cnt", "u2/cnt"};
    QTest::newRow("invalid wildcard") << "w"
                                      << "[" << QStringList{};
    QTest::newRow("invalid expression") << "r"
                                        << "(" << QStringList{};
}

void TestNetSearch::patterns()
{
    QFETCH(const QString, mode);
    QFETCH(const QString, pattern);
    SearchCriteria criteria;
    criteria.pattern = pattern;
    criteria.plainText = mode.toLower() == QLatin1String("p");
    criteria.syntax = mode.toLower() == QLatin1String("w") ? QRegExp::WildcardUnix : QRegExp::RegExp;
    criteria.caseSensitive = mode != mode.toLower();
    const Netlist design = netlist();
    QTEST(names(searchFlat(design.get(), criteria)), "found");
}

void TestNetSearch::scopeAndSubentries()
{
    const Netlist design = netlist();
    SearchCriteria criteria;
    criteria.includeSub = false;
    QCOMPARE(names(searchFlat(design.get(), criteria)), QStringList({"data[3:0]", "clk", "vdd"}));
    criteria.scope = design->topHierarchy()->children().at(0);
    QCOMPARE(names(searchFlat(design.get(), criteria)), QStringList({"u1/cnt"}));
    criteria.includeSub = true;
    QCOMPARE(names(searchFlat(design.get(), criteria)), QStringList({"u1/cnt"}));
}

void TestNetSearch::hierarchyListsEveryNode()
{
    const Netlist design = netlist();
    SearchCriteria criteria;
    criteria.pattern = "cnt";
    QCOMPARE(lines(searchHierarchy(design.get(), criteria)),
             QStringList({"top:", " u1:u1/cnt", "  u_add:", " u2:u2/cnt"}));
    criteria.includeSub = false;
    QCOMPARE(lines(searchHierarchy(design.get(), criteria)), QStringList({"top:"}));
    criteria.scope = design->topHierarchy()->children().at(1);
    QCOMPARE(lines(searchHierarchy(design.get(), criteria)), QStringList({"u2:u2/cnt"}));
}

void TestNetSearch::nothingWithoutANetlist()
{
    QVERIFY(names(searchFlat(nullptr, {})).isEmpty());
    QVERIFY(!searchHierarchy(nullptr, {}).node);
}

void TestNetSearch::errorsOfPatterns()
{
    SearchCriteria criteria;
    criteria.pattern = "(";
    QCOMPARE(patternError(criteria), QString());
    criteria.plainText = false;
    QCOMPARE(patternError(criteria), QString()); // a wildcard knows no groups
    criteria.syntax = QRegExp::RegExp;
    QVERIFY(!patternError(criteria).isEmpty());
    criteria.pattern = "(a)";
    QCOMPARE(patternError(criteria), QString());
}

void TestNetSearch::recordsOfNetsAndBuses()
{
    const Netlist design = netlist();
    const QList<VAK::SignalItem> records = signalItems(searchFlat(design.get(), {}));
    VAK::SignalItem bus;
    bus.name = "data[3:0]";
    bus.kind = 1;
    for (const char *bit : {"data[3]", "data[2]", "data[1]", "data[0]"}) {
        bus.members.append(VAK::SignalItem());
        bus.members.last().name = bit;
    }
    bus.members.first().enabled = false;
    QCOMPARE(records.at(0), bus);
    VAK::SignalItem net;
    net.name = "clk";
    QCOMPARE(records.at(1), net);
    net.name = "vdd";
    net.enabled = false;
    QCOMPARE(records.at(2), net);
}

QTEST_MAIN(TestNetSearch)
#include "tst_netsearch.moc"

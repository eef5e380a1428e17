// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "fakes/fakenetlist.h"
#include "support/doubles.h"

#include "rules/netsearch.h"

#include <netcatcher/rtlnetlist.h>

#include <QtTest>

#include <memory>

using RTLVAK::SearchCriteria;
using RTLVAK::SearchHits;

class TestNetSearch : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();

    void emptyPatternListsEverythingOfTheScope();
    void withoutNetlistThereIsNothing();
    void plainTextOccursAnywhere_data();
    void plainTextOccursAnywhere();
    void patternMustMatchTheWholeFullName_data();
    void patternMustMatchTheWholeFullName();
    void caseCountsOnlyOnDemand();
    void busIsMatchedByItsFullNameWithRange();
    void hitsKeepTheLibrarysOrder();
    void scopeLimitsTheSearch();
    void withoutSubentriesOnlyTheScopeIsSearched();
    void invalidPatternIsToldAndFindsNothing_data();
    void invalidPatternIsToldAndFindsNothing();
    void plainTextIsNeverInvalid();
    void hierarchySearchListsEveryNode();
    void hierarchySearchWithoutSubentriesIsOneNode();
    void hierarchySearchBeginsWithTheScope();
    void scopesAreFoundByPath_data();
    void scopesAreFoundByPath();
    void recordOfANet();
    void recordOfABus();
    void recordsHaveBusesFirst();
    void agreesWithTheDefiningCalls_data();
    void agreesWithTheDefiningCalls();

private:
    QStringList names(const SearchCriteria &criteria) const;

    std::unique_ptr<NETCATCHER::RtlNetlist> netlist;
};

static SearchCriteria plain(const QString &pattern)
{
    SearchCriteria criteria;
    criteria.pattern = pattern;
    return criteria;
}

static SearchCriteria wildcard(const QString &pattern)
{
    SearchCriteria criteria = plain(pattern);
    criteria.plainText = false;
    return criteria;
}

static SearchCriteria regExp(const QString &pattern)
{
    SearchCriteria criteria = wildcard(pattern);
    criteria.syntax = QRegExp::RegExp;
    return criteria;
}

static QStringList namesOf(const SearchHits &hits)
{
    QStringList result;
    for (const NETCATCHER::RtlNetBus *bus : hits.buses)
        result.append(bus->fullBusName());
    for (const NETCATCHER::RtlNet *net : hits.nets)
        result.append(net->fullPathName());
    return result;
}

QStringList TestNetSearch::names(const SearchCriteria &criteria) const
{
    return namesOf(RTLVAK::searchFlat(netlist.get(), criteria));
}

void TestNetSearch::initTestCase()
{
    QCOMPARE(support::missingDoubles(), QString());
    fakes::Instance top("soc");
    top.net("clk").net("Reset").bus("cnt", 7, 0).bus("old", 1, 0, fakes::Unusable);
    fakes::Instance &core = top.child("u_core", "core");
    core.net("clk").net("d[3]").bus("cnt", 3, 0).net("dead", fakes::Unusable);
    core.child("u_alu", "alu").net("carry").bus("acc", 0, 3);
    core.child("g[1].u_x", "leafless");
    top.child("u_io", "io").net("pad_cnt").bus("mixed", 2, 0, fakes::Usable, {1});
    netlist.reset(fakes::makeNetlist(top));
}

static const QStringList everything{
    "cnt[7:0]", "old[1:0]",   "u_core/cnt[3:0]", "u_core/u_alu/acc[0:3]", "u_io/mixed[2:0]",    "clk",
    "Reset",    "u_core/clk", "u_core/d[3]",     "u_core/dead",           "u_core/u_alu/carry", "u_io/pad_cnt"};

void TestNetSearch::emptyPatternListsEverythingOfTheScope()
{
    QCOMPARE(names(plain("")), everything);
    QCOMPARE(names(wildcard("")), everything);
    QCOMPARE(names(regExp("")), everything);
}

void TestNetSearch::withoutNetlistThereIsNothing()
{
    QVERIFY(namesOf(RTLVAK::searchFlat(nullptr, plain(""))).isEmpty());
    QCOMPARE(RTLVAK::searchHierarchy(nullptr, plain("")).node, nullptr);
    QCOMPARE(RTLVAK::findScope(nullptr, ""), nullptr);
}

void TestNetSearch::plainTextOccursAnywhere_data()
{
    QTest::addColumn<QString>("pattern");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("begin") << "cnt" << QStringList({"cnt[7:0]", "u_core/cnt[3:0]", "u_io/pad_cnt"});
    QTest::newRow("across the separator") << "core/c" << QStringList({"u_core/cnt[3:0]", "u_core/clk"});
    QTest::newRow("range") << "[3:" << QStringList({"u_core/cnt[3:0]"});
    QTest::newRow("wildcards are plain") << "cnt*" << QStringList();
    QTest::newRow("nothing") << "none" << QStringList();
}

void TestNetSearch::plainTextOccursAnywhere()
{
    QFETCH(QString, pattern);
    QTEST(names(plain(pattern)), "expected");
}

void TestNetSearch::patternMustMatchTheWholeFullName_data()
{
    QTest::addColumn<bool>("isWildcard");
    QTest::addColumn<QString>("pattern");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("wildcard part") << true << "cnt" << QStringList();
    QTest::newRow("wildcard begin") << true << "cnt*" << QStringList({"cnt[7:0]"});
    QTest::newRow("wildcard anywhere") << true << "*cnt*"
                                       << QStringList({"cnt[7:0]", "u_core/cnt[3:0]", "u_io/pad_cnt"});
    QTest::newRow("wildcard set") << true << "u_core/d[3]" << QStringList();
    QTest::newRow("wildcard escape") << true << "u_core/d\\[3\\]" << QStringList({"u_core/d[3]"});
    QTest::newRow("wildcard one") << true << "c?k" << QStringList({"clk"});
    QTest::newRow("regex part") << false << "cnt" << QStringList();
    QTest::newRow("regex whole") << false << ".*cnt.*" << QStringList({"cnt[7:0]", "u_core/cnt[3:0]", "u_io/pad_cnt"});
    QTest::newRow("regex choice") << false << "clk|u_core/clk" << QStringList({"clk", "u_core/clk"});
}

void TestNetSearch::patternMustMatchTheWholeFullName()
{
    QFETCH(bool, isWildcard);
    QFETCH(QString, pattern);
    QTEST(names(isWildcard ? wildcard(pattern) : regExp(pattern)), "expected");
}

void TestNetSearch::caseCountsOnlyOnDemand()
{
    for (SearchCriteria criteria : {plain("reset"), wildcard("reset"), regExp("reset")}) {
        QCOMPARE(names(criteria), QStringList("Reset"));
        criteria.caseSensitive = true;
        QCOMPARE(names(criteria), QStringList());
        criteria.pattern = "Reset";
        QCOMPARE(names(criteria), QStringList("Reset"));
    }
}

void TestNetSearch::busIsMatchedByItsFullNameWithRange()
{
    QCOMPARE(names(wildcard("cnt\\[7:0\\]")), QStringList("cnt[7:0]"));
    QCOMPARE(names(plain("cnt[7]")), QStringList()); // bits of buses are no candidates
}

void TestNetSearch::hitsKeepTheLibrarysOrder()
{
    const SearchHits hits = RTLVAK::searchFlat(netlist.get(), plain(""));
    QCOMPARE(hits.buses, netlist->topHierarchy()->netbusesIncludeSub());
    QCOMPARE(hits.nets, netlist->topHierarchy()->singleNetsIncludeSub());
}

void TestNetSearch::scopeLimitsTheSearch()
{
    SearchCriteria criteria = plain("c");
    criteria.scope = RTLVAK::findScope(netlist.get(), "u_core/u_alu");
    QCOMPARE(names(criteria), QStringList({"u_core/u_alu/acc[0:3]", "u_core/u_alu/carry"}));
}

void TestNetSearch::withoutSubentriesOnlyTheScopeIsSearched()
{
    SearchCriteria criteria = plain("c");
    criteria.includeSub = false;
    QCOMPARE(names(criteria), QStringList({"cnt[7:0]", "clk"}));
    criteria.scope = RTLVAK::findScope(netlist.get(), "u_core");
    QCOMPARE(names(criteria), QStringList({"u_core/cnt[3:0]", "u_core/clk", "u_core/d[3]", "u_core/dead"}));
}

void TestNetSearch::invalidPatternIsToldAndFindsNothing_data()
{
    QTest::addColumn<bool>("isWildcard");
    QTest::addColumn<QString>("pattern");
    QTest::newRow("unclosed group") << false << "(clk";
    QTest::newRow("lazy quantifier") << false << "c.*?";
    QTest::newRow("inline option") << false << "(?i)clk";
    QTest::newRow("unclosed set") << true << "c[lk";
}

void TestNetSearch::invalidPatternIsToldAndFindsNothing()
{
    QFETCH(bool, isWildcard);
    QFETCH(QString, pattern);
    const SearchCriteria criteria = isWildcard ? wildcard(pattern) : regExp(pattern);
    QVERIFY(!RTLVAK::patternError(criteria).isEmpty());
    QCOMPARE(names(criteria), QStringList());
}

void TestNetSearch::plainTextIsNeverInvalid()
{
    QCOMPARE(RTLVAK::patternError(plain("(clk")), QString());
    QCOMPARE(RTLVAK::patternError(wildcard("*clk")), QString());
    QCOMPARE(RTLVAK::patternError(regExp("clk.*")), QString());
}

static QStringList outline(const RTLVAK::HierarchyHits &hits, const QString &indent = {})
{
    QStringList lines{indent + hits.node->name() + ": " + namesOf(hits.hits).join(' ')};
    for (const RTLVAK::HierarchyHits &child : hits.children)
        lines += outline(child, indent + '-');
    return lines;
}

void TestNetSearch::hierarchySearchListsEveryNode()
{
    QCOMPARE(
        outline(RTLVAK::searchHierarchy(netlist.get(), plain("cnt"))),
        QStringList({"soc: cnt[7:0]", "-u_core: u_core/cnt[3:0]", "--u_alu: ", "--g[1].u_x: ", "-u_io: u_io/pad_cnt"}));
    QCOMPARE(outline(RTLVAK::searchHierarchy(netlist.get(), wildcard("clk"))),
             QStringList({"soc: clk", "-u_core: ", "--u_alu: ", "--g[1].u_x: ", "-u_io: "}));
}

void TestNetSearch::hierarchySearchWithoutSubentriesIsOneNode()
{
    SearchCriteria criteria = plain("");
    criteria.includeSub = false;
    QCOMPARE(outline(RTLVAK::searchHierarchy(netlist.get(), criteria)),
             QStringList("soc: cnt[7:0] old[1:0] clk Reset"));
}

void TestNetSearch::hierarchySearchBeginsWithTheScope()
{
    SearchCriteria criteria = plain("carry");
    criteria.scope = RTLVAK::findScope(netlist.get(), "u_core");
    QCOMPARE(outline(RTLVAK::searchHierarchy(netlist.get(), criteria)),
             QStringList({"u_core: ", "-u_alu: u_core/u_alu/carry", "-g[1].u_x: "}));
}

void TestNetSearch::scopesAreFoundByPath_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("module");
    QTest::newRow("empty") << ""
                           << "soc";
    QTest::newRow("top's name") << "soc"
                                << "soc";
    QTest::newRow("child") << "u_core"
                           << "core";
    QTest::newRow("grandchild") << "u_core/u_alu"
                                << "alu";
    QTest::newRow("generate scope") << "u_core/g[1].u_x"
                                    << "leafless";
    QTest::newRow("unknown") << "u_none" << QString();
    QTest::newRow("unknown below") << "u_core/u_none" << QString();
    QTest::newRow("net") << "clk" << QString();
    QTest::newRow("trailing slash") << "u_core/" << QString();
    QTest::newRow("part of a name") << "u_co" << QString();
}

void TestNetSearch::scopesAreFoundByPath()
{
    QFETCH(QString, path);
    const NETCATCHER::Hierachy *node = RTLVAK::findScope(netlist.get(), path);
    QTEST(node ? node->module() : QString(), "module");
}

void TestNetSearch::recordOfANet()
{
    const VAK::SignalItem usable = RTLVAK::signalItem(netlist->findNet("u_core/clk"));
    QCOMPARE(usable.name, QString("u_core/clk"));
    QVERIFY(usable.displayName.isEmpty() && usable.members.isEmpty());
    QVERIFY(usable.enabled && usable.present);
    QCOMPARE(usable.kind, -1);
    QCOMPARE(usable.active, 1);
    const VAK::SignalItem unusable = RTLVAK::signalItem(netlist->findNet("u_core/dead"));
    QVERIFY(!unusable.enabled && unusable.present);
    QCOMPARE(unusable.active, 1);
}

void TestNetSearch::recordOfABus()
{
    const VAK::SignalItem bus = RTLVAK::signalItem(netlist->topHierarchy()->netbusesIncludeSub().last());
    QCOMPARE(bus.name, QString("u_io/mixed[2:0]"));
    QVERIFY(bus.displayName.isEmpty() && bus.enabled && bus.present);
    QCOMPARE(bus.kind, 1);
    QCOMPARE(bus.active, 1);
    QCOMPARE(bus.members.size(), 3);
    QCOMPARE(bus.members[0].name, QString("u_io/mixed[2]"));
    QCOMPARE(bus.members[0].kind, -1);
    QVERIFY(bus.members[0].enabled && !bus.members[1].enabled && bus.members[2].enabled);
    QVERIFY(!RTLVAK::signalItem(netlist->topHierarchy()->netbuses().last()).enabled);
}

void TestNetSearch::recordsHaveBusesFirst()
{
    QStringList listed;
    for (const VAK::SignalItem &item : RTLVAK::signalItems(RTLVAK::searchFlat(netlist.get(), plain(""))))
        listed.append(item.name);
    QCOMPARE(listed, everything);
}

void TestNetSearch::agreesWithTheDefiningCalls_data()
{
    QTest::addColumn<QString>("pattern");
    for (const char *pattern : {"c",
                                "cnt",
                                "*",
                                "*c*",
                                "u_*",
                                "*/c*",
                                "?lk",
                                "[cC]*",
                                "[!c]*",
                                "*[0-9]*",
                                ".*",
                                "c.*",
                                "(clk|cnt).*",
                                "[a-c]+",
                                "\\w+/\\w+",
                                "^clk$",
                                ".{3}",
                                "clk\\b",
                                "u_core/.*\\[3:0\\]",
                                "K",
                                "\\",
                                "[",
                                "a]",
                                "*]"})
        QTest::newRow(pattern) << QString(pattern);
}

void TestNetSearch::agreesWithTheDefiningCalls()
{
    QFETCH(QString, pattern);
    for (int variant = 0; variant < 6; ++variant) {
        SearchCriteria criteria = variant % 3 == 0   ? plain(pattern)
                                  : variant % 3 == 1 ? wildcard(pattern)
                                                     : regExp(pattern);
        criteria.caseSensitive = variant >= 3;
        const Qt::CaseSensitivity sensitivity = criteria.caseSensitive ? Qt::CaseSensitive : Qt::CaseInsensitive;
        const QRegExp expression(pattern, sensitivity, criteria.syntax);
        QStringList expected;
        for (const QString &name : everything) {
            if (criteria.plainText ? name.contains(pattern, sensitivity) : expression.exactMatch(name))
                expected.append(name);
        }
        QCOMPARE(names(criteria), expected);
    }
}

QTEST_GUILESS_MAIN(TestNetSearch)
#include "tst_netsearch.moc"

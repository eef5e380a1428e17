// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "fakes/fakenetlist.h"
#include "support/doubles.h"

#include "rules/netsearch.h"

#include <netcatcher/rtlnetlist.h>

#include <QRandomGenerator>
#include <QtTest>

#include <memory>

using RTLVAK::HierarchyHits;
using RTLVAK::SearchCriteria;
using RTLVAK::SearchHits;

/// Searches by an index beside the calls that define what a search finds.
class TestNetIndex : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();

    void agreesWithTheDefiningCalls_data();
    void agreesWithTheDefiningCalls();
    void textAcrossTheSeamIsFound_data();
    void textAcrossTheSeamIsFound();
    void nameIsFoundOnce();
    void textsMayOccurInThePrefixToo();
    void scopeOfAnotherNetlistIsSearched();
    void netlistAtTheAddressOfAFormerOneHasItsOwnNames();
};

static bool matches(const SearchCriteria &criteria, const QRegExp &expression, const QString &name)
{
    return criteria.pattern.isEmpty() ||
           (criteria.plainText ? name.contains(criteria.pattern, expression.caseSensitivity())
                               : expression.exactMatch(name));
}

static SearchHits select(const SearchCriteria &criteria, const QList<NETCATCHER::RtlNetBus *> &buses,
                         const QList<NETCATCHER::RtlNet *> &nets)
{
    const QRegExp expression(criteria.pattern, criteria.caseSensitive ? Qt::CaseSensitive : Qt::CaseInsensitive,
                             criteria.syntax);
    SearchHits hits;
    for (NETCATCHER::RtlNetBus *bus : buses) {
        if (matches(criteria, expression, bus->fullBusName()))
            hits.buses.append(bus);
    }
    for (NETCATCHER::RtlNet *net : nets) {
        if (matches(criteria, expression, net->fullPathName()))
            hits.nets.append(net);
    }
    return hits;
}

static bool isEqual(const SearchHits &a, const SearchHits &b)
{
    return a.buses == b.buses && a.nets == b.nets;
}

static bool isDefinedResult(const SearchCriteria &criteria, const SearchHits &hits)
{
    const NETCATCHER::Hierachy *scope = criteria.scope;
    return isEqual(hits, criteria.includeSub
                             ? select(criteria, scope->netbusesIncludeSub(), scope->singleNetsIncludeSub())
                             : select(criteria, scope->netbuses(), scope->singleNets()));
}

static bool isDefinedResult(const SearchCriteria &criteria, const HierarchyHits &hits, const NETCATCHER::Hierachy *node)
{
    const QList<NETCATCHER::Hierachy *> children =
        criteria.includeSub ? node->children() : QList<NETCATCHER::Hierachy *>();
    bool isSame = hits.node == node && isEqual(hits.hits, select(criteria, node->netbuses(), node->singleNets())) &&
                  hits.children.size() == children.size();
    for (int i = 0; isSame && i < children.size(); ++i)
        isSame = isDefinedResult(criteria, hits.children[i], children[i]);
    return isSame;
}

/// Netlists and patterns at random, the same in every run.
class Dice
{
public:
    explicit Dice(quint32 seed)
        : generator(seed)
    {
    }

    int below(int limit) { return generator.bounded(limit); }
    bool isOneIn(int count) { return below(count) == 0; }
    QString oneOf(const QStringList &texts) { return texts[below(texts.size())]; }
    QString pieces(const QStringList &texts, int atMost);
    void fill(fakes::Instance *instance, int depth);
    QString pattern(const QStringList &names, int syntax);

    QStringList alphabet; ///< what names are made of

private:
    QRandomGenerator generator;
};

QString Dice::pieces(const QStringList &texts, int atMost)
{
    QString text;
    for (int count = below(atMost + 1); count > 0; --count)
        text += oneOf(texts);
    return text;
}

void Dice::fill(fakes::Instance *instance, int depth)
{
    for (int count = below(8); count > 0; --count)
        instance->net(pieces(alphabet, 4));
    for (int count = below(5); count > 0; --count)
        instance->bus(pieces(alphabet, 3), below(3), below(3));
    if (depth == 0)
        return;
    for (int count = below(4); count > 0; --count) {
        const QString name = pieces(alphabet, 3);
        const QString module = pieces(alphabet, 1);
        fakes::Instance &child = instance->child(name, module);
        fill(&child, depth - 1);
        if (isOneIn(2)) { // another instance of the same module
            fakes::Instance &twin = instance->child(pieces(alphabet, 2), module);
            twin.nets = child.nets;
            twin.buses = child.buses;
        }
    }
}

static const QStringList wildcardPieces{"*", "*", "*", "?", "[a-k]", "[!c]", "[^s]", "[", "]", "\\", "\\*", "\\["};
static const QStringList regExpPieces{".*",    ".*",  ".+",    ".",    "?",     "*",     "+",     "{0,}",   "{1,2}",
                                      "{2}",   "|",   "(",     ")",    "(k|s)", "(?:k)", "(?=c)", "(?!c)",  "[a-k]",
                                      "[^s]+", "[]]", "[\\]]", "[[]",  "\\d",   "\\w+",  "\\b",   "\\1",    "^",
                                      "$",     "\\[", "\\.",   "\\\\", "\\x6b", "\\101", "k?",    "(clk)?", "c{0}"};

/// A piece of a name, changed in some places, often with something of the syntax in it.
QString Dice::pattern(const QStringList &names, int syntax)
{
    const QString name = isOneIn(4) ? pieces(alphabet, 3) : oneOf(names);
    const bool isWhole = syntax != 0 && !isOneIn(4);
    const int begin = isWhole ? 0 : below(name.size() + 1);
    const QStringList &special = syntax == 1 ? wildcardPieces : regExpPieces;
    QString text;
    for (int i = begin; i < name.size() && (isWhole || !isOneIn(8)); ++i) {
        QString part = name.mid(i, 1);
        if (isOneIn(6))
            part = isOneIn(2) ? part.toUpper() : part.toLower();
        if (isOneIn(40))
            part = oneOf(alphabet);
        if (syntax == 2 && !isOneIn(20))
            part = QRegExp::escape(part);
        if (syntax == 1 && QString("*?[]").contains(part) && !isOneIn(4))
            part.prepend('\\');
        text += part;
        if (syntax != 0 && isOneIn(6)) {
            text += oneOf(special);
            i += below(4);
        }
    }
    return isOneIn(60) ? QString() : text;
}

static QStringList namesBelow(const NETCATCHER::Hierachy *top)
{
    QStringList names{"none"};
    const auto nets = top->singleNetsIncludeSub();
    for (const NETCATCHER::RtlNet *net : nets)
        names.append(net->fullPathName());
    const auto buses = top->netbusesIncludeSub();
    for (const NETCATCHER::RtlNetBus *bus : buses)
        names.append(bus->fullBusName());
    return names;
}

static QList<NETCATCHER::Hierachy *> nodesBelow(NETCATCHER::Hierachy *node)
{
    QList<NETCATCHER::Hierachy *> nodes{node};
    const auto children = node->children();
    for (NETCATCHER::Hierachy *child : children)
        nodes += nodesBelow(child);
    return nodes;
}

void TestNetIndex::initTestCase()
{
    QCOMPARE(support::missingDoubles(), QString());
}

void TestNetIndex::agreesWithTheDefiningCalls_data()
{
    const QStringList usual{"c", "clk", "CLK", "k", "s", "S1", "i", "cnt_", "/", "[3]", ".u", "-", "u3"};
    // Folded, some of these are ASCII, or two characters, or differ from their lower case.
    QStringList odd{"ß", "İ", "ı", "ſ", "\u212a", "Σ", "ς", "σ", "é", "É", "\ufb01", "\U00010400", "\U00010428"};
    odd << QChar(0xd801) << QChar(0xdc28) << QChar(0) << QChar(1) << QChar(0x7f) << "\t"
        << " "
        << "*"
        << "\\"
        << "?";
    QTest::addColumn<QStringList>("alphabet");
    QTest::newRow("ASCII") << usual;
    QTest::newRow("mostly ASCII") << usual + usual + usual + usual + odd;
    QTest::newRow("odd") << usual + odd;
}

void TestNetIndex::agreesWithTheDefiningCalls()
{
    QFETCH(QStringList, alphabet);
    Dice dice(20);
    dice.alphabet = alphabet;
    int hits[3] = {0, 0, 0};
    for (int round = 0; round < 40; ++round) {
        fakes::Instance top("top");
        dice.fill(&top, 3);
        const std::unique_ptr<NETCATCHER::RtlNetlist> netlist(fakes::makeNetlist(top));
        const RTLVAK::SearchIndex index(netlist.get());
        const QStringList names = namesBelow(netlist->topHierarchy());
        const QList<NETCATCHER::Hierachy *> nodes = nodesBelow(netlist->topHierarchy());
        for (int search = 0; search < 300; ++search) {
            const int syntax = search % 3;
            SearchCriteria criteria;
            criteria.pattern = dice.pattern(names, syntax);
            criteria.caseSensitive = dice.isOneIn(2);
            criteria.plainText = syntax == 0;
            criteria.syntax = syntax == 1 ? QRegExp::WildcardUnix : QRegExp::RegExp;
            criteria.scope = dice.isOneIn(3) ? nodes[dice.below(nodes.size())] : netlist->topHierarchy();
            criteria.includeSub = !dice.isOneIn(4);
            const SearchHits found = RTLVAK::searchFlat(netlist.get(), criteria);
            hits[syntax] += found.nets.isEmpty() && found.buses.isEmpty() ? 0 : 1;
            const QString what = QString("round %1, search %2: %3").arg(round).arg(search).arg(criteria.pattern);
            QVERIFY2(isDefinedResult(criteria, found), qPrintable(what));
            QVERIFY2(isDefinedResult(criteria, RTLVAK::searchHierarchy(netlist.get(), criteria), criteria.scope),
                     qPrintable(what));
        }
    }
    for (const int count : hits)
        QVERIFY2(count > 700, "most patterns find nothing");
}

void TestNetIndex::textAcrossTheSeamIsFound_data()
{
    QTest::addColumn<QString>("pattern");
    QTest::addColumn<int>("count");
    QTest::newRow("separator") << "/" << 4;
    QTest::newRow("prefix") << "1/u3" << 2;
    QTest::newRow("prefix and separator") << "3/" << 2;
    QTest::newRow("begin of the name") << "u3/s" << 2;
    QTest::newRow("name") << "/s1" << 3;
    QTest::newRow("two instances and the name") << "u1/u3/s11" << 1;
    QTest::newRow("at two places of one prefix") << "3/s1" << 2;
    QTest::newRow("another name") << "u3/s2" << 0;
}

void TestNetIndex::textAcrossTheSeamIsFound()
{
    QFETCH(QString, pattern);
    fakes::Instance top("top");
    top.child("u1", "a").net("clk").child("u3", "b").net("s1").net("s11");
    top.child("u2", "a").net("s1");
    const std::unique_ptr<NETCATCHER::RtlNetlist> netlist(fakes::makeNetlist(top));
    const RTLVAK::SearchIndex index(netlist.get());
    SearchCriteria criteria;
    criteria.pattern = pattern;
    QTEST(RTLVAK::searchFlat(netlist.get(), criteria).nets.size(), "count");
}

void TestNetIndex::nameIsFoundOnce()
{
    fakes::Instance top("top");
    top.child("a/a", "a").net("a/a/a").net("/a/a");
    const std::unique_ptr<NETCATCHER::RtlNetlist> netlist(fakes::makeNetlist(top));
    const RTLVAK::SearchIndex index(netlist.get());
    SearchCriteria criteria;
    for (const char *pattern : {"a", "/a", "a/a", "/a/", "a/a/a", "a/a/a/a"}) {
        criteria.pattern = pattern;
        QVERIFY(RTLVAK::searchFlat(netlist.get(), criteria).nets.size() <= 2);
        QVERIFY(!RTLVAK::searchFlat(netlist.get(), criteria).nets.isEmpty());
    }
}

void TestNetIndex::textsMayOccurInThePrefixToo()
{
    fakes::Instance top("top");
    top.child("u_s", "a").net("q_u").net("q_s").net("r_u");
    const std::unique_ptr<NETCATCHER::RtlNetlist> netlist(fakes::makeNetlist(top));
    const RTLVAK::SearchIndex index(netlist.get());
    SearchCriteria criteria;
    criteria.plainText = false;
    criteria.pattern = "*q*u"; // `q` chooses among the names, `u` is in all of them
    QCOMPARE(RTLVAK::searchFlat(netlist.get(), criteria).nets.size(), 1);
    criteria.pattern = "u_*q_*"; // and the other way round
    QCOMPARE(RTLVAK::searchFlat(netlist.get(), criteria).nets.size(), 2);
}

void TestNetIndex::scopeOfAnotherNetlistIsSearched()
{
    fakes::Instance top("top");
    top.net("clk");
    const std::unique_ptr<NETCATCHER::RtlNetlist> netlist(fakes::makeNetlist(top));
    const std::unique_ptr<NETCATCHER::RtlNetlist> other(fakes::makeNetlist(top));
    const RTLVAK::SearchIndex index(netlist.get());
    SearchCriteria criteria;
    criteria.pattern = "c";
    criteria.scope = other->topHierarchy();
    QCOMPARE(RTLVAK::searchFlat(netlist.get(), criteria).nets, other->topHierarchy()->singleNets());
    QCOMPARE(RTLVAK::searchHierarchy(netlist.get(), criteria).hits.nets, other->topHierarchy()->singleNets());
}

void TestNetIndex::netlistAtTheAddressOfAFormerOneHasItsOwnNames()
{
    for (int i = 0; i < 50; ++i) { // memory that was given back is mostly handed out again
        fakes::Instance top("top");
        top.net(QString("n%1").arg(i));
        const std::unique_ptr<NETCATCHER::RtlNetlist> netlist(fakes::makeNetlist(top));
        const RTLVAK::SearchIndex index(netlist.get());
        SearchCriteria criteria;
        criteria.pattern = QString("n%1").arg(i);
        QCOMPARE(RTLVAK::searchFlat(netlist.get(), criteria).nets, netlist->topHierarchy()->singleNets());
    }
}

QTEST_GUILESS_MAIN(TestNetIndex)
#include "tst_netindex.moc"

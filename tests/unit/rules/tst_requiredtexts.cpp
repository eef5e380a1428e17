// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "rules/search/requiredtexts.h"

#include <QtTest>

using RTLVAK::private_impl::requiredTexts;

class TestRequiredTexts : public QObject
{
    Q_OBJECT

private slots:
    void ofWildcard_data();
    void ofWildcard();
    void ofRegExp_data();
    void ofRegExp();
    void otherSyntaxesAreUnknown();
};

static void addRow(const char *pattern, const QStringList &texts)
{
    QTest::newRow(pattern) << QString::fromUtf8(pattern) << texts;
}

static void addColumns()
{
    QTest::addColumn<QString>("pattern");
    QTest::addColumn<QStringList>("expected");
}

void TestRequiredTexts::ofWildcard_data()
{
    addColumns();
    addRow("clk", {"clk"});
    addRow("*clk*", {"clk"});
    addRow("u_core/*clk?", {"u_core/", "clk"});
    addRow("?*", {});
    addRow("g_lane\\[1\\].sum(0)+|{1}^$", {"g_lane[1].sum(0)+|{1}^$"});
    addRow("a\\*b\\?c", {"a*b?c"});
    addRow("d[3]q", {"d", "q"});
    addRow("d[^3]q", {"d", "q"});
    // Not understood.
    addRow("d[]]q", {});
    addRow("d[^]q", {});
    addRow("d[^]]q", {});
    addRow("d[[3]q", {});
    addRow("d[\\3]q", {});
    addRow("d[3q", {});
    addRow("d]q", {});
    addRow("d\\q", {});
    addRow("d\\\\q", {});
    addRow("d\\", {});
    addRow("*clkß*", {});
}

void TestRequiredTexts::ofWildcard()
{
    QFETCH(QString, pattern);
    QTEST(requiredTexts(pattern, QRegExp::WildcardUnix), "expected");
}

void TestRequiredTexts::ofRegExp_data()
{
    addColumns();
    addRow("clk", {"clk"});
    addRow(".*clk.*", {"clk"});
    addRow("u_core/.*_b\\[7:0\\]", {"u_core/", "_b[7:0]"});
    addRow("^clk$", {"clk"});
    addRow("clk\\b", {"clk"});
    addRow("s\\d+_q", {"s", "_q"});
    addRow("clk?n", {"cl", "n"});
    addRow("clk*n", {"cl", "n"});
    addRow("clk+n", {"clk", "n"});
    addRow("clk{0,}n", {"cl", "n"});
    addRow("clk{2}n", {"cl", "n"});
    addRow("a\\.?b", {"a", "b"});
    addRow("[a-k]clk[^]]", {"clk"});
    addRow("x[]a]y", {"x", "y"});
    addRow("x[\\]a]y", {"x", "y"});
    addRow("x[(]y", {"x", "y"});
    addRow("(clk|rst)_n", {"_n"});
    addRow("(clk)?_n", {"_n"});
    addRow("a(b(c|d))e", {"a", "e"});
    addRow("a([)]|b)e", {"a", "e"});
    addRow("a(\\)|b)e", {"a", "e"});
    addRow("a(?!b)c", {"a", "c"});
    // Not understood.
    addRow("clk|rst", {});
    addRow("a(b", {});
    addRow("ab)", {});
    addRow("ab]", {});
    addRow("ab}", {});
    addRow("[ab", {});
    addRow("([ab", {});
    addRow("a(b\\", {});
    addRow("abc\\", {});
    addRow("*ab", {});
    addRow("{2}ab", {});
    addRow("ab.*?c", {});
    addRow("ab{x}c", {});
    addRow("ab{2", {});
    addRow("ab\\1", {});
    addRow("ab\\x41", {});
    addRow("ab\\101", {});
    addRow("ab\\t", {});
    addRow("clkß", {});
}

void TestRequiredTexts::ofRegExp()
{
    QFETCH(QString, pattern);
    QTEST(requiredTexts(pattern, QRegExp::RegExp), "expected");
}

void TestRequiredTexts::otherSyntaxesAreUnknown()
{
    for (const auto syntax : {QRegExp::RegExp2, QRegExp::Wildcard, QRegExp::FixedString, QRegExp::W3CXmlSchema11})
        QCOMPARE(requiredTexts("clk", syntax), QStringList());
}

QTEST_GUILESS_MAIN(TestRequiredTexts)
#include "tst_requiredtexts.moc"

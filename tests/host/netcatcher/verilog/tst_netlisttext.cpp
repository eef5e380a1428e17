// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "host/netcatcher/netlistprobe.h"

#include "support/tempdir.h"

#include <QtTest>

/// Characters in sources that the engine's result cannot hold as they are.
class TestNetlistText : public QObject
{
    Q_OBJECT

private slots:
    void namesKeepTheirLetters_data();
    void namesKeepTheirLetters();
    void namesInLatin1KeepTheirLetters();
    void stringsMayHoldAnything_data();
    void stringsMayHoldAnything();
    void lineDirectivesMayHoldAnything_data();
    void lineDirectivesMayHoldAnything();
};

static probe::Result build(const QByteArray &source, const QString &top = {})
{
    const support::TempDir dir;
    return probe::build(probe::sources({dir.write("design.sv", source)}, top));
}

void TestNetlistText::namesKeepTheirLetters_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QString>("expected");
    QTest::newRow("UTF-8") << QByteArray("gr\xc3\xb6\xc3\x9f"
                                         "e")
                           << QStringLiteral("gr\u00f6\u00dfe");
    QTest::newRow("UTF-8, three bytes") << QByteArray("\xe4\xbd\xa0") << QStringLiteral("\u4f60");
    QTest::newRow("marks of XML") << QByteArray("<&\"'>") << QString("<&\"'>");
}

void TestNetlistText::namesKeepTheirLetters()
{
    QFETCH(QByteArray, name);
    QFETCH(QString, expected);
    const QByteArray source = "module top (input \\# , input [1:0] \\v# );\nsub \\u# (.\\p# (\\# ));\nendmodule\n"
                              "module sub (input \\p# ); wire w = \\p# ; \\box# b (.\\p# (w)); endmodule\n";
    const probe::Result result = build(QByteArray(source).replace('#', name));
    QCOMPARE(result.messages, QStringList());
    QVERIFY(result.netlist);
    const QStringList rows{"v#[1:0]", "#", "u#/p#", "u#/w"};
    QCOMPARE(probe::rows(*result.netlist), QStringList(rows).replaceInStrings("#", expected));
    const NETCATCHER::Hierachy *sub = result.netlist->topHierarchy()->children().first();
    QCOMPARE(sub->children().first()->module(), "box" + expected);
    const probe::Result asTop = build("module \\" + name + " (input x); endmodule\n", expected);
    QCOMPARE(asTop.modules, QStringList(expected));
    QVERIFY(asTop.netlist);
}

void TestNetlistText::namesInLatin1KeepTheirLetters()
{
    const probe::Result result = build("module top (input \\gr\xf6\xdf ); endmodule\n");
    QCOMPARE(result.messages, QStringList());
    QVERIFY(result.netlist);
    QCOMPARE(probe::rows(*result.netlist), QStringList(QStringLiteral("gr\u00f6\u00df")));
}

void TestNetlistText::stringsMayHoldAnything_data()
{
    QTest::addColumn<QByteArray>("text");
    for (const char *text : {"\\033[31mred\\033[0m", "\\001\\002", "\\000", "\\377", "\x1b", "\xe9", "\x7f", "&#27;"})
        QTest::newRow(QByteArray(text).toPercentEncoding().constData()) << QByteArray(text);
}

void TestNetlistText::stringsMayHoldAnything()
{
    QFETCH(QByteArray, text);
    const QByteArray source = "module top (input x);\nlocalparam S = \"TEXT\";\ninitial $display(\"TEXT\", S);\n"
                              "sub #(.P(\"TEXT\")) u (x);\nendmodule\n"
                              "module sub #(parameter P = \"\") (input x); endmodule\n";
    const probe::Result result = build(QByteArray(source).replace("TEXT", text));
    QCOMPARE(result.messages, QStringList());
    QVERIFY(result.netlist);
    QCOMPARE(probe::rows(*result.netlist), QStringList({"x", "u/x"}));
}

void TestNetlistText::lineDirectivesMayHoldAnything_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::newRow("Latin-1") << QByteArray("/gen/\xe9.v");
    QTest::newRow("UTF-8") << QByteArray("/gen/\xc3\xa9.v");
    QTest::newRow("control character") << QByteArray("/gen/\x01.v");
}

void TestNetlistText::lineDirectivesMayHoldAnything()
{
    QFETCH(QByteArray, name);
    const probe::Result result = build("`line 3 \"" + name + "\" 0\nmodule top (input x); endmodule\n");
    QCOMPARE(result.messages, QStringList());
    QVERIFY(result.netlist);
}

QTEST_GUILESS_MAIN(TestNetlistText)
#include "tst_netlisttext.moc"

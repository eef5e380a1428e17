// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "hostilenames.h"

#include <QtTest>

constexpr int maxNameBytes = 255;

QString probe::withSuffix(const QString &name, const QString &suffix)
{
    return name.left(maxNameBytes - suffix.size()) + suffix;
}

void probe::hostileNames()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("blank") << "a b";
    QTest::newRow("leading blank") << " a";
    QTest::newRow("double quote") << "a\"b";
    QTest::newRow("single quote") << "a'b";
    QTest::newRow("command substitution") << "$(touch canary)";
    QTest::newRow("backtick") << "`touch canary`";
    QTest::newRow("semicolon") << "a;touch canary";
    QTest::newRow("ampersand") << "a&touch canary";
    QTest::newRow("pipe") << "a|touch canary";
    QTest::newRow("newline") << "a\ntouch canary";
    QTest::newRow("tabulator") << "a\tb";
    QTest::newRow("leading minus") << "--version";
    QTest::newRow("leading plus") << "+define+X";
    QTest::newRow("percent") << "%Error: a%s%n";
    QTest::newRow("star") << "*";
    QTest::newRow("question mark and bracket") << "?[a";
    QTest::newRow("backslash") << "a\\nb";
    QTest::newRow("non-ASCII") << QStringLiteral("gr\u00f6\u00dfe\u4f60");
    QTest::newRow("long") << QString(maxNameBytes, QLatin1Char('n'));
    QTest::newRow("option") << "-f list";
    QTest::newRow("braces") << "${HOME}{a,b}";
}

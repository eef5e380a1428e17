// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "rules/expressioncheck.h"

#include <QMap>
#include <QtTest>

#include <functional>

using RTLVAK::isTriggerExpression;
using RTLVAK::private_impl::operatorPrecedence;
using RTLVAK::private_impl::toPostfix;

/// Splits a text like `M0&(M10|!M2)` into its tokens.
static QStringList tokensOf(const QString &text)
{
    QStringList tokens;
    for (const QChar c : text) {
        if (c.isDigit())
            tokens.last().append(c);
        else
            tokens.append(c);
    }
    return tokens;
}

namespace {

/// The language that a person would write down for trigger expressions, by recursive descent:
///     sequence := operand ('&' operand)*        operand := '!'? primary        primary := 'M0' | '(' sequence ')'
/// Written apart from the checked code, and over the one operator that the enumeration uses.
class Grammar
{
public:
    explicit Grammar(const QStringList &tokens)
        : input(tokens)
    {
    }

    bool accepts() { return sequence() && position == input.size(); }

private:
    bool take(const char *token)
    {
        if (position >= input.size() || input.at(position) != QLatin1String(token))
            return false;
        ++position;
        return true;
    }
    bool sequence()
    {
        if (!operand())
            return false;
        while (take("&")) {
            if (!operand())
                return false;
        }
        return true;
    }
    bool operand()
    {
        take("!");
        return take("M0") || (take("(") && sequence() && take(")"));
    }

    QStringList input;
    int position = 0;
};

} // namespace

/// Calls `visit` with every sequence of 1 to `longest` tokens of the alphabet.
static void forEachSequence(int longest, const std::function<void(const QStringList &)> &visit)
{
    static const QStringList alphabet{"M0", "&", "!", "(", ")"};
    const std::function<void(QStringList)> extend = [&](const QStringList &tokens) {
        if (!tokens.isEmpty())
            visit(tokens);
        if (tokens.size() < longest) {
            for (const QString &token : alphabet)
                extend(tokens + QStringList{token});
        }
    };
    extend({});
}

/// What lets a malformed sequence pass, read off the text alone. The check counts operands only at the end, so an
/// operator that lacks one on one side is made good by two operands that stand side by side elsewhere.
static QString kindOf(const QStringList &tokens)
{
    const QString text = tokens.join(QString());
    if (text.startsWith("&"))
        return "an operator lacks its left operand";
    if (text.contains("&)"))
        return "an operator lacks its right operand before a bracket";
    if (text.contains("!!"))
        return "the first half of a doubled negation lands on the operand before it";
    return "unexplained";
}

class tst_ExpressionCheck : public QObject
{
    Q_OBJECT

private slots:
    void precedence();
    void expressions_data();
    void expressions();
    void postfixOrder_data();
    void postfixOrder();
    void unmatchedBracketsAreLogged();
    void againstAGrammar();
};

void tst_ExpressionCheck::precedence()
{
    QCOMPARE(operatorPrecedence("|"), 1);
    QCOMPARE(operatorPrecedence("^"), 2);
    QCOMPARE(operatorPrecedence("&"), 3);
    QCOMPARE(operatorPrecedence("!"), 4);
    for (const char *other : {"M0", "(", ")", ""})
        QCOMPARE(operatorPrecedence(other), 0);
}

void tst_ExpressionCheck::expressions_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("accepted");

    for (const char *right : {"M0", "M15", "M0&M1|M2", "M0|M1^M2&M3", "!M0&M1", "M0&!(M1|M2)", "((M3))", "!(M0)",
                              "M0&!M1", "M1^(M2&M3)|M4"})
        QTest::newRow(right) << QString(right) << true;
    for (const char *wrong :
         {"M0&",    "M0|",    "M0^",   "M0!",  "&M0",    "(M0", "M0)", ")M0(", "()", "!!M0",  "M0M1",
          "M0(M1)", "M0&|M1", "(&M0)", "!&M0", "M0&(!)", "!",   "&",   "(",    ")",  "M0!M1", "M0&()"})
        QTest::newRow(wrong) << QString(wrong) << false;
    QTest::newRow("the empty expression") << QString() << false;
    // Kept although no grammar would agree.
    QTest::newRow("M0&!!M1 slips through") << QString("M0&!!M1") << true;
    QTest::newRow("&M0(M1) slips through") << QString("&M0(M1)") << true;
}

void tst_ExpressionCheck::expressions()
{
    QFETCH(QString, text);
    QFETCH(bool, accepted);
    QCOMPARE(isTriggerExpression(tokensOf(text)), accepted);
}

void tst_ExpressionCheck::postfixOrder_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("postfix");

    QTest::newRow("and before or") << "M0&M1|M2"
                                   << "M0 M1 & M2 |";
    QTest::newRow("all four") << "M0|M1^M2&!M3"
                              << "M0 M1 M2 M3 ! & ^ |";
    QTest::newRow("equal precedence leaves first") << "M0&M1&M2"
                                                   << "M0 M1 & M2 &";
    QTest::newRow("brackets") << "M0&(M1|M2)"
                              << "M0 M1 M2 | &";
    QTest::newRow("negation leaves first too") << "!!M0"
                                               << "! M0 !";
    QTest::newRow("missing opening bracket") << "M0)"
                                             << "";
    QTest::newRow("missing closing bracket") << "(M0"
                                             << "";
}

void tst_ExpressionCheck::postfixOrder()
{
    QFETCH(QString, text);
    QFETCH(QString, postfix);
    QCOMPARE(toPostfix(tokensOf(text)).join(QLatin1Char(' ')), postfix);
}

void tst_ExpressionCheck::unmatchedBracketsAreLogged()
{
    QTest::ignoreMessage(QtDebugMsg, "bracket unmatched");
    QVERIFY(!isTriggerExpression(tokensOf("M0)")));
    QTest::ignoreMessage(QtDebugMsg, " bracket unmatched");
    QVERIFY(!isTriggerExpression(tokensOf("(M0")));
}

void tst_ExpressionCheck::againstAGrammar()
{
    const QtMessageHandler previous =
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    int sequences = 0;
    int both = 0;
    QStringList refusedThoughRight;
    QMap<QString, int> acceptedThoughWrong;
    forEachSequence(6, [&](const QStringList &tokens) {
        ++sequences;
        const bool accepted = isTriggerExpression(tokens);
        const bool right = Grammar(tokens).accepts();
        both += accepted && right;
        if (right && !accepted)
            refusedThoughRight.append(tokens.join(QString()));
        if (accepted && !right)
            ++acceptedThoughWrong[kindOf(tokens)];
    });
    qInstallMessageHandler(previous);

    QCOMPARE(sequences, 5 + 25 + 125 + 625 + 3125 + 15625);
    QCOMPARE(refusedThoughRight, QStringList());
    QCOMPARE(both, 30);
    const QMap<QString, int> expected{{"an operator lacks its left operand", 15},
                                      {"an operator lacks its right operand before a bracket", 5},
                                      {"the first half of a doubled negation lands on the operand before it", 3}};
    QCOMPARE(acceptedThoughWrong, expected);
}

QTEST_APPLESS_MAIN(tst_ExpressionCheck)

#include "tst_expressioncheck.moc"

// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "rules/expressioncheck.h"

#include <QDebug>

namespace RTLVAK {

static bool isMatchUnit(const QString &token)
{
    return token.startsWith(QLatin1Char('M'));
}

static bool isBinaryOperator(const QString &token)
{
    return token == QLatin1String("&") || token == QLatin1String("|") || token == QLatin1String("^");
}

static bool isNegation(const QString &token)
{
    return token == QLatin1String("!");
}

static bool isOpening(const QString &token)
{
    return token == QLatin1String("(");
}

static bool isClosing(const QString &token)
{
    return token == QLatin1String(")");
}

static bool mayFollow(const QString &previous, const QString &current)
{
    if (isNegation(current))
        return true; // deliberately never held against what stands before it
    if (isMatchUnit(previous) && isMatchUnit(current))
        return false;
    const bool awaitsOperand = isOpening(previous) || isNegation(previous);
    if (isBinaryOperator(current))
        return !awaitsOperand && !isBinaryOperator(previous);
    return !(isClosing(current) && awaitsOperand);
}

static bool neighboursFit(const QStringList &tokens)
{
    for (int i = 1; i < tokens.size(); ++i) {
        if (!mayFollow(tokens.at(i - 1), tokens.at(i)))
            return false;
    }
    return true;
}

/// Whether a machine with a stack can evaluate the postfix list to exactly one value.
static bool isEvaluable(const QStringList &postfix)
{
    int depth = 0;
    for (const QString &token : postfix) {
        const int operands = isMatchUnit(token) ? 0 : isNegation(token) ? 1 : 2;
        if (depth < operands)
            return false;
        depth += 1 - operands;
    }
    return depth == 1;
}

bool isTriggerExpression(const QStringList &tokens)
{
    if (tokens.isEmpty())
        return false;
    if (isBinaryOperator(tokens.last()) || isNegation(tokens.last()))
        return false;
    if (!neighboursFit(tokens))
        return false;
    const QStringList postfix = private_impl::toPostfix(tokens);
    return !postfix.isEmpty() && isEvaluable(postfix);
}

namespace private_impl {

int operatorPrecedence(const QString &token)
{
    if (isNegation(token))
        return 4;
    return QStringList{QStringLiteral("|"), QStringLiteral("^"), QStringLiteral("&")}.indexOf(token) + 1;
}

/// Moves operators from the stack to the output until an opening bracket is on top, and drops that. False when there is
/// none.
static bool closeBracket(QStringList *operators, QStringList *output)
{
    while (!operators->isEmpty()) {
        const QString top = operators->takeLast();
        if (isOpening(top))
            return true;
        output->append(top);
    }
    return false;
}

static void pushOperator(const QString &token, QStringList *operators, QStringList *output)
{
    while (!operators->isEmpty() && !isOpening(operators->last()) &&
           operatorPrecedence(token) <= operatorPrecedence(operators->last()))
        output->append(operators->takeLast());
    operators->append(token);
}

QStringList toPostfix(const QStringList &tokens)
{
    QStringList output;
    QStringList operators;
    for (const QString &token : tokens) {
        if (isMatchUnit(token)) {
            output.append(token);
        } else if (isOpening(token)) {
            operators.append(token);
        } else if (!isClosing(token)) {
            pushOperator(token, &operators, &output);
        } else if (!closeBracket(&operators, &output)) {
            qDebug("bracket unmatched");
            return {};
        }
    }
    while (!operators.isEmpty()) {
        if (isOpening(operators.last())) {
            qDebug(" bracket unmatched");
            return {};
        }
        output.append(operators.takeLast());
    }
    return output;
}

} // namespace private_impl
} // namespace RTLVAK

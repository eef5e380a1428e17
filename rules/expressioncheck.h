// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QStringList>

namespace RTLVAK {

/// Whether the tokens form a trigger expression. A token is one of "M0" .. "M15", "&", "|", "^", "!", "(" and ")".
///
/// "!" is treated like a left-associative operator, so that a doubled negation at the start of an operand that nothing
/// precedes ("!!M0") is refused. The check is kept as it is, also where it lets a sequence pass that a grammar would
/// refuse ("M0&!!M1", "&M0(M1)"): files and habits rely on it.
bool isTriggerExpression(const QStringList &tokens);

namespace private_impl {

/// How tightly an operator binds: "|" 1, "^" 2, "&" 3, "!" 4, anything else 0.
int operatorPrecedence(const QString &token);

/// The tokens in postfix order; empty when the brackets do not match.
QStringList toPostfix(const QStringList &tokens);

} // namespace private_impl
} // namespace RTLVAK

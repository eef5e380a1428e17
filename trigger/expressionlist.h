// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QStringList>

class QListWidget;

namespace RTLVAK::private_impl {

/// Appends a row that is in force.
void appendExpression(QListWidget *list, const QString &expression);
/// Paints grey, in Dynamic mode, the rows that are out of force there, and says why; all others black.
void markExpressions(QListWidget *list, bool dynamic);
/// The texts of the rows that are not grey, in order.
QStringList expressionsInForce(const QListWidget *list);

} // namespace RTLVAK::private_impl

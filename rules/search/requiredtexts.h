// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QRegExp>
#include <QString>
#include <QStringList>

namespace RTLVAK::private_impl {

/// Texts of printable ASCII that every name which the valid pattern matches as a whole must hold, in any case where
/// case does not count. It is always right to know none: what is not surely understood gives none.
QStringList requiredTexts(const QString &pattern, QRegExp::PatternSyntax syntax);

} // namespace RTLVAK::private_impl

// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QString>

namespace probe {

/// Rows of test data with one column, `name`: names that something could mistake for more than a name. Commands in them
/// would leave a file named "canary" in the working folder.
void hostileNames();

/// A file name; the longest names have no room for a suffix and are cut.
QString withSuffix(const QString &name, const QString &suffix);

} // namespace probe

// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QString>

namespace NETCATCHER {

/// Why an engine cannot be given the file at `path`, as a sentence; empty when it can.
QString problemWithSource(const QString &path);

} // namespace NETCATCHER

// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <netcatcher/rtlnetlist.h>

#include <QString>

namespace RTLVAK {

/// `soc: 412 nets to choose from (300 single, 112 buses), 3,120 bits`: one line for people about the design below
/// `top`.
QString countsLine(const QString &top, const NETCATCHER::NetCounts &counts);

} // namespace RTLVAK

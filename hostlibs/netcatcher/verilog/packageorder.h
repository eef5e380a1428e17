// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "hdlscan.h"

namespace NETCATCHER {

/// The order in which files have to be read so that packages precede their users: indices into `scans`. Files that are
/// in no such relation keep their order.
QVector<int> packageOrder(const QVector<HdlScan> &scans);

} // namespace NETCATCHER

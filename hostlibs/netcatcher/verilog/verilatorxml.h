// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "rawdesign.h"

#include <QString>

#include <functional>

class QIODevice;

namespace NETCATCHER {

/// Reads Verilator's XML as a stream: declarations whole, bodies only for the variables that they name. False, with
/// `error` set, for text that is not such a file or ends early. `progress` hears how many bytes were read.
bool readVerilatorXml(QIODevice &device, RawDesign &design, const std::function<void(qint64)> &progress,
                      QString *error);

} // namespace NETCATCHER

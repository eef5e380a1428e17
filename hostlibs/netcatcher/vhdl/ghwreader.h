// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "ghwdesign.h"

#include <QString>

namespace NETCATCHER {

/// Reads what a GHW file (GHDL's `--wave`) says about the design; the waveforms behind it are not looked at. Versions 0
/// and 1, either order of bytes. `bytes` may be anything, and may stay in a mapped file (QByteArray::fromRawData).
/// False with an English text behind `error` that says which byte is wrong; `design` is then empty.
bool readGhw(const QByteArray &bytes, GhwDesign *design, QString *error);

} // namespace NETCATCHER

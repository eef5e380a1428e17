// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QString>

namespace support {

/// Says which of the four scripted host libraries the program did not get; empty when it got them all. Programs that
/// are linked with the doubles check it before anything else (doublesguard.cpp).
QString missingDoubles();

/// The canonical path of the library or program that holds `address`.
QString libraryOf(const void *address);

} // namespace support

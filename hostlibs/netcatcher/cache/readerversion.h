// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QByteArray>

namespace NETCATCHER {

/// Stands for the source text of this library, whatever it was built for: programs with the same one read designs
/// alike.
QByteArray readerVersion();

} // namespace NETCATCHER

// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QByteArray>

#include <functional>

namespace support {

/// The version of Landlock's interface that this kernel offers; 0: none.
long landlockVersion();

/// From now on, and for good, the kernel tells this process and those that it starts that it has no Landlock. Safe
/// between fork and exec.
bool hideLandlock();

/// From now on, and for good, the kernel claims to offer this version of Landlock's interface. What it then does is
/// its own, so that only versions up to its real one make sense. 0 hides it.
bool claimLandlockVersion(long version);

/// Enters as many Landlock rule sets as one process can be in, so that it can enter no more. They forbid nothing but
/// new sockets in the file system.
void exhaustLandlock();

/// Calls a function in a child process and gives its answer back; null when the child did not survive it.
QByteArray inChild(const std::function<QByteArray()> &function);

/// The warning of the netlist library where there is no Landlock.
extern const char noLandlockWarning[];

} // namespace support

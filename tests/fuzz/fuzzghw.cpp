// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

// libFuzzer: whatever the bytes are, the reader answers with a design that keeps its promises or with an error and
// nothing.

#include "hostlibs/netcatcher/vhdl/ghwreader.h"
#include "tests/host/netcatcher/ghwprobe.h"

#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), int(size));
    NETCATCHER::GhwDesign design;
    QString error;
    const bool isGood = NETCATCHER::readGhw(bytes, &design, &error);
    if (isGood != error.isEmpty() || isGood == design.scopes.empty() || !probe::brokenPromise(design).isEmpty())
        std::abort();
    return 0;
}

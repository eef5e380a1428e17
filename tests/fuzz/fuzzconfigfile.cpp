// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

// libFuzzer: whatever the bytes are, the reader answers with cores or with an error that has a place, and what it
// accepted is written in a form that it reads again and writes alike.

#include "hostlibs/vakutils/corereader.h"
#include "hostlibs/vakutils/corewriter.h"

#include <VakUtils/aocore.h>
#include <VakUtils/aocorelite.h>

#include <cstdint>
#include <cstdlib>

using namespace VAK;

template <class Core>
static void check(const QByteArray &text, QList<Core *> (*read)(const QByteArray &, Checks, FileError *),
                  QByteArray (*write)(const QList<Core *> &))
{
    FileError error;
    const QList<Core *> cores = read(text, Checks::StructureAndValues, &error);
    if (error.isSet()) {
        if (error.line <= 0 || error.column <= 0 || !cores.isEmpty())
            std::abort();
        return;
    }
    const QByteArray written = write(cores);
    const QList<Core *> again = read(written, Checks::StructureAndValues, &error);
    if (error.isSet() || write(again) != written)
        std::abort();
    qDeleteAll(cores);
    qDeleteAll(again);
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray text(reinterpret_cast<const char *>(data), int(size));
    check<AoCore>(text, readStandardCores, standardFile);
    check<AOCore_Lite>(text, readLiteCores, liteFile);
    modeOf(text);
    return 0;
}

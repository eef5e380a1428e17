// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "fileinterception.h"

#include <VakUtils/vakfile.h>

#include <dlfcn.h>

namespace support {

static WriteDecision writeDecision;

void interceptWrites(const WriteDecision &decision)
{
    writeDecision = decision;
}

} // namespace support

namespace VAK {

/// Found before the library's function of the same name, since the program comes first in the search.
bool writeVAKConfigToXml(const QList<VAK::AoCore *> &cores, const QString &path)
{
    using Writer = bool (*)(const QList<VAK::AoCore *> &, const QString &);
    static const auto writer =
        reinterpret_cast<Writer>(dlsym(RTLD_NEXT, "_ZN3VAK19writeVAKConfigToXmlERK5QListIPNS_6AoCoreEERK7QString"));
    if (!writer)
        qFatal("the library's writer was not found");
    if (support::writeDecision && !support::writeDecision(cores, path))
        return false;
    return writer(cores, path);
}

} // namespace VAK

// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "fileinterception.h"

#include <VakUtils/aocore.h>
#include <VakUtils/aocorelite.h>
#include <VakUtils/vakfile.h>

#include <dlfcn.h>

namespace support {

static WriteDecision writeDecision;

void interceptWrites(const WriteDecision &decision)
{
    writeDecision = decision;
}

template <class Core>
static bool decideAndWrite(const QList<Core *> &cores, const QString &path, const char *symbol)
{
    using Writer = bool (*)(const QList<Core *> &, const QString &);
    const auto writer = reinterpret_cast<Writer>(dlsym(RTLD_NEXT, symbol));
    if (!writer)
        qFatal("the library's writer was not found");
    QStringList described;
    for (const Core *core : cores)
        described += QString("%1 %2").arg(core->index()).arg(core->moduleName());
    return (!writeDecision || writeDecision(described, path)) && writer(cores, path);
}

} // namespace support

namespace VAK {

// Found before the library's functions of the same names, since the program comes first in the search.

bool writeVAKConfigToXml(const QList<VAK::AoCore *> &cores, const QString &path)
{
    return support::decideAndWrite(cores, path, "_ZN3VAK19writeVAKConfigToXmlERK5QListIPNS_6AoCoreEERK7QString");
}

bool writeVAKConfigToXml_Lite(const QList<VAK::AOCore_Lite *> &cores, const QString &path)
{
    return support::decideAndWrite(cores, path,
                                   "_ZN3VAK24writeVAKConfigToXml_LiteERK5QListIPNS_11AOCore_LiteEERK7QString");
}

} // namespace VAK

// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "rawdesign.h"

#include "hostlibs/netcatcher/store/moduletable.h"

#include <QSet>
#include <QStringList>

#include <functional>

namespace NETCATCHER {

/// What the expansion has to know beside the design itself.
struct ExpansionOptions
{
    bool isPart = false;                               ///< see DesignSources
    QByteArray top;                                    ///< key of the module where the hierarchy begins
    std::function<bool(const RawModule &)> isBlackBox; ///< whether a module is a stand-in for a missing source
    QHash<QByteArray, QSet<QByteArray>> genvars;       ///< names that the sources declare as genvar, by module
};

/// Turns modules and types into tables of nets and buses: which variables are nets, under which names, and which of
/// them cannot be used. Keeps only what the top reaches. Adds a line to `warnings` for each bus that is too wide.
ModuleTable expandDesign(const RawDesign &design, const ExpansionOptions &options, QStringList *warnings);

} // namespace NETCATCHER

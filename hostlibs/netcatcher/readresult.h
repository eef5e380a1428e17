// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "hostlibs/netcatcher/store/moduletable.h"

#include <QStringList>

#include <optional>

namespace NETCATCHER {

/// What reading a design gave.
struct ReadResult
{
    QStringList tops;
    QStringList modules;
    QStringList messages;             ///< lines that begin with "ERROR" or "WARNING"
    std::optional<ModuleTable> table; ///< of the only top; none when there are several

    /// The first line that begins with "ERROR"; null when there is none.
    const QString *firstError() const;
};

} // namespace NETCATCHER

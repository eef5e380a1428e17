// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "moduletable.h"

#include <string_view>
#include <vector>

namespace NETCATCHER {

/// The instances that a module declares, to be found by the beginning of a path.
class ChildIndex
{
public:
    /// `offsets`: how far behind an instance of the module each child lies among all instances of the design.
    ChildIndex(const std::vector<ModuleDef::Child> &children, std::vector<quint32> offsets);

    struct Step
    {
        quint32 child;      ///< its number in the module
        quint32 offset;     ///< from the parent's instance to its own
        quint32 nameLength; ///< the rest of the path comes after it and a slash
    };
    /// The children whose name and a slash `path` begins with, in the order of the source. An escaped name may hold
    /// slashes itself, so that there can be several.
    std::vector<Step> firstSteps(const std::vector<ModuleDef::Child> &children, std::string_view path) const;

private:
    std::vector<quint32> m_offsets;
    std::vector<quint32> m_order; ///< numbers of children sorted by name
};

} // namespace NETCATCHER

// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QByteArray>

#include <vector>

namespace NETCATCHER {

/// One line of the hierarchy that GHDL prints.
struct GhdlNode
{
    QByteArray name; ///< in lower case, with the parameter of a round: `g_lane(1)`
    QByteArray kind; ///< `entity`, `arch`, `instance`, `for-generate`, ...
    std::vector<int> children;
};

/// The hierarchy that GHDL prints after elaboration: which entity and architecture stand behind each instance.
struct GhdlTree
{
    std::vector<GhdlNode> nodes; ///< in the order of the lines, parents first
    int top = -1;                ///< the first entity that stands in no other node

    /// The child of `node` with this kind; -1 when there is none, or no such node.
    int childOfKind(int node, const char *kind) const;
    /// The child with this name, looked for from place `from` among the children on, since rounds come in order.
    int childNamed(int node, const QByteArray &name, int *from) const;
};

/// Takes the lines of the hierarchy out of what the engine wrote; other lines are skipped.
GhdlTree parseGhdlTree(const QByteArray &output);

} // namespace NETCATCHER

// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "ghwdesign.h"

namespace NETCATCHER {

class GhwCursor;
class GhwTypes;

/// Reads the scopes and signals of a GHW file into a design.
class GhwHierarchy
{
public:
    /// All three must outlive it.
    GhwHierarchy(GhwCursor &in, GhwTypes &types, GhwDesign &design);

    /// The section behind its tag. No leaf's number may be above `maxLeaf`.
    bool read(quint32 maxLeaf);

private:
    bool readEntry(quint8 code);
    bool readScope(GhwScope::Kind kind);
    bool endScope();
    bool readProcess();
    bool readSignal(GhwSignal::Kind kind);
    bool readLeaves(GhwSignal *signal);
    bool addLeaf(GhwSignal *signal, quint32 leaf);
    bool addScope(GhwScope scope);

    GhwCursor &m_in;
    GhwTypes &m_types;
    GhwDesign &m_design;
    int m_current = 0; ///< the scope that is open
    int m_depth = 0;
    quint32 m_maxLeaf = 0;
    size_t m_signals = 0;
};

} // namespace NETCATCHER

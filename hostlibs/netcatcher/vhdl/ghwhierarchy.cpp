// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "ghwhierarchy.h"

#include "ghwcursor.h"
#include "ghwtypes.h"

namespace NETCATCHER {

/// What an entry of the hierarchy is. Signals are from FirstSignal on, in the order of GhwSignal::Kind.
enum EntryCode : quint8 {
    EndOfHierarchy = 0,
    DesignEntry = 1,
    BlockEntry = 3,
    IfGenerateEntry = 4,
    ForGenerateEntry = 5,
    InstanceEntry = 6,
    PackageEntry = 7,
    ProcessEntry = 13,
    EndOfScope = 15,
    FirstSignal = 16,
    LastSignal = 21,
};

/// Far above any design that the engine gets through; entries are larger than the bytes that a forged file spends on
/// them.
static constexpr size_t maxScopes = 1 << 21;
static constexpr size_t maxSignals = 1 << 22;
static constexpr size_t maxRuns = 1 << 24;
/// Whoever follows the scopes may recurse.
static constexpr int maxDepth = 1000;

GhwHierarchy::GhwHierarchy(GhwCursor &in, GhwTypes &types, GhwDesign &design)
    : m_in(in)
    , m_types(types)
    , m_design(design)
{
}

bool GhwHierarchy::read(quint32 maxLeaf)
{
    m_maxLeaf = maxLeaf;
    m_design.scopes.emplace_back();
    while (const quint8 code = m_in.takeByte()) {
        if (!readEntry(code))
            return false;
    }
    if (m_in.isGood() && m_current != 0)
        return m_in.fail(QStringLiteral("a scope does not end"));
    return m_in.isGood();
}

bool GhwHierarchy::readEntry(quint8 code)
{
    switch (code) {
    case DesignEntry:
        return readScope(GhwScope::Design);
    case BlockEntry:
        return readScope(GhwScope::Block);
    case IfGenerateEntry:
        return readScope(GhwScope::IfGenerate);
    case ForGenerateEntry:
        return readScope(GhwScope::ForGenerate);
    case InstanceEntry:
        return readScope(GhwScope::Instance);
    case PackageEntry:
        return readScope(GhwScope::Package);
    case ProcessEntry:
        return readProcess();
    case EndOfScope:
        return endScope();
    default:
        if (code >= FirstSignal && code <= LastSignal)
            return readSignal(GhwSignal::Kind(code - FirstSignal));
        return m_in.fail(QStringLiteral("nothing in a hierarchy is of kind %1").arg(code));
    }
}

bool GhwHierarchy::addScope(GhwScope scope)
{
    if (!m_in.isGood())
        return false;
    if (m_design.scopes.size() == maxScopes)
        return m_in.fail(QStringLiteral("there are too many scopes"));
    scope.parent = m_current;
    m_design.scopes[size_t(m_current)].children.push_back(int(m_design.scopes.size()));
    m_design.scopes.push_back(std::move(scope));
    return true;
}

bool GhwHierarchy::readScope(GhwScope::Kind kind)
{
    GhwScope scope;
    scope.kind = kind;
    scope.name = m_types.takeName();
    if (kind == GhwScope::ForGenerate) {
        const int type = m_types.takeType();
        const qint64 value = m_types.takeValue(type);
        if (m_in.isGood())
            scope.index = m_design.indexTextOf(type, value);
    }
    if (!addScope(std::move(scope)))
        return false;
    if (++m_depth > maxDepth)
        return m_in.fail(QStringLiteral("scopes nest too deep"));
    m_current = int(m_design.scopes.size()) - 1;
    return true;
}

bool GhwHierarchy::endScope()
{
    if (m_current == 0)
        return m_in.fail(QStringLiteral("a scope ends that did not begin"));
    m_current = m_design.scopes[size_t(m_current)].parent;
    --m_depth;
    return true;
}

bool GhwHierarchy::readProcess()
{
    // Nothing is in a process, and so it has no end.
    GhwScope scope;
    scope.kind = GhwScope::Process;
    scope.name = m_types.takeName();
    return addScope(std::move(scope));
}

bool GhwHierarchy::readSignal(GhwSignal::Kind kind)
{
    if (++m_signals > maxSignals)
        return m_in.fail(QStringLiteral("there are too many signals"));
    GhwSignal signal;
    signal.kind = kind;
    signal.name = m_types.takeName();
    signal.type = m_types.takeType();
    if (!readLeaves(&signal))
        return false;
    m_design.scopes[size_t(m_current)].signalList.push_back(std::move(signal));
    return true;
}

bool GhwHierarchy::readLeaves(GhwSignal *signal)
{
    if (!m_in.isGood())
        return false;
    const GhwType &type = m_design.types[size_t(signal->type)];
    if (type.kind == GhwType::Unbounded)
        return m_in.fail(QStringLiteral("a signal has no bounds"));
    if (!m_in.expectEntries(quint64(type.leaves)))
        return false;
    signal->firstRun = quint32(m_design.runs.size());
    for (qint64 i = 0; i != type.leaves; ++i) {
        if (!addLeaf(signal, m_in.takeNumber()))
            return false;
    }
    return true;
}

bool GhwHierarchy::addLeaf(GhwSignal *signal, quint32 leaf)
{
    std::vector<GhwRun> &runs = m_design.runs;
    if (!m_in.isGood())
        return false;
    if (leaf == 0 || leaf > m_maxLeaf)
        return m_in.fail(QStringLiteral("there is no signal %1").arg(leaf));
    m_design.leafCount = qMax(m_design.leafCount, leaf);
    if (signal->runCount && runs.back().first + runs.back().count == leaf) {
        ++runs.back().count;
        return true;
    }
    if (runs.size() == maxRuns)
        return m_in.fail(QStringLiteral("signals are connected in too many parts"));
    runs.push_back({leaf, 1});
    ++signal->runCount;
    return true;
}

} // namespace NETCATCHER

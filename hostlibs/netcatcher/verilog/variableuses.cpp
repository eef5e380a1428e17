// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "variableuses.h"

namespace NETCATCHER {

constexpr int notFound = -2;

static quint64 key(int scope, int name)
{
    return quint64(quint32(scope)) << 32 | quint32(name);
}

VariableUses::VariableUses()
    : m_parents{-1}
{
}

int VariableUses::nameId(const QByteArray &name)
{
    const auto found = m_names.constFind(name);
    if (found != m_names.constEnd())
        return *found;
    return *m_names.insert(name, m_names.size());
}

int VariableUses::addScope(int parent)
{
    m_parents.append(parent);
    return m_parents.size() - 1;
}

void VariableUses::declare(int scope, const QByteArray &name, int variable)
{
    m_declared.insert(key(scope, nameId(name)), variable);
}

void VariableUses::refer(int scope, const QByteArray &name, quint8 uses)
{
    m_uses[key(scope, nameId(name))] |= uses;
}

void VariableUses::referFromInput(int scope, const QByteArray &name, int instance)
{
    const quint64 reference = key(scope, nameId(name));
    m_uses[reference] |= UseRead;
    m_inputs.insert({reference, instance});
}

int VariableUses::find(int scope, int name) const
{
    for (int i = scope; i >= 0; i = m_parents[i]) {
        const auto found = m_declared.constFind(key(i, name));
        if (found != m_declared.constEnd())
            return *found;
    }
    return notFound;
}

void VariableUses::resolve(RawModule &module) const
{
    const auto variableOf = [this](quint64 reference) { return find(int(reference >> 32), int(quint32(reference))); };
    for (auto it = m_uses.cbegin(); it != m_uses.cend(); ++it) {
        const int variable = variableOf(it.key());
        if (variable >= 0)
            module.variables[std::size_t(variable)].uses |= it.value();
    }
    for (const auto &[reference, instance] : m_inputs) {
        const int variable = variableOf(reference);
        if (variable >= 0)
            module.instances[std::size_t(instance)].inputs.push_back(variable);
    }
}

} // namespace NETCATCHER

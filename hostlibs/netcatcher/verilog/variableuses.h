// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "rawdesign.h"

#include <QSet>

#include <utility>

namespace NETCATCHER {

/// Collects the references of one module's bodies and resolves them to its variables by the scopes in which both stand.
/// A variable may be referred to before it is declared.
class VariableUses
{
public:
    VariableUses();

    /// Opens a scope inside `parent` and returns it; 0 is the module's own scope.
    int addScope(int parent);
    /// Declares `name` in `scope`; `variable` is its index in the module, or -1 for what is not a net.
    void declare(int scope, const QByteArray &name, int variable);
    void refer(int scope, const QByteArray &name, quint8 uses);
    /// Notes that an expression connected to input ports of instance number `instance` names the variable.
    void referFromInput(int scope, const QByteArray &name, int instance);

    /// Writes what was collected into the module.
    void resolve(RawModule &module) const;

private:
    int nameId(const QByteArray &name);
    int find(int scope, int name) const;

    QHash<QByteArray, int> m_names;
    QVector<int> m_parents;
    QHash<quint64, int> m_declared; ///< (scope, name) to variable
    QHash<quint64, quint8> m_uses;  ///< (scope, name) to uses
    QSet<std::pair<quint64, int>> m_inputs;
};

} // namespace NETCATCHER

// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "rawdesign.h"

#include "hostlibs/netcatcher/store/moduletable.h"

#include <QList>

namespace NETCATCHER {

/// Takes variables apart by their types and adds the nets and buses found to one module.
class TypeExpansion
{
public:
    TypeExpansion(const QHash<int, RawType> &typeTable, ModuleDef &target);

    /// A structure becomes one entry per field, a packed array of vectors one per element; what is no net adds nothing.
    void add(const QByteArray &name, int type, bool unusable);
    /// The names of what was too large to be taken apart.
    const QList<QByteArray> &cappedNames() const { return m_capped; }

private:
    const RawType *resolve(int type) const;
    void expand(const QByteArray &name, int typeId, bool unusable, int depth);
    void expandPacked(const QByteArray &name, const RawType &type, bool unusable, int depth);
    void addVector(const QByteArray &name, int left, int right, bool unusable);
    QByteArray dimensions(const RawType *type) const;

    const QHash<int, RawType> &m_types;
    ModuleDef &m_module;
    QList<QByteArray> m_capped;
    int m_budget = 0;
};

} // namespace NETCATCHER

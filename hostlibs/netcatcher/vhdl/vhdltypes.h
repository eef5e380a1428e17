// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "ghwdesign.h"

#include "hostlibs/netcatcher/store/moduletable.h"

#include <QList>

namespace NETCATCHER {

class VhdlScan;

/// Takes signals apart by their types and adds the nets and buses found to one module.
class VhdlTypes
{
public:
    /// `scan` knows how the fields of records are spelled.
    VhdlTypes(const GhwDesign &design, const VhdlScan &scan, ModuleDef &target);

    /// A record becomes one entry per field, a small array of anything but bits one per element; what is no net adds
    /// nothing.
    void add(const QByteArray &name, int type, bool unusable);
    /// The names of what was too large to be taken apart.
    const QList<QByteArray> &cappedNames() const { return m_capped; }

private:
    void expand(const QByteArray &name, int typeId, bool unusable, int depth);
    void expandArray(const QByteArray &name, const GhwType &type, bool unusable, int depth);
    void expandDimension(const QByteArray &name, const GhwType &type, int dimension, bool unusable, int depth);
    void addVector(const QByteArray &name, qint64 left, qint64 right, bool unusable);
    bool isMemory(const GhwType &type) const;
    bool isText(const GhwType &type) const;
    QByteArray indexText(const GhwDimension &dimension, qint64 value) const;
    QByteArray dimensions(const GhwType &type) const;
    const GhwType *typeOf(int id) const;

    const GhwDesign &m_design;
    const VhdlScan &m_scan;
    ModuleDef &m_module;
    QList<QByteArray> m_capped;
    int m_budget = 0;
};

} // namespace NETCATCHER

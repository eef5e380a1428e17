// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "buildprogress.h"
#include "designsources.h"
#include "readresult.h"

#include "hostlibs/netcatcher/engine/engineprocess.h"
#include "hostlibs/netcatcher/verilog/hdlscan.h"
#include "hostlibs/netcatcher/vhdl/vhdlscan.h"

namespace NETCATCHER {

class ReadManifest;

/// Reads a design of Verilog and VHDL files. Each language's engine sees the other language's units as black boxes;
/// such a box is then replaced by what its own engine says of the unit, read as a top.
class MixedReading
{
public:
    MixedReading(const DesignSources &sources, const EngineLimits &limits, const ProgressFunction &progress,
                 ReadManifest &manifest);

    /// False when the design has errors; the messages of `result` tell them.
    bool read(ReadResult *result);
    /// Whether an engine ran without Landlock.
    bool isUnconfined() const { return m_isUnconfined; }

private:
    struct Unit
    {
        QString name; ///< as declared
        bool isVhdl = false;
    };

    void scan();
    QVector<Unit> roots() const;
    QVector<Unit> candidates() const;
    void listUnits(const QVector<Unit> &tops, ReadResult *result) const;
    bool check();
    bool readUnit(const Unit &unit, ReadResult *result);
    bool readTop(const Unit &unit, ReadResult *result);
    bool graft(const Unit &unit, quint32 *index);
    bool graftBoxes(bool isVhdl, quint32 first);
    const Unit *unitFor(const QString &name, bool isVhdl) const;
    bool setsGenerics(const Unit &unit) const;
    QString whyNotGrafted(const Unit &unit) const;

    DesignSources m_verilog;
    DesignSources m_vhdl;
    const QString m_top;
    const EngineLimits m_limits;
    const ProgressFunction m_progress;
    ReadManifest &m_manifest;
    QVector<Unit> m_units; ///< of both languages
    QMap<QByteArray, ModuleUsage> m_verilogUses;
    VhdlScan m_vhdlScan;
    ModuleTable m_table;
    QHash<QString, quint32> m_grafted; ///< places in the table
    QStringList m_open;                ///< units that are being grafted
    QStringList m_messages;
    bool m_isUnconfined = false;
};

} // namespace NETCATCHER

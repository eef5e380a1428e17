// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "rawdesign.h"

#include "hostlibs/netcatcher/buildprogress.h"
#include "hostlibs/netcatcher/designsources.h"
#include "hostlibs/netcatcher/engine/engineprocess.h"
#include "hostlibs/netcatcher/readresult.h"

namespace NETCATCHER {

class ReadManifest;

/// Reads the Verilog files of a design: runs the engine, and makes the table of modules from its result.
class VerilogReading
{
public:
    VerilogReading(const DesignSources &sources, const EngineLimits &limits, const ProgressFunction &progress,
                   ReadManifest &manifest);

    /// False when the design has errors; the messages of `result` tell them.
    bool read(ReadResult *result);
    /// Whether the engine ran without Landlock.
    bool isUnconfined() const { return m_isUnconfined; }

private:
    bool readSources();
    bool runEngine();
    bool readResult(const QString &xmlPath);
    bool isInterface(const QString &name) const;
    void listModules(const QStringList &declared);
    bool canBeTop(const RawModule &module) const;
    QByteArray topKey() const;
    void expandTop();

    const DesignSources m_sources;
    const EngineLimits m_limits;
    const ProgressFunction m_progress;
    ReadManifest &m_manifest;
    QString m_top; ///< that the engine is given
    ReadResult m_read;
    RawDesign m_design;
    QHash<QByteArray, QSet<QByteArray>> m_genvars;
    bool m_isUnconfined = false;
};

} // namespace NETCATCHER

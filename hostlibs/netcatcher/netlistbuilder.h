// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "buildprogress.h"
#include "designsources.h"
#include "readresult.h"

#include "hostlibs/netcatcher/engine/engineprocess.h"

#include <netcatcher/rtlnetlist.h>

#include <memory>

namespace NETCATCHER {

class ReadManifest;

/// Builds the netlist of a design, without a screen: analyse() runs the engine, or finds what it said when the same
/// design was read before; build() makes the netlist from that. Both block while they work and call `progress` often
/// enough to keep a display alive.
class NetlistBuilder
{
public:
    explicit NetlistBuilder(const DesignSources &sources);
    ~NetlistBuilder();

    void setLimits(const EngineLimits &limits);
    /// Whether results of earlier reads may be used, and this one be kept; they are by default.
    void setCached(bool isCached) { m_isCached = isCached; }

    /// Reads the sources. False when the design has errors; messages() tells them.
    bool analyse(const ProgressFunction &progress = {});

    const DesignSources &sources() const { return m_sources; }
    /// Whether analyse() was called.
    bool isAnalysed() const { return m_isAnalysed; }
    /// Just the top that was set, when it can be one; else every module that nothing instantiates. Only these can be
    /// built, so a top that names an interface gives the netlist of another name.
    const QStringList &tops() const { return m_read.tops; }
    /// Every module found, without black boxes; none when the top that was set is neither among them nor an
    /// interface.
    const QStringList &modules() const { return m_read.modules; }
    /// Whether the top that was set names an interface, which can be no top.
    bool isTopInterface() const;
    /// Lines that begin with "ERROR" or "WARNING".
    const QStringList &messages() const { return m_read.messages; }

    /// The netlist below the only top; null, with `error` set, when there is none. It takes the result along, so that
    /// there is none the second time.
    std::unique_ptr<RtlNetlist> build(QString *error, const ProgressFunction &progress = {});

private:
    bool findOrRead(const ProgressFunction &report);
    bool readSources(const ProgressFunction &progress, ReadManifest &manifest);

    const DesignSources m_sources;
    EngineLimits m_limits;
    ReadResult m_read;
    bool m_isAnalysed = false;
    bool m_isCached = true;
    bool m_isUnconfined = false; ///< whether the engine ran without Landlock
};

} // namespace NETCATCHER

// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "buildprogress.h"
#include "designsources.h"
#include "engineprocess.h"
#include "rawdesign.h"

#include <netcatcher/rtlnetlist.h>

#include <memory>

namespace NETCATCHER {

/// Builds the netlist of a design, without a screen: analyse() runs the engine once, build() makes the netlist from its
/// result. Both block while they work and call `progress` often enough to keep a display alive.
class NetlistBuilder
{
public:
    explicit NetlistBuilder(const DesignSources &sources);
    ~NetlistBuilder();

    void setLimits(const EngineLimits &limits);

    /// Reads the sources. False when the design has errors; messages() tells them.
    bool analyse(const ProgressFunction &progress = {});

    const DesignSources &sources() const { return m_sources; }
    /// Whether analyse() was called.
    bool isAnalysed() const { return m_isAnalysed; }
    /// Just the top that was set, when it can be one; else every module that nothing instantiates. Only these can be
    /// built, so a top that names an interface gives the netlist of another name.
    const QStringList &tops() const { return m_tops; }
    /// Every module found, without black boxes; none when the top that was set is neither among them nor an
    /// interface.
    const QStringList &modules() const { return m_modules; }
    /// Lines that begin with "ERROR" or "WARNING".
    const QStringList &messages() const { return m_messages; }

    /// The netlist below the only top; null, with `error` set, when there is none.
    std::unique_ptr<RtlNetlist> build(QString *error, const ProgressFunction &progress = {});

private:
    bool readResult(const QString &xmlPath, const ProgressFunction &progress);
    bool runEngine(const ProgressFunction &progress);
    bool isInterface(const QString &name) const;
    void listModules(const QStringList &declared);
    bool canBeTop(const RawModule &module) const;
    QByteArray topKey() const;

    const DesignSources m_sources;
    QString m_top; ///< that the engine is given
    EngineLimits m_limits;
    QStringList m_tops;
    QStringList m_modules;
    QStringList m_messages;
    RawDesign m_design;
    QSet<QByteArray> m_genvars;
    bool m_isAnalysed = false;
};

} // namespace NETCATCHER

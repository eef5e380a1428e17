// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "ghdltree.h"
#include "vhdlscan.h"

#include "hostlibs/netcatcher/buildprogress.h"
#include "hostlibs/netcatcher/designsources.h"
#include "hostlibs/netcatcher/engine/engineprocess.h"
#include "hostlibs/netcatcher/engine/privatefolder.h"

#include <QElapsedTimer>

namespace NETCATCHER {

/// Runs GHDL over the VHDL files of a design. Elaborating VHDL executes what the design says, so it is done under
/// Landlock or not at all, and ended as soon as the hierarchy is known, before the design's processes run.
class GhdlEngine
{
public:
    /// `manifest` takes note of what is looked at. The top of `sources` may be spelled in any case.
    GhdlEngine(const DesignSources &sources, const EngineLimits &limits, const ProgressFunction &progress,
               ReadManifest &manifest);

    /// The path of the engine; empty when it is not installed.
    static QString program();

    enum Outcome {
        Done,       ///< the result can be read
        NoEntities, ///< the sources declare no entity
        NoOnlyTop,  ///< the sources are fine, but nothing says which entity is the top, or the top is none of them
        Failed,     ///< messages() holds an error
    };

    Outcome run();

    /// The engine's result, inside the private folder.
    QString wavePath() const;
    const GhdlTree &tree() const { return m_tree; }
    const VhdlScan &scan() const { return m_scan; }
    /// The entities that the netlist can begin with, as declared: the one that was set, or those that nothing
    /// instantiates.
    const QVector<QByteArray> &tops() const { return m_tops; }
    /// Errors and warnings as users see them.
    const QStringList &messages() const { return m_messages; }

private:
    struct Source
    {
        QString plainName;
        QString library;
    };

    bool linkSources();
    void addFile(const SourceFile &file);
    bool scanSources();
    void chooseTops();
    bool canRun();
    bool canBeElaborated(const QByteArray &top);
    bool importBy(const QString &standard);
    Outcome import();
    Outcome elaborate(const QByteArray &top);
    EngineResult runOnce(const QStringList &arguments, bool endsWithHierarchy);
    QStringList elaboration(const QString &standard, const QByteArray &top) const;
    QStringList filesOf(const QString &library) const;
    QStringList libraries() const;
    bool offerDataFile(const EngineResult &result);
    bool isHierarchyWritten();
    void removeResult();
    Outcome judge(const EngineResult &result);
    void addError(const QString &text);
    bool hasErrors() const;

    const DesignSources m_sources;
    const EngineLimits m_limits;
    const ProgressFunction m_progress;
    ReadManifest &m_manifest;
    PrivateFolder m_folder;
    QElapsedTimer m_timer;
    QVector<Source> m_files;
    QHash<QByteArray, QString> m_libraryOf; ///< by entity
    VhdlScan m_scan;
    GhdlTree m_tree;
    qint64 m_searched = 0; ///< bytes of the result that were searched for the end of the hierarchy
    QByteArray m_tail;     ///< the last of them
    bool m_isWritten = false;
    QVector<QByteArray> m_tops;
    QStringList m_messages;
};

} // namespace NETCATCHER

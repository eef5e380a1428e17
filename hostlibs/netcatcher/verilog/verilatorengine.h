// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "blackboxes.h"

#include "hostlibs/netcatcher/buildprogress.h"
#include "hostlibs/netcatcher/designsources.h"
#include "hostlibs/netcatcher/engine/engineprocess.h"
#include "hostlibs/netcatcher/engine/privatefolder.h"

namespace NETCATCHER {

/// Runs Verilator over the Verilog files of a design until it succeeds or has errors that are the design's own.
class VerilatorEngine
{
public:
    /// `manifest` takes note of what is looked at.
    VerilatorEngine(const DesignSources &sources, const EngineLimits &limits, const ProgressFunction &progress,
                    ReadManifest &manifest);

    /// The path of the engine; empty when it is not installed.
    static QString program();

    enum Outcome {
        Done,       ///< the result can be read
        NoModules,  ///< the sources declare no module
        TopMissing, ///< no module has the top's name
        Failed,     ///< messages() holds an error
    };

    Outcome run();

    /// Whether the engine ran without Landlock, and the line that tells users so.
    bool isUnconfined() const { return m_isUnconfined; }
    static QString unconfinedWarning();

    /// The engine's result, inside the private folder.
    QString xmlPath() const;
    /// Tells the manifest about files that the result names but the engine was not given. It opens its own library, and
    /// what sources include by absolute paths; where it looked for includes of the latter, nobody knows.
    void noteFilesRead(const QVector<QByteArray> &files);
    /// Errors and warnings as users see them.
    const QStringList &messages() const { return m_messages; }
    /// Modules that the sources declare, and those of them that none instantiates, by a scan of the text.
    QStringList declaredModules() const;
    QStringList declaredRoots() const;
    const QHash<QByteArray, QSet<QByteArray>> &genvars() const { return m_all.genvars; }

private:
    bool hasErrors() const;
    bool linkSources();
    void scanSources();
    HdlText openSource(int origin);
    std::optional<HdlText> openInclude(const QByteArray &name, int origin);
    Outcome runPasses(const QString &engine);
    bool hasStarted(const EngineResult &result, const QString &engine);
    bool learn(const QVector<EngineMessage> &messages);
    bool learnIncludes(const QVector<EngineMessage> &messages);
    bool learnKeywords(const QVector<EngineMessage> &messages);
    bool setPlainVerilog(int file, bool isPlain);
    QStringList arguments() const;
    Outcome judge(const EngineResult &result, const QVector<EngineMessage> &messages);
    QByteArray relativeToFolder(QByteArray output) const;
    void addError(const QString &text);

    const DesignSources m_sources;
    const EngineLimits m_limits;
    const ProgressFunction m_progress;
    ReadManifest &m_manifest;
    PrivateFolder m_folder;
    QStringList m_files;      ///< plain names of the sources, by origin; those of includes follow
    QVector<int> m_order;     ///< of the sources
    QSet<int> m_triedAsPlain; ///< sources in which words of SystemVerilog may be names
    HdlScan m_all;
    BlackBoxes m_blackBoxes;
    QStringList m_messages;
    bool m_isUnconfined = false;
};

} // namespace NETCATCHER

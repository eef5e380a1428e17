// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "verilogreading.h"

#include "blackboxes.h"
#include "designexpansion.h"
#include "verilatorengine.h"
#include "verilatorxml.h"

#include "hostlibs/netcatcher/cache/readmanifest.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>

namespace NETCATCHER {

static bool isBlackBox(const RawModule &module)
{
    return BlackBoxes::isStandIn(module.file);
}

VerilogReading::VerilogReading(const DesignSources &sources, const EngineLimits &limits,
                               const ProgressFunction &progress, ReadManifest &manifest)
    : m_sources(sources)
    , m_limits(limits)
    , m_progress(progress)
    , m_manifest(manifest)
    , m_top(sources.top)
{
}

bool VerilogReading::read(ReadResult *result)
{
    const bool isRead = readSources();
    *result = std::move(m_read);
    return isRead;
}

bool VerilogReading::readSources()
{
    if (!runEngine())
        return false;
    if (isInterface(m_top)) {
        // An interface can be no top. The design is read as if none were set; callers find another name than theirs.
        m_top.clear();
        m_read = ReadResult();
        m_design = RawDesign();
        if (!runEngine())
            return false;
    }
    expandTop();
    return true;
}

bool VerilogReading::isInterface(const QString &name) const
{
    return std::any_of(m_design.modules.begin(), m_design.modules.end(), [&name](const RawModule &module) {
        return module.isInterface && QString::fromUtf8(module.name) == name;
    });
}

/// The engine takes a design in which every module is instantiated by another one for an empty one. Empty when this is
/// none.
static QString circleError(const QStringList &modules, const QStringList &roots)
{
    if (modules.isEmpty() || !roots.isEmpty())
        return {};
    return QStringLiteral("ERROR: The design has no top module: each of %1 is instantiated by another one; end the "
                          "recursion, or set the top module.")
        .arg(modules.join(QStringLiteral(", ")));
}

bool VerilogReading::runEngine()
{
    DesignSources sources = m_sources;
    sources.top = m_top;
    VerilatorEngine engine(sources, m_limits, m_progress, m_manifest);
    const VerilatorEngine::Outcome outcome = engine.run();
    m_read.messages = engine.messages();
    m_isUnconfined = engine.isUnconfined();
    m_genvars = engine.genvars();
    if (outcome == VerilatorEngine::Failed || (outcome == VerilatorEngine::Done && !readResult(engine.xmlPath())))
        return false;
    if (outcome == VerilatorEngine::Done)
        listModules(engine.declaredModules());
    const QString circle = m_top.isEmpty() && m_read.tops.isEmpty()
                               ? circleError(engine.declaredModules(), engine.declaredRoots())
                               : QString();
    if (!circle.isEmpty()) {
        m_read.messages.append(circle);
        return false;
    }
    if (outcome != VerilatorEngine::Done || m_read.firstError())
        m_manifest.giveUp();
    engine.noteFilesRead(m_design.files);
    if (!m_top.isEmpty() && m_read.tops.isEmpty())
        m_read.tops = engine.declaredRoots();
    return true;
}

bool VerilogReading::readResult(const QString &xmlPath)
{
    QFile file(xmlPath);
    QString error = QStringLiteral("there is none");
    const auto report = [&](qint64 bytes) { m_progress({BuildProgress::ReadingResult, bytes, file.size()}); };
    if (QFileInfo(xmlPath).isFile() && file.open(QIODevice::ReadOnly) &&
        readVerilatorXml(file, m_design, report, &error))
        return true;
    m_design = RawDesign();
    // The engine does not notice when it cannot write.
    m_read.messages.append(
        QStringLiteral("ERROR: The result of the Verilog engine cannot be read: %1 (check that there is "
                       "room left in %2)")
            .arg(error, QDir::tempPath()));
    return false;
}

/// Puts names into the order of the source files; what is not in `order` comes last.
static void sortAs(const QStringList &order, QStringList *names)
{
    QHash<QString, int> rank;
    for (int i = 0; i < order.size(); ++i)
        rank.insert(order[i], i);
    std::stable_sort(names->begin(), names->end(), [&](const QString &a, const QString &b) {
        return rank.value(a, order.size()) < rank.value(b, order.size());
    });
}

/// With a top set the engine keeps only what the top reaches; `declared` names the rest.
void VerilogReading::listModules(const QStringList &declared)
{
    if (!m_top.isEmpty())
        m_read.modules = declared;
    for (const RawModule &module : m_design.modules) {
        if (!module.isInterface && !isBlackBox(module))
            m_read.modules.append(QString::fromUtf8(module.name));
    }
    m_read.modules.removeDuplicates();
    for (const RawModule &module : m_design.modules) {
        if (canBeTop(module))
            m_read.tops.append(QString::fromUtf8(module.name));
    }
    m_read.tops.removeDuplicates();
    sortAs(declared, &m_read.modules);
    sortAs(declared, &m_read.tops);
    if (!m_top.isEmpty() && m_read.tops.isEmpty())
        m_read.modules.clear();
}

/// With a top set, the module of that name, also when something instantiates it; else every root.
bool VerilogReading::canBeTop(const RawModule &module) const
{
    if (module.isInterface || isBlackBox(module))
        return false;
    const bool isRoot = m_design.roots.contains(module.key);
    if (m_top.isEmpty())
        return isRoot;
    return QString::fromUtf8(module.name) == m_top && (isRoot || module.key == module.name);
}

QByteArray VerilogReading::topKey() const
{
    const auto found = std::find_if(m_design.modules.begin(), m_design.modules.end(),
                                    [this](const RawModule &module) { return canBeTop(module); });
    return found == m_design.modules.end() ? QByteArray() : found->key;
}

/// What the netlist needs of the design, which is dropped; the rest would be in memory beside the netlist.
void VerilogReading::expandTop()
{
    const QByteArray key = topKey();
    if (m_read.tops.size() == 1 && !key.isEmpty()) {
        m_progress({BuildProgress::BuildingNetlist, 0, 0});
        ExpansionOptions options;
        options.isPart = m_sources.isPart;
        options.top = key;
        options.isBlackBox = isBlackBox;
        options.genvars = m_genvars;
        m_read.table = expandDesign(m_design, options, &m_read.messages);
    }
    m_design = RawDesign();
}

} // namespace NETCATCHER

// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "netlistbuilder.h"

#include "blackboxes.h"
#include "designexpansion.h"
#include "netlistcache.h"
#include "netstore.h"
#include "readmanifest.h"
#include "verilatorengine.h"
#include "verilatorxml.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>

namespace NETCATCHER {

static bool isBlackBox(const RawModule &module)
{
    return BlackBoxes::isStandIn(module.file);
}

static ProgressFunction orNothing(const ProgressFunction &progress)
{
    return progress ? progress : [](const BuildProgress &) {};
}

static const QString *firstError(const QStringList &messages)
{
    const auto isError = [](const QString &line) { return line.startsWith(QLatin1String("ERROR")); };
    const auto found = std::find_if(messages.cbegin(), messages.cend(), isError);
    return found == messages.cend() ? nullptr : &*found;
}

NetlistBuilder::NetlistBuilder(const DesignSources &sources)
    : m_sources(sources)
    , m_top(sources.top)
{
}

NetlistBuilder::~NetlistBuilder() = default;

void NetlistBuilder::setLimits(const EngineLimits &limits)
{
    m_limits = limits;
}

bool NetlistBuilder::analyse(const ProgressFunction &progress)
{
    m_isAnalysed = true;
    const bool isRead = findOrRead(orNothing(progress));
    // This is about the run, not about the design, and is not kept with it.
    if (m_isUnconfined)
        m_read.messages.append(VerilatorEngine::unconfinedWarning());
    return isRead;
}

bool NetlistBuilder::findOrRead(const ProgressFunction &report)
{
    const auto hashing = [&report] { report({BuildProgress::ReadingSources, 0, 0}); };
    ReadManifest manifest(hashing);
    const NetlistCache cache;
    // Without the engine nothing is found: whether a design can be opened should not depend on what was opened before.
    const QString engine = m_isCached ? VerilatorEngine::program() : QString();
    if (engine.isEmpty() || !cache.makeFolder()) {
        manifest.giveUp();
        return readSources(report, manifest);
    }
    const QByteArray key = NetlistCache::keyOf(m_sources, engine);
    if (std::optional<ReadResult> known = cache.find(key, hashing)) {
        m_read = std::move(*known);
        return true;
    }
    if (!readSources(report, manifest))
        return false;
    cache.store(key, manifest, m_read);
    return true;
}

bool NetlistBuilder::readSources(const ProgressFunction &progress, ReadManifest &manifest)
{
    if (!runEngine(progress, manifest))
        return false;
    if (isInterface(m_top)) {
        // An interface can be no top. The design is read as if none were set; callers find another name than theirs.
        m_top.clear();
        m_read = ReadResult();
        m_design = RawDesign();
        if (!runEngine(progress, manifest))
            return false;
    }
    expandTop(progress);
    return true;
}

/// Only then is there a list of modules without the top in it.
bool NetlistBuilder::isTopInterface() const
{
    return !m_sources.top.isEmpty() && !modules().isEmpty() && !tops().contains(m_sources.top);
}

bool NetlistBuilder::isInterface(const QString &name) const
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

bool NetlistBuilder::runEngine(const ProgressFunction &progress, ReadManifest &manifest)
{
    DesignSources sources = m_sources;
    sources.top = m_top;
    VerilatorEngine engine(sources, m_limits, progress, manifest);
    const VerilatorEngine::Outcome outcome = engine.run();
    m_read.messages = engine.messages();
    m_isUnconfined = engine.isUnconfined();
    m_genvars = engine.genvars();
    if (outcome == VerilatorEngine::Failed ||
        (outcome == VerilatorEngine::Done && !readResult(engine.xmlPath(), progress)))
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
    if (outcome != VerilatorEngine::Done || firstError(m_read.messages))
        manifest.giveUp();
    engine.noteFilesRead(m_design.files);
    if (!m_top.isEmpty() && m_read.tops.isEmpty())
        m_read.tops = engine.declaredRoots();
    return true;
}

bool NetlistBuilder::readResult(const QString &xmlPath, const ProgressFunction &progress)
{
    QFile file(xmlPath);
    QString error = QStringLiteral("there is none");
    const auto report = [&](qint64 bytes) { progress({BuildProgress::ReadingResult, bytes, file.size()}); };
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
void NetlistBuilder::listModules(const QStringList &declared)
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
bool NetlistBuilder::canBeTop(const RawModule &module) const
{
    if (module.isInterface || isBlackBox(module))
        return false;
    const bool isRoot = m_design.roots.contains(module.key);
    if (m_top.isEmpty())
        return isRoot;
    return QString::fromUtf8(module.name) == m_top && (isRoot || module.key == module.name);
}

QByteArray NetlistBuilder::topKey() const
{
    const auto found = std::find_if(m_design.modules.begin(), m_design.modules.end(),
                                    [this](const RawModule &module) { return canBeTop(module); });
    return found == m_design.modules.end() ? QByteArray() : found->key;
}

/// What the netlist needs of the design, which is dropped; the rest would be in memory beside the netlist.
void NetlistBuilder::expandTop(const ProgressFunction &progress)
{
    const QByteArray key = topKey();
    if (m_read.tops.size() == 1 && !key.isEmpty()) {
        progress({BuildProgress::BuildingNetlist, 0, 0});
        ExpansionOptions options;
        options.top = key;
        options.isBlackBox = isBlackBox;
        options.genvars = m_genvars;
        m_read.table = expandDesign(m_design, options, &m_read.messages);
    }
    m_design = RawDesign();
}

static QString reasonForNoTable(const ReadResult &read)
{
    if (const QString *error = firstError(read.messages))
        return *error;
    if (read.tops.size() > 1)
        return QStringLiteral("The design has several top modules: %1.").arg(read.tops.join(QStringLiteral(", ")));
    return QStringLiteral("The design has no top module.");
}

std::unique_ptr<RtlNetlist> NetlistBuilder::build(QString *error, const ProgressFunction &progress)
{
    if (!m_read.table) {
        *error = reasonForNoTable(m_read);
        return nullptr;
    }
    orNothing(progress)({BuildProgress::BuildingNetlist, 0, 0});
    auto data = std::make_unique<RtlNetlist::Data>();
    data->store = NetStore::build(std::move(*m_read.table), error);
    m_read.table.reset();
    if (!data->store)
        return nullptr;
    return std::make_unique<RtlNetlist>(std::move(data));
}

} // namespace NETCATCHER

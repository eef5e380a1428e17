// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "netlistbuilder.h"

#include "blackboxes.h"
#include "designexpansion.h"
#include "netstore.h"
#include "verilatorengine.h"
#include "verilatorxml.h"

#include <QFile>

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
    const ProgressFunction report = orNothing(progress);
    if (!runEngine(report))
        return false;
    if (!isInterface(m_top))
        return true;
    // An interface can be no top. The design is read as if none were set, and callers find another name than theirs.
    m_top.clear();
    m_tops.clear();
    m_modules.clear();
    m_design = RawDesign();
    return runEngine(report);
}

bool NetlistBuilder::isInterface(const QString &name) const
{
    return std::any_of(m_design.modules.begin(), m_design.modules.end(), [&name](const RawModule &module) {
        return module.isInterface && QString::fromUtf8(module.name) == name;
    });
}

bool NetlistBuilder::runEngine(const ProgressFunction &progress)
{
    DesignSources sources = m_sources;
    sources.top = m_top;
    VerilatorEngine engine(sources, m_limits, progress);
    const VerilatorEngine::Outcome outcome = engine.run();
    m_messages = engine.messages();
    m_genvars = engine.genvars();
    if (outcome == VerilatorEngine::Failed ||
        (outcome == VerilatorEngine::Done && !readResult(engine.xmlPath(), progress)))
        return false;
    if (outcome == VerilatorEngine::Done)
        listModules(engine.declaredModules());
    if (!m_top.isEmpty() && m_tops.isEmpty())
        m_tops = engine.declaredRoots();
    return true;
}

bool NetlistBuilder::readResult(const QString &xmlPath, const ProgressFunction &progress)
{
    QFile file(xmlPath);
    QString error = file.errorString();
    const auto report = [&](qint64 bytes) { progress({BuildProgress::ReadingResult, bytes, file.size()}); };
    if (file.open(QIODevice::ReadOnly) && readVerilatorXml(file, m_design, report, &error))
        return true;
    m_design = RawDesign();
    m_messages.append(QStringLiteral("ERROR: The result of the Verilog engine cannot be read: %1").arg(error));
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
        m_modules = declared;
    for (const RawModule &module : m_design.modules) {
        if (!module.isInterface && !isBlackBox(module))
            m_modules.append(QString::fromUtf8(module.name));
    }
    m_modules.removeDuplicates();
    for (const RawModule &module : m_design.modules) {
        if (canBeTop(module))
            m_tops.append(QString::fromUtf8(module.name));
    }
    m_tops.removeDuplicates();
    sortAs(declared, &m_modules);
    sortAs(declared, &m_tops);
    if (!m_top.isEmpty() && m_tops.isEmpty())
        m_modules.clear();
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

std::unique_ptr<RtlNetlist> NetlistBuilder::build(QString *error, const ProgressFunction &progress)
{
    if (m_tops.size() != 1 || topKey().isEmpty()) {
        const auto isError = [](const QString &line) { return line.startsWith(QLatin1String("ERROR")); };
        const auto first = std::find_if(m_messages.cbegin(), m_messages.cend(), isError);
        if (first != m_messages.cend())
            *error = *first;
        else if (m_tops.size() > 1)
            *error = QStringLiteral("The design has several top modules: %1.").arg(m_tops.join(QStringLiteral(", ")));
        else
            *error = QStringLiteral("The design has no top module.");
        return nullptr;
    }
    orNothing(progress)({BuildProgress::BuildingNetlist, 0, 0});
    ExpansionOptions options;
    options.top = topKey();
    options.isBlackBox = isBlackBox;
    options.genvars = m_genvars;
    auto data = std::make_unique<RtlNetlist::Data>();
    data->store = NetStore::build(expandDesign(m_design, options, &m_messages), error);
    if (!data->store)
        return nullptr;
    return std::make_unique<RtlNetlist>(std::move(data));
}

} // namespace NETCATCHER

// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "netlistbuilder.h"

#include "mixedreading.h"

#include "hostlibs/netcatcher/cache/netlistcache.h"
#include "hostlibs/netcatcher/cache/readmanifest.h"
#include "hostlibs/netcatcher/store/netstore.h"
#include "hostlibs/netcatcher/verilog/verilatorengine.h"
#include "hostlibs/netcatcher/verilog/verilogreading.h"
#include "hostlibs/netcatcher/vhdl/ghdlengine.h"
#include "hostlibs/netcatcher/vhdl/vhdlreading.h"

#include <algorithm>

namespace NETCATCHER {

static ProgressFunction orNothing(const ProgressFunction &progress)
{
    return progress ? progress : [](const BuildProgress &) {};
}

static bool isOnly(const DesignSources &sources, std::initializer_list<SourceFile::Language> languages)
{
    return std::all_of(sources.files.cbegin(), sources.files.cend(), [&languages](const SourceFile &file) {
        return std::find(languages.begin(), languages.end(), file.language) != languages.end();
    });
}

/// The programs that read the design; none when one of them is missing.
static QStringList enginesFor(const DesignSources &sources)
{
    QStringList engines;
    if (sources.files.isEmpty() || !isOnly(sources, {SourceFile::Vhdl}))
        engines.append(VerilatorEngine::program());
    if (!isOnly(sources, {SourceFile::Verilog, SourceFile::SystemVerilog}))
        engines.append(GhdlEngine::program());
    return engines.contains(QString()) ? QStringList() : engines;
}

NetlistBuilder::NetlistBuilder(const DesignSources &sources)
    : m_sources(sources)
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
    const QStringList engines = m_isCached ? enginesFor(m_sources) : QStringList();
    if (engines.isEmpty() || !cache.makeFolder()) {
        manifest.giveUp();
        return readSources(report, manifest);
    }
    const QByteArray key = NetlistCache::keyOf(m_sources, engines);
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
    if (!m_sources.files.isEmpty() && isOnly(m_sources, {SourceFile::Vhdl}))
        return readVhdl(m_sources, m_limits, progress, manifest, &m_read);
    if (!isOnly(m_sources, {SourceFile::Verilog, SourceFile::SystemVerilog})) {
        MixedReading reading(m_sources, m_limits, progress, manifest);
        const bool isRead = reading.read(&m_read);
        m_isUnconfined = reading.isUnconfined();
        return isRead;
    }
    VerilogReading reading(m_sources, m_limits, progress, manifest);
    const bool isRead = reading.read(&m_read);
    m_isUnconfined = reading.isUnconfined();
    return isRead;
}

/// Only then is there a list of modules without the top in it.
bool NetlistBuilder::isTopInterface() const
{
    return !m_sources.top.isEmpty() && !modules().isEmpty() && !tops().contains(m_sources.top);
}

static QString reasonForNoTable(const ReadResult &read)
{
    if (const QString *error = read.firstError())
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

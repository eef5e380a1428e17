// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "mixedreading.h"

#include "hostlibs/netcatcher/cache/readmanifest.h"
#include "hostlibs/netcatcher/engine/sourcecheck.h"
#include "hostlibs/netcatcher/verilog/verilogreading.h"
#include "hostlibs/netcatcher/vhdl/vhdllexer.h"
#include "hostlibs/netcatcher/vhdl/vhdlreading.h"

#include <QFile>

#include <algorithm>

namespace NETCATCHER {

/// Larger files are generated tables; their units are not known here.
constexpr qint64 maxScanBytes = 256 << 20;
static const char jtagPrimitive[] = "OV_JTAG";

MixedReading::MixedReading(const DesignSources &sources, const EngineLimits &limits, const ProgressFunction &progress,
                           ReadManifest &manifest)
    : m_verilog(sources)
    , m_vhdl(sources)
    , m_top(sources.top)
    , m_limits(limits)
    , m_progress(progress)
    , m_manifest(manifest)
{
    m_verilog.files.clear();
    m_vhdl.files.clear();
    for (const SourceFile &file : sources.files)
        (file.language == SourceFile::Vhdl ? m_vhdl : m_verilog).files.append(file);
}

static QByteArray textOf(const QString &path)
{
    QFile file(path);
    return file.size() <= maxScanBytes && file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// Finds the units of both languages. What only an include declares is not seen here, but by the engine.
void MixedReading::scan()
{
    HdlScanner scanner(m_verilog.defines, [](const QByteArray &, int) { return std::optional<HdlText>(); });
    for (const DesignSources *sources : {&m_verilog, &m_vhdl}) {
        for (const SourceFile &file : sources->files) {
            m_progress({BuildProgress::ReadingSources, 0, 0});
            m_manifest.look(file.path);
            const QString problem = problemWithSource(file.path);
            if (!problem.isEmpty()) {
                m_messages.append(QStringLiteral("ERROR: %1: ").arg(file.path) + problem);
            } else if (file.language == SourceFile::Vhdl) {
                m_vhdlScan.add(textOf(file.path));
            } else {
                const HdlScan found = scanner.scan({textOf(file.path), 0});
                for (const QByteArray &name : found.modules)
                    m_units.append({QString::fromUtf8(name), false});
                for (auto it = found.usages.cbegin(); it != found.usages.cend(); ++it)
                    m_verilogUses[it.key()].parameters.unite(it->parameters);
                for (auto it = found.usages.cbegin(); it != found.usages.cend(); ++it)
                    m_verilogUses[it.key()].positionalParameters += it->positionalParameters;
            }
        }
    }
    for (const QByteArray &name : m_vhdlScan.entities())
        m_units.append({QString::fromUtf8(vhdlDisplayName(name)), true});
}

static bool isSame(const QString &a, const QString &b)
{
    return a.compare(b, Qt::CaseInsensitive) == 0;
}

/// The unit of one language that an instance in the other one means. VHDL does not tell upper from lower case.
const MixedReading::Unit *MixedReading::unitFor(const QString &name, bool isVhdl) const
{
    const auto find = [&](Qt::CaseSensitivity sensitivity) {
        return std::find_if(m_units.cbegin(), m_units.cend(), [&](const Unit &unit) {
            return unit.isVhdl == isVhdl && unit.name.compare(name, sensitivity) == 0;
        });
    };
    const auto exact = find(Qt::CaseSensitive);
    const auto found = exact != m_units.cend() ? exact : find(Qt::CaseInsensitive);
    return found == m_units.cend() ? nullptr : &*found;
}

/// Units that nothing in either language instantiates.
QVector<MixedReading::Unit> MixedReading::roots() const
{
    const QSet<QByteArray> byVhdl = m_vhdlScan.instantiated();
    QSet<QString> byVerilog; // of VHDL, which does not tell upper from lower case
    for (auto it = m_verilogUses.cbegin(); it != m_verilogUses.cend(); ++it)
        byVerilog.insert(QString::fromUtf8(it.key()).toCaseFolded());
    const QVector<QByteArray> rootNames = m_vhdlScan.roots();
    QSet<QString> vhdlRoots;
    for (const QByteArray &name : rootNames)
        vhdlRoots.insert(QString::fromUtf8(vhdlDisplayName(name)));
    const auto isUsedByVerilog = [&](const Unit &unit) {
        return unit.isVhdl ? byVerilog.contains(unit.name.toCaseFolded()) : m_verilogUses.contains(unit.name.toUtf8());
    };
    const auto isUsedByVhdl = [&](const Unit &unit) {
        return unit.isVhdl ? !vhdlRoots.contains(unit.name) : byVhdl.contains(vhdlKey(unit.name.toUtf8()));
    };
    QVector<Unit> result;
    for (const Unit &unit : m_units) {
        if (!isUsedByVerilog(unit) && !isUsedByVhdl(unit))
            result.append(unit);
    }
    return result;
}

/// The units that the netlist can begin with.
QVector<MixedReading::Unit> MixedReading::candidates() const
{
    if (m_top.isEmpty())
        return roots();
    const Unit *unit = unitFor(m_top, false);
    if (unit && unit->name == m_top)
        return {*unit};
    unit = unitFor(m_top, true);
    return unit ? QVector<Unit>{{m_top, true}} : QVector<Unit>();
}

void MixedReading::listUnits(const QVector<Unit> &tops, ReadResult *result) const
{
    for (const Unit &unit : tops)
        result->tops.append(unit.name);
    if (!m_top.isEmpty() && tops.isEmpty())
        return;
    for (const Unit &unit : m_units)
        result->modules.append(unit.name);
    result->modules.removeDuplicates();
}

bool MixedReading::read(ReadResult *result)
{
    scan();
    const QVector<Unit> tops = candidates();
    const bool isRead = m_messages.isEmpty() && (tops.size() == 1 ? readTop(tops.first(), result) : check());
    result->messages = m_messages;
    result->messages.removeDuplicates();
    if (isRead)
        listUnits(tops, result);
    return isRead;
}

/// Without a top there are still errors to be told.
bool MixedReading::check()
{
    m_manifest.giveUp();
    ReadResult part;
    const bool isVerilogRead = readUnit({QString(), false}, &part);
    return readUnit({QString(), true}, &part) && isVerilogRead;
}

bool MixedReading::readUnit(const Unit &unit, ReadResult *result)
{
    DesignSources sources = unit.isVhdl ? m_vhdl : m_verilog;
    sources.top = unit.name;
    sources.isPart = !m_table.modules.empty();
    *result = ReadResult();
    bool isRead = false;
    if (unit.isVhdl) {
        isRead = readVhdl(sources, m_limits, m_progress, m_manifest, result);
    } else {
        VerilogReading reading(sources, m_limits, m_progress, m_manifest);
        isRead = reading.read(result);
        m_isUnconfined = m_isUnconfined || reading.isUnconfined();
    }
    m_messages += result->messages;
    return isRead;
}

bool MixedReading::readTop(const Unit &unit, ReadResult *result)
{
    if (!graft(unit, &m_table.top))
        return false;
    result->table = std::move(m_table);
    return true;
}

/// Adds the unit and what is below it to the table. False when it cannot be read.
bool MixedReading::graft(const Unit &unit, quint32 *index)
{
    ReadResult part;
    if (!readUnit(unit, &part))
        return false;
    if (!part.table) {
        m_messages.append(QStringLiteral("ERROR: The unit %1 cannot be read as a part of the design.").arg(unit.name));
        return false;
    }
    const auto offset = quint32(m_table.modules.size());
    for (ModuleDef &module : part.table->modules) {
        for (ModuleDef::Child &child : module.children)
            child.module += offset;
        m_table.modules.push_back(std::move(module));
    }
    *index = offset + part.table->top;
    m_open.append(unit.name);
    const bool isComplete = graftBoxes(unit.isVhdl, offset);
    m_open.removeLast();
    return isComplete;
}

/// Why a unit that an instance means stays a black box; empty when it does not.
QString MixedReading::whyNotGrafted(const Unit &unit) const
{
    if (m_open.contains(unit.name))
        return QStringLiteral("it is inside of itself");
    const QList<QByteArray> open =
        unit.isVhdl ? m_vhdlScan.openGenerics(vhdlKey(unit.name.toUtf8())) : QList<QByteArray>();
    if (!open.isEmpty())
        return QStringLiteral("its generic %1 has no default").arg(QString::fromUtf8(vhdlDisplayName(open.first())));
    return {};
}

/// Whether an instance in the other language gives the unit another shape than it has by itself.
bool MixedReading::setsGenerics(const Unit &unit) const
{
    if (!unit.isVhdl)
        return m_vhdlScan.setsGenerics(vhdlKey(unit.name.toUtf8()));
    for (auto it = m_verilogUses.cbegin(); it != m_verilogUses.cend(); ++it) {
        if (isSame(QString::fromUtf8(it.key()), unit.name) &&
            (!it->parameters.isEmpty() || it->positionalParameters > 0))
            return true;
    }
    return false;
}

/// Replaces the black boxes from place `first` on that are units of the other language.
bool MixedReading::graftBoxes(bool isVhdl, quint32 first)
{
    const auto end = quint32(m_table.modules.size());
    QHash<quint32, quint32> replaced;
    for (quint32 i = first; i < end; ++i) {
        const QString name = m_table.modules[i].name;
        const Unit *unit = m_table.modules[i].blackBox ? unitFor(name, !isVhdl) : nullptr;
        if (!unit)
            continue;
        const QString reason = whyNotGrafted(*unit);
        if (!reason.isEmpty()) {
            m_messages.append(QStringLiteral("WARNING: %1 is a black box, because %2").arg(unit->name, reason));
            continue;
        }
        if (!m_grafted.contains(unit->name)) {
            quint32 index = 0;
            if (!graft(*unit, &index))
                return false;
            m_grafted.insert(unit->name, index);
            if (isSame(unit->name, QLatin1String(jtagPrimitive)))
                m_table.modules[index].name = QLatin1String(jtagPrimitive);
            if (setsGenerics(*unit))
                m_messages.append(QStringLiteral("WARNING: %1 is read with the defaults of its parameters, although an "
                                                 "instance in the other language sets some")
                                      .arg(unit->name));
        }
        replaced.insert(i, m_grafted.value(unit->name));
    }
    for (quint32 i = first; i < end; ++i) {
        for (ModuleDef::Child &child : m_table.modules[i].children)
            child.module = replaced.value(child.module, child.module);
    }
    return true;
}

} // namespace NETCATCHER

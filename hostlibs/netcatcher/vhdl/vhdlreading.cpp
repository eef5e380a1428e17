// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "vhdlreading.h"

#include "ghdlengine.h"
#include "ghwreader.h"
#include "vhdlexpansion.h"
#include "vhdllexer.h"

#include "hostlibs/netcatcher/cache/readmanifest.h"

#include <QDir>
#include <QFile>

#include <limits>

namespace NETCATCHER {

static QStringList shownNames(const QVector<QByteArray> &names)
{
    QStringList result;
    for (const QByteArray &name : names)
        result.append(QString::fromUtf8(vhdlDisplayName(name)));
    result.removeDuplicates();
    return result;
}

/// Maps the file, which can be large, instead of reading it.
static bool readWave(const QString &path, GhwDesign *design, QString *error)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly) || file.size() > std::numeric_limits<int>::max()) {
        *error = file.isOpen() ? QStringLiteral("it is larger than 2 GiB") : file.errorString();
        return false;
    }
    const uchar *bytes = file.map(0, file.size());
    if (!bytes) {
        *error = file.errorString();
        return false;
    }
    return readGhw(QByteArray::fromRawData(reinterpret_cast<const char *>(bytes), int(file.size())), design, error);
}

/// The engine's result says nothing about what stands in a case generate statement.
static void warnOfCases(const GhdlTree &tree, QStringList *messages)
{
    for (const GhdlNode &node : tree.nodes) {
        if (node.kind != "case-generate")
            continue;
        messages->append(QStringLiteral("WARNING: The nets and instances inside of case generate statements, like %1, "
                                        "are not listed; an if generate statement lists its own")
                             .arg(QString::fromUtf8(vhdlDisplayName(node.name))));
        return;
    }
}

static bool makeTable(const GhdlEngine &engine, bool isPart, const ProgressFunction &progress, ReadResult *result)
{
    progress({BuildProgress::ReadingResult, 0, 0});
    GhwDesign design;
    QString error;
    if (!readWave(engine.wavePath(), &design, &error)) {
        result->messages.append(QStringLiteral("ERROR: The result of the VHDL engine cannot be read: %1 (check that "
                                               "there is room left in %2)")
                                    .arg(error, QDir::tempPath()));
        return false;
    }
    progress({BuildProgress::BuildingNetlist, 0, 0});
    ModuleTable table = expandVhdl(design, engine.tree(), engine.scan(), isPart, &result->messages);
    if (table.modules.empty()) {
        result->messages.append(QStringLiteral("ERROR: The result of the VHDL engine holds no design."));
        return false;
    }
    warnOfCases(engine.tree(), &result->messages);
    result->table = std::move(table);
    return true;
}

bool readVhdl(const DesignSources &sources, const EngineLimits &limits, const ProgressFunction &progress,
              ReadManifest &manifest, ReadResult *result)
{
    GhdlEngine engine(sources, limits, progress, manifest);
    const GhdlEngine::Outcome outcome = engine.run();
    result->messages = engine.messages();
    if (outcome == GhdlEngine::Failed ||
        (outcome == GhdlEngine::Done && !makeTable(engine, sources.isPart, progress, result)))
        return false;
    result->tops = shownNames(engine.tops());
    if (sources.top.isEmpty() && result->tops.isEmpty() && outcome == GhdlEngine::NoOnlyTop) {
        result->messages.append(QStringLiteral("ERROR: The design has no top module: each of %1 is instantiated by "
                                               "another one; end the recursion, or set the top module.")
                                    .arg(shownNames(engine.scan().entities()).join(QStringLiteral(", "))));
        return false;
    }
    if (outcome != GhdlEngine::Done || engine.scan().usesFiles())
        manifest.giveUp();
    // A top that no entity has leaves no list, by which users are told.
    if (sources.top.isEmpty() || !result->tops.isEmpty())
        result->modules = shownNames(engine.scan().entities());
    else
        result->tops = shownNames(engine.scan().roots());
    if (outcome == GhdlEngine::Done && !sources.top.isEmpty()) {
        // VHDL does not tell upper from lower case: the top is the one that was asked for, and goes by that name.
        result->tops = QStringList(sources.top);
        result->table->modules[result->table->top].name = sources.top;
    }
    return true;
}

} // namespace NETCATCHER

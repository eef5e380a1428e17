// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "netdesign.h"

#include "command.h"

#include "hostlibs/netcatcher/netlistbuilder.h"
#include "hostlibs/ovte/projectengine.h"

#include <OVTE/designmanager.h>
#include <OVTE/taskengine.h>

#include <QCommandLineParser>
#include <QDir>
#include <QFileInfo>
#include <QTextStream>

static const QString topOption = QStringLiteral("top");
static const QString includeOption = QStringLiteral("I");
static const QString defineOption = QStringLiteral("D");
static const QString standardOption = QStringLiteral("standard");
static const QString noCacheOption = QStringLiteral("no-cache");

void NetDesignOptions::addTo(QCommandLineParser &parser)
{
    parser.addOption(
        {topOption, QStringLiteral("The top module; needed when the design has several."), QStringLiteral("module")});
    parser.addOption(
        {includeOption, QStringLiteral("Look for include files in this folder, too."), QStringLiteral("folder")});
    parser.addOption({defineOption, QStringLiteral("Define a macro."), QStringLiteral("name[=value]")});
    parser.addOption({standardOption,
                      QStringLiteral("Language standard of Verilog files: %1.")
                          .arg(TE::verilogStandards().join(QStringLiteral(", "))),
                      QStringLiteral("standard")});
    parser.addOption({noCacheOption, QStringLiteral("Read the design afresh, and do not keep the result for the next "
                                                    "time.")});
}

static QMap<QString, QVariant> sourcesInfo(const QStringList &paths)
{
    QVariantList files;
    for (const QString &path : paths) {
        files.append(QVariantMap{{QLatin1String(TE::SourceKey::Path), path},
                                 {QLatin1String(TE::SourceKey::Type), TE::fileTypeOfPath(path)}});
    }
    return {{QLatin1String(TE::SourceKey::Files), files}};
}

/// The source information of a project or file list; false when it cannot be read.
static bool projectInfo(const QString &path, QMap<QString, QVariant> *info, QString *error)
{
    TE::ProjectEngine *engine = TE::ProjectEngine::instance();
    const QString absolute = QDir::cleanPath(QFileInfo(path).absoluteFilePath());
    QStringList notes;
    const bool isOpen = QFileInfo(path).suffix() == QLatin1String("vakproj")
                            ? engine->openProject(absolute, error)
                            : engine->openFileList(absolute, &notes, error);
    for (const QString &note : qAsConst(notes))
        standardError() << note << '\n';
    if (isOpen)
        *info = TE::TaskEngine::instance()->designManager()->getSourceFileInfo();
    return isOpen;
}

static bool describe(const QCommandLineParser &parser, QMap<QString, QVariant> *info, QString *error)
{
    const QStringList paths = parser.positionalArguments();
    const QString suffix = QFileInfo(paths.constFirst()).suffix();
    if (suffix == QLatin1String("vakproj") || suffix == QLatin1String("f")) {
        if (paths.size() > 1) {
            *error = QStringLiteral("a project or file list stands alone");
            return false;
        }
        if (!projectInfo(paths.constFirst(), info, error))
            return false;
    } else {
        *info = sourcesInfo(paths);
    }
    const auto append = [&](const char *key, const QString &option) {
        QVariant &value = (*info)[QLatin1String(key)];
        value = value.toStringList() + parser.values(option);
    };
    append(TE::SourceKey::IncludePath, includeOption);
    append(TE::SourceKey::Defines, defineOption);
    if (parser.isSet(topOption))
        info->insert(QLatin1String(TE::SourceKey::Top), parser.value(topOption));
    if (parser.isSet(standardOption))
        info->insert(QLatin1String(TE::SourceKey::Standard), parser.value(standardOption));
    return true;
}

std::unique_ptr<NETCATCHER::RtlNetlist> readNetlist(const QCommandLineParser &parser, QString *error)
{
    QMap<QString, QVariant> info;
    if (!describe(parser, &info, error))
        return nullptr;
    NETCATCHER::NetlistBuilder builder(NETCATCHER::DesignSources::fromSourceInfo(info));
    builder.setCached(!parser.isSet(noCacheOption));
    const bool isRead = builder.analyse();
    for (const QString &line : builder.messages())
        standardError() << line << '\n';
    standardError().flush();
    const QString &top = builder.sources().top;
    if (!isRead)
        *error = QStringLiteral("the design has errors");
    else if (builder.isTopInterface())
        *error = QStringLiteral("'%1' is an interface; choose a module as the top").arg(top);
    else if (!top.isEmpty() && (builder.modules().isEmpty() || !builder.tops().contains(top)))
        *error = QStringLiteral("there is no module '%1'").arg(top);
    else if (builder.modules().isEmpty())
        *error = QStringLiteral("there is no module in the design");
    else if (builder.tops().size() > 1)
        *error = QStringLiteral("the design has several top modules (%1); choose one with --top")
                     .arg(builder.tops().join(QStringLiteral(", ")));
    else
        return builder.build(error);
    return nullptr;
}

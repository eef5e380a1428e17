// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "designsources.h"

#include <OVTE/designmanager.h>

#include <QFileInfo>
#include <QSet>

namespace NETCATCHER {

static SourceFile::Language languageOf(const QString &path, int type)
{
    const QString suffix = QFileInfo(path).suffix().toLower();
    const bool isVhdl = suffix == QLatin1String("vhd") || suffix == QLatin1String("vhdl");
    if (type == TE::VhdlFile || (type == TE::OtherFile && isVhdl))
        return SourceFile::Vhdl;
    if (type == TE::SystemVerilogFile || (type == TE::OtherFile && suffix == QLatin1String("sv")))
        return SourceFile::SystemVerilog;
    return SourceFile::Verilog;
}

DesignSources DesignSources::fromSourceInfo(const QMap<QString, QVariant> &info)
{
    DesignSources sources;
    sources.top = info.value(TE::SourceKey::Top).toString();
    sources.includePaths = info.value(TE::SourceKey::IncludePath).toStringList();
    sources.defines = info.value(TE::SourceKey::Defines).toStringList();
    sources.standard = info.value(TE::SourceKey::Standard).toString();
    QSet<QString> seen;
    const QVariantList files = info.value(TE::SourceKey::Files).toList();
    for (const QVariant &entry : files) {
        const QVariantMap record = entry.toMap();
        const QString path = record.value(TE::SourceKey::Path).toString();
        const QString canonical = QFileInfo(path).canonicalFilePath();
        const QString identity = canonical.isEmpty() ? path : canonical;
        if (path.isEmpty() || seen.contains(identity))
            continue;
        seen.insert(identity);
        sources.files.append({path, languageOf(path, record.value(TE::SourceKey::Type).toInt()),
                              record.value(TE::SourceKey::Library).toString()});
    }
    return sources;
}

bool operator==(const SourceFile &a, const SourceFile &b)
{
    return a.path == b.path && a.language == b.language && a.library == b.library;
}

bool operator==(const DesignSources &a, const DesignSources &b)
{
    return a.files == b.files && a.top == b.top && a.includePaths == b.includePaths && a.defines == b.defines &&
           a.standard == b.standard;
}

QString engineLanguage(const QString &standard)
{
    static const QStringList known{QStringLiteral("1364-1995"), QStringLiteral("1364-2001"),
                                   QStringLiteral("1364-2005"), QStringLiteral("1800-2005"),
                                   QStringLiteral("1800-2009"), QStringLiteral("1800-2012"),
                                   QStringLiteral("1800-2017")};
    return known.contains(standard) ? standard : QString();
}

} // namespace NETCATCHER

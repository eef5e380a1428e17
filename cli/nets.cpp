// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "command.h"
#include "commands.h"
#include "netdesign.h"

#include "rules/netcounts.h"
#include "rules/netsearch.h"

#include <netcatcher/rtlnetlist.h>

#include <QCommandLineParser>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLocale>
#include <QTextStream>

#include <memory>

namespace {

struct SearchOptions
{
    QCommandLineOption scope{QStringLiteral("scope"), QStringLiteral("Search below this instance (u_core/u_alu)."),
                             QStringLiteral("instance")};
    QCommandLineOption noSub{QStringLiteral("no-sub"), QStringLiteral("Search the scope only, nothing below it.")};
    QCommandLineOption match{QStringLiteral("match"), QStringLiteral("List only names that hold this text."),
                             QStringLiteral("text")};
    QCommandLineOption wildcard{QStringLiteral("wildcard"),
                                QStringLiteral("The text is a wildcard that the whole name must match.")};
    QCommandLineOption regex{QStringLiteral("regex"),
                             QStringLiteral("The text is a regular expression that the whole name must match.")};
    QCommandLineOption caseSensitive{QStringLiteral("case-sensitive"),
                                     QStringLiteral("Tell upper and lower case apart.")};
    QCommandLineOption json{QStringLiteral("json"), QStringLiteral("Print JSON.")};
    QCommandLineOption count{QStringLiteral("count"),
                             QStringLiteral("Print how many nets there are instead of listing them.")};

    void addTo(QCommandLineParser &parser) const
    {
        parser.addOptions({scope, noSub, match, wildcard, regex, caseSensitive, json, count});
    }
};

} // namespace

static const QString commandName = QStringLiteral("nets");

/// One value of a JSON text, as it stands inside of a list.
static QByteArray compact(const QJsonObject &object)
{
    return QJsonDocument(object).toJson(QJsonDocument::Compact);
}

static QByteArray quoted(const QString &text)
{
    const QByteArray list = QJsonDocument(QJsonArray{text}).toJson(QJsonDocument::Compact);
    return list.mid(1, list.size() - 2);
}

/// Printed entry by entry, since a design can have millions of them.
static void printJson(const QString &top, const RTLVAK::SearchHits &hits)
{
    QTextStream &out = standardOutput();
    out << "{\"top\":" << quoted(top) << ",\n\"buses\":[";
    const char *separator = "\n";
    for (const NETCATCHER::RtlNetBus *bus : hits.buses) {
        QJsonArray bits;
        const QList<NETCATCHER::RtlNet *> nets = bus->nets();
        for (const NETCATCHER::RtlNet *bit : nets)
            bits.append(bit->fullPathName());
        out << separator
            << compact({{QStringLiteral("name"), bus->fullBusName()},
                        {QStringLiteral("usable"), !bus->isUnusable()},
                        {QStringLiteral("bits"), bits}});
        separator = ",\n";
    }
    out << "],\n\"nets\":[";
    separator = "\n";
    for (const NETCATCHER::RtlNet *net : hits.nets) {
        out << separator
            << compact({{QStringLiteral("name"), net->fullPathName()}, {QStringLiteral("usable"), !net->isUnusable()}});
        separator = ",\n";
    }
    out << "]}\n" << Qt::flush;
}

static void printRow(const QString &name, bool isUnusable)
{
    standardOutput() << name << (isUnusable ? "\tunusable" : "") << '\n';
}

static void printRows(const RTLVAK::SearchHits &hits)
{
    for (const NETCATCHER::RtlNetBus *bus : hits.buses)
        printRow(bus->fullBusName(), bus->isUnusable());
    for (const NETCATCHER::RtlNet *net : hits.nets)
        printRow(net->fullPathName(), net->isUnusable());
    standardOutput().flush();
}

static NETCATCHER::NetCounts countsOf(const RTLVAK::SearchHits &hits)
{
    NETCATCHER::NetCounts counts;
    for (const NETCATCHER::RtlNet *net : hits.nets)
        ++(net->isUnusable() ? counts.unusable : counts.singleNets);
    counts.bits = counts.singleNets;
    for (const NETCATCHER::RtlNetBus *bus : hits.buses) {
        ++(bus->isUnusable() ? counts.unusable : counts.buses);
        counts.bits += bus->isUnusable() ? 0 : quint64(bus->nets().size());
    }
    return counts;
}

static void printCounts(const QString &top, const NETCATCHER::NetCounts &counts, bool asJson)
{
    QTextStream &out = standardOutput();
    if (asJson)
        out << "{\"top\":" << quoted(top) << ",\"rows\":" << counts.rows() << ",\"nets\":" << counts.singleNets
            << ",\"buses\":" << counts.buses << ",\"bits\":" << counts.bits << ",\"unusable\":" << counts.unusable
            << "}\n";
    else
        out << RTLVAK::countsLine(top, counts) << "; " << QLocale(QLocale::English).toString(counts.unusable)
            << " unusable\n";
    out.flush();
}

static RTLVAK::SearchCriteria criteriaOf(const QCommandLineParser &parser, const SearchOptions &options)
{
    RTLVAK::SearchCriteria criteria;
    criteria.pattern = parser.value(options.match);
    criteria.caseSensitive = parser.isSet(options.caseSensitive);
    criteria.plainText = !parser.isSet(options.wildcard) && !parser.isSet(options.regex);
    criteria.syntax = parser.isSet(options.regex) ? QRegExp::RegExp : QRegExp::WildcardUnix;
    criteria.includeSub = !parser.isSet(options.noSub);
    return criteria;
}

static int fail(const QString &message)
{
    standardError() << "rtlvak nets: " << message << '\n' << Qt::flush;
    return Failure;
}

static int search(const NETCATCHER::RtlNetlist &netlist, const QCommandLineParser &parser, const SearchOptions &options)
{
    RTLVAK::SearchCriteria criteria = criteriaOf(parser, options);
    const QString scope = parser.value(options.scope);
    criteria.scope = RTLVAK::findScope(&netlist, scope);
    if (!criteria.scope)
        return fail(QStringLiteral("there is no instance '%1'").arg(scope));
    const QString top = netlist.topHierarchy()->module();
    const bool isCounted = parser.isSet(options.count);
    const bool isWhole = scope.isEmpty() && criteria.includeSub && criteria.plainText && criteria.pattern.isEmpty();
    if (isCounted && isWhole) {
        printCounts(top, netlist.counts(), parser.isSet(options.json));
        return Success;
    }
    const RTLVAK::SearchHits hits = RTLVAK::searchFlat(&netlist, criteria);
    if (isCounted)
        printCounts(top, countsOf(hits), parser.isSet(options.json));
    else if (parser.isSet(options.json))
        printJson(top, hits);
    else
        printRows(hits);
    return Success;
}

int runNets(const QStringList &arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral(
        "Lists the buses and then the single nets of a design, one a line with its full name first; what an analyzer "
        "cannot use is followed by a tabulator and 'unusable'.\nThe design is a project (.vakproj), a Verilog file "
        "list "
        "(.f), or source files."));
    const SearchOptions options;
    options.addTo(parser);
    NetDesignOptions::addTo(parser);
    const int status = parseArguments(&parser, commandName, QStringLiteral("PROJECT|LIST|SOURCE..."), arguments);
    if (status >= 0)
        return status;
    if (parser.positionalArguments().isEmpty())
        return usageError(commandName, QStringLiteral("names no design."));
    if (parser.isSet(options.wildcard) && parser.isSet(options.regex))
        return usageError(commandName, QStringLiteral("takes one of --wildcard and --regex."));
    const QString patternError = RTLVAK::patternError(criteriaOf(parser, options));
    if (!patternError.isEmpty())
        return usageError(commandName, QStringLiteral("the pattern is not valid: %1").arg(patternError));
    QString error;
    const std::unique_ptr<NETCATCHER::RtlNetlist> netlist = readNetlist(parser, &error);
    if (!netlist)
        return fail(error);
    return search(*netlist, parser, options);
}

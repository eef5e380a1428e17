// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "simulatorrows.h"

#include "support/tempdir.h"

#include <QDebug>
#include <QProcess>
#include <QRegularExpression>

namespace probe {

/// The output of a program; null, with the reason printed, when it fails.
static QByteArray outputOf(const QString &program, const QStringList &arguments, const QString &folder)
{
    QProcess process;
    process.setWorkingDirectory(folder);
    process.start(program, arguments);
    const bool hasEnded =
        process.waitForFinished(60000) && process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
    if (!hasEnded)
        qWarning().noquote() << program << process.errorString() << process.readAllStandardError();
    return hasEnded ? process.readAllStandardOutput() + '\n' : QByteArray();
}

static QString entry(QString name, int width)
{
    static const QRegularExpression number(QStringLiteral("\\bgenblk\\d+"));
    if (width == 1 && name.endsWith("[0:0]"))
        name.chop(5);
    return name.replace(number, QStringLiteral("genblk")) + '\t' + QString::number(width);
}

/// Names come as they would stand in a string literal.
static QString plain(QString name)
{
    return name.replace("\\\"", "\"").replace("\\\\", "\\");
}

static QMap<QString, QStringList> parsed(const QByteArray &output)
{
    QMap<QString, QStringList> rows;
    QString top;
    const QStringList lines = QString::fromUtf8(output).split('\n');
    for (const QString &line : lines) {
        const QStringList columns = line.split('\t');
        if (columns[0] == "TOP")
            top = plain(columns[1]);
        else if (columns[0] == "NET" && columns[1] != "vpiRealVar" && columns[1] != "vpiNamedEvent")
            rows[top].append(entry(plain(columns[2]), columns[3].toInt()));
    }
    for (QStringList &each : rows)
        each.sort();
    return rows;
}

QMap<QString, QStringList> simulatorRows(const QString &source, const QStringList &tops, const QStringList &defines)
{
    const support::TempDir dir;
    QStringList arguments{"-g2012", "-DSYNTHESIS", "-o", "sim"};
    for (const QString &define : defines)
        arguments.append("-D" + define);
    for (const QString &top : tops)
        arguments << "-s" << top;
    if (outputOf("iverilog", arguments << source, dir.path()).isNull())
        return {};
    return parsed(outputOf("vvp", {"-n", "-M", VAK_VPI_FOLDER, "-m", "netwalker", "sim"}, dir.path()));
}

QStringList rowsAsOfSimulator(const NETCATCHER::RtlNetlist &netlist)
{
    QStringList entries;
    for (const NETCATCHER::RtlNet *net : netlist.topHierarchy()->singleNetsIncludeSub())
        entries.append(entry(net->fullPathName(), 1));
    for (const NETCATCHER::RtlNetBus *bus : netlist.topHierarchy()->netbusesIncludeSub())
        entries.append(entry(bus->fullBusName(), bus->nets().size()));
    entries.sort();
    return entries;
}

} // namespace probe

// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "netlistprobe.h"

#include "support/fakelandlock.h"
#include <QFile>

namespace probe {

NETCATCHER::DesignSources sources(const QStringList &paths, const QString &top)
{
    QVariantList files;
    for (const QString &path : paths)
        files.append(QVariantMap{{"Path", path}});
    return NETCATCHER::DesignSources::fromSourceInfo({{"Files", files}, {"Top", top}});
}

QString dataFile(const QString &name)
{
    return QStringLiteral(VAK_TEST_DATA "/hdl/") + name;
}

QStringList goldenRows(const QString &design)
{
    QFile file(dataFile(design + QStringLiteral(".nets")));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()).split('\n', Qt::SkipEmptyParts)
                                          : QStringList();
}

QStringList namesNotFound(const NETCATCHER::RtlNetlist &netlist)
{
    QList<NETCATCHER::RtlNet *> nets = netlist.topHierarchy()->singleNetsIncludeSub();
    for (const NETCATCHER::RtlNetBus *bus : netlist.topHierarchy()->netbusesIncludeSub())
        nets += bus->nets();
    QStringList names;
    for (const NETCATCHER::RtlNet *net : qAsConst(nets)) {
        if (netlist.findNet(net->fullPathName()) != net)
            names.append(net->fullPathName());
    }
    return names;
}

QStringList Result::errors() const
{
    return messages.filter(QRegExp("^ERROR"));
}

QStringList Result::warnings() const
{
    return messages.filter(QRegExp("^WARNING"));
}

Result build(const NETCATCHER::DesignSources &sources, const NETCATCHER::EngineLimits &limits)
{
    NETCATCHER::NetlistBuilder builder(sources);
    builder.setLimits(limits);
    Result result;
    result.isAnalysed = builder.analyse();
    result.tops = builder.tops();
    result.modules = builder.modules();
    result.netlist = builder.build(&result.error);
    result.messages = builder.messages();
    // Tests of messages are about the design; TestSandbox asserts this one.
    if (support::landlockVersion() == 0)
        result.messages.removeOne(QLatin1String(support::noLandlockWarning));
    return result;
}

QStringList rows(const NETCATCHER::RtlNetlist &netlist)
{
    QStringList result;
    const auto add = [&result](const QString &name, bool isUnusable) {
        result.append(isUnusable ? name + QStringLiteral("\tunusable") : name);
    };
    const NETCATCHER::Hierachy *top = netlist.topHierarchy();
    for (const NETCATCHER::RtlNetBus *bus : top->netbusesIncludeSub())
        add(bus->fullBusName(), bus->isUnusable());
    for (const NETCATCHER::RtlNet *net : top->singleNetsIncludeSub())
        add(net->fullPathName(), net->isUnusable());
    return result;
}

} // namespace probe

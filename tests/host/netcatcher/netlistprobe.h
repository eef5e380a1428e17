// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "hostlibs/netcatcher/netlistbuilder.h"

#include <QStringList>

#include <memory>

namespace probe {

/// A design made of files, named by their absolute paths.
NETCATCHER::DesignSources sources(const QStringList &paths, const QString &top = {});
/// A file of the tests' own designs.
QString dataFile(const QString &name);

/// What building a design gave.
struct Result
{
    bool isAnalysed = false;
    QStringList tops;
    QStringList modules;
    QStringList messages;
    QString error;
    std::unique_ptr<NETCATCHER::RtlNetlist> netlist;

    QStringList errors() const;
    QStringList warnings() const;
};

Result build(const NETCATCHER::DesignSources &sources, const NETCATCHER::EngineLimits &limits = {});

/// Buses and then single nets, named in full, unusable ones with a tabulator and "unusable" behind: the golden form.
QStringList rows(const NETCATCHER::RtlNetlist &netlist);
/// The rows that one of the tests' own designs should have, from the list beside it; none when there is no list.
QStringList goldenRows(const QString &design);
/// The full names of single nets and bits by which the netlist finds another net, or none.
QStringList namesNotFound(const NETCATCHER::RtlNetlist &netlist);

} // namespace probe

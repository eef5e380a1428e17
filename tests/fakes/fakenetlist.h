// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <hostglobal.h>

#include <QList>
#include <QString>

#include <list>

namespace NETCATCHER {
class RtlNetlist;
}

/// Scripted netlists.
namespace fakes {

enum Usability { Usable, Unusable };

struct Net
{
    QString name;
    Usability usability;
};

struct Bus
{
    QString name; ///< without the range
    int first;
    int last;
    Usability usability;     ///< an unusable bus has unusable bits only
    QList<int> unusableBits; ///< indices, as in the range
};

/// One instance of a hierarchy to be built, with what lies below it. Everything appears in the order in which it was
/// added. References from child() stay valid while the instance lives.
///
///     fakes::Instance top("soc_top");
///     top.net("clk").bus("data", 7, 0);
///     top.child("u_core", "core").bus("pc", 31, 0).net("halt", fakes::Unusable);
class HOST_EXPORT Instance
{
public:
    explicit Instance(const QString &name, const QString &module = {});

    /// A net of width one.
    Instance &net(const QString &name, Usability usability = Usable);
    /// The vector `name[first:last]`.
    Instance &bus(const QString &name, int first, int last, Usability usability = Usable,
                  const QList<int> &unusableBits = {});
    /// Adds an instance directly below and gives it back.
    Instance &child(const QString &name, const QString &module);

    QString name;
    QString module; ///< the name when none was given
    QList<Net> nets;
    QList<Bus> buses;
    std::list<Instance> children;
};

/// Builds the netlist; the caller owns it.
HOST_EXPORT NETCATCHER::RtlNetlist *makeNetlist(const Instance &top, bool jtagUsed = false);

/// The number of netlists that are alive.
HOST_EXPORT int liveNetlists();

} // namespace fakes

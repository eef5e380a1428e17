// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "fakes/fakenetlist.h"

#include <hostglobal.h>

#include <QMap>
#include <QStringList>
#include <QVariant>

#include <functional>

class QWidget;

/// Control of the netlist library's double: the answers of its two calls, and what they were called with.
namespace fakes {

struct ModulesCall
{
    QStringList tops; ///< the three lists as they came in
    QStringList modules;
    QStringList messages;
    QMap<QString, QVariant> sourceInfo;
    QWidget *parent;
};

struct NetsCall
{
    bool outWasNull; ///< whether the pointer was null when the call came in
    QStringList paths;
    QWidget *parent;
};

/// No modules, no messages, a null netlist, no handlers, nothing recorded.
HOST_EXPORT void resetNetcatcher();

/// What catchRtlModules() appends to its lists.
HOST_EXPORT void setModules(const QStringList &tops, const QStringList &modules, const QStringList &messages = {});
/// What catchRtlNetsWithProgressDialog() delivers: a new netlist of this design at each call, or null.
HOST_EXPORT void deliverNetlist(const Instance &top, bool jtagUsed = false);
HOST_EXPORT void deliverNull();
/// The usual design: one top, found as a module, and its netlist.
HOST_EXPORT void setDesign(const Instance &top);

/// Called within the call, before it answers: for what may happen while the library's progress dialog is open.
HOST_EXPORT void whileCatchingModules(const std::function<void()> &handler);
HOST_EXPORT void whileCatchingNets(const std::function<void()> &handler);

/// The calls since the reset, in order.
HOST_EXPORT QList<ModulesCall> modulesCalls();
HOST_EXPORT QList<NetsCall> netsCalls();

} // namespace fakes

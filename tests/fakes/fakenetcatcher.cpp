// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "fakes/fakenetcatcher.h"

#include <netcatcher/netcatcher.h>

#include <optional>

namespace {

struct Script
{
    QStringList tops;
    QStringList modules;
    QStringList messages;
    std::optional<fakes::Instance> top;
    bool jtagUsed = false;
    std::function<void()> modulesHandler;
    std::function<void()> netsHandler;
    QList<fakes::ModulesCall> modulesCalls;
    QList<fakes::NetsCall> netsCalls;
};

Script &script()
{
    static Script instance;
    return instance;
}

/// Handlers may reset the script that holds them.
void run(std::function<void()> handler)
{
    if (handler)
        handler();
}

} // namespace

namespace NETCATCHER {

void catchRtlModules(QStringList &tops, QStringList &modules, QStringList &messages,
                     QMap<QString, QVariant> &sourceInfo, QWidget *parent)
{
    script().modulesCalls.append({tops, modules, messages, sourceInfo, parent});
    run(script().modulesHandler);
    tops += script().tops;
    modules += script().modules;
    messages += script().messages;
}

void catchRtlNetsWithProgressDialog(RtlNetlist **out, QStringList &paths, QWidget *parent)
{
    script().netsCalls.append({*out == nullptr, paths, parent});
    run(script().netsHandler);
    *out = script().top ? fakes::makeNetlist(*script().top, script().jtagUsed) : nullptr;
}

} // namespace NETCATCHER

namespace fakes {

void resetNetcatcher()
{
    script() = {};
}

void setModules(const QStringList &tops, const QStringList &modules, const QStringList &messages)
{
    script().tops = tops;
    script().modules = modules;
    script().messages = messages;
}

void deliverNetlist(const Instance &top, bool jtagUsed)
{
    script().top = top;
    script().jtagUsed = jtagUsed;
}

void deliverNull()
{
    script().top.reset();
}

void setDesign(const Instance &top)
{
    setModules({top.module}, {top.module});
    deliverNetlist(top);
}

void whileCatchingModules(const std::function<void()> &handler)
{
    script().modulesHandler = handler;
}

void whileCatchingNets(const std::function<void()> &handler)
{
    script().netsHandler = handler;
}

QList<ModulesCall> modulesCalls()
{
    return script().modulesCalls;
}

QList<NetsCall> netsCalls()
{
    return script().netsCalls;
}

} // namespace fakes

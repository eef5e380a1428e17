// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "hostlibs/netcatcher/store/netstore.h"

namespace NETCATCHER {

Hierachy::~Hierachy() = default;

RtlNetlist::RtlNetlist(std::unique_ptr<Data> data)
    : d(std::move(data))
{
}

RtlNetlist::~RtlNetlist() = default;

Hierachy *RtlNetlist::topHierarchy() const
{
    return &d->store->node(0);
}

bool RtlNetlist::jtagUsed() const
{
    return d->store->jtagUsed();
}

RtlNet *RtlNetlist::findNet(const QString &name) const
{
    return d->store->find(name);
}

NetCounts RtlNetlist::counts() const
{
    return d->store->counts();
}

RtlNet::RtlNet()
    : handle(0)
{
}

QString RtlNet::name() const
{
    return NetStore::of(this).netName(handle);
}

QString RtlNet::fullPathName() const
{
    return NetStore::of(this).netPath(handle);
}

bool RtlNet::isUnusable() const
{
    return NetStore::of(this).isNetUnusable(handle);
}

RtlNetBus::RtlNetBus()
    : handle(0)
{
}

QString RtlNetBus::BusName() const
{
    return NetStore::of(this).busName(handle);
}

QString RtlNetBus::fullBusName() const
{
    return NetStore::of(this).busPath(handle);
}

QList<RtlNet *> RtlNetBus::nets() const
{
    return NetStore::of(this).bitsOf(handle);
}

bool RtlNetBus::isUnusable() const
{
    return NetStore::of(this).isBusUnusable(handle);
}

} // namespace NETCATCHER

// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "fakes/fakenetlist.h"

#include <netcatcher/rtlnetlist.h>

#include <QHash>

#include <memory>
#include <vector>

namespace {

int live = 0;

struct ScriptedNet
{
    QString name;
    QString path;
    bool unusable;
};

struct ScriptedBus
{
    QString name;
    QString path;
    QList<NETCATCHER::RtlNet *> bits;
    bool unusable;
};

QString joined(const QString &prefix, const QString &name)
{
    return prefix.isEmpty() ? name : prefix + QLatin1Char('/') + name;
}

} // namespace

namespace NETCATCHER {

RtlNet::RtlNet()
    : handle(0)
{
}

RtlNetBus::RtlNetBus()
    : handle(0)
{
}

/// Owns the nets and buses of one scripted netlist; a handle is the address of the scripted record.
class NetArray
{
public:
    RtlNet *addNet(const ScriptedNet &record)
    {
        netRecords.push_back(std::make_unique<ScriptedNet>(record));
        nets.emplace_back(new RtlNet);
        nets.back()->handle = reinterpret_cast<quint64>(netRecords.back().get());
        byPath.insert(record.path, nets.back().get());
        return nets.back().get();
    }

    RtlNetBus *addBus(const ScriptedBus &record)
    {
        busRecords.push_back(std::make_unique<ScriptedBus>(record));
        buses.emplace_back(new RtlNetBus);
        buses.back()->handle = reinterpret_cast<quint64>(busRecords.back().get());
        return buses.back().get();
    }

    RtlNet *find(const QString &path) const { return byPath.value(path); }

private:
    std::vector<std::unique_ptr<ScriptedNet>> netRecords;
    std::vector<std::unique_ptr<ScriptedBus>> busRecords;
    std::vector<std::unique_ptr<RtlNet>> nets;
    std::vector<std::unique_ptr<RtlNetBus>> buses;
    QHash<QString, RtlNet *> byPath;
};

static const ScriptedNet &netOf(quint64 handle)
{
    return *reinterpret_cast<const ScriptedNet *>(handle);
}

static const ScriptedBus &busOf(quint64 handle)
{
    return *reinterpret_cast<const ScriptedBus *>(handle);
}

QString RtlNet::name() const
{
    return netOf(handle).name;
}

QString RtlNet::fullPathName() const
{
    return netOf(handle).path;
}

bool RtlNet::isUnusable() const
{
    return netOf(handle).unusable;
}

QString RtlNetBus::BusName() const
{
    return busOf(handle).name;
}

QString RtlNetBus::fullBusName() const
{
    return busOf(handle).path;
}

QList<RtlNet *> RtlNetBus::nets() const
{
    return busOf(handle).bits;
}

bool RtlNetBus::isUnusable() const
{
    return busOf(handle).unusable;
}

Hierachy::~Hierachy() = default;

namespace {

class ScriptedHierachy : public Hierachy
{
public:
    ScriptedHierachy(const fakes::Instance &instance, ScriptedHierachy *parentNode, const QString &prefix,
                     NetArray &array)
        : instanceName(instance.name)
        , moduleName(instance.module)
        , above(parentNode)
    {
        for (const fakes::Net &net : instance.nets)
            ownNets.append(array.addNet({net.name, joined(prefix, net.name), net.usability == fakes::Unusable}));
        for (const fakes::Bus &bus : instance.buses)
            ownBuses.append(makeBus(bus, prefix, array));
        for (const fakes::Instance &child : instance.children) {
            below.push_back(std::make_unique<ScriptedHierachy>(child, this, joined(prefix, child.name), array));
        }
    }

    QString name() const override { return instanceName; }
    QString module() const override { return moduleName; }
    Hierachy *parent() const override { return above; }
    QList<RtlNet *> singleNets() const override { return ownNets; }
    QList<RtlNetBus *> netbuses() const override { return ownBuses; }

    QList<Hierachy *> children() const override
    {
        QList<Hierachy *> list;
        for (const auto &child : below)
            list.append(child.get());
        return list;
    }

    QList<RtlNet *> singleNetsIncludeSub() const override
    {
        QList<RtlNet *> list = ownNets;
        for (const auto &child : below)
            list += child->singleNetsIncludeSub();
        return list;
    }

    QList<RtlNetBus *> netbusesIncludeSub() const override
    {
        QList<RtlNetBus *> list = ownBuses;
        for (const auto &child : below)
            list += child->netbusesIncludeSub();
        return list;
    }

private:
    static RtlNetBus *makeBus(const fakes::Bus &bus, const QString &prefix, NetArray &array)
    {
        const bool unusable = bus.usability == fakes::Unusable;
        const QString name = QStringLiteral("%1[%2:%3]").arg(bus.name).arg(bus.first).arg(bus.last);
        ScriptedBus record{name, joined(prefix, name), {}, unusable};
        const int step = bus.first <= bus.last ? 1 : -1;
        for (int index = bus.first; index != bus.last + step; index += step) {
            const QString bit = QStringLiteral("%1[%2]").arg(bus.name).arg(index);
            record.bits.append(array.addNet({bit, joined(prefix, bit), unusable || bus.unusableBits.contains(index)}));
        }
        return array.addBus(record);
    }

    QString instanceName;
    QString moduleName;
    ScriptedHierachy *above;
    QList<RtlNet *> ownNets;
    QList<RtlNetBus *> ownBuses;
    std::vector<std::unique_ptr<ScriptedHierachy>> below;
};

} // namespace

struct RtlNetlist::Data
{
    NetArray array;
    std::unique_ptr<ScriptedHierachy> top;
    bool jtagUsed = false;
};

RtlNetlist::RtlNetlist(std::unique_ptr<Data> data)
    : d(std::move(data))
{
    ++live;
}

RtlNetlist::~RtlNetlist()
{
    --live;
}

Hierachy *RtlNetlist::topHierarchy() const
{
    return d->top.get();
}

bool RtlNetlist::jtagUsed() const
{
    return d->jtagUsed;
}

NetCounts RtlNetlist::counts() const
{
    NetCounts result;
    const QList<RtlNet *> nets = d->top->singleNetsIncludeSub();
    for (const RtlNet *net : nets)
        ++(net->isUnusable() ? result.unusable : result.singleNets);
    result.bits = result.singleNets;
    const QList<RtlNetBus *> buses = d->top->netbusesIncludeSub();
    for (const RtlNetBus *bus : buses) {
        ++(bus->isUnusable() ? result.unusable : result.buses);
        result.bits += bus->isUnusable() ? 0 : quint64(bus->nets().size());
    }
    return result;
}

RtlNet *RtlNetlist::findNet(const QString &name) const
{
    return d->array.find(name);
}

} // namespace NETCATCHER

namespace fakes {

Instance::Instance(const QString &instanceName, const QString &moduleName)
    : name(instanceName)
    , module(moduleName.isEmpty() ? instanceName : moduleName)
{
}

Instance &Instance::net(const QString &netName, Usability usability)
{
    nets.append({netName, usability});
    return *this;
}

Instance &Instance::bus(const QString &busName, int first, int last, Usability usability,
                        const QList<int> &unusableBits)
{
    buses.append({busName, first, last, usability, unusableBits});
    return *this;
}

Instance &Instance::child(const QString &childName, const QString &childModule)
{
    return children.emplace_back(childName, childModule);
}

NETCATCHER::RtlNetlist *makeNetlist(const Instance &top, bool jtagUsed)
{
    auto data = std::make_unique<NETCATCHER::RtlNetlist::Data>();
    data->top = std::make_unique<NETCATCHER::ScriptedHierachy>(top, nullptr, QString(), data->array);
    data->jtagUsed = jtagUsed;
    return new NETCATCHER::RtlNetlist(std::move(data));
}

int liveNetlists()
{
    return live;
}

} // namespace fakes

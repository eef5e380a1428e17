// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <hostglobal.h>

#include <QList>
#include <QString>

#include <memory>

namespace NETCATCHER {

class Hierachy;
class RtlNet;
class RtlNetBus;

/// How many nets a design offers. A row is what a person can choose: a single net, or a bus as a whole.
struct NetCounts
{
    quint64 singleNets = 0; ///< usable nets of width one, bits of buses not among them
    quint64 buses = 0;      ///< usable buses
    quint64 bits = 0;       ///< of both
    quint64 unusable = 0;   ///< rows that are listed but cannot be chosen

    quint64 rows() const { return singleNets + buses; }
};

/// The nets of an elaborated design. Everything that it hands out belongs to it and lives as long as it does.
class HOST_EXPORT RtlNetlist
{
public:
    /// The library's own representation.
    struct Data;

    explicit RtlNetlist(std::unique_ptr<Data> data);
    ~RtlNetlist();
    RtlNetlist(const RtlNetlist &) = delete;
    RtlNetlist &operator=(const RtlNetlist &) = delete;

    /// The top node; never null.
    Hierachy *topHierarchy() const;
    /// Whether the design already holds an instance of the JTAG primitive OV_JTAG.
    bool jtagUsed() const;
    /// The single net or bit of a bus whose full path name is `name`, compared exactly; null when there is none.
    RtlNet *findNet(const QString &name) const;
    /// Counts the nets of the whole design, without taking any bus apart.
    NetCounts counts() const;

private:
    std::unique_ptr<Data> d;
};

/// One instance of the design's hierarchy.
class HOST_EXPORT Hierachy // spelling fixed by the interface
{
public:
    virtual ~Hierachy();

    /// The instance's local name; the module's name for the top node.
    virtual QString name() const = 0;
    /// The module's name as its author wrote it.
    virtual QString module() const = 0;
    /// Null for the top node.
    virtual Hierachy *parent() const = 0;
    /// The instances directly below, in the order of the source.
    virtual QList<Hierachy *> children() const = 0;
    /// The nets of width one declared in this instance, in the order of the source. Bits of buses are not among them.
    virtual QList<RtlNet *> singleNets() const = 0;
    /// singleNets() of this instance and then of everything below it, depth first.
    virtual QList<RtlNet *> singleNetsIncludeSub() const = 0;
    virtual QList<RtlNetBus *> netbuses() const = 0;
    virtual QList<RtlNetBus *> netbusesIncludeSub() const = 0;
};

/// A net of width one: a scalar, or one bit of a bus.
class HOST_EXPORT RtlNet
{
public:
    RtlNet(const RtlNet &) = delete;
    RtlNet &operator=(const RtlNet &) = delete;

    /// The name inside its instance, a bit with its index: `pc[31]`.
    QString name() const;
    /// The name from the top, instances separated by `/`; the top's own nets have no prefix.
    QString fullPathName() const;
    /// Whether the net can be neither sampled nor used as a clock (it is listed, but not selectable).
    bool isUnusable() const;

private:
    friend class NetArray;
    RtlNet();

    quint64 handle; ///< meaning known to the library only
};

/// A vector of nets.
class HOST_EXPORT RtlNetBus
{
public:
    RtlNetBus(const RtlNetBus &) = delete;
    RtlNetBus &operator=(const RtlNetBus &) = delete;

    /// The name inside its instance with its range: `pc[31:0]`.
    QString BusName() const; // spelling fixed by the interface
    /// The name from the top with its range.
    QString fullBusName() const;
    /// The bits in declared order, the most significant first for `[31:0]`.
    QList<RtlNet *> nets() const;
    bool isUnusable() const;

private:
    friend class NetArray;
    RtlNetBus();

    quint64 handle; ///< meaning known to the library only
};

} // namespace NETCATCHER

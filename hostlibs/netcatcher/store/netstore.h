// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "childindex.h"
#include "moduletable.h"
#include "netarray.h"

#include <QHash>
#include <QList>
#include <QString>

#include <memory>
#include <unordered_map>
#include <vector>

namespace NETCATCHER {

class NetStore;

/// One instance: its place in the hierarchy and where its nets begin. Instances are numbered in preorder, so that
/// everything below one of them is a contiguous range of instances, nets and buses.
class Node : public Hierachy
{
public:
    explicit Node(NetStore &owner)
        : store(&owner)
    {
    }

    QString name() const override;
    QString module() const override;
    Hierachy *parent() const override;
    QList<Hierachy *> children() const override;
    QList<RtlNet *> singleNets() const override;
    QList<RtlNet *> singleNetsIncludeSub() const override;
    QList<RtlNetBus *> netbuses() const override;
    QList<RtlNetBus *> netbusesIncludeSub() const override;

    NetStore *store;
    quint32 moduleIndex = 0;
    quint32 parentNode = 0; ///< the top is its own parent
    quint32 childIndex = 0; ///< among the children of the parent's module
    quint32 subtreeEnd = 0; ///< one past the last instance below
    quint32 firstSingle = 0;
    quint32 firstBus = 0;
    quint64 firstBit = 0;
};

/// The nets of an elaborated design in little memory: names once per module, one record per instance, and handles of
/// eight bytes that say (instance, number in its module). A net finds its store by its address.
class NetStore
{
public:
    /// Expands the hierarchy; null, with `error` set, when the design is too large for this machine.
    static std::unique_ptr<NetStore> build(ModuleTable table, QString *error);
    ~NetStore();
    NetStore(const NetStore &) = delete;
    NetStore &operator=(const NetStore &) = delete;

    /// The store that holds the handle object at `address`.
    static const NetStore &of(const void *address);

    const ModuleDef &moduleOf(const Node &node) const { return m_table.modules[node.moduleIndex]; }
    Node &node(quint32 index) { return m_nodes[index]; }
    const Node &node(quint32 index) const { return m_nodes[index]; }
    quint32 nodeCount() const { return quint32(m_nodes.size()); }
    quint32 indexOf(const Node &node) const { return quint32(&node - m_nodes.data()); }
    bool jtagUsed() const { return m_jtagUsed; }
    NetCounts counts() const;

    QString netName(quint64 handle) const;
    QString netPath(quint64 handle) const;
    bool isNetUnusable(quint64 handle) const;
    QString busName(quint64 handle) const;
    QString busPath(quint64 handle) const;
    bool isBusUnusable(quint64 handle) const;
    QList<RtlNet *> bitsOf(quint64 handle) const;

    QList<RtlNet *> singles(quint32 firstNode, quint32 endNode) const;
    QList<RtlNetBus *> buses(quint32 firstNode, quint32 endNode) const;
    const QList<RtlNet *> &singlesBelow(quint32 node) const;
    const QList<RtlNetBus *> &busesBelow(quint32 node) const;

    RtlNet *find(const QString &path) const;

private:
    explicit NetStore(ModuleTable table);
    bool expand(QString *error);
    void openNode(quint32 module, quint32 parent, quint32 childIndex, const std::vector<quint64> &sizes, quint64 *bits);
    void makeHandles();
    quint32 firstSingleOf(quint32 node) const;
    quint32 firstBusOf(quint32 node) const;
    QString prefix(quint32 node) const;
    const ChildIndex &childIndexOf(quint32 node) const;
    RtlNet *findBelow(quint32 node, const QByteArray &path) const;
    RtlNet *findLocal(quint32 node, const QByteArray &name) const;

    ModuleTable m_table;
    std::vector<Node> m_nodes;
    mutable NetArray m_array; ///< bits appear on demand, behind a const interface
    quint64 m_singleCount = 0;
    quint64 m_busCount = 0;
    bool m_jtagUsed = false;

    mutable QHash<quint32, QList<RtlNet *>> m_singlesBelow;
    mutable QHash<quint32, QList<RtlNetBus *>> m_busesBelow;
    mutable std::unordered_map<quint32, ChildIndex> m_childIndexes; ///< by module, made by the first search
    mutable quint32 m_prefixNode = 0;                               ///< the instance that m_prefix belongs to
    mutable QString m_prefix;
};

/// What the public netlist object holds.
struct RtlNetlist::Data
{
    std::unique_ptr<NetStore> store;
};

} // namespace NETCATCHER

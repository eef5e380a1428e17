// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "netstore.h"

#include <algorithm>

namespace NETCATCHER {

// A handle is the instance in its upper half and a number in its lower half: of a single net, or of a bit with this
// flag.
constexpr quint64 bitFlag = 0x80000000u;
constexpr quint64 maxHandles = 1ull << 32;

static quint64 makeHandle(quint32 node, quint64 local)
{
    return quint64(node) << 32 | local;
}

static quint32 nodeOf(quint64 handle)
{
    return quint32(handle >> 32);
}

static quint32 localOf(quint64 handle)
{
    return quint32(handle & (bitFlag - 1));
}

static bool isBit(quint64 handle)
{
    return handle & bitFlag;
}

/// All living stores, few at any time.
static std::vector<const NetStore *> &livingStores()
{
    static std::vector<const NetStore *> stores;
    return stores;
}

NetStore::NetStore(ModuleTable table)
    : m_table(std::move(table))
{
    livingStores().push_back(this);
}

NetStore::~NetStore()
{
    auto &stores = livingStores();
    stores.erase(std::find(stores.begin(), stores.end(), this));
}

const NetStore &NetStore::of(const void *address)
{
    const auto &stores = livingStores();
    const auto found = std::find_if(stores.begin(), stores.end(),
                                    [address](const NetStore *store) { return store->m_array.holds(address); });
    Q_ASSERT(found != stores.end());
    return **found;
}

std::unique_ptr<NetStore> NetStore::build(ModuleTable table, QString *error)
{
    std::unique_ptr<NetStore> store(new NetStore(std::move(table)));
    if (!store->expand(error))
        return nullptr;
    store->makeHandles();
    return store;
}

bool NetStore::expand(QString *error)
{
    const std::vector<quint64> sizes = instanceCounts(m_table);
    if (sizes.empty()) {
        *error = QStringLiteral("The design instantiates a module inside itself.");
        return false;
    }
    if (sizes[m_table.top] > maxInstances) {
        *error = QStringLiteral("The design has more than %1 instances.").arg(maxInstances);
        return false;
    }
    m_nodes.reserve(sizes[m_table.top]);
    quint64 bits = 0;
    openNode(m_table.top, 0, 0, sizes, &bits);
    std::vector<std::pair<quint32, quint32>> path{{0, 0}}; // instance, next child
    while (!path.empty() && m_singleCount + bits < maxHandles && m_busCount < maxHandles) {
        auto &[parent, next] = path.back();
        const auto &children = moduleOf(m_nodes[parent]).children;
        if (next == children.size()) {
            path.pop_back();
            continue;
        }
        const quint32 childIndex = next++;
        openNode(children[childIndex].module, parent, childIndex, sizes, &bits);
        path.emplace_back(quint32(m_nodes.size() - 1), 0);
    }
    if (path.empty() && m_array.reserve(m_singleCount, bits, m_busCount))
        return true;
    *error = QStringLiteral("The design has too many nets for this machine.");
    return false;
}

/// Appends the record of an instance and counts its nets.
void NetStore::openNode(quint32 module, quint32 parent, quint32 childIndex, const std::vector<quint64> &sizes,
                        quint64 *bits)
{
    const ModuleDef &def = m_table.modules[module];
    Node node(*this);
    node.moduleIndex = module;
    node.parentNode = parent;
    node.childIndex = childIndex;
    node.subtreeEnd = quint32(m_nodes.size() + sizes[module]);
    node.firstSingle = quint32(m_singleCount);
    node.firstBus = quint32(m_busCount);
    node.firstBit = *bits;
    m_singleCount += def.singleCount();
    m_busCount += def.busCount();
    *bits += def.bitCount();
    m_jtagUsed = m_jtagUsed || (!m_nodes.empty() && def.name == QLatin1String("OV_JTAG"));
    m_nodes.push_back(node);
}

void NetStore::makeHandles()
{
    for (quint32 i = 0; i < nodeCount(); ++i) {
        const ModuleDef &module = moduleOf(m_nodes[i]);
        for (quint32 k = 0; k < module.singleCount(); ++k)
            m_array.makeSingle(quint64(m_nodes[i].firstSingle) + k, makeHandle(i, k));
        for (quint32 k = 0; k < module.busCount(); ++k)
            m_array.makeBus(quint64(m_nodes[i].firstBus) + k, makeHandle(i, k));
    }
}

NetCounts NetStore::counts() const
{
    std::vector<NetCounts> ofModule;
    ofModule.reserve(m_table.modules.size());
    for (const ModuleDef &module : m_table.modules)
        ofModule.push_back(module.counts());
    NetCounts all;
    for (const Node &node : m_nodes) {
        const NetCounts &own = ofModule[node.moduleIndex];
        all.singleNets += own.singleNets;
        all.buses += own.buses;
        all.bits += own.bits;
        all.unusable += own.unusable;
    }
    return all;
}

QString NetStore::prefix(quint32 node) const
{
    if (node == 0)
        return {};
    if (node != m_prefixNode) {
        QByteArray text;
        for (quint32 i = node; i != 0; i = m_nodes[i].parentNode) {
            const Node &parent = m_nodes[m_nodes[i].parentNode];
            text.prepend(moduleOf(parent).children[m_nodes[i].childIndex].name + '/');
        }
        m_prefix = QString::fromUtf8(text);
        m_prefixNode = node;
    }
    return m_prefix;
}

QString NetStore::netName(quint64 handle) const
{
    const ModuleDef &module = moduleOf(m_nodes[nodeOf(handle)]);
    return isBit(handle) ? module.bitName(localOf(handle)) : module.singleName(localOf(handle));
}

QString NetStore::netPath(quint64 handle) const
{
    return prefix(nodeOf(handle)) + netName(handle);
}

bool NetStore::isNetUnusable(quint64 handle) const
{
    const ModuleDef &module = moduleOf(m_nodes[nodeOf(handle)]);
    if (isBit(handle))
        return module.bus(module.busOfBit(localOf(handle))).unusable;
    return module.isSingleUnusable(localOf(handle));
}

QString NetStore::busName(quint64 handle) const
{
    return moduleOf(m_nodes[nodeOf(handle)]).busName(localOf(handle));
}

QString NetStore::busPath(quint64 handle) const
{
    return prefix(nodeOf(handle)) + busName(handle);
}

bool NetStore::isBusUnusable(quint64 handle) const
{
    return moduleOf(m_nodes[nodeOf(handle)]).bus(localOf(handle)).unusable;
}

QList<RtlNet *> NetStore::bitsOf(quint64 handle) const
{
    const quint32 index = nodeOf(handle);
    const Node &owner = m_nodes[index];
    const BusDef &bus = moduleOf(owner).bus(localOf(handle));
    QList<RtlNet *> bits;
    bits.reserve(int(bus.bitCount()));
    for (quint32 i = bus.firstBit; i < bus.firstBit + bus.bitCount(); ++i)
        bits.append(m_array.bit(owner.firstBit + i, makeHandle(index, bitFlag | i)));
    return bits;
}

quint32 NetStore::firstSingleOf(quint32 node) const
{
    return node < nodeCount() ? m_nodes[node].firstSingle : quint32(m_singleCount);
}

quint32 NetStore::firstBusOf(quint32 node) const
{
    return node < nodeCount() ? m_nodes[node].firstBus : quint32(m_busCount);
}

QList<RtlNet *> NetStore::singles(quint32 firstNode, quint32 endNode) const
{
    const quint32 end = firstSingleOf(endNode);
    QList<RtlNet *> nets;
    nets.reserve(int(end - firstSingleOf(firstNode)));
    for (quint32 i = firstSingleOf(firstNode); i < end; ++i)
        nets.append(m_array.single(i));
    return nets;
}

QList<RtlNetBus *> NetStore::buses(quint32 firstNode, quint32 endNode) const
{
    const quint32 end = firstBusOf(endNode);
    QList<RtlNetBus *> result;
    result.reserve(int(end - firstBusOf(firstNode)));
    for (quint32 i = firstBusOf(firstNode); i < end; ++i)
        result.append(m_array.bus(i));
    return result;
}

/// Keeps the top's list, which every search of the whole design asks for, and one more.
template <typename List, typename Make>
static const List &cachedList(QHash<quint32, List> &cache, quint32 node, Make make)
{
    const auto found = cache.constFind(node);
    if (found != cache.constEnd())
        return *found;
    for (auto it = cache.begin(); it != cache.end();)
        it = it.key() == 0 ? std::next(it) : cache.erase(it);
    return *cache.insert(node, make());
}

const QList<RtlNet *> &NetStore::singlesBelow(quint32 node) const
{
    return cachedList(m_singlesBelow, node, [&] { return singles(node, m_nodes[node].subtreeEnd); });
}

const QList<RtlNetBus *> &NetStore::busesBelow(quint32 node) const
{
    return cachedList(m_busesBelow, node, [&] { return buses(node, m_nodes[node].subtreeEnd); });
}

RtlNet *NetStore::find(const QString &path) const
{
    return findBelow(0, path.toUtf8());
}

RtlNet *NetStore::findLocal(quint32 node, const QByteArray &name) const
{
    const ModuleDef &module = moduleOf(m_nodes[node]);
    if (const auto single = module.findSingle(name))
        return m_array.single(quint64(m_nodes[node].firstSingle) + *single);
    if (const auto bit = module.findBit(name))
        return m_array.bit(m_nodes[node].firstBit + *bit, makeHandle(node, bitFlag | *bit));
    return nullptr;
}

const ChildIndex &NetStore::childIndexOf(quint32 node) const
{
    const quint32 module = m_nodes[node].moduleIndex;
    const auto known = m_childIndexes.find(module);
    if (known != m_childIndexes.end())
        return known->second;
    std::vector<quint32> offsets;
    for (quint32 child = node + 1; child < m_nodes[node].subtreeEnd; child = m_nodes[child].subtreeEnd)
        offsets.push_back(child - node);
    return m_childIndexes.emplace(module, ChildIndex(moduleOf(m_nodes[node]).children, std::move(offsets)))
        .first->second;
}

RtlNet *NetStore::findBelow(quint32 node, const QByteArray &path) const
{
    if (RtlNet *net = findLocal(node, path))
        return net;
    const auto &children = moduleOf(m_nodes[node]).children;
    const auto steps = childIndexOf(node).firstSteps(children, {path.constData(), std::size_t(path.size())});
    for (const ChildIndex::Step &step : steps) {
        if (RtlNet *net = findBelow(node + step.offset, path.mid(int(step.nameLength) + 1)))
            return net;
    }
    return nullptr;
}

QString Node::name() const
{
    const quint32 index = store->indexOf(*this);
    if (index == 0)
        return module();
    return QString::fromUtf8(store->moduleOf(store->node(parentNode)).children[childIndex].name);
}

QString Node::module() const
{
    return store->moduleOf(*this).name;
}

Hierachy *Node::parent() const
{
    return store->indexOf(*this) == 0 ? nullptr : &store->node(parentNode);
}

QList<Hierachy *> Node::children() const
{
    QList<Hierachy *> result;
    for (quint32 child = store->indexOf(*this) + 1; child < subtreeEnd; child = store->node(child).subtreeEnd)
        result.append(&store->node(child));
    return result;
}

QList<RtlNet *> Node::singleNets() const
{
    const quint32 index = store->indexOf(*this);
    return store->singles(index, index + 1);
}

QList<RtlNet *> Node::singleNetsIncludeSub() const
{
    return store->singlesBelow(store->indexOf(*this));
}

QList<RtlNetBus *> Node::netbuses() const
{
    const quint32 index = store->indexOf(*this);
    return store->buses(index, index + 1);
}

QList<RtlNetBus *> Node::netbusesIncludeSub() const
{
    return store->busesBelow(store->indexOf(*this));
}

} // namespace NETCATCHER

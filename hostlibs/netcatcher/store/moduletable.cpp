// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "moduletable.h"

#include <QVarLengthArray>

#include <algorithm>
#include <array>
#include <charconv>
#include <cstring>
#include <numeric>

namespace NETCATCHER {

/// Bits of one module are numbered in 31 bits, see NetStore's handles.
constexpr quint64 maxModuleBits = 0x7fffffff;

static quint64 declaredWidth(qint32 left, qint32 right)
{
    return quint64(std::abs(qint64(left) - qint64(right))) + 1;
}

/// A name while it is composed; a search asks for millions.
using NameBuffer = QVarLengthArray<char, 256>;

static void append(NameBuffer *name, std::string_view text)
{
    name->append(text.data(), int(text.size()));
}

static void append(NameBuffer *name, qint32 number)
{
    std::array<char, 16> digits;
    const auto [end, error] = std::to_chars(digits.data(), digits.data() + digits.size(), number);
    Q_UNUSED(error);
    name->append(digits.data(), int(end - digits.data()));
}

static QString toText(const NameBuffer &name)
{
    return QString::fromUtf8(name.constData(), name.size());
}

static std::string_view viewOf(const QByteArray &bytes)
{
    return {bytes.constData(), std::size_t(bytes.size())};
}

quint32 BusDef::bitCount() const
{
    return form == Vector ? quint32(declaredWidth(left, right)) : 0;
}

qint32 BusDef::indexAt(quint32 position) const
{
    return left <= right ? left + qint32(position) : left - qint32(position);
}

void ModuleDef::addSingle(const QByteArray &netName, bool unusable)
{
    singleArena += netName;
    singleEnds.push_back(quint32(singleArena.size()) << 1 | quint32(unusable));
}

void ModuleDef::addBus(const QByteArray &baseName, qint32 left, qint32 right, bool unusable)
{
    const quint64 width = declaredWidth(left, right);
    if (width > maxBusBits || bits + width > maxModuleBits) {
        addWhole(baseName, BusDef::Capped, left, right);
        return;
    }
    busArena += baseName;
    buses.push_back({bits, quint32(busArena.size()), left, right, BusDef::Vector, unusable});
    bits += quint32(width);
}

void ModuleDef::addWhole(const QByteArray &wholeName, BusDef::Form form, qint32 left, qint32 right)
{
    busArena += wholeName;
    buses.push_back({bits, quint32(busArena.size()), left, right, form, true});
}

std::string_view ModuleDef::singleView(quint32 index) const
{
    const std::size_t begin = index == 0 ? 0 : singleEnds[index - 1] >> 1;
    return viewOf(singleArena).substr(begin, (singleEnds[index] >> 1) - begin);
}

std::string_view ModuleDef::busView(quint32 index) const
{
    const std::size_t begin = index == 0 ? 0 : buses[index - 1].nameEnd;
    return viewOf(busArena).substr(begin, buses[index].nameEnd - begin);
}

QByteArray ModuleDef::singleText(quint32 index) const
{
    const std::string_view text = singleView(index);
    return QByteArray::fromRawData(text.data(), int(text.size()));
}

QByteArray ModuleDef::busText(quint32 index) const
{
    const std::string_view text = busView(index);
    return QByteArray::fromRawData(text.data(), int(text.size()));
}

QString ModuleDef::singleName(quint32 index) const
{
    const std::string_view text = singleView(index);
    return QString::fromUtf8(text.data(), int(text.size()));
}

bool ModuleDef::isSingleUnusable(quint32 index) const
{
    return singleEnds[index] & 1;
}

QString ModuleDef::busName(quint32 index) const
{
    const BusDef &def = buses[index];
    NameBuffer text;
    append(&text, busView(index));
    if (def.form != BusDef::Memory) {
        append(&text, "[");
        append(&text, def.left);
        append(&text, ":");
        append(&text, def.right);
        append(&text, "]");
    }
    return toText(text);
}

QString ModuleDef::bitName(quint32 bit) const
{
    const quint32 index = busOfBit(bit);
    const BusDef &def = buses[index];
    NameBuffer text;
    append(&text, busView(index));
    append(&text, "[");
    append(&text, def.indexAt(bit - def.firstBit));
    append(&text, "]");
    return toText(text);
}

quint32 ModuleDef::busOfBit(quint32 bit) const
{
    // Buses without bits share their successor's first bit, so the last of equals is the owner.
    const auto after = std::upper_bound(buses.begin(), buses.end(), bit,
                                        [](quint32 value, const BusDef &def) { return value < def.firstBit; });
    auto index = quint32(after - buses.begin()) - 1;
    while (buses[index].bitCount() == 0)
        --index;
    return index;
}

/// Sorts the indices 0..count-1 by their names, where `text` gives the name of one; equal names keep their order.
template <typename Text>
static std::vector<quint32> sortedByName(quint32 count, Text text)
{
    std::vector<quint32> order(count);
    std::iota(order.begin(), order.end(), 0u);
    std::stable_sort(order.begin(), order.end(), [&](quint32 a, quint32 b) { return text(a) < text(b); });
    return order;
}

std::optional<quint32> ModuleDef::findSingle(const QByteArray &netName) const
{
    if (singleOrder.size() != singleEnds.size())
        singleOrder = sortedByName(singleCount(), [this](quint32 i) { return singleView(i); });
    const auto found = std::lower_bound(singleOrder.begin(), singleOrder.end(), viewOf(netName),
                                        [this](quint32 i, std::string_view key) { return singleView(i) < key; });
    if (found == singleOrder.end() || singleView(*found) != viewOf(netName))
        return {};
    return *found;
}

std::optional<quint32> ModuleDef::findBit(const QByteArray &bitName) const
{
    const int bracket = bitName.lastIndexOf('[');
    if (bracket < 0 || !bitName.endsWith(']'))
        return {};
    bool isNumber = false;
    const QByteArray digits = bitName.mid(bracket + 1, bitName.size() - bracket - 2);
    const qint32 index = digits.toInt(&isNumber);
    if (!isNumber || QByteArray::number(index) != digits)
        return {};
    if (busOrder.size() != buses.size())
        busOrder = sortedByName(busCount(), [this](quint32 i) { return busView(i); });
    const std::string_view base = viewOf(bitName).substr(0, std::size_t(bracket));
    auto found = std::lower_bound(busOrder.begin(), busOrder.end(), base,
                                  [this](quint32 i, std::string_view key) { return busView(i) < key; });
    for (; found != busOrder.end() && busView(*found) == base; ++found) {
        const BusDef &def = buses[*found];
        if (def.bitCount() > 0 && index >= std::min(def.left, def.right) && index <= std::max(def.left, def.right))
            return def.firstBit + quint32(std::abs(qint64(index) - def.left));
    }
    return {};
}

NetCounts ModuleDef::counts() const
{
    NetCounts result;
    for (quint32 i = 0; i < singleCount(); ++i)
        ++(isSingleUnusable(i) ? result.unusable : result.singleNets);
    result.bits = result.singleNets;
    for (const BusDef &def : buses) {
        ++(def.unusable ? result.unusable : result.buses);
        result.bits += def.unusable ? 0 : def.bitCount();
    }
    return result;
}

void ModuleDef::squeeze()
{
    singleArena.squeeze();
    busArena.squeeze();
    singleEnds.shrink_to_fit();
    buses.shrink_to_fit();
    children.shrink_to_fit();
}

std::vector<quint64> instanceCounts(const ModuleTable &table)
{
    std::vector<quint64> sizes(table.modules.size(), 0);
    std::vector<bool> finished(table.modules.size(), false);
    std::vector<std::pair<quint32, std::size_t>> path{{table.top, 0}};
    sizes[table.top] = 1;
    while (!path.empty()) {
        const quint32 module = path.back().first;
        const auto &children = table.modules[module].children;
        if (path.back().second == children.size()) {
            finished[module] = true;
            path.pop_back();
            continue;
        }
        const quint32 child = children[path.back().second].module;
        if (finished[child]) {
            sizes[module] = std::min(sizes[module] + sizes[child], maxInstances + 1);
            ++path.back().second;
        } else if (sizes[child] != 0) {
            return {};
        } else {
            sizes[child] = 1;
            path.emplace_back(child, 0);
        }
    }
    return sizes;
}

} // namespace NETCATCHER

// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "rules/search/netindex.h"

#include <netcatcher/rtlnetlist.h>

#include <algorithm>
#include <cstring>

namespace RTLVAK::private_impl {

// Neither occurs in a name of printable ASCII.
constexpr char separator = '\0'; ///< stands before each name
constexpr char oddMark = '\1';   ///< stands for an odd name

bool isPrintable(QChar c)
{
    return c >= QLatin1Char(' ') && c <= QLatin1Char('~');
}

std::size_t positionOf(std::string_view text, std::string_view bytes)
{
    const void *found = memmem(bytes.data(), bytes.size(), text.data(), text.size());
    return found ? std::size_t(static_cast<const char *>(found) - bytes.data()) : std::string_view::npos;
}

static char lowerCase(char c)
{
    return c >= 'A' && c <= 'Z' ? char(c - 'A' + 'a') : c;
}

std::string_view FoldedBytes::bytes(Qt::CaseSensitivity caseSensitivity) const
{
    if (caseSensitivity == Qt::CaseSensitive)
        return exact;
    if (!folded) {
        folded.emplace();
        if (std::any_of(exact.begin(), exact.end(), [](char c) { return lowerCase(c) != c; })) {
            folded->resize(exact.size());
            std::transform(exact.begin(), exact.end(), folded->begin(), lowerCase);
        }
    }
    return folded->empty() ? exact : *folded;
}

void NameArena::append(std::string *names, const QString &name)
{
    names->push_back(separator);
    const std::size_t begin = names->size();
    for (const QChar c : name) {
        if (!isPrintable(c)) {
            names->resize(begin);
            names->push_back(oddMark);
            return;
        }
        names->push_back(char(c.unicode()));
    }
}

NameArena::NameArena(std::string_view namesText)
    : names(namesText)
{
    const std::string_view bytes = names.bytes(Qt::CaseSensitive);
    begins.reserve(std::size_t(std::count(bytes.begin(), bytes.end(), separator)));
    for (std::size_t i = bytes.find(separator); i != std::string_view::npos; i = bytes.find(separator, i + 1)) {
        if (i + 1 < bytes.size() && bytes[i + 1] == oddMark)
            oddPlaces.push_back(count());
        begins.push_back(quint32(i) + 1);
    }
}

bool NameArena::isOdd(quint32 place) const
{
    return std::binary_search(oddPlaces.begin(), oddPlaces.end(), place);
}

/// Calls `take` with the place of each name in which `text` occurs, once and in order.
template <typename Take>
void NameArena::find(std::string_view bytes, std::string_view text, Take take) const
{
    quint32 place = 0;
    std::size_t from = 0;
    for (std::size_t hit; (hit = positionOf(text, bytes.substr(from))) != std::string_view::npos;) {
        // The last byte tells the name, since the text may begin with the separator before it.
        const std::size_t last = from + hit + text.size() - 1;
        while (place + 1 < count() && begins[place + 1] <= last)
            ++place;
        take(place);
        if (place + 1 == count())
            return;
        from = begins[place + 1] - 1;
    }
}

std::vector<quint32> NameArena::placesOf(std::string_view text, Qt::CaseSensitivity caseSensitivity) const
{
    std::vector<quint32> places;
    auto odd = oddPlaces.begin();
    find(names.bytes(caseSensitivity), text, [&](quint32 place) {
        while (odd != oddPlaces.end() && *odd < place)
            places.push_back(*odd++);
        places.push_back(place);
    });
    places.insert(places.end(), odd, oddPlaces.end());
    return places;
}

std::vector<quint32> NameArena::placesOfBeginning(std::string_view text, Qt::CaseSensitivity caseSensitivity) const
{
    std::vector<quint32> places;
    find(names.bytes(caseSensitivity), separator + std::string(text), [&](quint32 place) { places.push_back(place); });
    return places;
}

NetIndex::NetIndex(const NETCATCHER::RtlNetlist &netlist)
{
    addNode(netlist.topHierarchy());
    prefixes = FoldedBytes(prefixText);
    prefixText = {};
    arenaNumbers = {};
    arenas.shrink_to_fit();
    nodes.shrink_to_fit();
}

void NetIndex::addNode(NETCATCHER::Hierachy *hierachy)
{
    const quint32 number = nodeCount();
    nodes.push_back({hierachy, 0, 0, 0, 0, false});
    addNames(&nodes.back());
    const QList<NETCATCHER::Hierachy *> children = hierachy->children();
    for (NETCATCHER::Hierachy *child : children)
        addNode(child);
    nodes[number].subtreeEnd = nodeCount();
}

void NetIndex::addNames(Node *node)
{
    const QList<NETCATCHER::RtlNet *> nets = node->hierachy->singleNets();
    const QList<NETCATCHER::RtlNetBus *> buses = node->hierachy->netbuses();
    if (!nets.isEmpty())
        addPrefix(node, nets.first()->fullPathName(), nets.first()->name());
    else if (!buses.isEmpty())
        addPrefix(node, buses.first()->fullBusName(), buses.first()->BusName());
    node->prefixEnd = prefixText.size();
    std::string names;
    for (const NETCATCHER::RtlNet *net : nets)
        NameArena::append(&names, net->name());
    node->netArena = addArena(names);
    names.clear();
    for (const NETCATCHER::RtlNetBus *bus : buses)
        NameArena::append(&names, bus->BusName());
    node->busArena = addArena(names);
}

/// What all names of an instance begin with is told by one of them.
void NetIndex::addPrefix(Node *node, const QString &fullName, const QString &localName)
{
    const QStringRef prefixOfName = fullName.leftRef(fullName.size() - localName.size());
    node->hasOddPrefix = !std::all_of(prefixOfName.begin(), prefixOfName.end(), isPrintable);
    if (!node->hasOddPrefix)
        prefixText += prefixOfName.toLatin1().toStdString();
}

quint32 NetIndex::addArena(const std::string &names)
{
    const auto [known, isNew] = arenaNumbers.try_emplace(names, quint32(arenas.size()));
    if (isNew)
        arenas.emplace_back(names);
    return known->second;
}

quint32 NetIndex::numberOf(const NETCATCHER::Hierachy *hierachy) const
{
    const auto found =
        std::find_if(nodes.begin(), nodes.end(), [hierachy](const Node &node) { return node.hierachy == hierachy; });
    return quint32(found - nodes.begin());
}

std::string_view NetIndex::prefix(quint32 number, Qt::CaseSensitivity caseSensitivity) const
{
    const std::size_t begin = number == 0 ? 0 : nodes[number - 1].prefixEnd;
    return prefixes.bytes(caseSensitivity).substr(begin, nodes[number].prefixEnd - begin);
}

} // namespace RTLVAK::private_impl

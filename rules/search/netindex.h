// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QString>

#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace NETCATCHER {
class Hierachy;
class RtlNetlist;
} // namespace NETCATCHER

namespace RTLVAK::private_impl {

/// Whether names with the character have their text in an index.
bool isPrintable(QChar c);

/// Where `text` first occurs in `bytes`; npos when it does not.
std::size_t positionOf(std::string_view text, std::string_view bytes);

/// Bytes, and the same in lower case once somebody asks for them.
class FoldedBytes
{
public:
    explicit FoldedBytes(std::string_view text = {})
        : exact(text)
    {
    }

    std::string_view bytes(Qt::CaseSensitivity caseSensitivity) const;

private:
    std::string exact;
    mutable std::optional<std::string> folded; ///< empty where nothing is to be folded
};

/// The local names of one instance's nets, or of its buses, in one block of bytes. Only names of printable ASCII lie in
/// it. The others, odd ones, have their place but not their text.
class NameArena
{
public:
    /// `names`: what append() made.
    explicit NameArena(std::string_view names);

    static void append(std::string *names, const QString &name);

    quint32 count() const { return quint32(begins.size()); }
    bool isOdd(quint32 place) const;
    const std::vector<quint32> &odd() const { return oddPlaces; }
    /// The places of the names in which `text` occurs, and of all odd ones, in order.
    std::vector<quint32> placesOf(std::string_view text, Qt::CaseSensitivity caseSensitivity) const;
    /// The places of the names that begin with `text`, odd ones left out.
    std::vector<quint32> placesOfBeginning(std::string_view text, Qt::CaseSensitivity caseSensitivity) const;

private:
    template <typename Take>
    void find(std::string_view bytes, std::string_view text, Take take) const;

    FoldedBytes names;
    std::vector<quint32> begins;
    std::vector<quint32> oddPlaces;
};

/// All names of a netlist, laid out to be searched: each instance has the common beginning of its names and two arenas
/// with their rests. Instances with the same names share their arenas, so that a text is looked for in them once.
class NetIndex
{
public:
    /// One instance. They are numbered in preorder, so that everything below one of them is a contiguous range.
    struct Node
    {
        NETCATCHER::Hierachy *hierachy;
        quint64 prefixEnd;
        quint32 subtreeEnd; ///< one past the last instance below
        quint32 netArena;
        quint32 busArena;
        bool hasOddPrefix; ///< its names cannot be told from the index
    };

    explicit NetIndex(const NETCATCHER::RtlNetlist &netlist);

    /// The number of the instance; one past the last when it is not in the netlist.
    quint32 numberOf(const NETCATCHER::Hierachy *hierachy) const;
    const Node &node(quint32 number) const { return nodes[number]; }
    const NameArena &arena(quint32 number) const { return arenas[number]; }
    quint32 nodeCount() const { return quint32(nodes.size()); }
    std::size_t arenaCount() const { return arenas.size(); }
    /// What the names of the instance begin with; empty when that is odd.
    std::string_view prefix(quint32 number, Qt::CaseSensitivity caseSensitivity) const;

private:
    void addNode(NETCATCHER::Hierachy *hierachy);
    void addNames(Node *node);
    void addPrefix(Node *node, const QString &fullName, const QString &localName);
    quint32 addArena(const std::string &names);

    std::vector<Node> nodes;
    std::vector<NameArena> arenas;
    FoldedBytes prefixes;
    std::string prefixText;                                ///< all prefixes while they are collected
    std::unordered_map<std::string, quint32> arenaNumbers; ///< the arenas by their names while they are collected
};

} // namespace RTLVAK::private_impl

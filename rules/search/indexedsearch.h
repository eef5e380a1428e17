// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "rules/search/namematcher.h"
#include "rules/search/netindex.h"

#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

namespace RTLVAK::private_impl {

/// The names of one instance that may hold what is looked for, by their places in its list.
struct Candidates
{
    bool areAll = false; ///< all of them, and `places` is empty
    std::vector<quint32> places;
};

/// One search for the names that hold a text.
class TextSearch
{
public:
    TextSearch(const NetIndex &netIndex, const QString &text, Qt::CaseSensitivity sensitivity);

    /// Every name that holds the text is among them. All of them do hold it, but for the odd ones and the names behind
    /// an odd prefix.
    Candidates candidates(quint32 node, quint32 arena);

private:
    const std::vector<quint32> &placesInside(quint32 arena);
    const std::vector<quint32> &placesAtSeam(quint32 arena, std::size_t prefixPart);

    const NetIndex &index;
    Qt::CaseSensitivity caseSensitivity;
    std::optional<std::string> bytes; ///< none when only odd names can hold the text
    std::vector<std::optional<std::vector<quint32>>> inside;
    std::unordered_map<quint64, std::vector<quint32>> atSeam;
};

/// Asks the matcher only about names that hold the texts without which nothing matches.
class IndexedSearch
{
public:
    /// Index and matcher are borrowed.
    IndexedSearch(const NetIndex &netIndex, const NameMatcher &nameMatcher, const QStringList &texts);

    /// Appends the matches of one instance.
    void select(quint32 number, SearchHits *hits);
    /// Appends the matches of an instance and of everything below it.
    void selectBelow(quint32 number, SearchHits *hits);

private:
    Candidates candidates(quint32 number, quint32 arena);
    template <typename Items, typename Item>
    void select(quint32 number, quint32 arena, Items items, QList<Item *> *selected);

    const NetIndex &index;
    const NameMatcher &matcher;
    std::vector<TextSearch> searches;
};

} // namespace RTLVAK::private_impl

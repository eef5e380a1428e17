// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "rules/search/indexedsearch.h"

#include <netcatcher/rtlnetlist.h>

#include <algorithm>
#include <iterator>
#include <utility>

namespace RTLVAK::private_impl {

/// The text as it can lie in an arena. Comparing without case folds character by character, and a name of ASCII folds
/// to lower case, so that a text that folds to something else does not occur in one.
static std::optional<std::string> arenaText(const QString &text, Qt::CaseSensitivity caseSensitivity)
{
    std::string bytes;
    for (QChar c : text) {
        if (caseSensitivity == Qt::CaseInsensitive)
            c = c.toCaseFolded();
        if (!isPrintable(c))
            return std::nullopt;
        bytes.push_back(char(c.unicode()));
    }
    return bytes;
}

TextSearch::TextSearch(const NetIndex &netIndex, const QString &text, Qt::CaseSensitivity sensitivity)
    : index(netIndex)
    , caseSensitivity(sensitivity)
    , bytes(arenaText(text, sensitivity))
    , inside(netIndex.arenaCount())
{
}

Candidates TextSearch::candidates(quint32 node, quint32 arena)
{
    if (index.node(node).hasOddPrefix)
        return {true, {}};
    if (!bytes)
        return {false, index.arena(arena).odd()};
    const std::string_view prefix = index.prefix(node, caseSensitivity);
    if (positionOf(*bytes, prefix) != std::string_view::npos)
        return {true, {}};
    Candidates result{false, placesInside(arena)};
    for (std::size_t part = 1; part < bytes->size() && part <= prefix.size(); ++part) {
        if (bytes->compare(0, part, prefix.substr(prefix.size() - part)) != 0)
            continue;
        const std::vector<quint32> &more = placesAtSeam(arena, part);
        std::vector<quint32> both;
        std::set_union(result.places.begin(), result.places.end(), more.begin(), more.end(), std::back_inserter(both));
        result.places = std::move(both);
    }
    return result;
}

const std::vector<quint32> &TextSearch::placesInside(quint32 arena)
{
    auto &places = inside[arena];
    if (!places)
        places = index.arena(arena).placesOf(*bytes, caseSensitivity);
    return *places;
}

/// The names that go on with the text where the first `prefixPart` bytes of it are the end of a prefix.
const std::vector<quint32> &TextSearch::placesAtSeam(quint32 arena, std::size_t prefixPart)
{
    const auto [known, isNew] = atSeam.try_emplace(quint64(arena) << 32 | prefixPart);
    if (isNew)
        known->second =
            index.arena(arena).placesOfBeginning(std::string_view(*bytes).substr(prefixPart), caseSensitivity);
    return known->second;
}

IndexedSearch::IndexedSearch(const NetIndex &netIndex, const NameMatcher &nameMatcher, const QStringList &texts)
    : index(netIndex)
    , matcher(nameMatcher)
{
    for (const QString &text : texts)
        searches.emplace_back(index, text, matcher.caseSensitivity());
}

void IndexedSearch::select(quint32 number, SearchHits *hits)
{
    const NetIndex::Node &node = index.node(number);
    select(
        number, node.busArena, [&node] { return node.hierachy->netbuses(); }, &hits->buses);
    select(
        number, node.netArena, [&node] { return node.hierachy->singleNets(); }, &hits->nets);
}

void IndexedSearch::selectBelow(quint32 number, SearchHits *hits)
{
    const quint32 end = index.node(number).subtreeEnd;
    for (; number < end; ++number)
        select(number, hits);
}

/// The names that hold all texts.
Candidates IndexedSearch::candidates(quint32 number, quint32 arena)
{
    Candidates common{true, {}};
    for (TextSearch &search : searches) {
        Candidates found = search.candidates(number, arena);
        if (common.areAll) {
            common = std::move(found);
        } else if (!found.areAll) {
            const std::vector<quint32> former = std::exchange(common.places, {});
            std::set_intersection(former.begin(), former.end(), found.places.begin(), found.places.end(),
                                  std::back_inserter(common.places));
        }
    }
    return common;
}

/// The items are asked for only when there is a candidate among them.
template <typename Items, typename Item>
void IndexedSearch::select(quint32 number, quint32 arena, Items items, QList<Item *> *selected)
{
    const NameArena &names = index.arena(arena);
    const Candidates found = names.count() > 0 ? candidates(number, arena) : Candidates{};
    const std::size_t count = found.areAll ? names.count() : found.places.size();
    if (count == 0)
        return;
    const bool isSure = matcher.isPlain() && !index.node(number).hasOddPrefix;
    const QList<Item *> all = items();
    for (std::size_t i = 0; i < count; ++i) {
        const quint32 place = found.areAll ? quint32(i) : found.places[i];
        Item *item = all.at(int(place));
        if ((isSure && !names.isOdd(place)) || matcher.matches(fullName(item)))
            selected->append(item);
    }
}

} // namespace RTLVAK::private_impl

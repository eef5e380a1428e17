// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "childindex.h"

#include <algorithm>
#include <numeric>

namespace NETCATCHER {

static std::string_view nameOf(const ModuleDef::Child &child)
{
    return {child.name.constData(), std::size_t(child.name.size())};
}

ChildIndex::ChildIndex(const std::vector<ModuleDef::Child> &children, std::vector<quint32> childOffsets)
    : m_offsets(std::move(childOffsets))
    , m_order(children.size())
{
    std::iota(m_order.begin(), m_order.end(), 0u);
    std::sort(m_order.begin(), m_order.end(),
              [&children](quint32 a, quint32 b) { return nameOf(children[a]) < nameOf(children[b]); });
}

std::vector<ChildIndex::Step> ChildIndex::firstSteps(const std::vector<ModuleDef::Child> &children,
                                                     std::string_view path) const
{
    std::vector<Step> steps;
    for (std::size_t slash = path.find('/'); slash != std::string_view::npos; slash = path.find('/', slash + 1)) {
        const std::string_view name = path.substr(0, slash);
        auto found = std::lower_bound(m_order.begin(), m_order.end(), name, [&](quint32 child, std::string_view key) {
            return nameOf(children[child]) < key;
        });
        for (; found != m_order.end() && nameOf(children[*found]) == name; ++found)
            steps.push_back({*found, m_offsets[*found], quint32(slash)});
    }
    std::sort(steps.begin(), steps.end(), [](const Step &a, const Step &b) { return a.child < b.child; });
    return steps;
}

} // namespace NETCATCHER

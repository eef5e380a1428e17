// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "rules/search/namematcher.h"

#include "rules/search/requiredtexts.h"

#include <netcatcher/rtlnetlist.h>

namespace RTLVAK::private_impl {

QString fullName(const NETCATCHER::RtlNet *net)
{
    return net->fullPathName();
}

QString fullName(const NETCATCHER::RtlNetBus *bus)
{
    return bus->fullBusName();
}

NameMatcher::NameMatcher(const SearchCriteria &searchCriteria)
    : criteria(searchCriteria)
    , expression(criteria.pattern, caseSensitivity(), criteria.syntax)
{
}

Qt::CaseSensitivity NameMatcher::caseSensitivity() const
{
    return criteria.caseSensitive ? Qt::CaseSensitive : Qt::CaseInsensitive;
}

QStringList NameMatcher::texts() const
{
    return isPlain() ? QStringList(criteria.pattern) : requiredTexts(criteria.pattern, criteria.syntax);
}

bool NameMatcher::matches(const QString &name) const
{
    if (isEverything())
        return true;
    return isPlain() ? name.contains(criteria.pattern, caseSensitivity()) : expression.exactMatch(name);
}

} // namespace RTLVAK::private_impl

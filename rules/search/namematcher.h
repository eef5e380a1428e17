// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "rules/netsearch.h"

#include <QRegExp>
#include <QString>
#include <QStringList>

namespace RTLVAK::private_impl {

QString fullName(const NETCATCHER::RtlNet *net);
QString fullName(const NETCATCHER::RtlNetBus *bus);

/// Decides on full names. The two calls in matches() define what a search finds.
class NameMatcher
{
public:
    /// The criteria are borrowed.
    explicit NameMatcher(const SearchCriteria &searchCriteria);

    bool isEverything() const { return criteria.pattern.isEmpty(); }
    bool isPlain() const { return criteria.plainText; }
    Qt::CaseSensitivity caseSensitivity() const;
    /// What every name that matches holds; nothing when that is not known.
    QStringList texts() const;

    /// Never true for a pattern that is not valid.
    bool matches(const QString &name) const;

private:
    const SearchCriteria &criteria;
    QRegExp expression;
};

} // namespace RTLVAK::private_impl

// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "rules/netsearch.h"

#include <QList>

class QTreeWidget;
class QTreeWidgetItem;

namespace RTLVAK {

/// How much a search found.
struct ResultCount
{
    int buses = 0;
    int nets = 0;
};

/// Fills the empty tree with the matches: buses with their bits, then single nets.
ResultCount showHits(QTreeWidget *tree, const SearchHits &hits);

/// Fills the empty tree with the instances and their matches, and opens those below which something was found. The tree
/// stays empty when the scope has neither a match nor an instance below it.
ResultCount showHits(QTreeWidget *tree, const HierarchyHits &hits);

/// The records of the rows of a result tree, top to bottom; of the selected rows only when asked for.
QList<VAK::SignalItem> resultRecords(const QTreeWidget *tree, bool selectedOnly);

/// What a search found, in words: "1 bus, 12 nets".
QString countText(const ResultCount &count);

} // namespace RTLVAK

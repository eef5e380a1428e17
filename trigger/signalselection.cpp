// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "trigger/signalselection.h"

#include "signals/treerows.h"

#include <QTreeWidget>

#include <algorithm>

namespace RTLVAK {

bool isWholeSignalSelection(const QTreeWidget *tree)
{
    const QList<QTreeWidgetItem *> selected = tree->selectedItems();
    return !selected.isEmpty() &&
           std::none_of(selected.begin(), selected.end(), [](const QTreeWidgetItem *row) { return row->parent(); });
}

void showInsertedSignals(QTreeWidget *tree, int first, int count)
{
    if (count == 0)
        return;
    const QList<QTreeWidgetItem *> rows = topLevelRows(tree, first, count);
    tree->setCurrentItem(rows.last());
    selectRows(tree, rows);
    tree->scrollToItem(rows.last());
    tree->scrollToItem(rows.first());
}

} // namespace RTLVAK

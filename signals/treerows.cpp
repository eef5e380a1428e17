// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "signals/treerows.h"

#include <QItemSelection>
#include <QSet>
#include <QTreeWidget>

#include <algorithm>

namespace RTLVAK {

static QSet<QTreeWidgetItem *> asSet(const QList<QTreeWidgetItem *> &rows)
{
    return {rows.cbegin(), rows.cend()};
}

/// Takes rows out, last first. Without a selection and a current row the view has nothing to follow at each step, which
/// is a hundred times faster with thousands of rows. Returns the position of the first one.
static int takeRows(QTreeWidget *tree, const QSet<QTreeWidgetItem *> &rows)
{
    tree->selectionModel()->clear();
    int first = tree->topLevelItemCount();
    for (int i = tree->topLevelItemCount() - 1; i >= 0; --i) {
        if (!rows.contains(tree->topLevelItem(i)))
            continue;
        tree->takeTopLevelItem(i);
        first = i;
    }
    return first;
}

QList<QTreeWidgetItem *> selectedTopLevelRows(const QTreeWidget *tree)
{
    const QSet<QTreeWidgetItem *> selected = asSet(tree->selectedItems());
    QList<QTreeWidgetItem *> rows;
    for (int i = 0; i < tree->topLevelItemCount(); ++i) {
        if (selected.contains(tree->topLevelItem(i)))
            rows.append(tree->topLevelItem(i));
    }
    return rows;
}

QList<QTreeWidgetItem *> topLevelRows(const QTreeWidget *tree, int position, int count)
{
    QList<QTreeWidgetItem *> rows;
    rows.reserve(count);
    for (int i = position; i < position + count; ++i)
        rows.append(tree->topLevelItem(i));
    return rows;
}

int deleteTopLevelRows(QTreeWidget *tree, const QList<QTreeWidgetItem *> &rows)
{
    if (rows.isEmpty())
        return tree->topLevelItemCount();
    const int first = takeRows(tree, asSet(rows));
    qDeleteAll(rows);
    if (tree->topLevelItemCount() > 0)
        tree->setCurrentItem(tree->topLevelItem(std::min(first, tree->topLevelItemCount() - 1)), 0,
                             QItemSelectionModel::NoUpdate);
    return first;
}

void moveTopLevelRows(QTreeWidget *tree, const QList<QTreeWidgetItem *> &rows, int position)
{
    const QList<QTreeWidgetItem *> selected = tree->selectedItems();
    QTreeWidgetItem *const current = tree->currentItem();
    QList<QTreeWidgetItem *> expanded;
    std::copy_if(rows.cbegin(), rows.cend(), std::back_inserter(expanded),
                 [](const QTreeWidgetItem *row) { return row->isExpanded(); });

    const QSet<QTreeWidgetItem *> moving = asSet(rows);
    int target = 0;
    for (int i = 0; i < position; ++i)
        target += moving.contains(tree->topLevelItem(i)) ? 0 : 1;
    takeRows(tree, moving);
    tree->insertTopLevelItems(target, rows);

    for (QTreeWidgetItem *row : qAsConst(expanded))
        row->setExpanded(true);
    tree->setCurrentItem(current, 0, QItemSelectionModel::NoUpdate);
    selectRows(tree, selected);
}

static QModelIndex indexOf(const QTreeWidget *tree, QTreeWidgetItem *row)
{
    if (QTreeWidgetItem *parent = row->parent())
        return tree->model()->index(parent->indexOfChild(row), 0, indexOf(tree, parent));
    return tree->model()->index(tree->indexOfTopLevelItem(row), 0);
}

void selectRows(QTreeWidget *tree, const QList<QTreeWidgetItem *> &rows)
{
    QItemSelection selection;
    QModelIndex top;
    QModelIndex bottom;
    const auto closeRange = [&] {
        if (top.isValid())
            selection.append(QItemSelectionRange(top, bottom));
    };
    for (QTreeWidgetItem *row : rows) {
        const QModelIndex index = indexOf(tree, row);
        if (bottom.isValid() && index.parent() == bottom.parent() && index.row() == bottom.row() + 1) {
            bottom = index;
            continue;
        }
        closeRange();
        top = bottom = index;
    }
    closeRange();
    tree->selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
}

} // namespace RTLVAK

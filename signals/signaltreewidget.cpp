// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "signals/signaltreewidget.h"

#include "signals/signaledits.h"
#include "signals/signalrow.h"
#include "signals/treerows.h"

#include "rules/signalmerge.h"

#include <algorithm>

namespace RTLVAK {

signalTreeWidget::signalTreeWidget(QWidget *parent)
    : QTreeWidget(parent)
{
    setColumnCount(1);
    setHeaderHidden(true);
    setTextElideMode(Qt::ElideMiddle);
    setUniformRowHeights(true);
    setSelectionMode(QAbstractItemView::ExtendedSelection);
    setDragDropMode(QAbstractItemView::InternalMove);
    setDefaultDropAction(Qt::MoveAction);
    setDragDropOverwriteMode(false);
    // The menu opens at the press. The context menu event of that same press must not open another one around the tree.
    setContextMenuPolicy(Qt::PreventContextMenu);
    createActions();
}

void signalTreeWidget::insertSignal(int row, const VAK::SignalItem &record)
{
    insertSignals(row, {record});
}

void signalTreeWidget::appendSignal(const VAK::SignalItem &record)
{
    insertSignals(topLevelItemCount(), {record});
}

void signalTreeWidget::insertSignals(int row, const QList<VAK::SignalItem> &records)
{
    QList<QTreeWidgetItem *> rows;
    rows.reserve(records.size());
    for (const VAK::SignalItem &record : records)
        rows.append(makeSignalRow(record));
    insertTopLevelItems(qBound(0, row, topLevelItemCount()), rows);
}

QList<VAK::SignalItem> signalTreeWidget::signalItems() const
{
    return signalsOfRows(this);
}

void signalTreeWidget::updatePresentation()
{
    for (int i = 0; i < topLevelItemCount(); ++i)
        colourSignalRow(topLevelItem(i));
}

int signalTreeWidget::activeBitCount() const
{
    int bits = 0;
    for (int i = 0; i < topLevelItemCount(); ++i) {
        const VAK::SignalItem *record = recordOfRow(topLevelItem(i));
        if (record && record->active != 0)
            bits += record->inputCount();
    }
    return bits;
}

int signalTreeWidget::mergeSignals(int row, const QList<VAK::SignalItem> &incoming)
{
    const SignalMerge merge = RTLVAK::mergeSignals(signalItems(), incoming);
    QList<QTreeWidgetItem *> matched;
    for (int position : merge.matched) {
        matched.append(topLevelItem(position));
        if (*recordOfRow(matched.last()) != merge.existing.at(position))
            updateSignalRow(matched.last(), merge.existing.at(position));
    }
    const QList<VAK::SignalItem> added = merge.singles + merge.groups;
    insertSignals(row, added);
    updatePresentation();
    if (added.isEmpty() && !matched.isEmpty()) {
        selectRows(this, matched);
        scrollToItem(matched.first());
    }
    return added.size();
}

/// The selected top-level rows in the order in which they were selected.
static QList<QTreeWidgetItem *> topLevelInSelectionOrder(const QTreeWidget *tree)
{
    QList<QTreeWidgetItem *> rows = tree->selectedItems();
    rows.erase(std::remove_if(rows.begin(), rows.end(),
                              [](const QTreeWidgetItem *row) { return row->parent() || !recordOfRow(row); }),
               rows.end());
    return rows;
}

void signalTreeWidget::onSplit()
{
    QList<VAK::SignalItem> bits;
    QList<QTreeWidgetItem *> groups;
    for (QTreeWidgetItem *row : topLevelInSelectionOrder(this)) {
        if (row->childCount() == 0)
            continue;
        groups.append(row);
        bits += recordOfRow(row)->members;
    }
    if (groups.isEmpty())
        return;
    const int position = deleteTopLevelRows(this, groups);
    insertSignals(position, bits);
    setCurrentItem(topLevelItem(position));
    selectRows(this, topLevelRows(this, position, bits.size()));
    updatePresentation();
    emit itemDragged();
}

void signalTreeWidget::onMerge()
{
    const QList<QTreeWidgetItem *> rows = topLevelInSelectionOrder(this);
    if (rows.isEmpty())
        return;
    QList<VAK::SignalItem> records;
    for (const QTreeWidgetItem *row : rows)
        records.append(*recordOfRow(row));
    QStringList otherGroups;
    for (int i = 0; i < topLevelItemCount(); ++i) {
        if (topLevelItem(i)->childCount() > 0 && !topLevelItem(i)->isSelected())
            otherGroups.append(topLevelItem(i)->text(0));
    }
    const int position = deleteTopLevelRows(this, rows);
    insertSignal(position, groupedSignals(records, otherGroups));
    setCurrentItem(topLevelItem(position));
    updatePresentation();
    emit itemDragged();
}

void signalTreeWidget::onRestoreOrgName()
{
    const QList<QTreeWidgetItem *> rows = selectedItems();
    if (rows.isEmpty())
        return;
    changeSignals(rows, [](const VAK::SignalItem &record) { return renamedSignal(record, record.name); });
    emit itemDragged();
}

void signalTreeWidget::onReverse()
{
    QTreeWidgetItem *row = currentItem();
    if (!row || row->childCount() == 0)
        return;
    changeSignals({row}, reversedSignal);
    emit itemDragged();
}

void signalTreeWidget::onEnable()
{
    setSelectedActive(1);
}

void signalTreeWidget::onDisable()
{
    setSelectedActive(0);
}

void signalTreeWidget::setSelectedActive(int active)
{
    const QList<QTreeWidgetItem *> rows = topLevelInSelectionOrder(this);
    if (rows.isEmpty())
        return;
    changeSignals(rows, [active](const VAK::SignalItem &record) { return switchedSignal(record, active); });
    emit CapSignalChange();
    emit itemDragged();
}

} // namespace RTLVAK

// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "signals/signaltreewidget.h"

#include "signals/signaledits.h"
#include "signals/signalrow.h"
#include "signals/treerows.h"

#include "rules/signalmerge.h"

#include <QAction>
#include <QDropEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>

#include <algorithm>
#include <functional>

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
    createActions();
}

/// The actions of the menu, in its order.
void signalTreeWidget::createActions()
{
    const auto make = [this](const QString &text, void (signalTreeWidget::*slot)()) {
        auto *action = new QAction(text, this);
        connect(action, &QAction::triggered, this, slot);
        return action;
    };
    actionSplit = make(tr("Ungroup"), &signalTreeWidget::onSplit);
    actionMerge = make(tr("Group"), &signalTreeWidget::onMerge);
    actionChangeName = make(tr("Rename"), &signalTreeWidget::onChangeName);
    actionRestoreOrgName = make(tr("Restore Original Name"), &signalTreeWidget::onRestoreOrgName);
    actionReverse = make(tr("Reverse"), &signalTreeWidget::onReverse);
    actionEnable = make(tr("Enable"), &signalTreeWidget::onEnable);
    actionDisable = make(tr("Disable"), &signalTreeWidget::onDisable);
}

void signalTreeWidget::setMenuEnabled(bool enabled)
{
    menuEnabled = enabled;
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
    QList<VAK::SignalItem> records;
    for (int i = 0; i < topLevelItemCount(); ++i) {
        if (const auto record = signalOfRow(topLevelItem(i)))
            records.append(*record);
    }
    return records;
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

static bool isActive(const QTreeWidgetItem *row)
{
    const VAK::SignalItem *record = recordOfRow(row);
    return record && record->active != 0;
}

static QList<SelectedRow> describe(const QList<QTreeWidgetItem *> &rows)
{
    QList<SelectedRow> described;
    for (QTreeWidgetItem *row : rows) {
        const bool isTopLevel = !row->parent();
        const VAK::SignalItem *record = recordOfRow(isTopLevel ? row : row->parent());
        if (!record)
            continue;
        const VAK::SignalItem &own = isTopLevel ? *record : record->members.at(row->parent()->indexOfChild(row));
        described.append({isTopLevel, !own.members.isEmpty(), own.active != 0});
    }
    return described;
}

void signalTreeWidget::updateActions()
{
    const OfferedActions offered = offeredActions(describe(selectedItems()));
    actionSplit->setEnabled(offered.ungroup);
    actionMerge->setEnabled(offered.group);
    actionChangeName->setEnabled(offered.rename);
    actionRestoreOrgName->setEnabled(offered.restore);
    actionReverse->setEnabled(offered.reverse);
    actionEnable->setEnabled(offered.enable);
    actionDisable->setEnabled(offered.disable);
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

/// Puts a changed record of a row, or of one of its members, back into the tree.
static void changeRow(QTreeWidgetItem *row, const std::function<VAK::SignalItem(const VAK::SignalItem &)> &change)
{
    QTreeWidgetItem *const top = row->parent() ? row->parent() : row;
    const VAK::SignalItem *current = recordOfRow(top);
    if (!current)
        return;
    VAK::SignalItem record = *current;
    VAK::SignalItem &changed = row->parent() ? record.members[top->indexOfChild(row)] : record;
    changed = change(changed);
    updateSignalRow(top, record);
    colourSignalRow(top);
}

void signalTreeWidget::onRestoreOrgName()
{
    const QList<QTreeWidgetItem *> rows = selectedItems();
    if (rows.isEmpty())
        return;
    for (QTreeWidgetItem *row : rows)
        changeRow(row, [](const VAK::SignalItem &record) { return renamedSignal(record, record.name); });
    emit itemDragged();
}

void signalTreeWidget::onReverse()
{
    QTreeWidgetItem *row = currentItem();
    if (!row || row->childCount() == 0)
        return;
    changeRow(row, reversedSignal);
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
    for (QTreeWidgetItem *row : rows)
        changeRow(row, [active](const VAK::SignalItem &record) { return switchedSignal(record, active); });
    emit CapSignalChange();
    emit itemDragged();
}

void signalTreeWidget::onChangeName()
{
    finishEdit();
    QTreeWidgetItem *row = currentItem();
    if (!row)
        return;
    editor = new QLineEdit(row->text(0), this);
    editor->setFrame(false);
    connect(editor, &QLineEdit::editingFinished, this, &signalTreeWidget::finishEdit);
    editedIndex = indexFromItem(row);
    setItemWidget(row, 0, editor); // the view filters the events of its item widgets
    scrollToItem(row);
    editor->selectAll();
    editor->setFocus();
}

void signalTreeWidget::finishEdit()
{
    if (!editor)
        return;
    const QString text = editor->text();
    QTreeWidgetItem *row = itemFromIndex(editedIndex);
    closeEditor(); // before the change: an editor that loses the focus finishes once more
    if (!row || text.isEmpty() || text == row->text(0))
        return;
    changeRow(row, [&text](const VAK::SignalItem &record) { return renamedSignal(record, text); });
    emit itemDragged();
}

void signalTreeWidget::closeEditor()
{
    QLineEdit *const closing = editor;
    editor.clear();
    if (closing->hasFocus())
        setFocus();
    closing->hide();
    if (QTreeWidgetItem *row = itemFromIndex(editedIndex))
        removeItemWidget(row, 0);
    editedIndex = QPersistentModelIndex();
}

bool signalTreeWidget::eventFilter(QObject *watched, QEvent *event)
{
    const bool isKey = event->type() == QEvent::KeyPress || event->type() == QEvent::ShortcutOverride;
    if (!isKey || !editor || watched != editor)
        return QTreeWidget::eventFilter(watched, event);
    const int key = static_cast<QKeyEvent *>(event)->key();
    const bool commits = key == Qt::Key_Return || key == Qt::Key_Enter;
    if (!commits && key != Qt::Key_Escape)
        return QTreeWidget::eventFilter(watched, event);
    event->accept();
    if (event->type() == QEvent::KeyPress) {
        if (commits)
            finishEdit();
        else
            closeEditor();
    }
    return true;
}

void signalTreeWidget::mousePressEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        QTreeWidget::mousePressEvent(event);
    else if (event->button() == Qt::RightButton && menuEnabled)
        showMenu(event->globalPos());
    else
        event->ignore();
}

void signalTreeWidget::showMenu(const QPoint &globalPos)
{
    finishEdit();
    // Rename and Reverse work on the current row; with one row selected they must mean that one.
    const QList<QTreeWidgetItem *> selected = selectedItems();
    if (selected.size() == 1)
        setCurrentItem(selected.first(), 0, QItemSelectionModel::NoUpdate);
    updateActions();
    auto *menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->addActions(
        {actionSplit, actionMerge, actionChangeName, actionRestoreOrgName, actionReverse, actionEnable, actionDisable});
    menu->popup(globalPos);
}

void signalTreeWidget::mouseMoveEvent(QMouseEvent *event)
{
    if (currentItem() && currentItem()->parent())
        return;
    QTreeWidget::mouseMoveEvent(event);
}

void signalTreeWidget::dragMoveEvent(QDragMoveEvent *event)
{
    QTreeWidget::dragMoveEvent(event);
}

void signalTreeWidget::dropEvent(QDropEvent *event)
{
    stopAutoScroll();
    setState(NoState);
    // Whatever happens, the tree itself has moved what is to be moved; the toolkit must not remove rows on top of that.
    event->setDropAction(Qt::IgnoreAction);
    event->accept();

    QList<QTreeWidgetItem *> moving = selectedTopLevelRows(this);
    moving.erase(std::remove_if(moving.begin(), moving.end(), [](QTreeWidgetItem *row) { return !isActive(row); }),
                 moving.end());
    const bool isOwn = !event->source() || event->source() == this;
    const int position = isOwn ? dropPosition(event->pos()) : -1;
    if (position < 0 || moving.isEmpty())
        return;
    moveTopLevelRows(this, moving, position);
    emit itemDragged();
}

int signalTreeWidget::dropPosition(const QPoint &pos) const
{
    QTreeWidgetItem *target = itemAt(pos);
    if (!target) {
        const QTreeWidgetItem *last = topLevelItem(topLevelItemCount() - 1);
        return last && isActive(last) ? topLevelItemCount() : -1;
    }
    if (target->parent() || target->isSelected() || !isActive(target))
        return -1;
    const QRect rect = visualItemRect(target);
    const bool isLowerHalf = 2 * (pos.y() - rect.top()) >= rect.height();
    return indexOfTopLevelItem(target) + (isLowerHalf ? 1 : 0);
}

} // namespace RTLVAK

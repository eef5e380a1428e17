// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "signals/signaltreewidget.h"

#include "signals/signaledits.h"
#include "signals/signalrow.h"
#include "signals/treerows.h"

#include <QAction>
#include <QDropEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>

#include <algorithm>

// The mouse and the keyboard: menu, renaming in place, drag and drop.

namespace RTLVAK {

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
    changeSignals({row}, [&text](const VAK::SignalItem &record) { return renamedSignal(record, text); });
    emit itemDragged();
}

void signalTreeWidget::closeEditor()
{
    QLineEdit *const closing = editor;
    editor.clear();
    if (window()->focusWidget() == closing)
        setFocus();
    closing->hide();
    if (QTreeWidgetItem *row = itemFromIndex(editedIndex))
        removeItemWidget(row, 0);
    editedIndex = QPersistentModelIndex();
}

/// A row that goes while it is renamed takes the new name with it. Without this the view would hide the editor, which
/// finishes then and renames a row that is half gone.
void signalTreeWidget::rowsAboutToBeRemoved(const QModelIndex &parent, int start, int end)
{
    for (QModelIndex index = editedIndex; editor && index.isValid(); index = index.parent()) {
        if (index.parent() == parent && index.row() >= start && index.row() <= end)
            closeEditor();
    }
    QTreeWidget::rowsAboutToBeRemoved(parent, start, end);
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

static bool isActive(const QTreeWidgetItem *row)
{
    const VAK::SignalItem *record = recordOfRow(row);
    return record && record->active != 0;
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

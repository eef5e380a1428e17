// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "plugin/vakinsexport.h"

#include <VakUtils/signalitem.h>

#include <QPersistentModelIndex>
#include <QPointer>
#include <QTreeWidget>

class QLineEdit;

namespace RTLVAK {

/// The list of chosen signals: one top-level row per record, top = most significant, the members of groups as child
/// rows.
class VAKINS_EXPORT signalTreeWidget : public QTreeWidget // spelling fixed by the interface
{
    Q_OBJECT

public:
    explicit signalTreeWidget(QWidget *parent = nullptr);

    /// Allows the right-click menu; off at first.
    void setMenuEnabled(bool enabled);

    void insertSignal(int row, const VAK::SignalItem &record);
    void appendSignal(const VAK::SignalItem &record);
    /// Inserts many records at once, the first one at `row`.
    void insertSignals(int row, const QList<VAK::SignalItem> &records);
    /// The records of the top-level rows, top to bottom.
    QList<VAK::SignalItem> signalItems() const;
    /// Colours the rows by their records: inactive and unusable grey, missing red, else black. Writes only what
    /// differs.
    void updatePresentation();
    /// The bits of the rows whose active field is set: a group counts its members, a single net counts 1.
    int activeBitCount() const;
    /// Merges signals that the user asked for into the list: known ones are brought up to date in their rows, the
    /// others are inserted from `row` on, single nets before groups. When nothing was new, the rows that matched are
    /// selected. Returns the number of rows inserted.
    int mergeSignals(int row, const QList<VAK::SignalItem> &incoming);

signals:
    /// After every change of the list made by the user in the tree.
    void itemDragged();
    /// After Enable and Disable, before itemDragged().
    void CapSignalChange(); // spelling fixed by the interface

public slots:
    void onSplit();
    void onMerge();
    void onChangeName();
    void finishEdit();
    void onRestoreOrgName();
    void onReverse();
    void onEnable();
    void onDisable();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void dragMoveEvent(QDragMoveEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    void rowsAboutToBeRemoved(const QModelIndex &parent, int start, int end) override;

private:
    void createActions();
    void showMenu(const QPoint &globalPos);
    void updateActions();
    void setSelectedActive(int active);
    void closeEditor();
    /// The position before which a drop at `pos` puts the moving rows; -1 when the drop is refused.
    int dropPosition(const QPoint &pos) const;

    bool menuEnabled = false;
    QAction *actionSplit = nullptr;
    QAction *actionMerge = nullptr;
    QAction *actionChangeName = nullptr;
    QAction *actionRestoreOrgName = nullptr;
    QAction *actionReverse = nullptr;
    QAction *actionEnable = nullptr;
    QAction *actionDisable = nullptr;
    QPointer<QLineEdit> editor;        ///< the rename in progress
    QPersistentModelIndex editedIndex; ///< its row
};

} // namespace RTLVAK

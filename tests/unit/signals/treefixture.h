// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "signals/signaltreewidget.h"

#include "support/signallog.h"
#include "unit/signals/records.h"

#include <QAbstractItemModelTester>
#include <QDropEvent>
#include <QMimeData>

#include <memory>

/// A shown signal tree whose emissions are noted and whose model is watched for mistakes.
struct TreeFixture : RTLVAK::signalTreeWidget
{
    explicit TreeFixture(const QList<VAK::SignalItem> &items)
    {
        if (items.size() < 100) // the tester looks at every row after every change
            tester = std::make_unique<QAbstractItemModelTester>(model());
        insertSignals(0, items);
        updatePresentation();
        resize(300, 400);
        show();
        log.watch(this, &signalTreeWidget::itemDragged, "itemDragged");
        log.watch(this, &signalTreeWidget::CapSignalChange, "CapSignalChange");
    }

    QTreeWidgetItem *row(int index) const { return topLevelItem(index); }
    VAK::SignalItem record(int index) const { return signalItems().value(index); }
    QStringList names() const { return records::names(signalItems()); }

    /// Selects top-level rows in the order given, the last one becomes current.
    void select(const QList<int> &rows)
    {
        clearSelection();
        for (int index : rows)
            setCurrentItem(row(index), 0, QItemSelectionModel::Select);
    }

    QStringList selectedNames() const
    {
        QStringList result;
        for (const QTreeWidgetItem *item : selectedItems())
            result.append(item->text(0));
        return result;
    }

    /// Drops what is selected at a point of the viewport, as the toolkit delivers it. Returns the event's drop action.
    Qt::DropAction dropAt(const QPoint &pos)
    {
        QMimeData mimeData;
        QDropEvent event(pos, Qt::MoveAction, &mimeData, Qt::LeftButton, Qt::NoModifier);
        event.ignore();
        dropEvent(&event);
        wasAccepted = event.isAccepted();
        return event.dropAction();
    }

    QPoint upperHalf(const QTreeWidgetItem *item) const { return visualItemRect(item).topLeft() + QPoint(5, 1); }
    QPoint lowerHalf(const QTreeWidgetItem *item) const { return visualItemRect(item).bottomLeft() + QPoint(5, -1); }
    QPoint belowAll() const { return viewport()->rect().bottomLeft() + QPoint(5, -2); }

    std::unique_ptr<QAbstractItemModelTester> tester;
    support::SignalLog log;
    bool wasAccepted = false;
};

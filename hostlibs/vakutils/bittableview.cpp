// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "bittableview.h"

#include "bittablemodel.h"

#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QKeyEvent>

namespace VAK {

BitTableView::BitTableView(QWidget *parent)
    : QTableView(parent)
{
    setEditTriggers(NoEditTriggers);
    setSelectionMode(SingleSelection);
    setAlternatingRowColors(true);
    setTextElideMode(Qt::ElideLeft); // the end of a hierarchical name says most
    setWordWrap(false);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 6);
    horizontalHeader()->setHighlightSections(false);
    connect(this, &QAbstractItemView::doubleClicked, this, &BitTableView::cycle);
}

int BitTableView::currentValueColumn() const
{
    return qMax<int>(currentIndex().column(), BitTableModel::ValueColumn);
}

void BitTableView::cycle(const QModelIndex &index)
{
    const auto *bits = static_cast<const BitTableModel *>(model());
    if (index.column() < BitTableModel::ValueColumn || bits->characters().isEmpty())
        return;
    const int next = bits->characters().indexOf(index.data().toString()) + 1;
    model()->setData(index, bits->characters().at(next % bits->characters().size()));
}

bool BitTableView::type(const QString &text)
{
    const QModelIndex cell = model()->index(qMax(currentIndex().row(), 0), currentValueColumn());
    if (!model()->setData(cell, text))
        return false;
    const int next = qMin(cell.row() + 1, model()->rowCount() - 1);
    setCurrentIndex(model()->index(next, cell.column()));
    return true;
}

void BitTableView::keyPressEvent(QKeyEvent *event)
{
    if (event->matches(QKeySequence::Paste))
        emit pasted(currentValueColumn(), QApplication::clipboard()->text());
    else if (event->key() == Qt::Key_Space)
        cycle(currentIndex());
    else if (!type(event->text()))
        QTableView::keyPressEvent(event);
}

} // namespace VAK

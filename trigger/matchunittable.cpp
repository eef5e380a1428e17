// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "trigger/matchunittable.h"

#include <VakUtils/matchunitmodel.h>

#include <QHeaderView>
#include <QTableView>

namespace RTLVAK::private_impl {

void setUpMatchUnitTable(QTableView *table, QAbstractItemModel *model)
{
    table->setModel(model);
    table->setColumnHidden(VAK::MatchUnitModel::SignalsColumn, true);
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    table->setSelectionMode(QAbstractItemView::SingleSelection);
    table->setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table->setTextElideMode(Qt::ElideMiddle);
    table->setWordWrap(false);
    table->verticalHeader()->hide();
    table->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    table->horizontalHeader()->setHighlightSections(false);
    table->horizontalHeader()->setStretchLastSection(true);
}

int checkedMatchUnits(const QAbstractItemModel *model)
{
    int checked = 0;
    for (int row = 0; row < model->rowCount(); ++row)
        checked += model->index(row, 0).data(Qt::CheckStateRole).toInt() == Qt::Checked;
    return checked;
}

} // namespace RTLVAK::private_impl

// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "trigger/matchunittable.h"

#include <VakUtils/matchunitmodel.h>

#include <QFontMetrics>
#include <QHeaderView>
#include <QStyle>
#include <QTableView>

namespace RTLVAK::private_impl {

static constexpr int Padding = 12;

/// Columns wide enough for what is short, so that the value, which can be long, gets what is left.
static void setColumnWidths(QTableView *table)
{
    const QFontMetrics metrics = table->fontMetrics();
    const auto fit = [&](int column, const QString &text) {
        const QString title = table->model()->headerData(column, Qt::Horizontal).toString();
        const int width = qMax(metrics.horizontalAdvance(text), metrics.horizontalAdvance(title));
        table->setColumnWidth(column, width + Padding);
    };
    const int checkBox = table->style()->pixelMetric(QStyle::PM_IndicatorWidth, nullptr, table) + Padding;
    fit(VAK::MatchUnitModel::NameColumn, QStringLiteral("M15"));
    table->setColumnWidth(VAK::MatchUnitModel::NameColumn,
                          table->columnWidth(VAK::MatchUnitModel::NameColumn) + checkBox);
    fit(VAK::MatchUnitModel::PortColumn, QStringLiteral("Trigger Port 15"));
    fit(VAK::MatchUnitModel::FunctionColumn, QStringLiteral("in range"));
    fit(VAK::MatchUnitModel::ValueColumn, QStringLiteral("XXXXXXXX"));
    fit(VAK::MatchUnitModel::CounterColumn, QStringLiteral("99 total"));
}

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
    table->verticalHeader()->setDefaultSectionSize(table->fontMetrics().height() + Padding / 2);
    table->horizontalHeader()->setHighlightSections(false);
    table->horizontalHeader()->setStretchLastSection(true);
    table->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    setColumnWidths(table);
}

int checkedMatchUnits(const QAbstractItemModel *model)
{
    int checked = 0;
    for (int row = 0; row < model->rowCount(); ++row)
        checked += model->index(row, 0).data(Qt::CheckStateRole).toInt() == Qt::Checked;
    return checked;
}

} // namespace RTLVAK::private_impl

// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "capture/capturesignals.h"

#include "rules/capturedsignals.h"
#include "signals/signalrow.h"
#include "signals/signaltreewidget.h"
#include "signals/treerows.h"
#include "trigger/signalselection.h"

#include <QPushButton>

namespace RTLVAK {

void setUpCaptureTree(signalTreeWidget *tree, QPushButton *remove)
{
    tree->setStyleSheet(QStringLiteral("QTreeWidget::item { height: 20px;}"));
    tree->setTextElideMode(Qt::ElideMiddle);
    tree->setMenuEnabled(true);
    remove->setEnabled(false);
}

void showCaptureSignals(signalTreeWidget *tree, const QList<VAK::SignalItem> &signalItems)
{
    tree->clear();
    tree->insertSignals(0, signalItems);
    tree->updatePresentation();
}

void addCaptureSignals(signalTreeWidget *tree, const QList<VAK::SignalItem> &incoming)
{
    const int row = captureInsertionRow(tree->signalItems());
    showInsertedSignals(tree, row, tree->mergeSignals(row, incoming));
}

void moveEnabledSignalsFirst(signalTreeWidget *tree)
{
    const int target = captureInsertionRow(tree->signalItems());
    QList<QTreeWidgetItem *> late;
    for (int i = target + 1; i < tree->topLevelItemCount(); ++i) {
        const VAK::SignalItem *signal = recordOfRow(tree->topLevelItem(i));
        if (signal && signal->isCaptured())
            late.append(tree->topLevelItem(i));
    }
    if (!late.isEmpty())
        moveTopLevelRows(tree, late, target);
}

void removeSelectedSignals(signalTreeWidget *tree)
{
    deleteTopLevelRows(tree, selectedTopLevelRows(tree));
}

} // namespace RTLVAK

// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "trigger/triggerporttree.h"

#include "signals/signalrow.h"

#include <VakUtils/aocore.h>
#include <VakUtils/triggerport.h>

#include <QCoreApplication>
#include <QStyle>
#include <QTreeWidget>

namespace RTLVAK::private_impl {

static QString inputsText(int inputs)
{
    return QCoreApplication::translate("RTLVAK::TriggerOptionWidget", "Inputs: %1").arg(inputs);
}

static void refreshPort(QTreeWidgetItem *portRow, const VAK::TriggerPort *port)
{
    qDeleteAll(portRow->takeChildren());
    QList<QTreeWidgetItem *> rows;
    for (const VAK::SignalItem &signal : port->getSignalNet())
        rows.append(makeSignalRow(signal, PortSignalRow));
    portRow->addChildren(rows);
    for (QTreeWidgetItem *row : qAsConst(rows))
        colourSignalRow(row);
    portRow->setToolTip(0, inputsText(port->width()));
}

void fillTriggerPorts(QTreeWidget *tree, const VAK::AoCore *core)
{
    for (int i = 0; i < core->allTriggers().size(); ++i) {
        auto *row = new QTreeWidgetItem(tree, PortRow);
        row->setText(0, QStringLiteral("Trigger Port %1").arg(i));
    }
    refreshTriggerPorts(tree, core);
}

void refreshTriggerPorts(QTreeWidget *tree, const VAK::AoCore *core)
{
    for (int i = 0; i < tree->topLevelItemCount(); ++i) {
        if (const VAK::TriggerPort *port = core->getTrigger(i))
            refreshPort(tree->topLevelItem(i), port);
    }
}

int portRowWidth(const QTreeWidget *tree)
{
    const int text = tree->fontMetrics().horizontalAdvance(QStringLiteral("Trigger Port 15"));
    const int scrollBar = tree->style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, tree);
    return tree->indentation() + text + scrollBar + 4 * tree->frameWidth() + 4;
}

QTreeWidgetItem *portRowOf(QTreeWidgetItem *row)
{
    while (row && row->type() == PortSignalRow)
        row = row->parent();
    return row;
}

} // namespace RTLVAK::private_impl

// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "trigger/triggersingalselectdialog.h"

#include "signals/signalrow.h"

#include <VakUtils/triggerport.h>

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QPointer>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace RTLVAK {

TriggerSingalSelectDialog::TriggerSingalSelectDialog(const QList<VAK::TriggerPort *> &offeredPorts, QWidget *parent)
    : QDialog(parent)
    , ports(offeredPorts)
    , preview(new QTreeWidget(this))
{
    setWindowTitle(QStringLiteral("Add From Trigger"));
    resize(480, 360);
    preview->setHeaderHidden(true);
    preview->setTextElideMode(Qt::ElideMiddle);
    preview->setUniformRowHeights(true);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    auto *column = new QVBoxLayout;
    addChoices(column);
    auto *row = new QHBoxLayout;
    row->addLayout(column);
    row->addWidget(preview, 1);
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(row);
    layout->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, &TriggerSingalSelectDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &TriggerSingalSelectDialog::reject);
}

void TriggerSingalSelectDialog::addChoices(QVBoxLayout *column)
{
    for (const VAK::TriggerPort *port : qAsConst(ports)) {
        auto *box = new QCheckBox(QStringLiteral("Trigger Port %1").arg(port->index()), this);
        connect(box, &QCheckBox::toggled, this, &TriggerSingalSelectDialog::onStateChanged);
        checkBoxes.append(box);
        column->addWidget(box);
    }
    if (ports.isEmpty())
        column->addWidget(new QLabel(tr("No trigger port is in use."), this));
    column->addStretch();
}

void TriggerSingalSelectDialog::onStateChanged()
{
    preview->clear();
    QList<QTreeWidgetItem *> rows;
    for (int i = 0; i < ports.size(); ++i) {
        if (!checkBoxes.at(i)->isChecked())
            continue;
        for (const VAK::SignalItem &signal : ports.at(i)->getSignalNet())
            rows.append(makeSignalRow(signal));
    }
    preview->addTopLevelItems(rows);
    for (QTreeWidgetItem *row : qAsConst(rows))
        colourSignalRow(row);
}

QList<VAK::SignalItem> TriggerSingalSelectDialog::chosenSignals() const
{
    return signalsOfRows(preview);
}

QList<VAK::SignalItem> TriggerSingalSelectDialog::selectSignals(const QList<VAK::TriggerPort *> &ports, QWidget *parent)
{
    const QPointer<TriggerSingalSelectDialog> dialog = new TriggerSingalSelectDialog(ports, parent);
    const bool accepted = dialog->exec() == QDialog::Accepted;
    if (!dialog)
        return {};
    dialog->deleteLater();
    return accepted ? dialog->chosenSignals() : QList<VAK::SignalItem>();
}

} // namespace RTLVAK

// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "trigger/triggerportdialog.h"

#include "signals/signalrow.h"
#include "signals/treerows.h"
#include "signals/vaksignalselectdialog.h"
#include "trigger/signalselection.h"

#include "widgets/messagebox.h"

#include "ui_triggerportdialog.h"

#include <VakUtils/triggerport.h>

#include <QPointer>

namespace RTLVAK {

static constexpr int MaxInputs = 64;

TriggerPortDialog::TriggerPortDialog(VAK::TriggerPort *portToEdit, NETCATCHER::RtlNetlist *rtlNetlist, QWidget *parent)
    : QDialog(parent)
    , ui(std::make_unique<Ui::TriggerPortDialog>())
    , port(portToEdit)
    , netlist(rtlNetlist)
{
    ui->setupUi(this);
    ui->btnRemove->setEnabled(false);
    ui->treeWidget->setStyleSheet(QStringLiteral("QTreeWidget::item { height: 20px;}"));
    ui->treeWidget->setTextElideMode(Qt::ElideMiddle);
    ui->treeWidget->setMenuEnabled(true);
    for (const VAK::SignalItem &signal : port->getSignalNet())
        ui->treeWidget->appendSignal(signal);
    ui->treeWidget->updatePresentation();
    showInputCount();
    connect(ui->btnAdd, &QAbstractButton::clicked, this, &TriggerPortDialog::onAdd);
    connect(ui->btnRemove, &QAbstractButton::clicked, this, &TriggerPortDialog::onRemove);
    connect(ui->treeWidget, &signalTreeWidget::itemDragged, this, &TriggerPortDialog::showInputCount);
    connect(ui->buttonBox, &QDialogButtonBox::accepted, this, &TriggerPortDialog::accept);
    connect(ui->buttonBox, &QDialogButtonBox::rejected, this, &TriggerPortDialog::reject);
}

TriggerPortDialog::~TriggerPortDialog()
{
    // The tree still tells its slots what goes away, so it goes first.
    delete ui->treeWidget;
}

void TriggerPortDialog::setRtlNetlist(NETCATCHER::RtlNetlist *newNetlist)
{
    netlist = newNetlist;
    resolveRows(ui->treeWidget, netlist);
    VakSignalSelectDialog::passOn(netlist, this);
}

void TriggerPortDialog::accept()
{
    if (inputCount() > MaxInputs) {
        private_impl::showBox(this, QMessageBox::Warning, QStringLiteral("Warning"),
                              QStringLiteral("Support 64 signals at most."));
        return;
    }
    port->setSignalNet(ui->treeWidget->signalItems());
    QDialog::accept();
}

void TriggerPortDialog::onAdd()
{
    const QPointer<TriggerPortDialog> self(this);
    const QList<VAK::SignalItem> chosen = VakSignalSelectDialog::getSignals(netlist, this);
    if (!self || chosen.isEmpty())
        return;
    const int row = ui->treeWidget->topLevelItemCount();
    showInsertedSignals(ui->treeWidget, row, ui->treeWidget->mergeSignals(row, chosen));
    ui->treeWidget->updatePresentation();
    showInputCount();
}

void TriggerPortDialog::onRemove()
{
    deleteTopLevelRows(ui->treeWidget, selectedTopLevelRows(ui->treeWidget));
    showInputCount();
}

void TriggerPortDialog::on_treeWidget_itemSelectionChanged()
{
    ui->btnRemove->setEnabled(isWholeSignalSelection(ui->treeWidget));
}

int TriggerPortDialog::inputCount() const
{
    int inputs = 0;
    for (const VAK::SignalItem &signal : ui->treeWidget->signalItems())
        inputs += signal.inputCount();
    return inputs;
}

void TriggerPortDialog::showInputCount()
{
    const int inputs = inputCount();
    const QString format = inputs > MaxInputs ? QStringLiteral("<font color = red>%1</font> / %2 inputs")
                                              : QStringLiteral("%1 / %2 inputs");
    ui->labelInputs->setText(format.arg(inputs).arg(MaxInputs));
}

} // namespace RTLVAK

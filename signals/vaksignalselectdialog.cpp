// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "signals/vaksignalselectdialog.h"

#include "signals/rtlnetlisttreeview.h"
#include "signals/searchresults.h"
#include "signals/signalrow.h"
#include "signals/treerows.h"
#include "ui_vaksignalselectdialog.h"

#include "rules/signalmerge.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QPointer>
#include <QScopeGuard>

#include <algorithm>
#include <numeric>

namespace RTLVAK {

namespace private_impl {

/// Bits that cannot be captured stay out, and so does a bus that has no other ones.
static QList<VAK::SignalItem> withoutUnusableBits(const QList<VAK::SignalItem> &records)
{
    QList<VAK::SignalItem> kept;
    for (VAK::SignalItem record : records) {
        const QList<VAK::SignalItem> bits = record.members;
        record.members.clear();
        std::copy_if(bits.cbegin(), bits.cend(), std::back_inserter(record.members),
                     [](const VAK::SignalItem &bit) { return bit.enabled; });
        if (bits.isEmpty() || !record.members.isEmpty())
            kept.append(record);
    }
    return kept;
}

static QString reasonOfNothingAdded(const QList<VAK::SignalItem> &asked, const QList<VAK::SignalItem> &usable)
{
    if (asked.isEmpty())
        return VakSignalSelectDialog::tr("Nothing selected");
    return usable.isEmpty() ? VakSignalSelectDialog::tr("No usable bits") : VakSignalSelectDialog::tr("Already chosen");
}

} // namespace private_impl

VakSignalSelectDialog::VakSignalSelectDialog(NETCATCHER::RtlNetlist *rtlNetlist, QWidget *parent)
    : QDialog(parent)
    , ui(std::make_unique<::Ui::VakSignalSelectDialog>())
    , netlist(rtlNetlist)
{
    ui->setupUi(this);
    setSizeGripEnabled(true);
    ui->widgetAdvancedFilter->hide();
    setUpSearchIn();
    fillSearchIn();
    connect(ui->btnAdd, &QPushButton::clicked, this, &VakSignalSelectDialog::onAddSignal);
    connect(ui->btnAddAll, &QPushButton::clicked, this, &VakSignalSelectDialog::onAddAllSignal);
    connect(ui->btnDel, &QPushButton::clicked, this, &VakSignalSelectDialog::onDelSignal);
    connect(ui->btnDelAll, &QPushButton::clicked, this, &VakSignalSelectDialog::onDelAllSignal);
    connect(ui->buttonBox, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(ui->buttonBox, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(ui->lineEditName, &QLineEdit::textChanged, this, [this] { showPatternError({}); });
    connect(ui->radioButtonNormal, &QRadioButton::toggled, this, [this] { showPatternError({}); });
    connect(ui->radioButtonWildcard, &QRadioButton::toggled, this, [this] { showPatternError({}); });
    ui->lineEditName->setFocus();
}

VakSignalSelectDialog::~VakSignalSelectDialog() = default;

/// Makes the tree of instances the drop-down of the combo box: all open, nothing to fold.
void VakSignalSelectDialog::setUpSearchIn()
{
    searchIn = new RtlNetlistTreeView(this);
    searchIn->setTextElideMode(Qt::ElideMiddle);
    searchIn->setItemsExpandable(false);
    ui->comboBoxSearchIn->setModel(searchIn->model());
    ui->comboBoxSearchIn->setView(searchIn);
}

void VakSignalSelectDialog::fillSearchIn()
{
    searchIn->setRtlNetlist(netlist);
    searchIn->expandAll();
    ui->comboBoxSearchIn->setCurrentIndex(0);
}

void VakSignalSelectDialog::setRtlNetlist(NETCATCHER::RtlNetlist *newNetlist)
{
    netlist = newNetlist;
    fillSearchIn();
    ui->treeWidget->clear();
    ui->labelResults->clear();
    resolveRows(ui->treeWidgetAddSignal, netlist);
}

void VakSignalSelectDialog::passOn(NETCATCHER::RtlNetlist *newNetlist, const QWidget *page)
{
    const QList<VakSignalSelectDialog *> searches = page->findChildren<VakSignalSelectDialog *>();
    for (VakSignalSelectDialog *search : searches)
        search->setRtlNetlist(newNetlist);
}

QList<VAK::SignalItem> VakSignalSelectDialog::chosenSignals() const
{
    return signalsOfRows(ui->treeWidgetAddSignal);
}

QList<VAK::SignalItem> VakSignalSelectDialog::getSignals(NETCATCHER::RtlNetlist *netlist, QWidget *parent)
{
    // The parent may be destroyed while the dialog is open, and takes the dialog with it.
    const QPointer<VakSignalSelectDialog> dialog = new VakSignalSelectDialog(netlist, parent);
    const int result = dialog->exec();
    const QList<VAK::SignalItem> chosen =
        dialog && result == QDialog::Accepted ? dialog->chosenSignals() : QList<VAK::SignalItem>();
    delete dialog;
    return chosen;
}

QString VakSignalSelectDialog::getSignalName(NETCATCHER::RtlNetlist *netlist, QWidget *parent)
{
    const QList<VAK::SignalItem> chosen = getSignals(netlist, parent);
    if (chosen.isEmpty())
        return {};
    const QList<VAK::SignalItem> &members = chosen.first().members;
    if (members.isEmpty())
        return chosen.first().name;
    const auto usable =
        std::find_if(members.cbegin(), members.cend(), [](const VAK::SignalItem &member) { return member.enabled; });
    return usable == members.cend() ? QString() : usable->name;
}

void VakSignalSelectDialog::on_pushButtonSearch_clicked()
{
    const bool hadFocus = ui->pushButtonSearch->hasFocus();
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    ui->pushButtonSearch->setEnabled(false);
    const auto restore = qScopeGuard([this, hadFocus] {
        ui->pushButtonSearch->setEnabled(true);
        if (hadFocus)
            ui->pushButtonSearch->setFocus(); // a button that is disabled loses it
        QGuiApplication::restoreOverrideCursor();
    });
    ui->treeWidget->clear();
    search();
}

void VakSignalSelectDialog::search()
{
    const SearchCriteria wanted = criteria();
    const QString error = patternError(wanted);
    showPatternError(error);
    if (!error.isEmpty()) {
        ui->labelResults->setText(tr("Invalid pattern"));
        return;
    }
    const bool asHierarchy = ui->checkBoxAdvancedFilter->isChecked() && ui->checkBoxHierarchyView->isChecked();
    const ResultCount count = asHierarchy ? showHits(ui->treeWidget, searchHierarchy(netlist, wanted))
                                          : showHits(ui->treeWidget, searchFlat(netlist, wanted));
    ui->labelResults->setText(countText(count));
    ui->treeWidget->scrollToTop();
}

SearchCriteria VakSignalSelectDialog::criteria() const
{
    SearchCriteria wanted;
    wanted.pattern = ui->lineEditName->text();
    wanted.caseSensitive = ui->checkBoxCaseSensitive->isChecked();
    wanted.plainText = ui->radioButtonNormal->isChecked();
    wanted.syntax = ui->radioButtonWildcard->isChecked() ? QRegExp::WildcardUnix : QRegExp::RegExp;
    if (ui->checkBoxAdvancedFilter->isChecked()) {
        // What the combo box shows is what was chosen; the view's current row follows the mouse.
        wanted.scope = ui->comboBoxSearchIn->currentData().value<NETCATCHER::Hierachy *>();
        wanted.includeSub = ui->checkBoxIncludeSubentries->isChecked();
    }
    return wanted;
}

void VakSignalSelectDialog::showPatternError(const QString &reason)
{
    QPalette colours = palette();
    if (!reason.isEmpty())
        colours.setColor(QPalette::Text, Qt::red);
    ui->lineEditName->setPalette(colours);
    ui->lineEditName->setToolTip(reason.isEmpty() ? QString() : tr("Invalid pattern: %1").arg(reason));
}

void VakSignalSelectDialog::on_checkBoxAdvancedFilter_toggled(bool checked)
{
    ui->widgetAdvancedFilter->setVisible(checked);
}

void VakSignalSelectDialog::onAddSignal()
{
    addToChosen(resultRecords(ui->treeWidget, true));
}

void VakSignalSelectDialog::onAddAllSignal()
{
    addToChosen(resultRecords(ui->treeWidget, false));
}

void VakSignalSelectDialog::addToChosen(const QList<VAK::SignalItem> &records)
{
    const QList<VAK::SignalItem> usable = private_impl::withoutUnusableBits(records);
    QList<VAK::SignalItem> chosen = chosenSignals();
    const QList<VAK::SignalItem> added = takeNewSignals(chosen, usable);
    for (int i = 0; i < chosen.size(); ++i) {
        QTreeWidgetItem *row = ui->treeWidgetAddSignal->topLevelItem(i);
        if (*recordOfRow(row) != chosen.at(i))
            updateSignalRow(row, chosen.at(i));
    }
    QList<QTreeWidgetItem *> rows;
    rows.reserve(added.size());
    for (const VAK::SignalItem &record : added)
        rows.append(makeSignalRow(record));
    ui->treeWidgetAddSignal->addTopLevelItems(rows);
    showChosenCount();
    if (!rows.isEmpty())
        ui->treeWidgetAddSignal->scrollToItem(rows.first());
    else
        ui->labelChosen->setText(private_impl::reasonOfNothingAdded(records, usable));
}

void VakSignalSelectDialog::onDelSignal()
{
    deleteTopLevelRows(ui->treeWidgetAddSignal, selectedTopLevelRows(ui->treeWidgetAddSignal));
    showChosenCount();
}

void VakSignalSelectDialog::onDelAllSignal()
{
    ui->treeWidgetAddSignal->clear();
    showChosenCount();
}

void VakSignalSelectDialog::showChosenCount()
{
    const QList<VAK::SignalItem> chosen = chosenSignals();
    const int bits = std::accumulate(chosen.cbegin(), chosen.cend(), 0,
                                     [](int sum, const VAK::SignalItem &record) { return sum + record.inputCount(); });
    const QString rowText = chosen.size() == 1 ? tr("1 signal") : tr("%1 signals").arg(chosen.size());
    const QString bitText = bits == 1 ? tr("1 bit") : tr("%1 bits").arg(bits);
    ui->labelChosen->setText(rowText + QStringLiteral(", ") + bitText);
}

/// Return searches and every other key ends here on purpose: neither may close the dialog.
void VakSignalSelectDialog::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Return)
        on_pushButtonSearch_clicked();
    event->accept();
}

/// The button box makes OK the default button whenever it is shown; Return on a focused button would click it.
void VakSignalSelectDialog::showEvent(QShowEvent *event)
{
    QDialog::showEvent(event);
    const QList<QPushButton *> buttons = findChildren<QPushButton *>();
    for (QPushButton *button : buttons) {
        button->setAutoDefault(false);
        button->setDefault(false);
    }
}

} // namespace RTLVAK

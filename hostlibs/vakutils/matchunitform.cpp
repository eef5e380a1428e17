// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "matchunitform.h"

#include "bittablemodel.h"
#include "bittableview.h"

#include <VakUtils/matchunit.h>
#include <VakUtils/matchunitdialog.h>

#include <QFontDatabase>
#include <QFormLayout>
#include <QHeaderView>
#include <QVBoxLayout>

namespace VAK {

static QLineEdit *newValueEdit(QWidget *parent)
{
    auto *edit = new QLineEdit(parent);
    edit->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    edit->setMinimumWidth(edit->fontMetrics().horizontalAdvance(QLatin1Char('0')) * 66); // the widest port, and a frame
    edit->setToolTip(MatchUnitDialog::tr("One character for each bit, most significant first, or a number: "
                                         "0b1010, 0xA, 10. The character _ may divide it."));
    return edit;
}

static QLabel *newTextLabel(QWidget *parent)
{
    auto *label = new QLabel(parent);
    label->setTextFormat(Qt::PlainText);
    return label;
}

MatchUnitForm::MatchUnitForm(QDialog *dialog)
    : comboPort(new QComboBox(dialog))
    , comboFunction(new QComboBox(dialog))
    , labelValue0(new QLabel(dialog))
    , editValue0(newValueEdit(dialog))
    , labelValue1(new QLabel(MatchUnitDialog::tr("To:"), dialog))
    , editValue1(newValueEdit(dialog))
    , labelFitted(newTextLabel(dialog))
    , labelMessage(newTextLabel(dialog))
    , labelHint(newTextLabel(dialog))
    , tableBits(new BitTableView(dialog))
    , comboCounter(new QComboBox(dialog))
    , spinCount(new QSpinBox(dialog))
    , labelCounterTitle(new QLabel(MatchUnitDialog::tr("Counter:"), dialog))
    , labelCounter(newTextLabel(dialog))
    , buttonBox(new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, dialog))
{
    comboCounter->addItems(
        {MatchUnitDialog::tr("Off"), MatchUnitDialog::tr("Total"), MatchUnitDialog::tr("Consecutive")});
    spinCount->setRange(1, MaxMatchCount);
    labelHint->setWordWrap(true);
    name();
    arrange(dialog);
}

void MatchUnitForm::name()
{
    comboPort->setObjectName(QStringLiteral("comboPort"));
    comboFunction->setObjectName(QStringLiteral("comboFunction"));
    editValue0->setObjectName(QStringLiteral("editValue0"));
    editValue1->setObjectName(QStringLiteral("editValue1"));
    labelFitted->setObjectName(QStringLiteral("labelFitted"));
    labelMessage->setObjectName(QStringLiteral("labelMessage"));
    labelHint->setObjectName(QStringLiteral("labelHint"));
    tableBits->setObjectName(QStringLiteral("tableBits"));
    comboCounter->setObjectName(QStringLiteral("comboCounter"));
    spinCount->setObjectName(QStringLiteral("spinCount"));
    labelCounter->setObjectName(QStringLiteral("labelCounter"));
    buttonBox->setObjectName(QStringLiteral("buttonBox"));
}

void MatchUnitForm::addCounter(QFormLayout *layout)
{
    auto *row = new QHBoxLayout;
    row->addWidget(comboCounter, 1);
    row->addWidget(spinCount);
    layout->addRow(labelCounterTitle, row);
    layout->addRow(QString(), labelCounter);
}

void MatchUnitForm::arrange(QDialog *dialog)
{
    auto *top = new QFormLayout;
    top->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    auto *labelPort = new QLabel(MatchUnitDialog::tr("Trigger port:"), dialog);
    labelCounterTitle->setMinimumWidth(labelPort->sizeHint().width()); // two layouts, one column
    top->addRow(labelPort, comboPort);
    top->addRow(MatchUnitDialog::tr("Function:"), comboFunction);
    top->addRow(labelValue0, editValue0);
    top->addRow(labelValue1, editValue1);
    top->addRow(QString(), labelMessage);
    top->addRow(QString(), labelFitted);
    auto *bottom = new QFormLayout;
    bottom->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    addCounter(bottom);
    auto *layout = new QVBoxLayout(dialog);
    layout->addLayout(top);
    layout->addWidget(tableBits, 1);
    layout->addWidget(labelHint);
    layout->addLayout(bottom);
    layout->addWidget(buttonBox);
    dialog->resize(600, 640);
}

void MatchUnitForm::showRange(bool range)
{
    labelValue0->setText(range ? MatchUnitDialog::tr("From:") : MatchUnitDialog::tr("Value:"));
    labelValue1->setVisible(range);
    editValue1->setVisible(range);
}

void MatchUnitForm::setValueEnabled(bool enabled)
{
    for (QWidget *widget : QList<QWidget *>{comboFunction, editValue0, editValue1, tableBits})
        widget->setEnabled(enabled);
}

void MatchUnitForm::sizeColumns()
{
    QHeaderView *header = tableBits->horizontalHeader();
    for (int column = 0; column < header->count(); ++column) {
        header->setSectionResizeMode(column, column == BitTableModel::SignalColumn ? QHeaderView::Stretch
                                                                                   : QHeaderView::ResizeToContents);
    }
}

} // namespace VAK

// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QComboBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QSpinBox>

class QDialog;
class QFormLayout;

namespace VAK {

class BitTableView;

/// The widgets of the match-unit dialog and their places; the dialog owns them.
struct MatchUnitForm
{
    explicit MatchUnitForm(QDialog *dialog);

    void showRange(bool range);
    void setValueEnabled(bool enabled);
    /// Gives the signal names what the other columns leave.
    void sizeColumns();

    QComboBox *comboPort;
    QComboBox *comboFunction;
    QLabel *labelValue0;
    QLineEdit *editValue0;
    QLabel *labelValue1;
    QLineEdit *editValue1;
    QLabel *labelFitted;
    QLabel *labelMessage;
    QLabel *labelHint;
    BitTableView *tableBits;
    QComboBox *comboCounter;
    QSpinBox *spinCount;
    QLabel *labelCounterTitle;
    QLabel *labelCounter;
    QDialogButtonBox *buttonBox;

private:
    void name();
    void arrange(QDialog *dialog);
    void addCounter(QFormLayout *layout);
};

} // namespace VAK

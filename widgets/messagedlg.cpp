// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "widgets/messagedlg.h"

#include "ui_messagedlg.h"

#include <QPushButton>

namespace RTLVAK {

MessageDlg::MessageDlg(QWidget *parent)
    : QDialog(parent)
    , ui(std::make_unique<Ui::MessageDlg>())
{
    ui->setupUi(this);
    // exec() makes it modal all the same.
    setWindowModality(Qt::NonModal);
    ui->textEdit->setWordWrapMode(QTextOption::NoWrap);
    // A class derived from this one sees the mouse on the text first; the dialog itself lets everything pass.
    ui->textEdit->viewport()->installEventFilter(this);

    // One click accepts twice, by the button and by the box: the second time is harmless and part of the interface.
    connect(ui->buttonBox->button(QDialogButtonBox::Ok), &QPushButton::clicked, this, &MessageDlg::accept);
    connect(ui->buttonBox, &QDialogButtonBox::accepted, this, &MessageDlg::accept);
    connect(ui->buttonBox, &QDialogButtonBox::rejected, this, &MessageDlg::reject);
}

MessageDlg::~MessageDlg() = default;

void MessageDlg::setMessages(const QStringList &lines)
{
    ui->textEdit->setPlainText(lines.join(QLatin1Char('\n')));
}

} // namespace RTLVAK

// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "trigger/muexpressiondialog.h"

#include "rules/expressioncheck.h"
#include "widgets/messagebox.h"

#include "ui_muexpressiondialog.h"

#include <VakUtils/aocore.h>

#include <QKeyEvent>
#include <QPushButton>
#include <QSignalMapper>

namespace RTLVAK {

MuExpressionDialog::MuExpressionDialog(QWidget *parent)
    : QDialog(parent)
    , ui(std::make_unique<Ui::MuExpressionDialog>())
    , mapper(new QSignalMapper(this))
{
    ui->setupUi(this);
    connectButtons();
}

MuExpressionDialog::~MuExpressionDialog() = default;

void MuExpressionDialog::mapButton(QPushButton *button, const QString &token)
{
    mapper->setMapping(button, token);
    connect(button, &QPushButton::clicked, mapper, QOverload<>::of(&QSignalMapper::map));
}

// The interface fixes a signal of the mapper that the toolkit calls deprecated.
QT_WARNING_PUSH
QT_WARNING_DISABLE_DEPRECATED
void MuExpressionDialog::connectButtons()
{
    for (int unit = 0; unit < VAK::MatchUnitsPerCore; ++unit) {
        auto *button = findChild<QPushButton *>(QStringLiteral("btnM%1").arg(unit));
        mapButton(button, button->text());
    }
    mapButton(ui->btnAND, QStringLiteral("&"));
    mapButton(ui->btnOR, QStringLiteral("|"));
    mapButton(ui->btnXOR, QStringLiteral("^"));
    mapButton(ui->btnNOT, QStringLiteral("!"));
    mapButton(ui->btnLeftBracket, QStringLiteral("("));
    mapButton(ui->btnRightBracket, QStringLiteral(")"));
    connect(mapper, QOverload<const QString &>::of(&QSignalMapper::mapped), this, &MuExpressionDialog::expBtnClicked);
    connect(ui->btnBackspace, &QPushButton::clicked, this, &MuExpressionDialog::backspaceClicked);
    connect(ui->btnClear, &QPushButton::clicked, this, &MuExpressionDialog::clearAllClicked);
    connect(ui->buttonBox, &QDialogButtonBox::accepted, this, &MuExpressionDialog::accept);
    connect(ui->buttonBox, &QDialogButtonBox::rejected, this, &MuExpressionDialog::reject);
}
QT_WARNING_POP

QString MuExpressionDialog::expression() const
{
    return ui->editDisplay->text();
}

void MuExpressionDialog::accept()
{
    if (isTriggerExpression(tokens))
        QDialog::accept();
    else
        private_impl::showBox(this, QMessageBox::Warning, QStringLiteral("Warning"),
                              QStringLiteral("Please input the right expression"));
}

void MuExpressionDialog::expBtnClicked(QString token)
{
    tokens.append(token);
    showTokens();
}

void MuExpressionDialog::backspaceClicked()
{
    if (!tokens.isEmpty())
        tokens.removeLast();
    showTokens();
}

void MuExpressionDialog::clearAllClicked()
{
    tokens.clear();
    showTokens();
}

void MuExpressionDialog::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Backspace)
        backspaceClicked();
    else if (event->key() == Qt::Key_Delete)
        clearAllClicked();
    else
        QDialog::keyPressEvent(event);
}

void MuExpressionDialog::showTokens()
{
    ui->editDisplay->setText(tokens.join(QString()));
}

} // namespace RTLVAK

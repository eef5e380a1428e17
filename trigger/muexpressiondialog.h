// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "plugin/vakinsexport.h"

#include <QDialog>
#include <QStringList>

#include <memory>

class QPushButton;
class QSignalMapper;

namespace RTLVAK {

namespace Ui {
class MuExpressionDialog;
}

/// Composes one trigger expression over the match units with buttons; always starts empty.
class VAKINS_EXPORT MuExpressionDialog : public QDialog
{
    Q_OBJECT

public:
    explicit MuExpressionDialog(QWidget *parent = nullptr);
    ~MuExpressionDialog() override;

    /// The tokens joined, as shown.
    QString expression() const;

public slots:
    void accept() override;

private slots:
    void expBtnClicked(QString token);
    void backspaceClicked();
    void clearAllClicked();

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    void mapButton(QPushButton *button, const QString &token);
    void connectButtons();
    void showTokens();

    std::unique_ptr<Ui::MuExpressionDialog> ui;
    QStringList tokens;
    QSignalMapper *mapper;
};

} // namespace RTLVAK

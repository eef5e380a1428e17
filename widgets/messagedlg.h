// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "plugin/vakinsexport.h"

#include <QDialog>

#include <memory>

namespace RTLVAK {

namespace Ui {
class MessageDlg;
}

/// Shows lines of text, one below the other and never wrapped, until the user closes it.
class VAKINS_EXPORT MessageDlg : public QDialog
{
    Q_OBJECT

public:
    explicit MessageDlg(QWidget *parent);
    ~MessageDlg() override;

    /// Replaces what is shown by `lines`, as plain text.
    void setMessages(const QStringList &lines);

private:
    std::unique_ptr<Ui::MessageDlg> ui;
};

} // namespace RTLVAK

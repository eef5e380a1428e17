// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "widgets/changedbanner.h"

#include "ui_changedbanner.h"

namespace RTLVAK {

ChangedBanner::ChangedBanner(QWidget *parent)
    : QWidget(parent)
    , ui(std::make_unique<Ui::ChangedBanner>())
{
    ui->setupUi(this);
}

ChangedBanner::~ChangedBanner() = default;

QPushButton *ChangedBanner::okButton() const
{
    return ui->okBtn;
}

} // namespace RTLVAK

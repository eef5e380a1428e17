// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "widgets/reloadbanner.h"

#include "ui_reloadbanner.h"

#include <QDir>

namespace RTLVAK {

ReloadBanner::ReloadBanner(int kind, const QString &path, QWidget *parent)
    : QWidget(parent)
    , ui(std::make_unique<Ui::ReloadBanner>())
{
    ui->setupUi(this);
    if (kind == Changed)
        askAboutChange(QDir::toNativeSeparators(path));
    else if (kind == Removed)
        askAboutRemoval(QDir::toNativeSeparators(path));
}

ReloadBanner::~ReloadBanner() = default;

void ReloadBanner::setText(const QString &text)
{
    // A path may look like markup.
    ui->labelFile->setTextFormat(Qt::PlainText);
    ui->labelFile->setText(text);
}

void ReloadBanner::askAboutChange(const QString &path)
{
    ui->btnA->setText(tr("Reload"));
    ui->btnB->setText(tr("Cancel"));
    connect(ui->btnA, &QPushButton::clicked, this, &ReloadBanner::reload);
    connect(ui->btnB, &QPushButton::clicked, this, &ReloadBanner::cancel);
    setText(tr("The file '%1' changed on disk.\nDo you want to reload?").arg(path));
}

void ReloadBanner::askAboutRemoval(const QString &path)
{
    ui->btnA->setText(tr("Keep It"));
    ui->btnB->setText(tr("Close"));
    connect(ui->btnA, &QPushButton::clicked, this, &ReloadBanner::keepIt);
    connect(ui->btnB, &QPushButton::clicked, this, &ReloadBanner::closeIt);
    setText(tr("The file '%1' has been removed on disk.\nDo you still want to keep it?").arg(path));
}

} // namespace RTLVAK

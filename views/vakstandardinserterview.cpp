// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "views/vakstandardinserterview.h"

#include "ui_vakstandardinserterview.h"
#include "views/vakstandardinserterview_p.h"

#include "capture/aooptionwidget.h"
#include "widgets/reloadbanner.h"

#include <VakUtils/aocore.h>

#include <QCloseEvent>

namespace RTLVAK {

using private_impl::InserterDocument;
using private_impl::VakStandardInserterViewPrivate;

VakStandardInserterView::VakStandardInserterView(QWidget *parent)
    : VakInserterView(parent)
    , ui(new Ui::VakStandardInserterView)
{
    ui->setupUi(this);
    d = new VakStandardInserterViewPrivate(this);
    d->notifyModified = [this](bool modified) { emit modificationStatusChanged(modified); };
    d->addChangedBanner();
    ui->widget_2->hide();
    InserterDocument::setUpBannerContainer(ui->widget_3);
    subscribeEvent();
}

VakStandardInserterView::~VakStandardInserterView()
{
    unsubscribeEvent();
    d->deletePages(); // they emit while they die, into slots that use the rest
    delete ui;
    delete d;
}

QString VakStandardInserterView::file() const
{
    return d->filePath;
}

bool VakStandardInserterView::open(const QString &fileName, const QString &, QString *errorString)
{
    return d->open(fileName, errorString);
}

bool VakStandardInserterView::save()
{
    return d->save();
}

bool VakStandardInserterView::isModified() const
{
    return d->modified;
}

void VakStandardInserterView::setModified(bool on)
{
    d->setModified(on);
}

int VakStandardInserterView::addAoOptionWidget(AoOptionWidget *page)
{
    ui->stackedWidget->addWidget(page);
    connect(page, &AoOptionWidget::modifed, this, &VakStandardInserterView::onModified);
    d->addItem(page->core()->index());
    return ui->stackedWidget->count();
}

void VakStandardInserterView::removeAoOptionWidget(AoOptionWidget *page)
{
    ui->stackedWidget->removeWidget(page);
    disconnect(page, &AoOptionWidget::modifed, this, &VakStandardInserterView::onModified);
    d->removeItem(page->core()->index());
}

void VakStandardInserterView::changeAoWidget(int number)
{
    d->showCore(number);
}

void VakStandardInserterView::handleIEvent(const QUtil::IEvent *event)
{
    d->handleIEvent(*event);
}

void VakStandardInserterView::onModified()
{
    d->markModified();
}

void VakStandardInserterView::on_treeWidget_customContextMenuRequested(const QPoint &pos)
{
    d->showCoreMenu(pos);
}

void VakStandardInserterView::on_treeWidget_doubleClicked(const QModelIndex &)
{
    // Deliberately nothing: the first click has shown the core.
}

void VakStandardInserterView::on_treeWidget_clicked(const QModelIndex &index)
{
    d->showClickedCore(index);
}

void VakStandardInserterView::onOKBtn()
{
    ui->widget_2->hide();
}

void VakStandardInserterView::onFileChange()
{
    d->onFileChange();
}

void VakStandardInserterView::checkForReload()
{
    d->checkForReload();
}

void VakStandardInserterView::onBannerReload()
{
    d->onBannerReload(senderBanner());
}

void VakStandardInserterView::onBannerCancel()
{
    d->onBannerCancel(senderBanner());
}

void VakStandardInserterView::onBannerKeep()
{
    d->onBannerKeep(senderBanner());
}

void VakStandardInserterView::onBannerClose()
{
    d->onBannerClose(senderBanner());
}

void VakStandardInserterView::subscribeEvent()
{
    InserterDocument::subscribeEvent(this);
}

void VakStandardInserterView::unsubscribeEvent()
{
    InserterDocument::unsubscribeEvent(this);
}

bool VakStandardInserterView::readRtlNetlist()
{
    return d->readRtlNetlist();
}

void VakStandardInserterView::onRtlReload()
{
    d->onRtlReload(senderBanner());
}

void VakStandardInserterView::onReloadCancel()
{
    d->onReloadCancel(senderBanner());
}

void VakStandardInserterView::closeEvent(QCloseEvent *event)
{
    if (d->mayClose())
        VakInserterView::closeEvent(event);
    else
        event->ignore();
}

QWidget *VakStandardInserterView::senderBanner() const
{
    return qobject_cast<ReloadBanner *>(sender());
}

} // namespace RTLVAK

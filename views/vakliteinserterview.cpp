// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "views/vakliteinserterview.h"

#include "ui_vakliteinserterview.h"
#include "views/vakliteinserterview_p.h"

#include "widgets/reloadbanner.h"

#include <QCloseEvent>
#include <QPointer>

namespace RTLVAK {

using private_impl::InserterDocument;
using private_impl::VakLiteInserterViewPrivate;

VakLiteInserterView::VakLiteInserterView(QWidget *parent)
    : VakInserterView(parent)
    , ui(new Ui::VakLiteInserterView)
{
    ui->setupUi(this);
    d = new VakLiteInserterViewPrivate(this);
    d->notifyModified = [this](bool modified) { emit modificationStatusChanged(modified); };
    InserterDocument::setUpBannerContainer(ui->widget_3);
    connect(ui->btnAdd, &QPushButton::clicked, this, &VakLiteInserterView::onAddCore);
    connect(ui->btnRemove, &QPushButton::clicked, this, &VakLiteInserterView::onRemoveCore);
    connect(ui->comboBoxAo, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            &VakLiteInserterView::onCoreChosen);
    subscribeEvent();
}

VakLiteInserterView::~VakLiteInserterView()
{
    unsubscribeEvent();
    d->deletePages(); // they emit while they die, into slots that use the rest
    delete ui;
    delete d;
}

QString VakLiteInserterView::file() const
{
    return d->filePath;
}

bool VakLiteInserterView::open(const QString &fileName, const QString &, QString *errorString)
{
    return d->open(fileName, errorString);
}

bool VakLiteInserterView::save()
{
    return d->save();
}

bool VakLiteInserterView::isModified() const
{
    return d->modified;
}

void VakLiteInserterView::setModified(bool on)
{
    d->setModified(on);
}

void VakLiteInserterView::handleIEvent(const QUtil::IEvent *event)
{
    d->handleIEvent(*event);
}

void VakLiteInserterView::onModified()
{
    d->markModified();
}

void VakLiteInserterView::onAddCore()
{
    d->addCore(d->cores.size());
}

void VakLiteInserterView::onRemoveCore()
{
    const QPointer<QWidget> alive(this);
    const int count = d->cores.size();
    d->removeCore(ui->comboBoxAo->currentIndex());
    if (alive && d->cores.size() < count)
        d->showCore(0);
}

void VakLiteInserterView::onCoreChosen(int number)
{
    d->showPage(number);
}

void VakLiteInserterView::onFileChanged()
{
    d->onFileChange();
}

void VakLiteInserterView::checkForReload()
{
    d->checkForReload();
}

void VakLiteInserterView::onBannerReload()
{
    d->onBannerReload(senderBanner());
}

void VakLiteInserterView::onBannerCancel()
{
    d->onBannerCancel(senderBanner());
}

void VakLiteInserterView::onBannerKeep()
{
    d->onBannerKeep(senderBanner());
}

void VakLiteInserterView::onBannerClose()
{
    d->onBannerClose(senderBanner());
}

void VakLiteInserterView::subscribeEvent()
{
    InserterDocument::subscribeEvent(this);
}

void VakLiteInserterView::unsubscribeEvent()
{
    InserterDocument::unsubscribeEvent(this);
}

bool VakLiteInserterView::readRtlNetlist()
{
    return d->readRtlNetlist();
}

void VakLiteInserterView::onRtlReload()
{
    d->onRtlReload(senderBanner());
}

void VakLiteInserterView::onReloadCancel()
{
    d->onReloadCancel(senderBanner());
}

void VakLiteInserterView::closeEvent(QCloseEvent *event)
{
    if (d->mayClose())
        VakInserterView::closeEvent(event);
    else
        event->ignore();
}

QWidget *VakLiteInserterView::senderBanner() const
{
    return qobject_cast<ReloadBanner *>(sender());
}

} // namespace RTLVAK

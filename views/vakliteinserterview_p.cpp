// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "views/vakliteinserterview_p.h"

#include "ui_vakliteinserterview.h"
#include "views/bannerconnections.h"
#include "views/vakliteinserterview.h"

#include "rules/corevalidation.h"

#include <VakUtils/vakfile.h>

#include <QFileSystemWatcher>
#include <QSignalBlocker>

namespace RTLVAK::private_impl {

static QString coreTitle(int number)
{
    return QStringLiteral("AO %1").arg(number);
}

VakLiteInserterViewPrivate::VakLiteInserterViewPrivate(VakLiteInserterView *view)
    : q(view)
    , watcher(new QFileSystemWatcher(this))
{
    connect(watcher, &QFileSystemWatcher::fileChanged, q, &VakLiteInserterView::onFileChanged);
}

VakLiteInserterViewPrivate::~VakLiteInserterViewPrivate()
{
    delete watcher;
    searchIndex.reset();
    delete netlist;
    qDeleteAll(cores);
}

void VakLiteInserterViewPrivate::showCore(int number)
{
    q->ui->comboBoxAo->setCurrentIndex(number);
    showPage(number); // also when the entry was current before
}

void VakLiteInserterViewPrivate::showPage(int number)
{
    if (LiteAoOptionWidget *page = widgets.value(number))
        q->ui->stackedWidget->setCurrentWidget(page);
}

QWidget *VakLiteInserterViewPrivate::bannerContainer() const
{
    return q->ui->widget_3;
}

bool &VakLiteInserterViewPrivate::rtlReloadFlag()
{
    return q->rtlReloadPending;
}

bool VakLiteInserterViewPrivate::isReadable() const
{
    return VAK::vakModeFromVakConfigFile(filePath) == VAK::VakMode::Lite && VAK::checkVAKLiteFile(filePath);
}

QList<VAK::AOCore_Lite *> VakLiteInserterViewPrivate::readFile(bool *ok, QString *errorString) const
{
    return VAK::readVAKConfigFromXml_Lite(filePath, ok, errorString);
}

LiteAoOptionWidget *VakLiteInserterViewPrivate::createPage(VAK::AOCore_Lite *core)
{
    return new LiteAoOptionWidget(core, netlist);
}

void VakLiteInserterViewPrivate::putPage(LiteAoOptionWidget *page)
{
    q->ui->stackedWidget->addWidget(page);
    connect(page, &LiteAoOptionWidget::modified, q, &VakLiteInserterView::onModified);
    q->ui->comboBoxAo->addItem(coreTitle(page->core()->index()));
}

void VakLiteInserterViewPrivate::takePage(LiteAoOptionWidget *page)
{
    q->ui->stackedWidget->removeWidget(page);
    disconnect(page, &LiteAoOptionWidget::modified, q, &VakLiteInserterView::onModified);
    const QSignalBlocker blocker(q->ui->comboBoxAo); // the entry that becomes current next must not be shown
    q->ui->comboBoxAo->removeItem(page->core()->index());
    for (int i = 0; i < q->ui->comboBoxAo->count(); ++i)
        q->ui->comboBoxAo->setItemText(i, coreTitle(i));
}

bool VakLiteInserterViewPrivate::validate(QString *errors) const
{
    return validateLiteCores(cores, netlist, errors);
}

QString VakLiteInserterViewPrivate::validationText() const
{
    return QStringLiteral("Your settings contain some errors."); // here without blanks at the end
}

bool VakLiteInserterViewPrivate::write(const QString &fileName) const
{
    return VAK::writeVAKConfigToXml_Lite(cores, fileName);
}

void VakLiteInserterViewPrivate::setNetlist(std::unique_ptr<NETCATCHER::RtlNetlist> newNetlist)
{
    if (newNetlist) {
        CoreDocument::setNetlist(std::move(newNetlist));
        formerNetlist.reset();
        return;
    }
    qDebug("try to set a null netlist for Lite VAK.");
    if (netlist)
        formerNetlist.reset(std::exchange(netlist, nullptr));
}

void VakLiteInserterViewPrivate::connectFileBanner(const ReloadBanner *banner) const
{
    private_impl::connectFileBanner(banner, q);
}

void VakLiteInserterViewPrivate::connectDesignBanner(const ReloadBanner *banner) const
{
    private_impl::connectDesignBanner(banner, q);
}

} // namespace RTLVAK::private_impl

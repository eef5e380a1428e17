// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "views/vakstandardinserterview_p.h"

#include "ui_vakstandardinserterview.h"
#include "views/bannerconnections.h"
#include "views/vakstandardinserterview.h"

#include "rules/corevalidation.h"
#include "widgets/changedbanner.h"

#include <VakUtils/vakfile.h>

#include <QAction>
#include <QCursor>
#include <QFileSystemWatcher>
#include <QGuiApplication>
#include <QMenu>
#include <QPointer>
#include <QPushButton>
#include <QSignalBlocker>

#include <algorithm>

namespace RTLVAK::private_impl {

static QString coreTitle(int number)
{
    return QStringLiteral("Core %1").arg(number);
}

VakStandardInserterViewPrivate::VakStandardInserterViewPrivate(VakStandardInserterView *view)
    : q(view)
    , addAction(new QAction(QStringLiteral("Add"), this))
    , removeAction(new QAction(QStringLiteral("Remove"), this))
    , watcher(new QFileSystemWatcher(this))
{
    connect(watcher, &QFileSystemWatcher::fileChanged, q, &VakStandardInserterView::onFileChange);
    connect(q->ui->treeWidget, &QTreeWidget::currentItemChanged, this, &VakStandardInserterViewPrivate::showCoreOfKey);
}

VakStandardInserterViewPrivate::~VakStandardInserterViewPrivate()
{
    delete watcher;
    searchIndex.reset();
    delete netlist;
    delete addAction;
    delete removeAction;
    qDeleteAll(cores);
}

void VakStandardInserterViewPrivate::addChangedBanner()
{
    auto *banner = new ChangedBanner(q->ui->widget_2);
    q->ui->widget_2->layout()->addWidget(banner);
    connect(banner->okButton(), &QPushButton::clicked, q, &VakStandardInserterView::onOKBtn);
}

void VakStandardInserterViewPrivate::addItem(int number)
{
    q->ui->treeWidget->addTopLevelItem(new QTreeWidgetItem({coreTitle(number)}));
}

void VakStandardInserterViewPrivate::removeItem(int number)
{
    QTreeWidget *tree = q->ui->treeWidget;
    const QSignalBlocker blocker(tree); // the item that becomes current next must not be shown
    delete tree->takeTopLevelItem(number);
    for (int i = 0; i < tree->topLevelItemCount(); ++i)
        tree->topLevelItem(i)->setText(0, coreTitle(i));
}

void VakStandardInserterViewPrivate::showCore(int number)
{
    const auto page = std::find_if(widgets.cbegin(), widgets.cend(),
                                   [number](const AoOptionWidget *each) { return each->core()->index() == number; });
    if (page == widgets.cend())
        return;
    q->ui->stackedWidget->setCurrentWidget(*page);
    q->ui->treeWidget->setCurrentItem(q->ui->treeWidget->topLevelItem(number));
    q->ui->dockWidget_2->setWindowTitle(coreTitle(number));
}

void VakStandardInserterViewPrivate::showClickedCore(const QModelIndex &index)
{
    // Row and column serve as coordinates, deliberately: a click counts when an item lies at the list's upper left
    // corner.
    if (q->ui->treeWidget->itemAt(QPoint(index.row(), index.column())))
        showCore(index.row());
}

/// Arrow keys show the core that they lead to; the mouse does so when its button is released.
void VakStandardInserterViewPrivate::showCoreOfKey(QTreeWidgetItem *item)
{
    QTreeWidget *tree = q->ui->treeWidget;
    if (item && tree->hasFocus() && QGuiApplication::mouseButtons() == Qt::NoButton)
        showCore(tree->indexOfTopLevelItem(item));
}

void VakStandardInserterViewPrivate::showCoreMenu(const QPoint &pos)
{
    QTreeWidget *tree = q->ui->treeWidget;
    const int row = tree->indexOfTopLevelItem(tree->itemAt(pos));
    addAction->setEnabled(true);
    removeAction->setEnabled(row >= 0);
    const QPointer<QObject> guard(this);
    const QPointer<QMenu> menu(new QMenu(tree)); // on the heap: the tree can die while it is open
    menu->addActions({addAction, removeAction});
    const QAction *chosen = menu->exec(QCursor::pos());
    delete menu;
    if (!guard || !chosen)
        return;
    if (chosen == addAction) {
        const int number = cores.size();
        addCore(number);
        if (guard)
            showCore(number);
    } else {
        removeCore(row);
        if (guard)
            showCore(0);
    }
}

QWidget *VakStandardInserterViewPrivate::bannerContainer() const
{
    return q->ui->widget_3;
}

bool &VakStandardInserterViewPrivate::rtlReloadFlag()
{
    return q->rtlReloadPending;
}

bool VakStandardInserterViewPrivate::isReadable() const
{
    return VAK::vakModeFromVakConfigFile(filePath) == VAK::VakMode::Standard && VAK::checkVAKStandardFile(filePath);
}

QList<VAK::AoCore *> VakStandardInserterViewPrivate::readFile(bool *ok, QString *errorString) const
{
    return VAK::readVAKConfigFromXml(filePath, ok, errorString);
}

AoOptionWidget *VakStandardInserterViewPrivate::createPage(VAK::AoCore *core)
{
    return new AoOptionWidget(core, netlist, q);
}

void VakStandardInserterViewPrivate::putPage(AoOptionWidget *page)
{
    q->addAoOptionWidget(page);
}

void VakStandardInserterViewPrivate::takePage(AoOptionWidget *page)
{
    q->removeAoOptionWidget(page);
}

bool VakStandardInserterViewPrivate::validate(QString *errors) const
{
    return validateCores(cores, netlist, errors);
}

QString VakStandardInserterViewPrivate::validationText() const
{
    return QStringLiteral("Your settings contain some errors.             "); // the blanks widen the box
}

bool VakStandardInserterViewPrivate::write(const QString &fileName) const
{
    return VAK::writeVAKConfigToXml(cores, fileName);
}

void VakStandardInserterViewPrivate::connectFileBanner(const ReloadBanner *banner) const
{
    private_impl::connectFileBanner(banner, q);
}

void VakStandardInserterViewPrivate::connectDesignBanner(const ReloadBanner *banner) const
{
    private_impl::connectDesignBanner(banner, q);
}

} // namespace RTLVAK::private_impl

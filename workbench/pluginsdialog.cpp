// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "workbench/pluginsdialog.h"

#include "workbench/pluginhost.h"

#include <QDialogButtonBox>
#include <QDir>
#include <QHeaderView>
#include <QLabel>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace Workbench {

PluginsDialog::PluginsDialog(const PluginHost &host, QWidget *parent)
    : QDialog(parent)
{
    setWindowTitle(tr("About Plug-ins"));
    auto *tree = new QTreeWidget(this);
    tree->setObjectName("pluginTree");
    tree->setRootIsDecorated(false);
    tree->setHeaderLabels({tr("Plug-in"), tr("State"), tr("Interface"), tr("File")});
    for (const PluginInfo &info : host.plugins()) {
        const QString name = info.className.isEmpty() ? QFileInfo(info.path).fileName() : info.className;
        auto *item = new QTreeWidgetItem(
            tree, {name, info.isWorking() ? tr("Running") : info.error, info.iid, QDir::toNativeSeparators(info.path)});
        item->setIcon(0, QIcon(info.isWorking() ? ":/workbench/image/info.png" : ":/workbench/image/error.png"));
        for (int column = 0; column < 4; ++column)
            item->setToolTip(column, item->text(column));
    }
    for (int column = 0; column < 3; ++column)
        tree->resizeColumnToContents(column);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(
        new QLabel(host.plugins().isEmpty() ? tr("No plug-ins were found.") : tr("These plug-ins were found:"), this));
    layout->addWidget(tree);
    layout->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    resize(720, 260);
}

} // namespace Workbench

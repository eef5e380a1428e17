// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "signals/rtlnetlisttreeview.h"

#include <netcatcher/rtlnetlist.h>

#include <QIcon>

namespace RTLVAK {

static QString rowText(const NETCATCHER::Hierachy *node)
{
    return node->parent() ? node->name() + QLatin1Char('[') + node->module() + QLatin1Char(']') : node->name();
}

RtlTreeItem::RtlTreeItem(NETCATCHER::Hierachy *hierarchyNode)
    : QTreeWidgetItem(ItemType)
    , node(hierarchyNode)
{
    setText(0, rowText(node));
    setIcon(0, QIcon(QStringLiteral(":/netlist/image/module.png")));
    QList<QTreeWidgetItem *> rows;
    const QList<NETCATCHER::Hierachy *> below = node->children();
    for (NETCATCHER::Hierachy *child : below)
        rows.append(new RtlTreeItem(child));
    addChildren(rows);
}

NETCATCHER::Hierachy *RtlTreeItem::hierarchy() const
{
    return node;
}

QVariant RtlTreeItem::data(int column, int role) const
{
    return role == Qt::UserRole ? QVariant::fromValue(node) : QTreeWidgetItem::data(column, role);
}

RtlNetlistTreeView::RtlNetlistTreeView(QWidget *parent)
    : QTreeWidget(parent)
{
    setColumnCount(1);
    setHeaderHidden(true);
    setUniformRowHeights(true);
}

void RtlNetlistTreeView::setRtlNetlist(NETCATCHER::RtlNetlist *rtlNetlist)
{
    netlist = rtlNetlist;
    clear();
    if (!netlist)
        return;
    addTopLevelItem(new RtlTreeItem(netlist->topHierarchy()));
    expandToDepth(0);
}

NETCATCHER::RtlNetlist *RtlNetlistTreeView::rtlNetlist() const
{
    return netlist;
}

} // namespace RTLVAK

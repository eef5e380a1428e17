// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "signals/searchresults.h"

#include "signals/signalrow.h"

#include <netcatcher/rtlnetlist.h>

#include <QCoreApplication>
#include <QIcon>
#include <QSet>
#include <QTreeWidget>

namespace RTLVAK {

namespace private_impl {

static QList<QTreeWidgetItem *> makeRows(const SearchHits &hits)
{
    QList<QTreeWidgetItem *> rows;
    rows.reserve(hits.buses.size() + hits.nets.size());
    for (const NETCATCHER::RtlNetBus *bus : hits.buses)
        rows.append(makeSignalRow(signalItem(bus)));
    for (const NETCATCHER::RtlNet *net : hits.nets)
        rows.append(makeSignalRow(signalItem(net)));
    return rows;
}

/// Module first, unlike the list of instances to search in, which shows the instance first; both are meant so.
static QString nodeLabel(const NETCATCHER::Hierachy *node)
{
    return node->parent() ? node->module() + QLatin1Char(':') + node->name() : node->name();
}

/// The rows of a hierarchy search on their way into the tree.
class HierarchyRows
{
public:
    QTreeWidgetItem *make(const HierarchyHits &hits)
    {
        auto *row = new QTreeWidgetItem;
        row->setText(0, nodeLabel(hits.node));
        row->setToolTip(0, row->text(0));
        row->setIcon(0, icon);
        row->setFlags(row->flags() & ~Qt::ItemIsSelectable);
        const int found = count.buses + count.nets;
        count.buses += hits.hits.buses.size();
        count.nets += hits.hits.nets.size();
        QList<QTreeWidgetItem *> rows = makeRows(hits.hits);
        for (const HierarchyHits &child : hits.children)
            rows.append(make(child));
        row->addChildren(rows);
        if (count.buses + count.nets > found)
            opened.append(row);
        return row;
    }

    ResultCount count;
    QList<QTreeWidgetItem *> opened; ///< something was found in or below them

private:
    QIcon icon{QStringLiteral(":/vakins/image/module.png")};
};

static void collect(const QTreeWidgetItem *row, const QSet<QTreeWidgetItem *> *only, QList<VAK::SignalItem> &records)
{
    if (const VAK::SignalItem *record = recordOfRow(row)) {
        if (!only || only->contains(const_cast<QTreeWidgetItem *>(row)))
            records.append(*record);
        return;
    }
    for (int i = 0; i < row->childCount(); ++i)
        collect(row->child(i), only, records);
}

} // namespace private_impl

ResultCount showHits(QTreeWidget *tree, const SearchHits &hits)
{
    tree->addTopLevelItems(private_impl::makeRows(hits));
    return {hits.buses.size(), hits.nets.size()};
}

ResultCount showHits(QTreeWidget *tree, const HierarchyHits &hits)
{
    const bool hasMatch = !hits.hits.buses.isEmpty() || !hits.hits.nets.isEmpty();
    if (!hits.node || (!hasMatch && hits.children.isEmpty()))
        return {};
    private_impl::HierarchyRows rows;
    tree->addTopLevelItem(rows.make(hits));
    for (QTreeWidgetItem *row : qAsConst(rows.opened))
        row->setExpanded(true);
    return rows.count;
}

QList<VAK::SignalItem> resultRecords(const QTreeWidget *tree, bool selectedOnly)
{
    const QList<QTreeWidgetItem *> selectedItems = selectedOnly ? tree->selectedItems() : QList<QTreeWidgetItem *>();
    const QSet<QTreeWidgetItem *> selected(selectedItems.cbegin(), selectedItems.cend());
    QList<VAK::SignalItem> records;
    for (int i = 0; i < tree->topLevelItemCount(); ++i)
        private_impl::collect(tree->topLevelItem(i), selectedOnly ? &selected : nullptr, records);
    return records;
}

QString countText(const ResultCount &count)
{
    const auto number = [](int n, const char *one, const char *many) {
        return QCoreApplication::translate("RTLVAK::VakSignalSelectDialog", n == 1 ? one : many).arg(n);
    };
    return number(count.buses, "%1 bus", "%1 buses") + QStringLiteral(", ") + number(count.nets, "%1 net", "%1 nets");
}

} // namespace RTLVAK

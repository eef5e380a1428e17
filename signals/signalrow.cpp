// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "signals/signalrow.h"

#include "signals/treerows.h"

#include "rules/signalresolver.h"

#include <QBrush>
#include <QFont>
#include <QHash>
#include <QVariant>

#include <algorithm>

namespace RTLVAK {

namespace private_impl {

/// The toolkit reports a change of a whole item for as many columns as the item has data in. Rows that answer from
/// their records have none at first, and without this the reported range would have no end.
static void giveColumn(QTreeWidgetItem *item)
{
    if (item->treeWidget() && item->columnCount() == 0)
        item->setData(0, Qt::ForegroundRole, QVariant());
}

static void changeFlags(QTreeWidgetItem *item, Qt::ItemFlags flags)
{
    if (flags == item->flags())
        return;
    giveColumn(item);
    item->setFlags(flags);
}

/// What a record gives for a role; an invalid value for the roles that it does not decide.
static QVariant presentation(const VAK::SignalItem &record, int role)
{
    switch (role) {
    case Qt::DisplayRole:
    case Qt::ToolTipRole:
        return signalText(record);
    case Qt::FontRole:
        if (!record.displayName.isEmpty()) {
            QFont font;
            font.setItalic(true);
            return font;
        }
        break;
    default:
        break;
    }
    return {};
}

static bool isPresentation(int role)
{
    return role == Qt::DisplayRole || role == Qt::ToolTipRole || role == Qt::FontRole;
}

/// Rows answer from the record that they hold instead of keeping a copy of each text: a search may list every net of a
/// design.
class SignalRow : public QTreeWidgetItem
{
public:
    SignalRow(const VAK::SignalItem &signalRecord, int type)
        : QTreeWidgetItem(type)
        , record(signalRecord)
    {
    }

    QVariant data(int column, int role) const override
    {
        if (column == 0 && role == Qt::UserRole)
            return QVariant::fromValue(record);
        return column == 0 && isPresentation(role) ? presentation(record, role) : QTreeWidgetItem::data(column, role);
    }

    void setData(int column, int role, const QVariant &value) override
    {
        if (column == 0 && role == Qt::UserRole && value.canConvert<VAK::SignalItem>())
            updateSignalRow(this, value.value<VAK::SignalItem>());
        else
            QTreeWidgetItem::setData(column, role, value);
    }

    void setRecord(const VAK::SignalItem &newRecord);
    void addMembers();

    VAK::SignalItem record;
};

/// A member's state lives in the record of its row, at its own place among the members.
class MemberRow : public QTreeWidgetItem
{
public:
    MemberRow(SignalRow *signalRow, int position)
        : QTreeWidgetItem(signalRow->type())
        , owner(signalRow)
        , index(position)
    {
    }

    QVariant data(int column, int role) const override
    {
        if (column == 0 && isPresentation(role))
            return presentation(owner->record.members.at(index), role);
        return QTreeWidgetItem::data(column, role);
    }

    void refresh()
    {
        giveColumn(this);
        emitDataChanged();
    }

private:
    const SignalRow *owner; ///< the parent row; members are never moved to another one
    int index;
};

static void setUsable(QTreeWidgetItem *item, bool usable)
{
    const Qt::ItemFlags touched = Qt::ItemIsSelectable | Qt::ItemIsEnabled;
    // Nothing is ever dropped into a row, only between rows; without the flag the view draws the drop line there.
    Qt::ItemFlags flags = item->flags() & ~Qt::ItemIsDropEnabled;
    flags = usable ? flags | touched : flags & ~touched;
    if (flags == item->flags())
        return;
    changeFlags(item, flags);
    if (!usable)
        item->setForeground(0, QBrush(Qt::gray));
    else if (item->data(0, Qt::ForegroundRole).isValid())
        item->setData(0, Qt::ForegroundRole, QVariant());
}

void SignalRow::addMembers()
{
    QList<QTreeWidgetItem *> rows;
    rows.reserve(record.members.size());
    for (int i = 0; i < record.members.size(); ++i) {
        rows.append(new MemberRow(this, i));
        setUsable(rows.last(), record.members.at(i).enabled);
    }
    addChildren(rows);
}

void SignalRow::setRecord(const VAK::SignalItem &newRecord)
{
    const VAK::SignalItem old = record;
    const bool sameCount = newRecord.members.size() == childCount();
    if (!sameCount)
        qDeleteAll(takeChildren());
    record = newRecord;
    setUsable(this, record.enabled);
    giveColumn(this);
    emitDataChanged();
    if (!sameCount)
        return addMembers();
    for (int i = 0; i < childCount(); ++i) {
        if (old.members.at(i) == record.members.at(i))
            continue;
        setUsable(child(i), record.members.at(i).enabled);
        static_cast<MemberRow *>(child(i))->refresh();
    }
}

static Qt::GlobalColor colourOf(const VAK::SignalItem &record, bool active)
{
    if (!active || !record.enabled)
        return Qt::gray;
    const bool missing = !record.present || std::any_of(record.members.cbegin(), record.members.cend(),
                                                        [](const VAK::SignalItem &member) { return !member.present; });
    return missing ? Qt::red : Qt::black;
}

} // namespace private_impl

using private_impl::SignalRow;

QString signalText(const VAK::SignalItem &record)
{
    return record.displayName.isEmpty() ? record.name : record.displayName;
}

QTreeWidgetItem *makeSignalRow(const VAK::SignalItem &record, int type)
{
    auto *row = new SignalRow(record, type);
    private_impl::setUsable(row, record.enabled);
    row->addMembers();
    return row;
}

const VAK::SignalItem *recordOfRow(const QTreeWidgetItem *row)
{
    const auto *signalRow = dynamic_cast<const SignalRow *>(row);
    return signalRow ? &signalRow->record : nullptr;
}

std::optional<VAK::SignalItem> signalOfRow(const QTreeWidgetItem *row)
{
    const QVariant carried = row ? row->data(0, Qt::UserRole) : QVariant();
    if (!carried.canConvert<VAK::SignalItem>())
        return std::nullopt;
    return carried.value<VAK::SignalItem>();
}

QList<VAK::SignalItem> signalsOfRows(const QTreeWidget *tree)
{
    QList<VAK::SignalItem> records;
    for (int i = 0; i < tree->topLevelItemCount(); ++i) {
        if (const auto record = signalOfRow(tree->topLevelItem(i)))
            records.append(*record);
    }
    return records;
}

void updateSignalRow(QTreeWidgetItem *row, const VAK::SignalItem &record)
{
    if (auto *signalRow = dynamic_cast<SignalRow *>(row))
        signalRow->setRecord(record);
}

void changeSignals(const QList<QTreeWidgetItem *> &rows, const SignalChange &change)
{
    QHash<QTreeWidgetItem *, VAK::SignalItem> changed; // a bus may have thousands of selected bits: one update for all
    for (QTreeWidgetItem *row : rows) {
        QTreeWidgetItem *const top = recordOfRow(row) ? row : row->parent();
        const VAK::SignalItem *current = recordOfRow(top);
        if (!current)
            continue;
        if (!changed.contains(top))
            changed.insert(top, *current);
        VAK::SignalItem &record = changed[top];
        VAK::SignalItem &part = top == row ? record : record.members[top->indexOfChild(row)];
        part = change(part);
    }
    for (auto it = changed.cbegin(); it != changed.cend(); ++it) {
        updateSignalRow(it.key(), it.value());
        colourSignalRow(it.key());
    }
}

void resolveRows(QTreeWidget *tree, const NETCATCHER::RtlNetlist *netlist)
{
    if (!netlist)
        return;
    const NetLookup lookup = netLookup(netlist);
    changeSignals(topLevelRows(tree, 0, tree->topLevelItemCount()),
                  [&lookup](const VAK::SignalItem &record) { return resolvedSignal(record, lookup); });
}

void colourSignalRow(QTreeWidgetItem *row)
{
    const VAK::SignalItem *record = recordOfRow(row);
    if (!record)
        return;
    const bool active = record->active != 0;
    const Qt::ItemFlags flags = active ? row->flags() | Qt::ItemIsDragEnabled : row->flags() & ~Qt::ItemIsDragEnabled;
    private_impl::changeFlags(row, flags);
    row->setForeground(0, QBrush(private_impl::colourOf(*record, active))); // an equal value is no change
    for (int i = 0; i < row->childCount(); ++i)
        row->child(i)->setForeground(0, QBrush(private_impl::colourOf(record->members.at(i), active)));
}

} // namespace RTLVAK

// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "capture/numberrangemodel.h"

namespace RTLVAK::private_impl {

static bool isShown(int role)
{
    return role == Qt::DisplayRole || role == Qt::EditRole;
}

int NumberRangeModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : numbers;
}

QVariant NumberRangeModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return {};
    if (isShown(role))
        return QString::number(index.row() + 1);
    return role == Qt::UserRole ? QVariant(index.row() + 1) : QVariant();
}

bool NumberRangeModel::insertRows(int row, int count, const QModelIndex &parent)
{
    if (parent.isValid() || row != numbers || count <= 0)
        return false;
    beginInsertRows(parent, row, row + count - 1);
    numbers += count;
    endInsertRows();
    return true;
}

bool NumberRangeModel::removeRows(int row, int count, const QModelIndex &parent)
{
    if (parent.isValid() || row < 0 || count <= 0 || row + count != numbers)
        return false;
    beginRemoveRows(parent, row, row + count - 1);
    numbers -= count;
    endRemoveRows();
    return true;
}

QModelIndexList NumberRangeModel::match(const QModelIndex &start, int role, const QVariant &value, int hits,
                                        Qt::MatchFlags flags) const
{
    const bool exact = (flags & 0x0F) == Qt::MatchExactly || (flags & 0x0F) == Qt::MatchFixedString;
    if (!exact || !(isShown(role) || role == Qt::UserRole) || hits == 0)
        return QAbstractListModel::match(start, role, value, hits, flags);
    const int row = value.toInt() - 1;
    const bool found = row >= 0 && row < numbers && value.toString() == QString::number(row + 1);
    return found ? QModelIndexList{index(row)} : QModelIndexList();
}

} // namespace RTLVAK::private_impl

// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "plugin/vakinsexport.h"

#include <QAbstractListModel>

namespace RTLVAK::private_impl {

/// The numbers 1, 2, 3 .. as a list, each text and user data alike. Thousands of entries cost nothing: only their count
/// is kept, and a number is found without looking at the others.
class VAKINS_EXPORT NumberRangeModel : public QAbstractListModel
{
    Q_OBJECT

public:
    using QAbstractListModel::QAbstractListModel;

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    /// Appends rows; the numbers leave no other place to insert at.
    bool insertRows(int row, int count, const QModelIndex &parent = QModelIndex()) override;
    /// Removes the last rows.
    bool removeRows(int row, int count, const QModelIndex &parent = QModelIndex()) override;
    QModelIndexList match(const QModelIndex &start, int role, const QVariant &value, int hits = 1,
                          Qt::MatchFlags flags = Qt::MatchExactly) const override;

private:
    int numbers = 0;
};

} // namespace RTLVAK::private_impl

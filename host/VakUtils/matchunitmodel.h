// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <hostglobal.h>

#include <QAbstractTableModel>
#include <QList>

namespace VAK {

class MatchUnit;

/// The match units of a core as a table, one row each. The units are borrowed.
class HOST_EXPORT MatchUnitModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    /// The check box and the name stand in one column; the hidden one holds the full names of the port's signals.
    enum Column { NameColumn, SignalsColumn, PortColumn, FunctionColumn, ValueColumn, CounterColumn, ColumnCount };

    MatchUnitModel(const QList<VAK::MatchUnit *> &matchUnits, QObject *parent);
    ~MatchUnitModel() override;

    QModelIndex index(int row, int column, const QModelIndex &parent = QModelIndex()) const override;
    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;

    /// Replaces the rows; resets the model and emits nothing else.
    void setMatcherList(const QList<VAK::MatchUnit *> &matchUnits);
    /// Tells the views that the unit of `row` was edited; emits dataChanged() only.
    void updateRow(int row);
    /// The unit of the index's row; null for an invalid index.
    VAK::MatchUnit *muFromIndex(const QModelIndex &index) const;

signals:
    /// The user switched a unit on or off.
    void matchChange();
    /// The user changed something through the model.
    void modified();

private:
    QList<VAK::MatchUnit *> units;
};

} // namespace VAK

// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include <VakUtils/matchunitmodel.h>

#include "matchunittext.h"

#include <VakUtils/matchunit.h>
#include <VakUtils/triggerport.h>

namespace VAK {

static QVariant displayText(const MatchUnit &unit, int column)
{
    switch (column) {
    case MatchUnitModel::NameColumn:
        return matchUnitName(unit);
    case MatchUnitModel::SignalsColumn:
        return portSignalNames(unit.triggerPort()).join(QStringLiteral(", "));
    case MatchUnitModel::PortColumn:
        return unit.triggerPort() ? triggerPortName(*unit.triggerPort()) : QString();
    case MatchUnitModel::FunctionColumn:
        return matchFunctionText(unit.function());
    case MatchUnitModel::ValueColumn:
        return matchValueText(unit);
    case MatchUnitModel::CounterColumn:
        return counterText(unit);
    default:
        return {};
    }
}

static QVariant toolTipText(const MatchUnit &unit, int column)
{
    const TriggerPort *port = unit.triggerPort();
    if (column == MatchUnitModel::ValueColumn)
        return matchValueText(unit);
    if (column == MatchUnitModel::CounterColumn)
        return counterExplanation(unit.counterMode(), unit.counterValue());
    if (column != MatchUnitModel::PortColumn || !port)
        return {};
    if (!port->isAvailable())
        return MatchUnitModel::tr("The port has no signals.");
    return portSignalNames(port).join(QLatin1Char('\n'));
}

MatchUnitModel::MatchUnitModel(const QList<MatchUnit *> &matchUnits, QObject *parent)
    : QAbstractTableModel(parent)
    , units(matchUnits)
{
}

MatchUnitModel::~MatchUnitModel() = default;

QModelIndex MatchUnitModel::index(int row, int column, const QModelIndex &parent) const
{
    return hasIndex(row, column, parent) ? createIndex(row, column) : QModelIndex();
}

int MatchUnitModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : units.size();
}

int MatchUnitModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant MatchUnitModel::data(const QModelIndex &index, int role) const
{
    const MatchUnit *unit = muFromIndex(index);
    if (!unit)
        return {};
    const bool named = index.column() == NameColumn;
    switch (role) {
    case Qt::DisplayRole:
        return displayText(*unit, index.column());
    case Qt::ToolTipRole:
        return toolTipText(*unit, index.column());
    case Qt::CheckStateRole: // a bool would be drawn as partly checked
        return named ? QVariant(unit->isEnabled() ? Qt::Checked : Qt::Unchecked) : QVariant();
    case Qt::UserRole:
        return named ? QVariant(unit->isEnabled()) : QVariant();
    default:
        return {};
    }
}

bool MatchUnitModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    MatchUnit *unit = muFromIndex(index);
    if (!unit || index.column() != NameColumn || role != Qt::CheckStateRole)
        return false;
    const bool enabled = value.toInt() == Qt::Checked;
    if (unit->isEnabled() == enabled)
        return true;
    unit->setEnabled(enabled);
    emit dataChanged(index, index, {Qt::CheckStateRole, Qt::UserRole});
    emit matchChange();
    emit modified();
    return true;
}

QVariant MatchUnitModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    static const char *const titles[] = {QT_TR_NOOP("Unit"),     QT_TR_NOOP("Signals"), QT_TR_NOOP("Trigger Port"),
                                         QT_TR_NOOP("Function"), QT_TR_NOOP("Value"),   QT_TR_NOOP("Counter")};
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole || section < 0 || section >= ColumnCount)
        return QAbstractTableModel::headerData(section, orientation, role);
    return tr(titles[section]);
}

Qt::ItemFlags MatchUnitModel::flags(const QModelIndex &index) const
{
    const Qt::ItemFlags inherited = QAbstractTableModel::flags(index);
    return muFromIndex(index) && index.column() == NameColumn ? inherited | Qt::ItemIsUserCheckable : inherited;
}

void MatchUnitModel::setMatcherList(const QList<MatchUnit *> &matchUnits)
{
    beginResetModel();
    units = matchUnits;
    endResetModel();
}

void MatchUnitModel::updateRow(int row)
{
    if (row >= 0 && row < units.size())
        emit dataChanged(index(row, 0), index(row, ColumnCount - 1));
}

MatchUnit *MatchUnitModel::muFromIndex(const QModelIndex &index) const
{
    return index.isValid() ? units.value(index.row(), nullptr) : nullptr;
}

} // namespace VAK

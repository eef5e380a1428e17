// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "bittablemodel.h"

namespace VAK {

BitTableModel::BitTableModel(QObject *parent)
    : QAbstractTableModel(parent)
{
}

void BitTableModel::setBits(const QList<Bit> &bits)
{
    beginResetModel();
    m_bits = bits;
    endResetModel();
}

void BitTableModel::setValues(const QString &value, const QString &upper)
{
    m_value = value;
    m_upper = upper;
    if (!m_bits.isEmpty())
        emit dataChanged(index(0, ValueColumn), index(rowCount() - 1, columnCount() - 1));
}

void BitTableModel::setUpperShown(bool shown)
{
    if (shown == m_upperShown)
        return;
    beginResetModel();
    m_upperShown = shown;
    endResetModel();
}

void BitTableModel::setCharacters(const QString &characters)
{
    m_characters = characters;
}

void BitTableModel::setReadOnly(bool readOnly)
{
    m_readOnly = readOnly;
}

int BitTableModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_bits.size();
}

int BitTableModel::columnCount(const QModelIndex &parent) const
{
    if (parent.isValid())
        return 0;
    return m_upperShown ? UpperColumn + 1 : ValueColumn + 1;
}

QString BitTableModel::valueAt(const QModelIndex &index) const
{
    const QString &value = index.column() == UpperColumn ? m_upper : m_value;
    return value.mid(index.row(), 1);
}

QVariant BitTableModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || index.row() >= m_bits.size())
        return {};
    const bool isValue = index.column() >= ValueColumn;
    if (role == Qt::TextAlignmentRole)
        return int(index.column() == SignalColumn ? Qt::AlignLeft | Qt::AlignVCenter : Qt::AlignCenter);
    if (role == Qt::ToolTipRole)
        return isValue ? tr("Type a character, or double-click for the next one") : m_bits.at(index.row()).fullName;
    if (role != Qt::DisplayRole && role != Qt::EditRole)
        return {};
    if (isValue)
        return valueAt(index);
    if (index.column() == BitColumn)
        return m_bits.size() - 1 - index.row();
    return m_bits.at(index.row()).shownName;
}

bool BitTableModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    const QString text = value.toString().toUpper();
    const bool accepted = role == Qt::EditRole && !m_readOnly && index.isValid() && index.column() >= ValueColumn &&
                          text.size() == 1 && m_characters.contains(text);
    if (accepted)
        emit bitChosen(index.column(), index.row(), text.at(0));
    return accepted;
}

QVariant BitTableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return QAbstractTableModel::headerData(section, orientation, role);
    switch (section) {
    case BitColumn:
        return tr("Bit");
    case SignalColumn:
        return tr("Signal");
    case ValueColumn:
        return m_upperShown ? tr("From") : tr("Value");
    default:
        return tr("To");
    }
}

Qt::ItemFlags BitTableModel::flags(const QModelIndex &index) const
{
    const Qt::ItemFlags inherited = QAbstractTableModel::flags(index);
    return index.column() >= ValueColumn && !m_readOnly ? inherited | Qt::ItemIsEditable : inherited;
}

} // namespace VAK

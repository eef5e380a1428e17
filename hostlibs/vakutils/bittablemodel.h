// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QAbstractTableModel>
#include <QStringList>

namespace VAK {

/// The bits of a match unit's value, most significant first: number, signal, value, and the upper bound when there is
/// one.
class BitTableModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { BitColumn, SignalColumn, ValueColumn, UpperColumn };

    /// What the port feeds into one bit.
    struct Bit
    {
        QString shownName;
        QString fullName;
    };

    explicit BitTableModel(QObject *parent);

    void setBits(const QList<Bit> &bits);
    /// Shows the values, one character for each bit; an empty text shows nothing.
    void setValues(const QString &value, const QString &upper);
    void setUpperShown(bool shown);
    void setCharacters(const QString &characters);
    void setReadOnly(bool readOnly);
    QString characters() const { return m_characters; }

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;

signals:
    /// The user chose another character for a bit; the owner answers with setValues().
    void bitChosen(int column, int row, QChar character);

private:
    QString valueAt(const QModelIndex &index) const;

    QList<Bit> m_bits;
    QString m_value;
    QString m_upper;
    QString m_characters;
    bool m_upperShown = false;
    bool m_readOnly = false;
};

} // namespace VAK

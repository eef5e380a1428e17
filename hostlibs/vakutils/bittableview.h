// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QTableView>

namespace VAK {

/// Shows a BitTableModel: a typed character goes into the current bit and on to the next one, a double-click or the
/// space bar chooses the next character, and a pasted text replaces the whole value.
class BitTableView : public QTableView
{
    Q_OBJECT

public:
    explicit BitTableView(QWidget *parent = nullptr);

signals:
    /// A text was pasted into a value column.
    void pasted(int column, const QString &text);

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    void cycle(const QModelIndex &index);
    bool type(const QString &text);
    int currentValueColumn() const;
};

} // namespace VAK

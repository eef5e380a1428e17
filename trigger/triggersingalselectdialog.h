// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "plugin/vakinsexport.h"

#include <VakUtils/signalitem.h>

#include <QDialog>

class QCheckBox;
class QTreeWidget;
class QVBoxLayout;

namespace VAK {
class TriggerPort;
}

namespace RTLVAK {

/// Takes over, as capture signals, what trigger ports of the same core watch. The ports are never changed.
class VAKINS_EXPORT TriggerSingalSelectDialog : public QDialog // spelling fixed by the interface
{
    Q_OBJECT

public:
    /// `ports` are borrowed and offered in the order given.
    explicit TriggerSingalSelectDialog(const QList<VAK::TriggerPort *> &ports, QWidget *parent = nullptr);

    /// Runs the dialog; the signals of the ports that the user checked, in port order. Empty when it was cancelled.
    static QList<VAK::SignalItem> selectSignals(const QList<VAK::TriggerPort *> &ports, QWidget *parent);

private slots:
    void onStateChanged();

private:
    void addChoices(QVBoxLayout *column);
    QList<VAK::SignalItem> chosenSignals() const;

    QList<VAK::TriggerPort *> ports;
    QList<QCheckBox *> checkBoxes;
    QTreeWidget *preview;
};

} // namespace RTLVAK

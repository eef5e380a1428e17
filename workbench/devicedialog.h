// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <OVTE/designtypes.h>

#include <QDialog>

class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QTreeWidget;

namespace Workbench {

/// Lets a person choose the project's device from the catalogue, with what each device has.
class DeviceDialog : public QDialog
{
    Q_OBJECT

public:
    explicit DeviceDialog(const TE::DeviceInfo &current, QWidget *parent = nullptr);

    /// What was chosen; without a name for no device.
    TE::DeviceInfo device() const;

private:
    void fill(const TE::DeviceInfo &current);
    void filter(const QString &text);
    void onDeviceChanged();

    QLineEdit *m_filter;
    QTreeWidget *m_tree;
    QComboBox *m_package;
    QLabel *m_summary;
    QPushButton *m_ok;
};

/// "KXB-M8: 28 block RAMs, no shadow RAM, 4608 registers", or a hint when the name is empty or not in the catalogue.
QString deviceSummary(const TE::DeviceInfo &device);

} // namespace Workbench

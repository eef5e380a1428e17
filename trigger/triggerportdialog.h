// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "plugin/vakinsexport.h"

#include <QDialog>

#include <memory>

namespace NETCATCHER {
class RtlNetlist;
}
namespace VAK {
class TriggerPort;
}

namespace RTLVAK {

namespace Ui {
class TriggerPortDialog;
}

/// Edits the signals of one trigger port, most significant at the top. The port changes only when the list is accepted.
class VAKINS_EXPORT TriggerPortDialog : public QDialog
{
    Q_OBJECT

public:
    /// `port` and `netlist` are borrowed; `netlist` may be null.
    TriggerPortDialog(VAK::TriggerPort *port, NETCATCHER::RtlNetlist *netlist, QWidget *parent = nullptr);
    ~TriggerPortDialog() override;

    /// Goes on with another netlist, or with none, because the one before is about to end; brings the list up to date.
    void setRtlNetlist(NETCATCHER::RtlNetlist *newNetlist);

public slots:
    void accept() override;

private slots:
    void onAdd();
    void onRemove();
    void on_treeWidget_itemSelectionChanged();

private:
    int inputCount() const;
    void showInputCount();

    std::unique_ptr<Ui::TriggerPortDialog> ui;
    VAK::TriggerPort *port;
    NETCATCHER::RtlNetlist *netlist;
};

} // namespace RTLVAK

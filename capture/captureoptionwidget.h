// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "plugin/vakinsexport.h"

#include <VakUtils/signalitem.h>

#include <QUtility/ieventhandler.h>

#include <QWidget>

#include <memory>

namespace NETCATCHER {
class RtlNetlist;
}
namespace VAK {
class AoCore;
}

namespace RTLVAK {

namespace Ui {
class CaptureOptionWidget;
}

/// The capture side of one core's page: sample clock, sizes, implementation, flags and the ordered list of capture
/// signals. Values are read from the core once, at construction, and written back by applyToCore().
class VAKINS_EXPORT CaptureOptionWidget : public QWidget, public QUtil::IEventHandler
{
    Q_OBJECT

public:
    /// `core` and `netlist` are borrowed; `netlist` may be null.
    CaptureOptionWidget(VAK::AoCore *core, NETCATCHER::RtlNetlist *netlist, QWidget *parent = nullptr);
    ~CaptureOptionWidget() override;

    /// Writes everything shown into the core. A sizing field whose combo box is empty stays as the core has it.
    void applyToCore();
    /// Stores the netlist for the dialogs and the next refresh; null is allowed.
    void setRtlNetlist(NETCATCHER::RtlNetlist *newNetlist);
    /// Brings the flags of the core's trigger port and capture signals up to date with the netlist and shows them; the
    /// list as edited here goes into the core first. Does nothing without a netlist.
    void refreshFromNetlist();

    void handleIEvent(const QUtil::IEvent *event) override;

signals:
    /// The user changed something.
    void modified();

private slots:
    void onStorageChanged();
    void onCapAmountChanged();
    void onSelectClock();
    void onAddDataSignals();
    void onAddFromTrigger();
    void onRemoveSignals();
    void onImplChanged();
    void onWindowChanged();
    void on_treeWidgetCapSigs_itemSelectionChanged();
    void onCaptureSignalChange();

private:
    void setUpForm();
    void connectCombos();
    void connectButtons();
    void connectRelays();
    void loadCore();
    void loadSizes();
    void loadSignals();
    void addSignals(const QList<VAK::SignalItem> &signalItems);
    void updateImplementationList();
    void updateUsage();
    void updateCaptureFigures();
    void applySizes();
    void applySignals(const QList<VAK::SignalItem> &signalItems);

    std::unique_ptr<Ui::CaptureOptionWidget> ui;
    VAK::AoCore *core;
    NETCATCHER::RtlNetlist *netlist;
    QList<VAK::SignalItem> loadedSignals; ///< as last shown from the core, to tell whether the list was edited since
};

} // namespace RTLVAK

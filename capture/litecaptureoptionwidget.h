// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "plugin/vakinsexport.h"

#include <QUtility/ieventhandler.h>

#include <QWidget>

#include <memory>

namespace NETCATCHER {
class RtlNetlist;
}
namespace VAK {
class AOCore_Lite;
}

namespace RTLVAK {

namespace Ui {
class LiteCaptureOptionWidget;
}

/// The capture settings of one Lite core. Values are read from the core once, at construction, and written back by
/// applyToCore().
class VAKINS_EXPORT LiteCaptureOptionWidget : public QWidget, public QUtil::IEventHandler
{
    Q_OBJECT

public:
    /// `core` and `netlist` are borrowed; `netlist` may be null.
    LiteCaptureOptionWidget(VAK::AOCore_Lite *core, NETCATCHER::RtlNetlist *netlist, QWidget *parent = nullptr);
    ~LiteCaptureOptionWidget() override;

    /// Writes everything shown into the core. The capture amount stays as the core has it while its combo box is empty.
    void applyToCore();
    /// Stores the netlist for the dialogs and the next refresh; null is allowed.
    void setRtlNetlist(NETCATCHER::RtlNetlist *newNetlist);
    /// Brings the flags of the capture signals, as edited here, up to date with the netlist, in the tree and in the
    /// core. Does nothing without a netlist.
    void refreshFromNetlist();

    void handleIEvent(const QUtil::IEvent *event) override;

signals:
    /// The user changed something.
    void modified();

private slots:
    void onCapAmountOrDataSigalChanged(); // spelling fixed by the interface
    void onSelectClock();
    void onAddDataSignals();
    void onRemoveSignals();
    void onCapInitData();
    void onImplementation();
    void on_treeWidgetSignal_itemSelectionChanged();
    void onCaptureSignalChange();

private:
    void loadCore();
    void connectForm();
    void selectStoredImplementation();
    void applyInputRegisterRule();
    void updateCaptureFigures();
    void updateUsage();
    void arrangeSignals();
    int captureBits() const;

    std::unique_ptr<Ui::LiteCaptureOptionWidget> ui;
    VAK::AOCore_Lite *core;
    NETCATCHER::RtlNetlist *netlist;
};

} // namespace RTLVAK

// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "plugin/vakinsexport.h"

#include <QTabWidget>

namespace NETCATCHER {
class RtlNetlist;
}
namespace VAK {
class AOCore_Lite;
}

namespace RTLVAK {

class LiteCaptureOptionWidget;

/// The page of one Lite core.
class VAKINS_EXPORT LiteAoOptionWidget : public QTabWidget
{
    Q_OBJECT

public:
    /// `core` and `netlist` are borrowed; `netlist` may be null.
    LiteAoOptionWidget(VAK::AOCore_Lite *core, NETCATCHER::RtlNetlist *netlist, QWidget *parent = nullptr);
    ~LiteAoOptionWidget() override;

    VAK::AOCore_Lite *core() const;
    /// Writes what is shown into the core.
    void applyToCore();
    /// Hands a new netlist to the page, which brings its capture signals up to date with it.
    void setRtlNetlist(NETCATCHER::RtlNetlist *newNetlist);

signals:
    /// The user changed a setting of this core.
    void modified();

private:
    struct Borrowed
    {
        VAK::AOCore_Lite *core;
        NETCATCHER::RtlNetlist *netlist;
    };
    Borrowed borrowed;
    LiteCaptureOptionWidget *captureWidget;
};

} // namespace RTLVAK

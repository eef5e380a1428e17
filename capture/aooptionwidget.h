// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "plugin/vakinsexport.h"

#include <QTabWidget>

namespace NETCATCHER {
class RtlNetlist;
}
namespace VAK {
class AoCore;
}

namespace RTLVAK {

class CaptureOptionWidget;
class TriggerOptionWidget;

/// The page of one analyzer core: its trigger settings and its capture settings.
class VAKINS_EXPORT AoOptionWidget : public QTabWidget
{
    Q_OBJECT

public:
    /// `core` and `netlist` are borrowed; `netlist` may be null.
    AoOptionWidget(VAK::AoCore *core, NETCATCHER::RtlNetlist *netlist, QWidget *parent = nullptr);
    ~AoOptionWidget() override;

    VAK::AoCore *core() const;
    /// Writes what the page shows into the core, trigger settings first.
    void applyToCore();
    /// Takes over a netlist that was read anew and re-resolves the core's signals against it; null changes nothing but
    /// that.
    void setRtlNetlist(NETCATCHER::RtlNetlist *newNetlist);

signals:
    /// Some setting of this core was edited by the user.
    void modifed(); // spelling fixed by the interface

private:
    struct Borrowed
    {
        VAK::AoCore *core;
        NETCATCHER::RtlNetlist *netlist;
    };

    Borrowed borrowed;
    TriggerOptionWidget *triggerWidget;
    CaptureOptionWidget *captureWidget;
};

} // namespace RTLVAK

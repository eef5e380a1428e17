// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "capture/aooptionwidget.h"

#include "capture/captureoptionwidget.h"

#include "trigger/triggeroptionwidget.h"

namespace RTLVAK {

AoOptionWidget::AoOptionWidget(VAK::AoCore *core, NETCATCHER::RtlNetlist *netlist, QWidget *parent)
    : QTabWidget(parent)
    , borrowed{core, netlist}
    , triggerWidget(new TriggerOptionWidget(core, netlist, this))
    , captureWidget(new CaptureOptionWidget(core, netlist, this))
{
    addTab(triggerWidget, QStringLiteral("Trigger Options"));
    addTab(captureWidget, QStringLiteral("Capture Options"));
    connect(triggerWidget, &TriggerOptionWidget::modified, this, &AoOptionWidget::modifed);
    connect(captureWidget, &CaptureOptionWidget::modified, this, &AoOptionWidget::modifed);
}

AoOptionWidget::~AoOptionWidget() = default;

VAK::AoCore *AoOptionWidget::core() const
{
    return borrowed.core;
}

void AoOptionWidget::applyToCore()
{
    triggerWidget->applyToCore();
    captureWidget->applyToCore();
}

void AoOptionWidget::setRtlNetlist(NETCATCHER::RtlNetlist *newNetlist)
{
    borrowed.netlist = newNetlist;
    triggerWidget->setRtlNetlist(newNetlist);
    captureWidget->setRtlNetlist(newNetlist);
    captureWidget->refreshFromNetlist();
    triggerWidget->refreshTriggerPorts();
}

} // namespace RTLVAK

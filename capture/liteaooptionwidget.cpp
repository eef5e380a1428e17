// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "capture/liteaooptionwidget.h"

#include "capture/litecaptureoptionwidget.h"

namespace RTLVAK {

LiteAoOptionWidget::LiteAoOptionWidget(VAK::AOCore_Lite *core, NETCATCHER::RtlNetlist *netlist, QWidget *parent)
    : QTabWidget(parent)
    , borrowed{core, netlist}
    , captureWidget(new LiteCaptureOptionWidget(core, netlist, this))
{
    addTab(captureWidget, QStringLiteral("Capture Options"));
    connect(captureWidget, &LiteCaptureOptionWidget::modified, this, &LiteAoOptionWidget::modified);
}

LiteAoOptionWidget::~LiteAoOptionWidget() = default;

VAK::AOCore_Lite *LiteAoOptionWidget::core() const
{
    return borrowed.core;
}

void LiteAoOptionWidget::applyToCore()
{
    captureWidget->applyToCore();
}

void LiteAoOptionWidget::setRtlNetlist(NETCATCHER::RtlNetlist *newNetlist)
{
    borrowed.netlist = newNetlist;
    captureWidget->setRtlNetlist(newNetlist);
    captureWidget->refreshFromNetlist();
}

} // namespace RTLVAK

// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "capturepage.h"

#include "tests/fakes/fakedesign.h"
#include "tests/fakes/fakeevents.h"
#include "tests/support/scriptedresources.h"

CaptureBench::CaptureBench()
    : netlist(makeDesign())
{
    fakes::resetEvents();
    fakes::resetDesign();
    fakes::setCurrentDevice(QStringLiteral("KXB-S4"));
    support::resetResources();
    support::setCapacity({10, 0, 1000});
}

CaptureBench::~CaptureBench()
{
    widget.reset(); // before the core that it borrows
}

RTLVAK::CaptureOptionWidget &CaptureBench::page()
{
    if (!widget)
        widget = std::make_unique<RTLVAK::CaptureOptionWidget>(&core, netlist.get());
    return *widget;
}

QString CaptureBench::usage()
{
    return child<QLabel>("label_8").text() + QLatin1Char(' ') + child<QLabel>("label_9").text();
}

QStringList entries(const QComboBox &combo)
{
    return support::modelTexts(*combo.model());
}

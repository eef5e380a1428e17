// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "capture/captureoptionwidget.h"
#include "signals/signaltreewidget.h"

#include "tests/support/dialogdriver.h"
#include "tests/support/signalfixtures.h"
#include "tests/support/widgethelpers.h"

#include <VakUtils/aocore.h>
#include <VakUtils/signalitem.h>
#include <netcatcher/rtlnetlist.h>

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>

#include <memory>

/// A core and a capture page on it. The core is to be set up before page() is called first.
class CaptureBench
{
public:
    CaptureBench();
    ~CaptureBench();

    VAK::AoCore core{0};
    std::unique_ptr<NETCATCHER::RtlNetlist> netlist;

    RTLVAK::CaptureOptionWidget &page();
    template <typename T>
    T &child(const char *name)
    {
        return support::child<T>(page(), name);
    }
    QComboBox &storage() { return child<QComboBox>("comboStorageSize"); }
    QComboBox &segments() { return child<QComboBox>("comboWindowNum"); }
    QComboBox &amount() { return child<QComboBox>("comboCapAmount"); }
    QComboBox &implementation() { return child<QComboBox>("comboImpl"); }
    QSpinBox &position() { return child<QSpinBox>("spinBoxTrigPos"); }
    RTLVAK::signalTreeWidget &tree() { return child<RTLVAK::signalTreeWidget>("treeWidgetCapSigs"); }
    QString usage();

private:
    std::unique_ptr<RTLVAK::CaptureOptionWidget> widget;
};

QStringList entries(const QComboBox &combo);

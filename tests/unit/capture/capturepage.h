// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "capture/captureoptionwidget.h"
#include "signals/signaltreewidget.h"

#include "tests/fakes/fakenetlist.h"
#include "tests/support/dialogdriver.h"
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

/// A signal without members.
VAK::SignalItem single(const QString &name, int active = 1);
/// The bus `base[width-1:0]` as the netlist gives it.
VAK::SignalItem bus(const QString &base, int width, int active = 1);
QStringList names(const QList<VAK::SignalItem> &signalItems);

/// A design with the nets clk, rst and spare, the buses data[7:0] and wide[511:0], and an instance below.
std::unique_ptr<NETCATCHER::RtlNetlist> makeDesign();

/// Searches the whole design for a wildcard pattern in the next search dialog, adds all that is found and accepts.
void chooseNets(support::DialogDriver &driver, const QString &pattern);

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

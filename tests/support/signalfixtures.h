// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "tests/support/dialogdriver.h"

#include <VakUtils/signalitem.h>
#include <netcatcher/rtlnetlist.h>

#include <QStringList>

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

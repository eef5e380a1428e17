// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <VakUtils/signalitem.h>

class QPushButton;

namespace RTLVAK {

class signalTreeWidget;

// What the capture pages of both modes do to their trees of capture signals.

/// Gives the tree its look and its menu; `remove` waits for a selection.
void setUpCaptureTree(signalTreeWidget *tree, QPushButton *remove);
/// Fills the tree anew.
void showCaptureSignals(signalTreeWidget *tree, const QList<VAK::SignalItem> &signalItems);
/// Merges signals into the tree, new ones above the first that is not captured, and shows them selected.
void addCaptureSignals(signalTreeWidget *tree, const QList<VAK::SignalItem> &incoming);
/// Moves the captured signals above all others; both keep their order.
void moveEnabledSignalsFirst(signalTreeWidget *tree);
/// Deletes the selected signals; members of a bus are left alone.
void removeSelectedSignals(signalTreeWidget *tree);

} // namespace RTLVAK

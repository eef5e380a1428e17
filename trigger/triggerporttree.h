// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

class QTreeWidget;
class QTreeWidgetItem;

namespace VAK {
class AoCore;
}

namespace RTLVAK::private_impl {

/// Item types of the trigger port tree: ports, and everything below them.
enum TriggerRow : int { PortRow = 1001, PortSignalRow = 1002 };

/// Adds a row per trigger port of `core` with the port's signals below.
void fillTriggerPorts(QTreeWidget *tree, const VAK::AoCore *core);
/// Shows the signals that the ports have now.
void refreshTriggerPorts(QTreeWidget *tree, const VAK::AoCore *core);
/// The width that shows the name of every port.
int portRowWidth(const QTreeWidget *tree);
/// The port's row above (or at) `row`.
QTreeWidgetItem *portRowOf(QTreeWidgetItem *row);

} // namespace RTLVAK::private_impl

// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "plugin/vakinsexport.h"

#include <VakUtils/signalitem.h>

#include <QList>
#include <QTreeWidgetItem>

#include <functional>
#include <optional>

namespace NETCATCHER {
class RtlNetlist;
}

namespace RTLVAK {

/// What a row shows for a record: the display name when there is one, else the name.
VAKINS_EXPORT QString signalText(const VAK::SignalItem &record);

/// The row of one record with a child row per member. The row carries the record in its user-role data; text, tool tip
/// and italics follow from it. Rows and members that are not enabled are grey and neither selectable nor enabled.
/// `type` becomes the item type of the row and of its members. The caller owns the row.
VAKINS_EXPORT QTreeWidgetItem *makeSignalRow(const VAK::SignalItem &record, int type = QTreeWidgetItem::Type);

/// The record of a row made by makeSignalRow(), valid until the row changes; null for members and for other rows.
VAKINS_EXPORT const VAK::SignalItem *recordOfRow(const QTreeWidgetItem *row);

/// A copy of the record that a row carries in its user-role data; nothing for rows that carry none.
VAKINS_EXPORT std::optional<VAK::SignalItem> signalOfRow(const QTreeWidgetItem *row);

/// Copies of the records that the top-level rows carry, top to bottom.
VAKINS_EXPORT QList<VAK::SignalItem> signalsOfRows(const QTreeWidget *tree);

/// Gives a row of makeSignalRow() another record, in place: selection, current row and expansion stay.
VAKINS_EXPORT void updateSignalRow(QTreeWidgetItem *row, const VAK::SignalItem &record);

using SignalChange = std::function<VAK::SignalItem(const VAK::SignalItem &)>;

/// Changes the records of rows of makeSignalRow(), of members the part of their row's record, and colours the rows.
VAKINS_EXPORT void changeSignals(const QList<QTreeWidgetItem *> &rows, const SignalChange &change);

/// The colours of one row by its record: grey when inactive or unusable, red when missing from the netlist, else black;
/// an inactive row cannot be dragged. Writes only what differs.
VAKINS_EXPORT void colourSignalRow(QTreeWidgetItem *row);

/// Brings the records of the top-level rows up to date with the netlist, and the rows with them. Does nothing without
/// one.
VAKINS_EXPORT void resolveRows(QTreeWidget *tree, const NETCATCHER::RtlNetlist *netlist);

} // namespace RTLVAK

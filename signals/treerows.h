// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "plugin/vakinsexport.h"

#include <QList>

class QTreeWidget;
class QTreeWidgetItem;

namespace RTLVAK {

/// The selected top-level rows, top to bottom.
VAKINS_EXPORT QList<QTreeWidgetItem *> selectedTopLevelRows(const QTreeWidget *tree);

/// `count` top-level rows from `position` on.
VAKINS_EXPORT QList<QTreeWidgetItem *> topLevelRows(const QTreeWidget *tree, int position, int count);

/// Deletes top-level rows, thousands of them without delay. The row that takes the first place becomes current,
/// nothing is selected. Returns the place of the first one, the row count when there was none.
VAKINS_EXPORT int deleteTopLevelRows(QTreeWidget *tree, const QList<QTreeWidgetItem *> &rows);

/// Moves top-level rows, in the order given, to stand before the row that is at `position` now (the row count: at the
/// end). Selection, current row and expansion stay as they were.
VAKINS_EXPORT void moveTopLevelRows(QTreeWidget *tree, const QList<QTreeWidgetItem *> &rows, int position);

/// Selects exactly these rows, in this order.
VAKINS_EXPORT void selectRows(QTreeWidget *tree, const QList<QTreeWidgetItem *> &rows);

} // namespace RTLVAK

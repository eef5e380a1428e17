// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

class QAbstractItemModel;
class QTableView;

namespace RTLVAK::private_impl {

/// Shows the match units of `model` in `table`: whole rows, one at a time, without the column of signal names.
void setUpMatchUnitTable(QTableView *table, QAbstractItemModel *model);
/// How many rows are checked.
int checkedMatchUnits(const QAbstractItemModel *model);

} // namespace RTLVAK::private_impl

// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "plugin/vakinsexport.h"

class QTreeWidget;

namespace RTLVAK {

/// Whether something is selected and all of it are whole signals, that is, no member of a bus is among it.
VAKINS_EXPORT bool isWholeSignalSelection(const QTreeWidget *tree);
/// Selects the `count` top-level rows from `first` on and scrolls to them; changes nothing when `count` is 0.
VAKINS_EXPORT void showInsertedSignals(QTreeWidget *tree, int first, int count);

} // namespace RTLVAK

// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

class QApplication;

namespace Workbench {

/// To be called before the application object is made: pictures and texts stay sharp on screens of high density.
void prepareHighDpi();

/// The look of the program: the Fusion style with a light palette, whatever the desktop prefers. The editors mark
/// things in black, grey and red, which a dark palette would hide.
void applyAppearance(QApplication &application);

} // namespace Workbench

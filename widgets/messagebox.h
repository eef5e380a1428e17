// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QMessageBox>

namespace RTLVAK::private_impl {

/// Runs `box`, its text taken as plain text, and deletes it. Answers NoButton when the box's parent died while it was
/// open, and the box with it; callers then look at nothing of theirs before they have asked a QPointer.
QMessageBox::StandardButton runBox(QMessageBox *box);

/// Runs a box made of the arguments.
QMessageBox::StandardButton showBox(QWidget *parent, QMessageBox::Icon icon, const QString &title, const QString &text,
                                    QMessageBox::StandardButtons buttons = QMessageBox::Ok,
                                    QMessageBox::StandardButton defaultButton = QMessageBox::NoButton);

} // namespace RTLVAK::private_impl

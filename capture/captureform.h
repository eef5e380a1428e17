// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QStringList>

class QComboBox;
class QLabel;

namespace TE {
struct DeviceInfo;
}

namespace RTLVAK {

struct CaptureUsage;

// What the capture pages of both modes do to their forms.

/// The project's current device.
TE::DeviceInfo currentDevice();
/// Whether it has shadow RAM.
bool currentDeviceHasShadowRam();

/// Appends an entry per number, text and user data alike.
void appendNumbers(QComboBox *combo, const QList<int> &numbers);
/// Selects the entry with this text, else the last one.
void selectTextOrLast(QComboBox *combo, const QString &text);
/// Selects the entry with user data `stored`. When it is not among the entries, none is selected and the tool tip names
/// the stored value until something is chosen.
void selectStoredNumber(QComboBox *combo, int stored);
/// The number that the combo box shows; 0 when it shows none.
int shownNumber(const QComboBox *combo);

/// Makes the combo box of implementations offer `offered`, unless it counts as doing so already.
void offerImplementations(QComboBox *combo, const QStringList &offered);
/// Shows a usage; an empty title leaves the one that is there.
void showUsage(QLabel *title, QLabel *value, const CaptureUsage &usage);

} // namespace RTLVAK

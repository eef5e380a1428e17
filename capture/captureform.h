// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QStringList>

class QComboBox;
class QLabel;
class QLineEdit;
class QRadioButton;
class QWidget;

namespace NETCATCHER {
class RtlNetlist;
}
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

/// Shows a core's sample clock and edge (a VAK::SampleEdge value).
void showSampleClock(QLineEdit *clock, QRadioButton *rising, QRadioButton *falling, const QString &name, int edge);
/// Lets the user choose the clock from the netlist, in a dialog over `page`. False when nothing was chosen, or when the
/// page did not outlive the dialog.
bool chooseSampleClock(QLineEdit *clock, NETCATCHER::RtlNetlist *netlist, QWidget *page);

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

/// Deletes what a page shows. For its destructor: children still tell the page's slots what goes away, so they go
/// first.
void deleteChildWidgets(QWidget *page);

} // namespace RTLVAK

// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <VakUtils/signalitem.h>

#include <QList>

namespace RTLVAK {

/// What becomes of a list of chosen signals when further ones are asked for.
struct SignalMerge
{
    QList<VAK::SignalItem> existing; ///< the list as it was, matched records brought up to date
    QList<int> matched; ///< positions in `existing` that were asked for again, each once, in the order asked
    QList<VAK::SignalItem> singles; ///< new records without members, to be inserted first
    QList<VAK::SignalItem> groups;  ///< new records with members, to be inserted after the singles
};

/// Whether two records are the same signal. Without members: the same name. Buses of the netlist: the same name and the
/// same set of member names. Groups of the user: the same member names in the same order. A bus is never a group.
bool isSameSignal(const VAK::SignalItem &a, const VAK::SignalItem &b);

/// Sorts `incoming` into what is new and what `existing` has already. Records that are not enabled are dropped, and of
/// several same ones the first counts. A record that is there already is not added; the existing one is present
/// again, as usable as the one asked for, and keeps its names, order and active state. A new group whose name another
/// group bears gets the next free `group_N`. A net stays a signal of its own beside a bus that it is a bit of.
SignalMerge mergeSignals(const QList<VAK::SignalItem> &existing, const QList<VAK::SignalItem> &incoming);

/// The records of `incoming` that are new beside `chosen`, in their order, enabled or not; records of `chosen` that
/// match are brought up to date. The rule of a list that is still being put together.
QList<VAK::SignalItem> takeNewSignals(QList<VAK::SignalItem> &chosen, const QList<VAK::SignalItem> &incoming);

} // namespace RTLVAK

// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <hostglobal.h>

#include <QList>
#include <QMetaType>
#include <QString>

namespace VAK {

/// What a configuration file says about a thing that this version does not know: kept and written back unchanged.
struct HOST_EXPORT ForeignXml
{
    QList<QPair<QString, QString>> attributes; ///< qualified name and value, in file order
    QString elements;                          ///< child elements as XML text, in file order

    bool isEmpty() const;
};

HOST_EXPORT bool operator==(const ForeignXml &a, const ForeignXml &b);

/// One chosen signal: a net, a bus, or a group made by the user. Groups are never nested.
struct HOST_EXPORT SignalItem
{
    QString name;              ///< full hierarchical name; `group_N[k:0]` or `base[first:last]` for a group
    QString displayName;       ///< shown instead of the name when not empty
    QList<SignalItem> members; ///< bits, most significant first; empty for a single net
    bool enabled = true;       ///< clear for what the netlist marks unusable
    bool present = true;       ///< clear when the signal is no longer found in the netlist
    int kind = -1;             ///< 1 for a bus taken from the netlist, else -1
    int active = 1;            ///< the user's switch, 1 or 0
    ForeignXml foreign;

    /// Whether the signal is captured: enabled and active.
    bool isCaptured() const;
    /// The number of inputs it occupies: its members, or 1 without members.
    int inputCount() const;
};

/// Compares every field, members in order.
HOST_EXPORT bool operator==(const SignalItem &a, const SignalItem &b);
HOST_EXPORT bool operator!=(const SignalItem &a, const SignalItem &b);

} // namespace VAK

Q_DECLARE_METATYPE(VAK::SignalItem)

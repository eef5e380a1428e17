// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include <VakUtils/signalitem.h>

namespace VAK {

/// By name too, for code that knows the type by its name only.
static void registerSignalItem()
{
    qRegisterMetaType<SignalItem>();
}
Q_CONSTRUCTOR_FUNCTION(registerSignalItem)

bool ForeignXml::isEmpty() const
{
    return attributes.isEmpty() && elements.isEmpty();
}

bool operator==(const ForeignXml &a, const ForeignXml &b)
{
    return a.attributes == b.attributes && a.elements == b.elements;
}

bool SignalItem::isCaptured() const
{
    return enabled && active != 0;
}

int SignalItem::inputCount() const
{
    return members.isEmpty() ? 1 : members.size();
}

bool operator==(const SignalItem &a, const SignalItem &b)
{
    return a.name == b.name && a.displayName == b.displayName && a.enabled == b.enabled && a.present == b.present &&
           a.kind == b.kind && a.active == b.active && a.foreign == b.foreign && a.members == b.members;
}

bool operator!=(const SignalItem &a, const SignalItem &b)
{
    return !(a == b);
}

} // namespace VAK

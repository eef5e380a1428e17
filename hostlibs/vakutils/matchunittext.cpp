// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "matchunittext.h"

#include <VakUtils/triggerport.h>

#include <QCoreApplication>

namespace VAK {

static QString translated(const char *text)
{
    return QCoreApplication::translate("VAK::MatchUnit", text);
}

QString matchUnitName(const MatchUnit &unit)
{
    return QStringLiteral("M%1").arg(unit.index());
}

QString triggerPortName(const TriggerPort &port)
{
    return translated("Trigger Port %1").arg(port.index());
}

QStringList portSignalNames(const TriggerPort *port)
{
    QStringList names;
    if (!port)
        return names;
    for (const SignalItem &signal : port->getSignalNet())
        names.append(signal.name);
    return names;
}

QString matchValueText(const MatchUnit &unit)
{
    if (isRangeFunction(unit.function()))
        return QStringLiteral("%1 .. %2").arg(unit.value0(), unit.value1());
    return unit.value0();
}

QString counterText(const MatchUnit &unit)
{
    switch (unit.counterMode()) {
    case CounterMode::Total:
        return translated("Total %1").arg(unit.counterValue());
    case CounterMode::Consecutive:
        return translated("Consecutive %1").arg(unit.counterValue());
    default:
        return translated("Off");
    }
}

QString counterExplanation(CounterMode mode, int count)
{
    switch (mode) {
    case CounterMode::Total:
        return translated("True from matching sample number %1 on").arg(count);
    case CounterMode::Consecutive:
        return translated("True while the last %1 samples matched").arg(count);
    default:
        return translated("True on each matching sample");
    }
}

} // namespace VAK

// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "rules/corevalidation.h"

#include <VakUtils/aocore.h>
#include <VakUtils/aocorelite.h>
#include <VakUtils/matchunit.h>
#include <VakUtils/triggerport.h>
#include <netcatcher/rtlnetlist.h>

#include <QRegExp>
#include <QStringList>

#include <algorithm>

namespace RTLVAK {

static QStringList triggerPortErrors(const VAK::AoCore &core)
{
    if (core.availableTriggers().isEmpty())
        return {QStringLiteral("No available trigger ports")};
    return {};
}

static QString matchUnitError(const VAK::MatchUnit &unit)
{
    const VAK::TriggerPort *port = unit.triggerPort();
    if (!port)
        return QStringLiteral("M%1 doesn't bind a trigger port").arg(unit.index());
    if (!port->isAvailable())
        return QStringLiteral("Trigger port %1 for M%2 is not available").arg(port->index()).arg(unit.index());
    if (unit.value0().length() != port->width())
        return QStringLiteral("Length of M%1 is not equal to trigger port %2").arg(unit.index()).arg(port->index());
    return {};
}

static QStringList matchUnitErrors(const VAK::AoCore &core)
{
    const QList<VAK::MatchUnit *> units = core.enabledMatchUnits();
    if (units.isEmpty())
        return {QStringLiteral("No available match units")};
    QStringList errors;
    for (const VAK::MatchUnit *unit : units) {
        const QString error = matchUnitError(*unit);
        if (!error.isEmpty())
            errors += error;
    }
    return errors;
}

/// The line for the unit that `digits` names, empty when that unit is enabled. Digits that are no int name no unit and
/// are shown as they were found.
static QString namedUnitError(const VAK::AoCore &core, const QString &digits, const QString &expression)
{
    bool isNumber = false;
    const int number = digits.toInt(&isNumber);
    const VAK::MatchUnit *unit = isNumber ? core.matchUnit(number) : nullptr;
    if (unit && unit->isEnabled())
        return {};
    return QStringLiteral("M%1 in expression \"%2\" is not enable")
        .arg(isNumber ? QString::number(number) : digits, expression);
}

static QStringList expressionErrors(const VAK::AoCore &core)
{
    const QStringList expressions = core.expressions();
    if (expressions.isEmpty())
        return {QStringLiteral("No expressions specified")};
    QStringList errors;
    QRegExp digits(QStringLiteral("\\d+"));
    for (const QString &expression : expressions) {
        for (int at = digits.indexIn(expression); at >= 0;
             at = digits.indexIn(expression, at + digits.matchedLength())) {
            const QString error = namedUnitError(core, digits.cap(), expression);
            if (!error.isEmpty())
                errors += error;
        }
    }
    return errors;
}

static QStringList sampleClockErrors(const QString &clock, NETCATCHER::RtlNetlist *netlist)
{
    if (clock.isEmpty())
        return {QStringLiteral("No sample clock specified")};
    const NETCATCHER::RtlNet *net = netlist ? netlist->findNet(clock) : nullptr;
    if (!net)
        return {QStringLiteral("The specified sample clock does not exist")};
    if (net->isUnusable())
        return {QStringLiteral("Invalid sampling clock selected")};
    return {};
}

static QStringList captureSignalErrors(const QList<VAK::SignalItem> &dataSignals)
{
    const auto captured = [](const VAK::SignalItem &item) { return item.isCaptured(); };
    if (std::none_of(dataSignals.cbegin(), dataSignals.cend(), captured))
        return {QStringLiteral("No capture signals specified")};
    return {};
}

static QStringList coreErrors(const VAK::AoCore &core, NETCATCHER::RtlNetlist *netlist)
{
    return triggerPortErrors(core) + matchUnitErrors(core) + expressionErrors(core) +
           sampleClockErrors(core.sampleClock(), netlist) + captureSignalErrors(core.getDataSignal());
}

static QStringList coreErrors(const VAK::AOCore_Lite &core, NETCATCHER::RtlNetlist *netlist)
{
    return sampleClockErrors(core.sampleClock(), netlist) + captureSignalErrors(core.getDataSignal());
}

template <class Core>
static bool validateAll(const QList<Core *> &cores, NETCATCHER::RtlNetlist *netlist, QString *errors)
{
    QStringList lines;
    for (const Core *core : cores) {
        const QString prefix = QStringLiteral("Core %1: ").arg(core->index());
        for (const QString &error : coreErrors(*core, netlist))
            lines += prefix + error;
    }
    if (errors)
        *errors = lines.join(QLatin1Char('\n'));
    return lines.isEmpty();
}

bool validateCores(const QList<VAK::AoCore *> &cores, NETCATCHER::RtlNetlist *netlist, QString *errors)
{
    return validateAll(cores, netlist, errors);
}

bool validateLiteCores(const QList<VAK::AOCore_Lite *> &cores, NETCATCHER::RtlNetlist *netlist, QString *errors)
{
    return validateAll(cores, netlist, errors);
}

} // namespace RTLVAK

// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include <VakUtils/aocore.h>

#include <VakUtils/matchunit.h>
#include <VakUtils/triggerport.h>

#include <algorithm>
#include <iterator>

namespace VAK {

struct AoCore::Private
{
    explicit Private(AoCore *core);
    ~Private();

    QList<TriggerPort *> ports;
    QList<MatchUnit *> units;
    QStringList expressions;
    int triggerMode = StaticTrigger;
    int triggerImplementation = BsramImplementation;
    int storageSize = 1024;
    int segmentNumber = 1;
    int triggerPosition = 0;
    bool forceTriggerByFallingEdge = false;
};

AoCore::Private::Private(AoCore *core)
{
    for (int i = 0; i < TriggerPortsPerCore; ++i)
        ports.append(new TriggerPort(i));
    for (int i = 0; i < MatchUnitsPerCore; ++i)
        units.append(new MatchUnit(i, core));
}

AoCore::Private::~Private()
{
    qDeleteAll(units);
    qDeleteAll(ports);
}

AoCore::AoCore(int index)
    : AnalyzerCore(index)
    , d(std::make_unique<Private>(this))
{
}

AoCore::~AoCore() = default;

QList<TriggerPort *> AoCore::allTriggers() const
{
    return d->ports;
}

QList<TriggerPort *> AoCore::availableTriggers() const
{
    QList<TriggerPort *> available;
    std::copy_if(d->ports.cbegin(), d->ports.cend(), std::back_inserter(available),
                 [](const TriggerPort *port) { return port->isAvailable(); });
    return available;
}

TriggerPort *AoCore::getTrigger(int index) const
{
    return d->ports.value(index, nullptr);
}

QList<MatchUnit *> AoCore::allMatchUnits() const
{
    return d->units;
}

QList<MatchUnit *> AoCore::enabledMatchUnits() const
{
    QList<MatchUnit *> enabled;
    std::copy_if(d->units.cbegin(), d->units.cend(), std::back_inserter(enabled),
                 [](const MatchUnit *unit) { return unit->isEnabled(); });
    return enabled;
}

MatchUnit *AoCore::matchUnit(int index) const
{
    return d->units.value(index, nullptr);
}

QStringList AoCore::expressions() const
{
    return d->expressions;
}

void AoCore::setExpression(const QStringList &expressions)
{
    d->expressions = expressions;
}

int AoCore::triggerMode() const
{
    return d->triggerMode;
}

void AoCore::setTriggerMode(int mode)
{
    d->triggerMode = mode;
}

int AoCore::triggerImplementation() const
{
    return d->triggerImplementation;
}

void AoCore::setTriggerImplementation(int implementation)
{
    d->triggerImplementation = implementation;
}

int AoCore::storageSize() const
{
    return d->storageSize;
}

void AoCore::setStorageSize(int samples)
{
    d->storageSize = samples;
}

int AoCore::segmentNumber() const
{
    return d->segmentNumber;
}

void AoCore::setSegmentNumber(int segments)
{
    d->segmentNumber = segments;
}

int AoCore::triggerPosition() const
{
    return d->triggerPosition;
}

void AoCore::setTriggerPosition(int samples)
{
    d->triggerPosition = samples;
}

bool AoCore::forceTriggerByFallingEdge() const
{
    return d->forceTriggerByFallingEdge;
}

void AoCore::setForceTriggerByFallingEdge(bool on)
{
    d->forceTriggerByFallingEdge = on;
}

void AoCore::setDataSignal(const QList<SignalItem> &signalItems)
{
    replaceDataSignals(signalItems);
}

} // namespace VAK

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
    Private(int coreIndex, AoCore *core);
    ~Private();

    int index = 0;
    QList<TriggerPort *> ports;
    QList<MatchUnit *> units;
    QStringList expressions;
    int triggerMode = StaticTrigger;
    int triggerImplementation = BsramImplementation;
    QString sampleClock;
    int sampleEdge = RisingEdge;
    int storageSize = 1024;
    int segmentNumber = 1;
    int captureAmount = 1024;
    int triggerPosition = 0;
    int captureImplementation = BsramImplementation;
    bool forceTriggerByFallingEdge = false;
    bool captureInitialData = false;
    QList<SignalItem> allCapSignals;
    QList<SignalItem> dataSignals;
    QString moduleName;
    ForeignXml foreign;
    ForeignXml foreignOfRoot;
};

AoCore::Private::Private(int coreIndex, AoCore *core)
    : index(coreIndex)
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
    : d(std::make_unique<Private>(index, this))
{
}

AoCore::~AoCore() = default;

int AoCore::index() const
{
    return d->index;
}

void AoCore::setIndex(int index)
{
    d->index = index;
}

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

QString AoCore::sampleClock() const
{
    return d->sampleClock;
}

void AoCore::setSampleClock(const QString &name)
{
    d->sampleClock = name;
}

int AoCore::sampleEdge() const
{
    return d->sampleEdge;
}

void AoCore::setSampleEdge(int edge)
{
    d->sampleEdge = edge;
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

int AoCore::captureAmount() const
{
    return d->captureAmount;
}

void AoCore::setCaptureAmount(int samples)
{
    d->captureAmount = samples;
}

int AoCore::triggerPosition() const
{
    return d->triggerPosition;
}

void AoCore::setTriggerPosition(int samples)
{
    d->triggerPosition = samples;
}

int AoCore::captureImplementation() const
{
    return d->captureImplementation;
}

void AoCore::setCaptureImplementation(int implementation)
{
    d->captureImplementation = implementation;
}

bool AoCore::forceTriggerByFallingEdge() const
{
    return d->forceTriggerByFallingEdge;
}

void AoCore::setForceTriggerByFallingEdge(bool on)
{
    d->forceTriggerByFallingEdge = on;
}

bool AoCore::captureInitialData() const
{
    return d->captureInitialData;
}

void AoCore::setCaptureInitialData(bool on)
{
    d->captureInitialData = on;
}

QList<SignalItem> AoCore::getallCapSignal() const
{
    return d->allCapSignals;
}

void AoCore::setallCapSignal(const QList<SignalItem> &signalItems)
{
    d->allCapSignals = signalItems;
}

QList<SignalItem> AoCore::getDataSignal() const
{
    return d->dataSignals;
}

void AoCore::setDataSignal(const QList<SignalItem> &signalItems)
{
    d->dataSignals = signalItems;
}

QString AoCore::moduleName() const
{
    return d->moduleName;
}

void AoCore::setModuleName(const QString &name)
{
    d->moduleName = name;
}

ForeignXml AoCore::foreign() const
{
    return d->foreign;
}

void AoCore::setForeign(const ForeignXml &foreign)
{
    d->foreign = foreign;
}

ForeignXml AoCore::foreignOfRoot() const
{
    return d->foreignOfRoot;
}

void AoCore::setForeignOfRoot(const ForeignXml &foreign)
{
    d->foreignOfRoot = foreign;
}

} // namespace VAK

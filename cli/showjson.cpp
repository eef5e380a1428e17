// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "showconfig.h"

#include "hostlibs/device/devicecatalogue.h"

#include <VakUtils/matchunit.h>
#include <VakUtils/triggerport.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

static QJsonArray signalArray(const QList<VAK::SignalItem> &signalItems);

static QJsonObject signalObject(const VAK::SignalItem &signal)
{
    QJsonObject object{
        {QStringLiteral("name"), signal.name},          {QStringLiteral("displayName"), signal.displayName},
        {QStringLiteral("enabled"), signal.enabled},    {QStringLiteral("present"), signal.present},
        {QStringLiteral("active"), signal.active != 0}, {QStringLiteral("captured"), signal.isCaptured()},
        {QStringLiteral("width"), signal.inputCount()}};
    if (!signal.members.isEmpty()) {
        object.insert(QStringLiteral("isBus"), signal.kind == 1);
        object.insert(QStringLiteral("members"), signalArray(signal.members));
    }
    return object;
}

static QJsonArray signalArray(const QList<VAK::SignalItem> &signalItems)
{
    QJsonArray array;
    for (const VAK::SignalItem &signal : signalItems)
        array.append(signalObject(signal));
    return array;
}

static QString counterWord(VAK::CounterMode mode)
{
    switch (mode) {
    case VAK::CounterMode::Total:
        return QStringLiteral("total");
    case VAK::CounterMode::Consecutive:
        return QStringLiteral("consecutive");
    default:
        return QStringLiteral("off");
    }
}

static QJsonObject unitObject(const VAK::MatchUnit &unit)
{
    const VAK::TriggerPort *port = unit.triggerPort();
    return {{QStringLiteral("index"), unit.index()},
            {QStringLiteral("enabled"), unit.isEnabled()},
            {QStringLiteral("port"), port ? QJsonValue(port->index()) : QJsonValue()},
            {QStringLiteral("function"), VAK::matchFunctionText(unit.function())},
            {QStringLiteral("value0"), unit.value0()},
            {QStringLiteral("value1"), unit.value1()},
            {QStringLiteral("counter"), counterWord(unit.counterMode())},
            {QStringLiteral("count"), unit.counterValue()}};
}

static QJsonObject triggerObject(const VAK::AoCore &core)
{
    QJsonArray ports;
    for (const VAK::TriggerPort *port : core.availableTriggers()) {
        ports.append(QJsonObject{{QStringLiteral("index"), port->index()},
                                 {QStringLiteral("width"), port->width()},
                                 {QStringLiteral("signals"), signalArray(port->getSignalNet())}});
    }
    QJsonArray units;
    for (const VAK::MatchUnit *unit : core.allMatchUnits()) {
        if (unit->isEnabled() || unit->triggerPort())
            units.append(unitObject(*unit));
    }
    const bool dynamic = core.triggerMode() == VAK::DynamicTrigger;
    return {{QStringLiteral("mode"), dynamic ? QStringLiteral("dynamic") : QStringLiteral("static")},
            {QStringLiteral("implementation"), implementationName(core.triggerImplementation())},
            {QStringLiteral("ports"), ports},
            {QStringLiteral("units"), units},
            {QStringLiteral("expressions"), QJsonArray::fromStringList(core.expressions())}};
}

static QJsonObject captureObject(const VAK::AoCore &core)
{
    return {{QStringLiteral("storageSize"), core.storageSize()},
            {QStringLiteral("segments"), core.segmentNumber()},
            {QStringLiteral("amount"), core.captureAmount()},
            {QStringLiteral("triggerPosition"), core.triggerPosition()},
            {QStringLiteral("forceTriggerByFallingEdge"), core.forceTriggerByFallingEdge()},
            {QStringLiteral("initialData"), core.captureInitialData()}};
}

static QJsonObject captureObject(const VAK::AOCore_Lite &core)
{
    return {{QStringLiteral("amount"), core.captureAmount()},
            {QStringLiteral("inputRegister"), core.enableInputRegister()},
            {QStringLiteral("initialData"), core.captureInitialData()}};
}

static QJsonObject usageObject(const CaptureNeed &need, const DEV::Device &device)
{
    QJsonObject object{{QStringLiteral("device"), device.name},
                       {QStringLiteral("need"), need.need},
                       {QStringLiteral("available"), need.available},
                       {QStringLiteral("exceeded"), qMax(need.need, need.ownBlocks) > need.available}};
    if (need.ownBlocks > 0)
        object.insert(QStringLiteral("ownBlocks"), need.ownBlocks);
    return object;
}

template <class Core>
static QJsonObject coreObject(const Core &core, const DEV::Device *device)
{
    const CaptureNeed need = captureNeed(core, device);
    QJsonObject capture = captureObject(core);
    capture.insert(QStringLiteral("implementation"), need.implementation);
    capture.insert(QStringLiteral("width"), need.width);
    capture.insert(QStringLiteral("signals"), signalArray(core.getallCapSignal()));
    if (device)
        capture.insert(QStringLiteral("usage"), usageObject(need, *device));
    return {{QStringLiteral("index"), core.index()},
            {QStringLiteral("module"), core.moduleName()},
            {QStringLiteral("sampleClock"), core.sampleClock()},
            {QStringLiteral("sampleEdge"), edgeName(core.sampleEdge())},
            {QStringLiteral("capture"), capture}};
}

QByteArray jsonReport(const ShownConfig &config)
{
    QJsonArray cores;
    for (const auto &core : config.standardCores) {
        QJsonObject object = coreObject(*core, config.device);
        QJsonObject trigger = triggerObject(*core);
        const QString need = triggerNeed(*core, config.device);
        if (!need.isEmpty())
            trigger.insert(QStringLiteral("usage"), need);
        object.insert(QStringLiteral("trigger"), trigger);
        cores.append(object);
    }
    for (const auto &core : config.liteCores)
        cores.append(coreObject(*core, config.device));
    const bool lite = config.mode == VAK::VakMode::Lite;
    const QJsonObject root{{QStringLiteral("file"), config.path},
                           {QStringLiteral("mode"), lite ? QStringLiteral("lite") : QStringLiteral("standard")},
                           {QStringLiteral("cores"), cores}};
    return QJsonDocument(root).toJson();
}

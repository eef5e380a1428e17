// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "corewriter.h"

#include "filewords.h"
#include "foreignparts.h"
#include "signalwriter.h"
#include "xmlwriter.h"

#include <VakUtils/aocore.h>
#include <VakUtils/aocorelite.h>
#include <VakUtils/matchunit.h>
#include <VakUtils/triggerport.h>

namespace VAK {

using namespace FileWords;
using Attributes = XmlText::Attributes;

/// Numbers that stand for no word count as the first one, as in the editor.
static QString word(const QStringList &words, int index)
{
    return words.value(index, words.first());
}

/// The model takes any int, the file none below zero.
static QString numberText(int number)
{
    return QString::number(qMax(number, 0));
}

/// Opens an element that has no object of its own, with its foreign attributes; answers the rest of its foreign
/// content.
static QString openPart(XmlWriter *writer, const QString &name, const Attributes &attributes, const ForeignXml &foreign,
                        const QString &part)
{
    const ForeignXml content = foreignPart(foreign, part);
    writer->open(name, attributes + content.attributes);
    return content.elements;
}

static void closePart(XmlWriter *writer, const QString &foreignElements)
{
    writer->foreignElements(foreignElements);
    writer->close();
}

static void writeSignals(XmlWriter *writer, const QList<SignalItem> &signalItems)
{
    for (const SignalItem &signal : signalItems)
        writeSignal(writer, signal);
}

static void writeClock(XmlWriter *writer, const AnalyzerCore &core)
{
    const Attributes attributes = {{QStringLiteral("net"), core.sampleClock()},
                                   {QStringLiteral("edge"), word(edges(), core.sampleEdge())}};
    closePart(writer, openPart(writer, Clock, attributes, core.foreign(), Clock));
}

static void writePort(XmlWriter *writer, const TriggerPort &port)
{
    if (!port.isAvailable() && port.foreign().isEmpty())
        return;
    writer->open(Port,
                 Attributes{{QStringLiteral("index"), QString::number(port.index())}} + port.foreign().attributes);
    writeSignals(writer, port.getSignalNet());
    writer->foreignElements(port.foreign().elements);
    writer->close();
}

static bool isAsNew(const MatchUnit &unit)
{
    return !unit.isEnabled() && !unit.triggerPort() && unit.function() == MatchFunction::Equal &&
           unit.value0().isEmpty() && unit.counterMode() == CounterMode::Off && unit.counterValue() == 1 &&
           unit.foreign().isEmpty();
}

static Attributes unitAttributes(const MatchUnit &unit)
{
    const TriggerPort *port = unit.triggerPort();
    const bool range = isRangeFunction(unit.function());
    return {{QStringLiteral("index"), QString::number(unit.index())},
            {QStringLiteral("enabled"), flagText(unit.isEnabled())},
            {QStringLiteral("port"), port ? QString::number(port->index()) : QString(NoPort)},
            {QStringLiteral("function"), matchFunctionText(unit.function())},
            {QStringLiteral("value0"), unit.value0()},
            {QStringLiteral("value1"), range ? unit.value1() : QString()},
            {QStringLiteral("counter"), word(counterModes(), static_cast<int>(unit.counterMode()))},
            {QStringLiteral("count"), QString::number(qBound(1, unit.counterValue(), MaxMatchCount))}};
}

static void writeUnit(XmlWriter *writer, const MatchUnit &unit)
{
    if (isAsNew(unit))
        return;
    writer->open(Unit, unitAttributes(unit) + unit.foreign().attributes);
    writer->foreignElements(unit.foreign().elements);
    writer->close();
}

static void writeTrigger(XmlWriter *writer, const AoCore &core)
{
    const Attributes attributes = {
        {QStringLiteral("mode"), word(triggerModes(), core.triggerMode())},
        {QStringLiteral("implementation"), word(implementations(), core.triggerImplementation())}};
    const QString foreignElements = openPart(writer, Trigger, attributes, core.foreign(), Trigger);
    for (const TriggerPort *port : core.allTriggers())
        writePort(writer, *port);
    for (const MatchUnit *unit : core.allMatchUnits())
        writeUnit(writer, *unit);
    for (const QString &text : core.expressions())
        closePart(writer,
                  openPart(writer, Expression, {{QStringLiteral("text"), text}}, core.foreign(), expressionPart(text)));
    closePart(writer, foreignElements);
}

static Attributes captureAttributes(const AoCore &core)
{
    return {{QStringLiteral("implementation"), word(implementations(), core.captureImplementation())},
            {QStringLiteral("storageSize"), numberText(core.storageSize())},
            {QStringLiteral("segments"), numberText(core.segmentNumber())},
            {QStringLiteral("amount"), numberText(core.captureAmount())},
            {QStringLiteral("triggerPosition"), numberText(core.triggerPosition())},
            {QStringLiteral("forceTriggerByFallingEdge"), flagText(core.forceTriggerByFallingEdge())},
            {QStringLiteral("initialData"), flagText(core.captureInitialData())}};
}

static Attributes captureAttributes(const AOCore_Lite &core)
{
    return {{QStringLiteral("implementation"), word(implementations(), core.captureImplementation())},
            {QStringLiteral("amount"), numberText(core.captureAmount())},
            {QStringLiteral("inputRegister"), flagText(core.enableInputRegister())},
            {QStringLiteral("initialData"), flagText(core.captureInitialData())}};
}

static void writeTriggerOf(XmlWriter *writer, const AoCore &core)
{
    writeTrigger(writer, core);
}

static void writeTriggerOf(XmlWriter *, const AOCore_Lite &) {}

template <class Core>
static void writeCore(XmlWriter *writer, const Core &core)
{
    const Attributes attributes = {{QStringLiteral("index"), QString::number(core.index())},
                                   {QStringLiteral("module"), core.moduleName()}};
    const QString foreignElements = openPart(writer, FileWords::Core, attributes, core.foreign(), {});
    writeClock(writer, core);
    writeTriggerOf(writer, core);
    const QString foreignOfCapture = openPart(writer, Capture, captureAttributes(core), core.foreign(), Capture);
    writeSignals(writer, core.getallCapSignal());
    closePart(writer, foreignOfCapture);
    closePart(writer, foreignElements);
}

template <class Core>
static QByteArray file(const QList<Core *> &cores, const QString &mode)
{
    XmlWriter writer;
    const ForeignXml foreign = cores.isEmpty() ? ForeignXml() : cores.first()->foreignOfRoot();
    writer.open(Root,
                Attributes{{QStringLiteral("version"), QString::number(Version)}, {QStringLiteral("mode"), mode}} +
                    foreign.attributes);
    for (const Core *core : cores)
        writeCore(&writer, *core);
    writer.foreignElements(foreign.elements);
    writer.close();
    return writer.toUtf8();
}

QByteArray standardFile(const QList<AoCore *> &cores)
{
    return file(cores, Standard);
}

QByteArray liteFile(const QList<AOCore_Lite *> &cores)
{
    return file(cores, Lite);
}

} // namespace VAK

// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "modeltools.h"

#include <VakUtils/matchunit.h>
#include <VakUtils/triggerport.h>

#include <QDir>
#include <QFile>

using namespace VAK;

SignalItem netSignal(const QString &name)
{
    SignalItem signal;
    signal.name = name;
    return signal;
}

SignalItem busSignal(const QString &base, int first, int last)
{
    SignalItem signal = netSignal(QStringLiteral("%1[%2:%3]").arg(base).arg(first).arg(last));
    signal.kind = 1;
    const int step = first <= last ? 1 : -1;
    for (int bit = first; bit != last + step; bit += step)
        signal.members.append(netSignal(QStringLiteral("%1[%2]").arg(base).arg(bit)));
    return signal;
}

static QString differenceOfPorts(const AoCore &a, const AoCore &b)
{
    for (int i = 0; i < TriggerPortsPerCore; ++i) {
        const TriggerPort &p = *a.getTrigger(i);
        const TriggerPort &q = *b.getTrigger(i);
        if (p.getSignalNet() != q.getSignalNet() || !(p.foreign() == q.foreign()))
            return QStringLiteral("trigger port %1").arg(i);
    }
    return {};
}

static int portIndex(const MatchUnit &unit)
{
    return unit.triggerPort() ? unit.triggerPort()->index() : -1;
}

static QString differenceOfUnits(const AoCore &a, const AoCore &b)
{
    for (int i = 0; i < MatchUnitsPerCore; ++i) {
        const MatchUnit &u = *a.matchUnit(i);
        const MatchUnit &v = *b.matchUnit(i);
        const bool same = u.isEnabled() == v.isEnabled() && portIndex(u) == portIndex(v) &&
                          u.function() == v.function() && u.value0() == v.value0() && u.value1() == v.value1() &&
                          u.counterMode() == v.counterMode() && u.counterValue() == v.counterValue() &&
                          u.foreign() == v.foreign();
        if (!same)
            return QStringLiteral("match unit %1").arg(i);
    }
    return {};
}

/// What both kinds of cores have.
template <class Core>
static QString differenceOfCommon(const Core &a, const Core &b)
{
    const QList<QPair<QString, bool>> same = {
        {QStringLiteral("index"), a.index() == b.index()},
        {QStringLiteral("module"), a.moduleName() == b.moduleName()},
        {QStringLiteral("clock"), a.sampleClock() == b.sampleClock()},
        {QStringLiteral("edge"), a.sampleEdge() == b.sampleEdge()},
        {QStringLiteral("amount"), a.captureAmount() == b.captureAmount()},
        {QStringLiteral("capture implementation"), a.captureImplementation() == b.captureImplementation()},
        {QStringLiteral("initial data"), a.captureInitialData() == b.captureInitialData()},
        {QStringLiteral("capture signals"), a.getallCapSignal() == b.getallCapSignal()},
        {QStringLiteral("data signals"), a.getDataSignal() == b.getDataSignal()},
        {QStringLiteral("foreign"), a.foreign() == b.foreign()},
        {QStringLiteral("foreign of root"), a.foreignOfRoot() == b.foreignOfRoot()},
    };
    for (const auto &field : same) {
        if (!field.second)
            return field.first;
    }
    return {};
}

QString difference(const AoCore &a, const AoCore &b)
{
    QString found = differenceOfCommon(a, b);
    if (found.isEmpty())
        found = differenceOfPorts(a, b);
    if (found.isEmpty())
        found = differenceOfUnits(a, b);
    if (!found.isEmpty())
        return found;
    const bool same = a.expressions() == b.expressions() && a.triggerMode() == b.triggerMode() &&
                      a.triggerImplementation() == b.triggerImplementation() && a.storageSize() == b.storageSize() &&
                      a.segmentNumber() == b.segmentNumber() && a.triggerPosition() == b.triggerPosition() &&
                      a.forceTriggerByFallingEdge() == b.forceTriggerByFallingEdge();
    return same ? QString() : QStringLiteral("trigger or capture settings");
}

QString difference(const AOCore_Lite &a, const AOCore_Lite &b)
{
    const QString found = differenceOfCommon(a, b);
    if (found.isEmpty() && a.enableInputRegister() != b.enableInputRegister())
        return QStringLiteral("input register");
    return found;
}

/// Draws values for the fields of a model.
class Draw
{
public:
    explicit Draw(QRandomGenerator *random)
        : m_random(random)
    {
    }

    int below(int bound) { return int(m_random->bounded(bound)); }
    bool flag() { return below(2) == 1; }
    bool seldom() { return below(8) == 0; }
    QString name();
    QString value(const QString &characters);
    ForeignXml foreign();
    SignalItem signal();
    QList<SignalItem> signalItems(int most);
    void fillPorts(AoCore *core);
    void fillUnits(AoCore *core);
    template <class Core>
    void fillCommon(Core *core);

private:
    void spoil(SignalItem *signal);

    QRandomGenerator *m_random;
};

QString Draw::name()
{
    static const QStringList names = {QStringLiteral("clk"),
                                      QStringLiteral("u_core/if_stage/pc"),
                                      QStringLiteral("g_lane[1].u_add/carry"),
                                      QStringLiteral("lane[1]"),
                                      QStringLiteral("\\a<b>&\"c' "),
                                      QStringLiteral("größe/Δ"),
                                      QStringLiteral("tab\there\nand there\r")};
    return names.at(below(names.size()));
}

QString Draw::value(const QString &characters)
{
    QString text;
    for (int i = below(20); i > 0; --i)
        text += characters.at(below(characters.size()));
    return text;
}

ForeignXml Draw::foreign()
{
    ForeignXml foreign;
    if (!seldom())
        return foreign;
    if (flag())
        foreign.attributes.append({QStringLiteral("x:a%1").arg(below(3)), name()});
    if (flag())
        foreign.elements = QStringLiteral("<x:e a=\"&lt;&#10;\">t&amp;\n<x:f/> </x:e><x:g/>");
    return foreign;
}

void Draw::spoil(SignalItem *signal)
{
    if (seldom())
        signal->displayName = name();
    signal->enabled = !seldom();
    signal->present = !seldom();
    signal->active = seldom() ? 0 : 1;
    signal->foreign = foreign();
}

SignalItem Draw::signal()
{
    SignalItem signal = netSignal(name());
    const int form = below(3);
    if (form > 0)
        signal = busSignal(name(), below(12) - 3, below(12) - 3);
    if (form == 2) {
        signal.kind = -1;
        signal.name = QStringLiteral("group_%1[%2:0]").arg(below(5)).arg(signal.members.size() - 1);
        if (flag())
            signal.members.swapItemsAt(0, signal.members.size() - 1);
    }
    spoil(&signal);
    if (!signal.members.isEmpty() && seldom())
        spoil(&signal.members[below(signal.members.size())]);
    return signal;
}

QList<SignalItem> Draw::signalItems(int most)
{
    QList<SignalItem> list;
    for (int i = below(most + 1); i > 0; --i)
        list.append(signal());
    return list;
}

void Draw::fillPorts(AoCore *core)
{
    for (TriggerPort *port : core->allTriggers()) {
        if (flag())
            port->setSignalNet(signalItems(3));
        port->setForeign(foreign());
    }
}

void Draw::fillUnits(AoCore *core)
{
    for (MatchUnit *unit : core->allMatchUnits()) {
        if (flag())
            continue;
        unit->setEnabled(flag());
        unit->setTriggerPort(core->getTrigger(below(18) - 1));
        unit->setFunction(static_cast<MatchFunction>(below(8)));
        const bool bits = unit->function() == MatchFunction::Equal || unit->function() == MatchFunction::NotEqual;
        unit->setValue0(value(bits ? QStringLiteral("01XRFBN") : QStringLiteral("01")));
        if (isRangeFunction(unit->function()))
            unit->setValue1(value(QStringLiteral("01")));
        unit->setCounterMode(static_cast<CounterMode>(below(3)));
        unit->setCounterValue(1 + below(MaxMatchCount));
        unit->setForeign(foreign());
    }
}

static QList<SignalItem> capturedOf(const QList<SignalItem> &all)
{
    QList<SignalItem> captured;
    for (const SignalItem &signal : all) {
        if (signal.enabled && signal.active == 1)
            captured.append(signal);
    }
    return captured;
}

template <class Core>
void Draw::fillCommon(Core *core)
{
    core->setSampleClock(flag() ? name() : QString());
    core->setSampleEdge(below(2));
    core->setCaptureAmount(below(70000));
    core->setCaptureImplementation(below(3));
    core->setCaptureInitialData(flag());
    core->setallCapSignal(signalItems(20));
    core->setModuleName(flag() ? name() : QString());
    core->setForeign(foreign());
}

static ForeignXml declarationOfPrefix()
{
    ForeignXml foreign;
    foreign.attributes.append({QStringLiteral("xmlns:x"), QStringLiteral("urn:example:x")});
    return foreign;
}

StandardCores randomStandardCores(QRandomGenerator *random)
{
    Draw draw(random);
    QList<AoCore *> cores;
    for (int i = 0, count = 1 + draw.below(3); i < count; ++i) {
        auto *core = new AoCore(i);
        draw.fillCommon(core);
        draw.fillPorts(core);
        draw.fillUnits(core);
        for (int left = draw.below(17); left > 0; --left)
            core->setExpression(core->expressions() << QStringLiteral("M%1&!(M%2)").arg(left).arg(draw.below(16)));
        core->setTriggerMode(draw.below(2));
        core->setTriggerImplementation(draw.below(3));
        core->setStorageSize(draw.below(70000));
        core->setSegmentNumber(draw.below(100));
        core->setTriggerPosition(draw.below(70000));
        core->setForceTriggerByFallingEdge(draw.flag());
        core->setDataSignal(capturedOf(core->getallCapSignal()));
        core->setForeignOfRoot(declarationOfPrefix());
        cores.append(core);
    }
    return StandardCores(cores);
}

LiteCores randomLiteCores(QRandomGenerator *random)
{
    Draw draw(random);
    QList<AOCore_Lite *> cores;
    for (int i = 0, count = 1 + draw.below(3); i < count; ++i) {
        auto *core = new AOCore_Lite(i);
        draw.fillCommon(core);
        core->setEnableInputRegister(draw.flag());
        core->setDataSignals(capturedOf(core->getallCapSignal()));
        core->setForeignOfRoot(declarationOfPrefix());
        cores.append(core);
    }
    return LiteCores(cores);
}

QString goldenFile(const QString &name)
{
    return QStringLiteral(VAK_TEST_DATA "/config/") + name;
}

QStringList goldenFiles()
{
    return QDir(QStringLiteral(VAK_TEST_DATA "/config")).entryList({QStringLiteral("*.rvk")}, QDir::Files, QDir::Name);
}

QByteArray fileContent(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

bool writeContent(const QString &path, const QByteArray &content)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
}

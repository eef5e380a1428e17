// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "corereader.h"

#include "filewords.h"
#include "foreignparts.h"
#include "signalreader.h"
#include "triggerreader.h"
#include "xmlcursor.h"

#include <VakUtils/aocore.h>
#include <VakUtils/aocorelite.h>

#include <algorithm>
#include <limits>
#include <vector>

namespace VAK {

using namespace FileWords;

static constexpr int anyNumber = std::numeric_limits<int>::max();

/// Reads the children that a core must have exactly once each.
class CoreReader
{
public:
    CoreReader(XmlCursor *cursor, SignalReader *signalReader)
        : m_cursor(cursor)
        , m_signalReader(signalReader)
    {
    }

    template <class Core>
    void read(XmlElement &element, Core *core);

private:
    bool readChild(XmlElement &child, AoCore *core);
    bool readChild(XmlElement &child, AOCore_Lite *core);
    void readClock(XmlElement &element, AnalyzerCore *core);
    void readCapture(XmlElement &element, AoCore *core);
    void readCapture(XmlElement &element, AOCore_Lite *core);
    QList<SignalItem> readCaptureSignals(XmlElement &element);
    void checkChildren(const XmlElement &element, const QStringList &names);

    XmlCursor *m_cursor;
    SignalReader *m_signalReader;
    ForeignXml m_foreign;
    QStringList m_met;
};

static QStringList childNames(const AoCore *)
{
    return {Clock, Trigger, Capture};
}

static QStringList childNames(const AOCore_Lite *)
{
    return {Clock, Capture};
}

template <class Core>
void CoreReader::read(XmlElement &element, Core *core)
{
    const int index = element.number(QStringLiteral("index"), 0, MaxCores - 1);
    if (index != core->index()) {
        element.failValue(QStringLiteral("index"), QString::number(index),
                          QStringLiteral("%1, since cores are numbered in their order").arg(core->index()));
    }
    core->setModuleName(element.text(QStringLiteral("module")));
    m_foreign.attributes = element.unread();
    const QStringList names = childNames(core);
    while (auto child = m_cursor->nextChild(element)) {
        if (m_met.contains(child->name()) && names.contains(child->name())) {
            m_cursor->failStructure(child->line(), child->column(), QStringLiteral("a second %1").arg(child->tag()),
                                    QStringLiteral("one in a core"));
        }
        m_met.append(child->name());
        if (!readChild(*child, core))
            m_foreign.elements += m_cursor->takeForeign(*child);
    }
    checkChildren(element, names);
    core->setForeign(m_foreign);
}

void CoreReader::checkChildren(const XmlElement &element, const QStringList &names)
{
    for (const QString &name : names) {
        if (!m_met.contains(name)) {
            m_cursor->failStructure(element.line(), element.column(),
                                    QStringLiteral("%1 without <%2>").arg(element.tag(), name),
                                    QStringLiteral("one in it"));
        }
    }
}

bool CoreReader::readChild(XmlElement &child, AoCore *core)
{
    if (child.name() == Clock)
        readClock(child, core);
    else if (child.name() == Trigger)
        readTrigger(m_cursor, child, m_signalReader, core, &m_foreign);
    else if (child.name() == Capture)
        readCapture(child, core);
    else
        return false;
    return true;
}

bool CoreReader::readChild(XmlElement &child, AOCore_Lite *core)
{
    if (child.name() == Clock)
        readClock(child, core);
    else if (child.name() == Capture)
        readCapture(child, core);
    else
        return false;
    return true;
}

void CoreReader::readClock(XmlElement &element, AnalyzerCore *core)
{
    core->setSampleClock(element.text(QStringLiteral("net")));
    core->setSampleEdge(element.choice(QStringLiteral("edge"), edges()));
    addForeignPart(&m_foreign, Clock, m_cursor->takeRest(element));
}

QList<SignalItem> CoreReader::readCaptureSignals(XmlElement &element)
{
    QList<SignalItem> signalItems;
    ForeignXml rest;
    rest.attributes = element.unread();
    while (auto child = m_cursor->nextChild(element)) {
        if (const auto signal = m_signalReader->read(*child))
            signalItems.append(*signal);
        else
            rest.elements += m_cursor->takeForeign(*child);
    }
    addForeignPart(&m_foreign, Capture, rest);
    return signalItems;
}

static QList<SignalItem> capturedOf(const QList<SignalItem> &signalItems)
{
    QList<SignalItem> captured;
    std::copy_if(signalItems.cbegin(), signalItems.cend(), std::back_inserter(captured),
                 [](const SignalItem &signal) { return signal.isCaptured(); });
    return captured;
}

void CoreReader::readCapture(XmlElement &element, AoCore *core)
{
    core->setCaptureImplementation(element.choice(QStringLiteral("implementation"), implementations()));
    core->setStorageSize(element.number(QStringLiteral("storageSize"), 0, anyNumber));
    core->setSegmentNumber(element.number(QStringLiteral("segments"), 0, anyNumber));
    core->setCaptureAmount(element.number(QStringLiteral("amount"), 0, anyNumber));
    core->setTriggerPosition(element.number(QStringLiteral("triggerPosition"), 0, anyNumber));
    core->setForceTriggerByFallingEdge(element.flag(QStringLiteral("forceTriggerByFallingEdge")));
    core->setCaptureInitialData(element.flag(QStringLiteral("initialData")));
    core->setallCapSignal(readCaptureSignals(element));
    core->setDataSignal(capturedOf(core->getallCapSignal()));
}

void CoreReader::readCapture(XmlElement &element, AOCore_Lite *core)
{
    core->setCaptureImplementation(element.choice(QStringLiteral("implementation"), implementations()));
    core->setCaptureAmount(element.number(QStringLiteral("amount"), 0, anyNumber));
    core->setEnableInputRegister(element.flag(QStringLiteral("inputRegister")));
    core->setCaptureInitialData(element.flag(QStringLiteral("initialData")));
    core->setallCapSignal(readCaptureSignals(element));
    core->setDataSignals(capturedOf(core->getallCapSignal()));
}

static void readRoot(XmlCursor *cursor, XmlElement &root, const QString &mode)
{
    if (root.name() != Root) {
        cursor->failStructure(root.line(), root.column(), root.tag(), QStringLiteral("<%1>").arg(Root));
        return;
    }
    const QString version = root.text(QStringLiteral("version"));
    if (version != QString::number(Version))
        root.failValue(QStringLiteral("version"), version,
                       QStringLiteral("%1, the only version known here").arg(Version));
    const QString found = root.text(QStringLiteral("mode"));
    if (found != mode) {
        const bool known = found == Standard || found == Lite;
        cursor->failStructure(root.line(), root.column(), QStringLiteral("mode=\"%1\"").arg(shortened(found)),
                              known ? QStringLiteral("\"%1\"").arg(mode) : QStringLiteral("\"standard\" or \"lite\""));
    }
}

template <class Core>
using Cores = std::vector<std::unique_ptr<Core>>;

template <class Core>
static void readCoreElement(XmlCursor *cursor, XmlElement &element, SignalReader *signalReader, Cores<Core> *cores)
{
    if (cores->size() >= MaxCores) {
        cursor->failValue(element.line(), element.column(), QStringLiteral("core number %1").arg(MaxCores + 1),
                          QStringLiteral("at most %1").arg(MaxCores));
    }
    auto core = std::make_unique<Core>(int(cores->size()));
    CoreReader(cursor, signalReader).read(element, core.get());
    if (cores->size() < MaxCores)
        cores->push_back(std::move(core));
}

template <class Core>
static QList<Core *> release(Cores<Core> *cores, const ForeignXml &foreignOfRoot)
{
    QList<Core *> released;
    for (std::unique_ptr<Core> &core : *cores) {
        core->setForeignOfRoot(foreignOfRoot); // with every core, so that it outlives the removal of the first one
        released.append(core.release());
    }
    return released;
}

template <class Core>
static QList<Core *> readCores(const QByteArray &data, const QString &mode, Checks checks, FileError *error)
{
    XmlCursor cursor(data, checks);
    SignalReader signalReader(&cursor);
    Cores<Core> cores;
    ForeignXml foreign;
    if (auto root = cursor.root()) {
        readRoot(&cursor, *root, mode);
        foreign.attributes = root->unread();
        while (auto child = cursor.nextChild(*root)) {
            if (child->name() == FileWords::Core)
                readCoreElement(&cursor, *child, &signalReader, &cores);
            else
                foreign.elements += cursor.takeForeign(*child);
        }
    }
    cursor.finish();
    *error = cursor.error();
    return cursor.failed() ? QList<Core *>() : release(&cores, foreign);
}

QList<AoCore *> readStandardCores(const QByteArray &data, Checks checks, FileError *error)
{
    return readCores<AoCore>(data, Standard, checks, error);
}

QList<AOCore_Lite *> readLiteCores(const QByteArray &data, Checks checks, FileError *error)
{
    return readCores<AOCore_Lite>(data, Lite, checks, error);
}

VakMode modeOf(const QByteArray &data)
{
    XmlCursor cursor(data, Checks::Structure);
    auto root = cursor.root();
    if (!root || root->name() != Root || !root->has(QStringLiteral("mode")))
        return VakMode::Invalid;
    const QString mode = root->text(QStringLiteral("mode"));
    if (mode == Standard)
        return VakMode::Standard;
    return mode == Lite ? VakMode::Lite : VakMode::Invalid;
}

} // namespace VAK

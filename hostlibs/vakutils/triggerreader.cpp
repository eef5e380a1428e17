// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "triggerreader.h"

#include "filewords.h"
#include "foreignparts.h"
#include "signalreader.h"
#include "xmlcursor.h"

#include <VakUtils/aocore.h>
#include <VakUtils/matchunit.h>
#include <VakUtils/triggerport.h>

#include <bitset>

namespace VAK {

using namespace FileWords;

/// Reads one trigger; knows which ports and units it has met.
class TriggerReader
{
public:
    TriggerReader(XmlCursor *cursor, SignalReader *signalReader, AoCore *core)
        : m_cursor(cursor)
        , m_signalReader(signalReader)
        , m_core(core)
    {
    }

    void read(XmlElement &element, ForeignXml *foreign);

private:
    bool readChild(XmlElement &child, ForeignXml *foreign);
    void readPort(XmlElement &element);
    void readUnit(XmlElement &element);
    void readUnitPort(XmlElement &element, MatchUnit *unit);
    void readValues(XmlElement &element, MatchUnit *unit);
    void readExpression(XmlElement &element, ForeignXml *foreign);
    int readIndex(XmlElement &element, std::bitset<16> *met);

    XmlCursor *m_cursor;
    SignalReader *m_signalReader;
    AoCore *m_core;
    std::bitset<16> m_ports;
    std::bitset<16> m_units;
    QStringList m_expressions;
};

void TriggerReader::read(XmlElement &element, ForeignXml *foreign)
{
    m_core->setTriggerMode(element.choice(QStringLiteral("mode"), triggerModes()));
    m_core->setTriggerImplementation(element.choice(QStringLiteral("implementation"), implementations()));
    ForeignXml rest;
    rest.attributes = element.unread();
    while (auto child = m_cursor->nextChild(element)) {
        if (!readChild(*child, foreign))
            rest.elements += m_cursor->takeForeign(*child);
    }
    m_core->setExpression(m_expressions);
    addForeignPart(foreign, Trigger, rest);
}

bool TriggerReader::readChild(XmlElement &child, ForeignXml *foreign)
{
    if (child.name() == Port)
        readPort(child);
    else if (child.name() == Unit)
        readUnit(child);
    else if (child.name() == Expression)
        readExpression(child, foreign);
    else
        return false;
    return true;
}

int TriggerReader::readIndex(XmlElement &element, std::bitset<16> *met)
{
    const int index = element.number(QStringLiteral("index"), 0, 15);
    if (met->test(size_t(index)))
        element.failValue(QStringLiteral("index"), QString::number(index), QStringLiteral("each index once"));
    met->set(size_t(index));
    return index;
}

void TriggerReader::readPort(XmlElement &element)
{
    TriggerPort *port = m_core->getTrigger(readIndex(element, &m_ports));
    QList<SignalItem> signalNet;
    ForeignXml foreign;
    foreign.attributes = element.unread();
    while (auto child = m_cursor->nextChild(element)) {
        if (const auto signal = m_signalReader->read(*child))
            signalNet.append(*signal);
        else
            foreign.elements += m_cursor->takeForeign(*child);
    }
    port->setSignalNet(signalNet);
    port->setForeign(foreign);
}

void TriggerReader::readUnit(XmlElement &element)
{
    MatchUnit *unit = m_core->matchUnit(readIndex(element, &m_units));
    unit->setEnabled(element.flag(QStringLiteral("enabled")));
    readUnitPort(element, unit);
    unit->setFunction(static_cast<MatchFunction>(element.choice(QStringLiteral("function"), matchFunctionTexts())));
    readValues(element, unit);
    unit->setCounterMode(static_cast<CounterMode>(element.choice(QStringLiteral("counter"), counterModes())));
    unit->setCounterValue(element.number(QStringLiteral("count"), 1, MaxMatchCount));
    unit->setForeign(m_cursor->takeRest(element));
}

void TriggerReader::readUnitPort(XmlElement &element, MatchUnit *unit)
{
    const QString port = element.text(QStringLiteral("port"));
    if (port == NoPort)
        return;
    for (int i = 0; i < TriggerPortsPerCore; ++i) {
        if (port == QString::number(i)) {
            unit->setTriggerPort(m_core->getTrigger(i));
            return;
        }
    }
    element.failValue(QStringLiteral("port"), port, QStringLiteral("\"none\" or a whole number from 0 to 15"));
}

static bool consistsOf(const QString &text, const QString &characters)
{
    for (const QChar character : text) {
        if (!characters.contains(character))
            return false;
    }
    return true;
}

void TriggerReader::readValues(XmlElement &element, MatchUnit *unit)
{
    const QString value0 = element.text(QStringLiteral("value0")).toUpper();
    const QString value1 = element.text(QStringLiteral("value1")).toUpper();
    const bool bits = unit->function() == MatchFunction::Equal || unit->function() == MatchFunction::NotEqual;
    if (!consistsOf(value0, bits ? QStringLiteral("01XRFBN") : QStringLiteral("01"))) {
        element.failValue(QStringLiteral("value0"), value0,
                          bits ? QStringLiteral("the characters 0 1 X R F B N")
                               : QStringLiteral("the characters 0 1 for this function"));
    }
    if (!isRangeFunction(unit->function()) && !value1.isEmpty()) {
        element.failValue(QStringLiteral("value1"), value1,
                          QStringLiteral("nothing, since only the range functions have an upper bound"));
    } else if (!consistsOf(value1, QStringLiteral("01"))) {
        element.failValue(QStringLiteral("value1"), value1, QStringLiteral("the characters 0 1 for this function"));
    }
    unit->setValue0(value0);
    unit->setValue1(value1);
}

void TriggerReader::readExpression(XmlElement &element, ForeignXml *foreign)
{
    const QString text = element.text(QStringLiteral("text"));
    addForeignPart(foreign, expressionPart(text), m_cursor->takeRest(element));
    if (m_expressions.size() < MaxExpressions) {
        m_expressions.append(text);
        return;
    }
    m_cursor->failValue(element.line(), element.column(),
                        QStringLiteral("expression number %1").arg(MaxExpressions + 1),
                        QStringLiteral("at most %1").arg(MaxExpressions));
}

void readTrigger(XmlCursor *cursor, XmlElement &element, SignalReader *signalReader, AoCore *core, ForeignXml *foreign)
{
    TriggerReader(cursor, signalReader, core).read(element, foreign);
}

} // namespace VAK

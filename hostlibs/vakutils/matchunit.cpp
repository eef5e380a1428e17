// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include <VakUtils/matchunit.h>

#include <VakUtils/aocore.h>
#include <VakUtils/triggerport.h>

namespace VAK {

struct MatchUnit::Private
{
    int index = 0;
    AoCore *core = nullptr;
    bool enabled = false;
    int portIndex = -1; // -1: no port chosen
    MatchFunction function = MatchFunction::Equal;
    QString value0;
    QString value1;
    CounterMode counterMode = CounterMode::Off;
    int counterValue = 1;
    ForeignXml foreign;
};

MatchUnit::MatchUnit(int index, AoCore *core)
    : d(std::make_unique<Private>())
{
    Q_ASSERT(core);
    d->index = index;
    d->core = core;
}

MatchUnit::~MatchUnit() = default;

int MatchUnit::index() const
{
    return d->index;
}

AoCore *MatchUnit::core() const
{
    return d->core;
}

bool MatchUnit::isEnabled() const
{
    return d->enabled;
}

void MatchUnit::setEnabled(bool enabled)
{
    d->enabled = enabled;
}

TriggerPort *MatchUnit::triggerPort() const
{
    return d->core->getTrigger(d->portIndex);
}

void MatchUnit::setTriggerPort(TriggerPort *port)
{
    Q_ASSERT(!port || d->core->getTrigger(port->index()) == port);
    d->portIndex = port ? port->index() : -1;
}

MatchFunction MatchUnit::function() const
{
    return d->function;
}

void MatchUnit::setFunction(MatchFunction function)
{
    d->function = function;
}

QString MatchUnit::value0() const
{
    return d->value0;
}

void MatchUnit::setValue0(const QString &value)
{
    d->value0 = value;
}

QString MatchUnit::value1() const
{
    return d->value1;
}

void MatchUnit::setValue1(const QString &value)
{
    d->value1 = value;
}

CounterMode MatchUnit::counterMode() const
{
    return d->counterMode;
}

void MatchUnit::setCounterMode(CounterMode mode)
{
    d->counterMode = mode;
}

int MatchUnit::counterValue() const
{
    return d->counterValue;
}

void MatchUnit::setCounterValue(int count)
{
    d->counterValue = count;
}

ForeignXml MatchUnit::foreign() const
{
    return d->foreign;
}

void MatchUnit::setForeign(const ForeignXml &foreign)
{
    d->foreign = foreign;
}

QString matchFunctionText(MatchFunction function)
{
    return matchFunctionTexts().at(static_cast<int>(function));
}

QStringList matchFunctionTexts()
{
    static const QStringList texts = {
        QStringLiteral("=="), QStringLiteral("!="), QStringLiteral(">"),        QStringLiteral(">="),
        QStringLiteral("<"),  QStringLiteral("<="), QStringLiteral("in range"), QStringLiteral("out of range"),
    };
    return texts;
}

bool isRangeFunction(MatchFunction function)
{
    return function == MatchFunction::InRange || function == MatchFunction::OutOfRange;
}

} // namespace VAK

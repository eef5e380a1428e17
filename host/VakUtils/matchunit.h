// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <VakUtils/signalitem.h>

#include <hostglobal.h>

#include <QStringList>

#include <memory>

namespace VAK {

class AoCore;
class TriggerPort;

/// How a match unit compares its port with its value. The stored text of each stands in matchFunctionText().
enum class MatchFunction { Equal, NotEqual, Greater, GreaterEqual, Less, LessEqual, InRange, OutOfRange };

enum class CounterMode {
    Off,        ///< true on each matching sample
    Total,      ///< true from the n-th matching sample on
    Consecutive ///< true while the last n samples matched
};

constexpr int MaxMatchCount = 65535;

/// Compares the inputs of one trigger port with a value; named M0 to M15 in expressions. The core owns it.
class HOST_EXPORT MatchUnit
{
public:
    /// `core` is the owner, through which the ports are found; never null.
    MatchUnit(int index, AoCore *core);
    ~MatchUnit();
    MatchUnit(const MatchUnit &) = delete;
    MatchUnit &operator=(const MatchUnit &) = delete;

    /// The unit's number within its core, 0 .. 15.
    int index() const;
    AoCore *core() const;
    /// Whether the unit takes part in the trigger.
    bool isEnabled() const;
    void setEnabled(bool enabled);
    /// The port that the unit watches; null while none is chosen.
    TriggerPort *triggerPort() const;
    /// `port` must belong to the same core; null unbinds.
    void setTriggerPort(TriggerPort *port);
    MatchFunction function() const;
    void setFunction(MatchFunction function);
    /// The compare value, most significant bit first, one character of `01XRFBN` for each port bit (`01` only for
    /// functions other than == and !=). The setters store what they get; the dialog and the reader check it.
    QString value0() const;
    void setValue0(const QString &value);
    /// The upper bound of the two range functions; empty for the others.
    QString value1() const;
    void setValue1(const QString &value);
    CounterMode counterMode() const;
    void setCounterMode(CounterMode mode);
    /// Matches to count, 1 .. MaxMatchCount; 1 while the counter is off.
    int counterValue() const;
    void setCounterValue(int count);

    ForeignXml foreign() const;
    void setForeign(const ForeignXml &foreign);

private:
    struct Private;
    std::unique_ptr<Private> d;
};

/// The stored text of `function`: `==`, `!=`, `>`, `>=`, `<`, `<=`, `in range`, `out of range`.
HOST_EXPORT QString matchFunctionText(MatchFunction function);
/// The eight texts in the order of the enumeration.
HOST_EXPORT QStringList matchFunctionTexts();
/// Whether `function` needs value1.
HOST_EXPORT bool isRangeFunction(MatchFunction function);

} // namespace VAK

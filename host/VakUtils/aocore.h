// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <VakUtils/analyzercore.h>

#include <QStringList>

namespace VAK {

class MatchUnit;
class TriggerPort;

constexpr int TriggerPortsPerCore = 16;
constexpr int MatchUnitsPerCore = 16;
constexpr int MaxExpressions = 16;

/// Trigger mode as stored.
enum TriggerMode : int { StaticTrigger = 0, DynamicTrigger = 1 };

/// One analyzer core of Standard mode. Always has 16 trigger ports and 16 match units, which it owns.
class HOST_EXPORT AoCore : public AnalyzerCore
{
public:
    explicit AoCore(int index);
    ~AoCore();

    QList<TriggerPort *> allTriggers() const;
    QList<TriggerPort *> availableTriggers() const;
    /// Null outside 0 .. 15.
    TriggerPort *getTrigger(int index) const;

    QList<MatchUnit *> allMatchUnits() const;
    QList<MatchUnit *> enabledMatchUnits() const;
    /// Null outside 0 .. 15.
    MatchUnit *matchUnit(int index) const;

    QStringList expressions() const;
    void setExpression(const QStringList &expressions);
    /// A TriggerMode value.
    int triggerMode() const;
    void setTriggerMode(int mode);
    /// Storage of the Dynamic trigger, an Implementation value.
    int triggerImplementation() const;
    void setTriggerImplementation(int implementation);

    /// Samples that the core stores; the editor offers 4 .. 65536, powers of two.
    int storageSize() const;
    void setStorageSize(int samples);
    int segmentNumber() const;
    void setSegmentNumber(int segments);
    /// Samples before the trigger sample, 0 .. captureAmount() - 4.
    int triggerPosition() const;
    void setTriggerPosition(int samples);
    bool forceTriggerByFallingEdge() const;
    void setForceTriggerByFallingEdge(bool on);

    void setDataSignal(const QList<SignalItem> &signalItems);

private:
    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace VAK

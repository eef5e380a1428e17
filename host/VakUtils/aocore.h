// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <VakUtils/signalitem.h>

#include <hostglobal.h>

#include <QStringList>

#include <memory>

namespace VAK {

class MatchUnit;
class TriggerPort;

constexpr int MaxCores = 16;
constexpr int TriggerPortsPerCore = 16;
constexpr int MatchUnitsPerCore = 16;
constexpr int MaxExpressions = 16;

/// Sampling edge as stored.
enum SampleEdge : int { RisingEdge = 0, FallingEdge = 1 };
/// Trigger mode as stored.
enum TriggerMode : int { StaticTrigger = 0, DynamicTrigger = 1 };
/// Storage of a capture or of the Dynamic trigger, as stored (not the order in which editors list them).
enum Implementation : int { BsramImplementation = 0, RegImplementation = 1, SsramImplementation = 2 };

/// One analyzer core of Standard mode. Always has 16 trigger ports and 16 match units, which it owns.
class HOST_EXPORT AoCore
{
public:
    explicit AoCore(int index);
    ~AoCore();
    AoCore(const AoCore &) = delete;
    AoCore &operator=(const AoCore &) = delete;

    /// The core's number, 0 .. MaxCores - 1.
    int index() const;
    void setIndex(int index);

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

    /// Full path name of the clock net; empty when none is chosen.
    QString sampleClock() const;
    void setSampleClock(const QString &name);
    /// A SampleEdge value.
    int sampleEdge() const;
    void setSampleEdge(int edge);

    /// Samples that the core stores; the editor offers 4 .. 65536, powers of two.
    int storageSize() const;
    void setStorageSize(int samples);
    int segmentNumber() const;
    void setSegmentNumber(int segments);
    /// Samples in each segment.
    int captureAmount() const;
    void setCaptureAmount(int samples);
    /// Samples before the trigger sample, 0 .. captureAmount() - 4.
    int triggerPosition() const;
    void setTriggerPosition(int samples);
    /// Storage of the capture, an Implementation value.
    int captureImplementation() const;
    void setCaptureImplementation(int implementation);
    bool forceTriggerByFallingEdge() const;
    void setForceTriggerByFallingEdge(bool on);
    bool captureInitialData() const;
    void setCaptureInitialData(bool on);

    /// All capture signals in order, most significant first, captured or not.
    QList<SignalItem> getallCapSignal() const;
    void setallCapSignal(const QList<SignalItem> &signalItems);
    /// Those of the capture signals that are captured.
    QList<SignalItem> getDataSignal() const;
    void setDataSignal(const QList<SignalItem> &signalItems);

    /// The design module that the core is inserted into.
    QString moduleName() const;
    void setModuleName(const QString &name);

    ForeignXml foreign() const;
    void setForeign(const ForeignXml &foreign);
    /// What the file's root carried beyond this version's knowledge; the first core of a list keeps it for the file.
    ForeignXml foreignOfRoot() const;
    void setForeignOfRoot(const ForeignXml &foreign);

private:
    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace VAK

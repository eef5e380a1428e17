// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <VakUtils/signalitem.h>

#include <hostglobal.h>

#include <QList>
#include <QString>

#include <memory>

namespace VAK {

constexpr int MaxCores = 16;

/// Sampling edge as stored.
enum SampleEdge : int { RisingEdge = 0, FallingEdge = 1 };
/// Storage of a capture or of the Dynamic trigger, as stored (not the order in which editors list them).
enum Implementation : int { BsramImplementation = 0, RegImplementation = 1, SsramImplementation = 2 };

/// What an analyzer core of either mode has: its number, its clock, its capture. Owned as what it is, never as this.
class HOST_EXPORT AnalyzerCore
{
public:
    AnalyzerCore(const AnalyzerCore &) = delete;
    AnalyzerCore &operator=(const AnalyzerCore &) = delete;

    /// The core's number, 0 .. MaxCores - 1.
    int index() const;
    void setIndex(int index);

    /// Full path name of the clock net; empty when none is chosen.
    QString sampleClock() const;
    void setSampleClock(const QString &name);
    /// A SampleEdge value.
    int sampleEdge() const;
    void setSampleEdge(int edge);

    /// Samples stored, in each segment where there are segments; editors offer powers of two.
    int captureAmount() const;
    void setCaptureAmount(int samples);
    /// Storage of the capture, an Implementation value.
    int captureImplementation() const;
    void setCaptureImplementation(int implementation);
    bool captureInitialData() const;
    void setCaptureInitialData(bool on);

    /// All capture signals in order, most significant first, captured or not.
    QList<SignalItem> getallCapSignal() const;
    void setallCapSignal(const QList<SignalItem> &signalItems);
    /// Those of the capture signals that are captured.
    QList<SignalItem> getDataSignal() const;

    /// The design module that the core is inserted into.
    QString moduleName() const;
    void setModuleName(const QString &name);

    ForeignXml foreign() const;
    void setForeign(const ForeignXml &foreign);
    /// What the file's root carried beyond this version's knowledge; the first core of a list keeps it for the file.
    ForeignXml foreignOfRoot() const;
    void setForeignOfRoot(const ForeignXml &foreign);

protected:
    explicit AnalyzerCore(int index);
    ~AnalyzerCore();
    /// Both modes have this setter, each under a name of its own.
    void replaceDataSignals(const QList<SignalItem> &signalItems);

private:
    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace VAK

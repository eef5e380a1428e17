// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include <VakUtils/analyzercore.h>

namespace VAK {

struct AnalyzerCore::Private
{
    int index = 0;
    QString sampleClock;
    int sampleEdge = RisingEdge;
    int captureAmount = 1024;
    int captureImplementation = BsramImplementation;
    bool captureInitialData = false;
    QList<SignalItem> allCapSignals;
    QList<SignalItem> dataSignals;
    QString moduleName;
    ForeignXml foreign;
    ForeignXml foreignOfRoot;
};

AnalyzerCore::AnalyzerCore(int index)
    : d(std::make_unique<Private>())
{
    d->index = index;
}

AnalyzerCore::~AnalyzerCore() = default;

int AnalyzerCore::index() const
{
    return d->index;
}

void AnalyzerCore::setIndex(int index)
{
    d->index = index;
}

QString AnalyzerCore::sampleClock() const
{
    return d->sampleClock;
}

void AnalyzerCore::setSampleClock(const QString &name)
{
    d->sampleClock = name;
}

int AnalyzerCore::sampleEdge() const
{
    return d->sampleEdge;
}

void AnalyzerCore::setSampleEdge(int edge)
{
    d->sampleEdge = edge;
}

int AnalyzerCore::captureAmount() const
{
    return d->captureAmount;
}

void AnalyzerCore::setCaptureAmount(int samples)
{
    d->captureAmount = samples;
}

int AnalyzerCore::captureImplementation() const
{
    return d->captureImplementation;
}

void AnalyzerCore::setCaptureImplementation(int implementation)
{
    d->captureImplementation = implementation;
}

bool AnalyzerCore::captureInitialData() const
{
    return d->captureInitialData;
}

void AnalyzerCore::setCaptureInitialData(bool on)
{
    d->captureInitialData = on;
}

QList<SignalItem> AnalyzerCore::getallCapSignal() const
{
    return d->allCapSignals;
}

void AnalyzerCore::setallCapSignal(const QList<SignalItem> &signalItems)
{
    d->allCapSignals = signalItems;
}

QList<SignalItem> AnalyzerCore::getDataSignal() const
{
    return d->dataSignals;
}

QString AnalyzerCore::moduleName() const
{
    return d->moduleName;
}

void AnalyzerCore::setModuleName(const QString &name)
{
    d->moduleName = name;
}

ForeignXml AnalyzerCore::foreign() const
{
    return d->foreign;
}

void AnalyzerCore::setForeign(const ForeignXml &foreign)
{
    d->foreign = foreign;
}

ForeignXml AnalyzerCore::foreignOfRoot() const
{
    return d->foreignOfRoot;
}

void AnalyzerCore::setForeignOfRoot(const ForeignXml &foreign)
{
    d->foreignOfRoot = foreign;
}

void AnalyzerCore::replaceDataSignals(const QList<SignalItem> &signalItems)
{
    d->dataSignals = signalItems;
}

} // namespace VAK

// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include <VakUtils/aocorelite.h>

#include <utility>

namespace VAK {

struct AOCore_Lite::Private
{
    int index = 0;
    QString sampleClock;
    int sampleEdge = RisingEdge;
    int captureAmount = 1024;
    int captureImplementation = BsramImplementation;
    bool enableInputRegister = false;
    bool captureInitialData = false;
    QList<SignalItem> allCapSignals;
    QList<SignalItem> dataSignals;
    QString moduleName;
    ForeignXml foreign;
    ForeignXml foreignOfRoot;
};

AOCore_Lite::AOCore_Lite(int index)
    : d(std::make_unique<Private>())
{
    d->index = index;
}

AOCore_Lite::~AOCore_Lite() = default;

int AOCore_Lite::index() const
{
    return d->index;
}

void AOCore_Lite::setIndex(int index)
{
    d->index = index;
}

QString AOCore_Lite::sampleClock() const
{
    return d->sampleClock;
}

void AOCore_Lite::setSampleClock(const QString &name)
{
    d->sampleClock = name;
}

int AOCore_Lite::sampleEdge() const
{
    return d->sampleEdge;
}

void AOCore_Lite::setSampleEdge(int edge)
{
    d->sampleEdge = edge;
}

int AOCore_Lite::captureAmount() const
{
    return d->captureAmount;
}

void AOCore_Lite::setCaptureAmount(int samples)
{
    d->captureAmount = samples;
}

int AOCore_Lite::captureImplementation() const
{
    return d->captureImplementation;
}

void AOCore_Lite::setCaptureImplementation(int implementation)
{
    d->captureImplementation = implementation;
}

bool AOCore_Lite::enableInputRegister() const
{
    return d->enableInputRegister;
}

void AOCore_Lite::setEnableInputRegister(bool on)
{
    d->enableInputRegister = on;
}

bool AOCore_Lite::captureInitialData() const
{
    return d->captureInitialData;
}

void AOCore_Lite::setCaptureInitialData(bool on)
{
    d->captureInitialData = on;
}

QList<SignalItem> AOCore_Lite::getallCapSignal() const
{
    return d->allCapSignals;
}

void AOCore_Lite::setallCapSignal(const QList<SignalItem> &signalItems)
{
    d->allCapSignals = signalItems;
}

QList<SignalItem> AOCore_Lite::getDataSignal() const
{
    return d->dataSignals;
}

void AOCore_Lite::setDataSignals(QList<SignalItem> signalItems)
{
    d->dataSignals = std::move(signalItems);
}

QString AOCore_Lite::moduleName() const
{
    return d->moduleName;
}

void AOCore_Lite::setModuleName(const QString &name)
{
    d->moduleName = name;
}

ForeignXml AOCore_Lite::foreign() const
{
    return d->foreign;
}

void AOCore_Lite::setForeign(const ForeignXml &foreign)
{
    d->foreign = foreign;
}

ForeignXml AOCore_Lite::foreignOfRoot() const
{
    return d->foreignOfRoot;
}

void AOCore_Lite::setForeignOfRoot(const ForeignXml &foreign)
{
    d->foreignOfRoot = foreign;
}

} // namespace VAK

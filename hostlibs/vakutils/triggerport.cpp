// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include <VakUtils/triggerport.h>

namespace VAK {

struct TriggerPort::Private
{
    int index = 0;
    QList<SignalItem> signalNet;
    ForeignXml foreign;
};

TriggerPort::TriggerPort(int index)
    : d(std::make_unique<Private>())
{
    d->index = index;
}

TriggerPort::~TriggerPort() = default;

int TriggerPort::index() const
{
    return d->index;
}

QList<SignalItem> TriggerPort::getSignalNet() const
{
    return d->signalNet;
}

void TriggerPort::setSignalNet(const QList<SignalItem> &signalNet)
{
    d->signalNet = signalNet;
}

int TriggerPort::width() const
{
    int inputs = 0;
    for (const SignalItem &signal : qAsConst(d->signalNet))
        inputs += signal.inputCount();
    return inputs;
}

bool TriggerPort::isAvailable() const
{
    return !d->signalNet.isEmpty();
}

ForeignXml TriggerPort::foreign() const
{
    return d->foreign;
}

void TriggerPort::setForeign(const ForeignXml &foreign)
{
    d->foreign = foreign;
}

} // namespace VAK

// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include <VakUtils/aocorelite.h>

namespace VAK {

struct AOCore_Lite::Private
{
    bool enableInputRegister = false;
};

AOCore_Lite::AOCore_Lite(int index)
    : AnalyzerCore(index)
    , d(std::make_unique<Private>())
{
}

AOCore_Lite::~AOCore_Lite() = default;

bool AOCore_Lite::enableInputRegister() const
{
    return d->enableInputRegister;
}

void AOCore_Lite::setEnableInputRegister(bool on)
{
    d->enableInputRegister = on;
}

void AOCore_Lite::setDataSignals(QList<SignalItem> signalItems)
{
    replaceDataSignals(signalItems);
}

} // namespace VAK

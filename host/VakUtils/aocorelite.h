// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <VakUtils/analyzercore.h>

namespace VAK {

/// One analyzer core of Lite mode: capture settings only.
class HOST_EXPORT AOCore_Lite : public AnalyzerCore // spelling fixed by the interface
{
public:
    explicit AOCore_Lite(int index);
    ~AOCore_Lite();

    /// Whether data is registered at the sample clock before the storage.
    bool enableInputRegister() const;
    void setEnableInputRegister(bool on);

    void setDataSignals(QList<SignalItem> signalItems); // spelling fixed by the interface

private:
    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace VAK

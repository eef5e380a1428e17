// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <VakUtils/aocore.h>

namespace VAK {

/// One analyzer core of Lite mode: capture settings only.
class HOST_EXPORT AOCore_Lite // spelling fixed by the interface
{
public:
    explicit AOCore_Lite(int index);
    ~AOCore_Lite();
    AOCore_Lite(const AOCore_Lite &) = delete;
    AOCore_Lite &operator=(const AOCore_Lite &) = delete;

    int index() const;
    void setIndex(int index);

    QString sampleClock() const;
    void setSampleClock(const QString &name);
    /// A SampleEdge value.
    int sampleEdge() const;
    void setSampleEdge(int edge);
    /// Samples stored; the editor offers 2 .. 65536, powers of two.
    int captureAmount() const;
    void setCaptureAmount(int samples);
    /// Storage of the capture, an Implementation value.
    int captureImplementation() const;
    void setCaptureImplementation(int implementation);
    /// Whether data is registered at the sample clock before the storage.
    bool enableInputRegister() const;
    void setEnableInputRegister(bool on);
    bool captureInitialData() const;
    void setCaptureInitialData(bool on);

    QList<SignalItem> getallCapSignal() const;
    void setallCapSignal(const QList<SignalItem> &signalItems);
    QList<SignalItem> getDataSignal() const;
    void setDataSignals(QList<SignalItem> signalItems); // spelling fixed by the interface

    QString moduleName() const;
    void setModuleName(const QString &name);

    ForeignXml foreign() const;
    void setForeign(const ForeignXml &foreign);
    ForeignXml foreignOfRoot() const;
    void setForeignOfRoot(const ForeignXml &foreign);

private:
    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace VAK

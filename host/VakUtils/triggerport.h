// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <VakUtils/signalitem.h>

#include <hostglobal.h>

#include <memory>

namespace VAK {

/// One trigger port of a core. The core owns it.
class HOST_EXPORT TriggerPort
{
public:
    explicit TriggerPort(int index);
    ~TriggerPort();
    TriggerPort(const TriggerPort &) = delete;
    TriggerPort &operator=(const TriggerPort &) = delete;

    /// The port's number within its core, 0 .. 15.
    int index() const;
    /// The signals that feed the port, most significant first.
    QList<SignalItem> getSignalNet() const;
    /// Replaces the signals. Values of match units that watch the port stay as they are.
    void setSignalNet(const QList<SignalItem> &signalNet);
    /// Trigger inputs: the sum of inputCount() over the signals; flags do not count.
    int width() const;
    /// Whether the port is in use, that is, has a signal.
    bool isAvailable() const;

    ForeignXml foreign() const;
    void setForeign(const ForeignXml &foreign);

private:
    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace VAK

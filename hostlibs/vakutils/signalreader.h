// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <VakUtils/signalitem.h>

#include <optional>

namespace VAK {

class XmlCursor;
class XmlElement;

/// Reads the signals of a file and counts their inputs, so that a short file cannot ask for more than the memory holds.
class SignalReader
{
public:
    explicit SignalReader(XmlCursor *cursor);

    /// The signal that begins with `element`, read to its end; nothing when the element is no signal.
    std::optional<SignalItem> read(XmlElement &element);

private:
    SignalItem readFields(XmlElement &element);
    void readMembers(XmlElement &element, SignalItem *signal);
    void readRange(XmlElement &element, SignalItem *signal);
    bool countInputs(const XmlElement &element, qint64 members, qint64 added);

    XmlCursor *m_cursor;
    qint64 m_inputs = 0;
};

} // namespace VAK

// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <VakUtils/signalitem.h>

namespace VAK {

class AoCore;
class SignalReader;
class XmlCursor;
class XmlElement;

/// Reads the element <trigger> with its ports, units and expressions into the core; what it does not know goes into
/// `foreign`.
void readTrigger(XmlCursor *cursor, XmlElement &element, SignalReader *signalReader, AoCore *core, ForeignXml *foreign);

} // namespace VAK

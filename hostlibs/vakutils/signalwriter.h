// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <VakUtils/signalitem.h>

namespace VAK {

class XmlWriter;

void writeSignal(XmlWriter *writer, const SignalItem &signal);

} // namespace VAK

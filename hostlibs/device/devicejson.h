// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QList>
#include <QString>

namespace DEV {

struct Device;

/// Reads the devices of a catalogue text. Every figure must be there and plausible; on failure `*error` (may be null)
/// names the device and the key.
bool devicesFromJson(const QByteArray &json, QList<Device> *devices, QString *error);

} // namespace DEV

// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QByteArray>
#include <QString>

namespace NETCATCHER {

/// The name in the source behind one that Verilator made a plain identifier of: `__024add` is `$add`. Some places of
/// the XML have the one form, some the other.
QByteArray decodedVerilatorName(const QByteArray &name);

/// Bytes of a source as UTF-8: as they are when they are that, as Latin-1 otherwise.
QByteArray utf8OfSource(const QByteArray &bytes);

/// The value of a constant as Verilator writes it (`32'shfffffffc` is -4); false when it is no number of 32 bits.
bool parseVerilatorConstant(const QString &text, int *value);

} // namespace NETCATCHER

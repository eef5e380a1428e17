// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QStringList>

#include <optional>

namespace RTLVAK {

/// The text that editors show for a stored implementation code; empty for a code that none has.
QString implementationName(int code);
/// The code to store for a shown text; every text that is neither "SSRAM" nor "REG" counts as block RAM.
int implementationCode(const QString &name);
/// The same for a Lite core, where every text that is neither "BSRAM" nor "SSRAM" counts as registers.
int liteImplementationCode(const QString &name);
/// Whether a Lite core that captures initial data needs its input register with the implementation shown; nothing for a
/// text that is no implementation.
std::optional<bool> inputRegisterFor(const QString &implementation);

/// The bits that a Standard capture needs in registers or shadow RAM: one trigger mark is stored beside each sample.
qint64 standardCaptureBits(int width, int depth);
/// The bits that a Lite capture needs.
qint64 liteCaptureBits(int width, int depth);

/// The implementations that can hold `bits` on a device with or without shadow RAM, in the order in which they are
/// offered.
QStringList captureImplementations(bool hasShadowRam, qint64 bits);
/// Whether a combo box that holds `count` entries with `current` shown counts as holding `offered` already. It is
/// judged by these two alone, so a two-entry list is rebuilt unless its second entry is current.
bool isImplementationListCurrent(const QStringList &offered, int count, const QString &current);
/// The entry of `offered` to select where `previous` was shown: the same one, else the first.
int reselectedImplementation(const QStringList &offered, const QString &previous);

/// The implementations of the Dynamic trigger on a device with or without shadow RAM.
QStringList triggerImplementations(bool hasShadowRam);

} // namespace RTLVAK

// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QList>
#include <QString>

namespace RTLVAK {

/// The storage sizes that a Standard core offers: 4, 8, 16 .. 65536 samples.
QList<int> storageSizeChoices();
/// The capture amounts that a Lite core offers: 2, 4, 8 .. 65536 samples.
QList<int> liteCaptureAmountChoices();
/// How many segments a storage of `storage` samples offers: every number from 1 to this one.
int segmentChoiceCount(int storage);
/// The capture amounts that one of `segments` segments of a storage of `storage` samples offers: 4, 8, 16 .. as many as
/// fit. The storage is divided by the next power of two of `segments`; empty when `segments` is not positive.
QList<int> captureAmountChoices(int storage, int segments);
/// The highest trigger position in a segment of `captureAmount` samples; 0 when there is none.
int maxTriggerPosition(int captureAmount);
/// The decimal number that `text` shows; 0 when it shows none.
int numberShown(const QString &text);

} // namespace RTLVAK

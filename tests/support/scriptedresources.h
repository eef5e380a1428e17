// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QStringList>

/// The resource functions of the model library with scripted answers. A test program that lists scriptedresources.cpp
/// among its sources defines them itself and so comes before the library.
namespace support {

struct Capacity
{
    int bsram = 0;
    int ssram = 0;
    int reg = 0;
};

/// Back to no capacity, a need of 0 for everything, nothing recorded.
void resetResources();
/// What every device has.
void setCapacity(const Capacity &capacity);
/// What every "required" function answers.
void setNeed(int need);
/// The calls since the reset, in order: "function(arguments)".
QStringList resourceCalls();
/// Those of them that begin with `prefix`.
QStringList resourceCalls(const QString &prefix);

} // namespace support

// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QStringList>

class QObject;

namespace support {

/// What is connected to a signal of `sender`, one line per connection: the receiver and its slot, or
/// "<functor or function pointer>" for one that was connected by pointers. Shows what no count of effects can: whether
/// a slot that is connected by its name is connected by hand as well.
QStringList receiversOf(QObject &sender, const QString &signal);

} // namespace support

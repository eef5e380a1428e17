// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QString>

class QAction;

namespace Core {

/// The action registered for `id` in `context`; null when there is none or it was deleted.
QAction *registeredAction(const QString &id, const QString &context);

} // namespace Core

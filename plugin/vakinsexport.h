// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtGlobal>

/// Marks the classes of the module that its users outside the library may call.
#define VAKINS_EXPORT Q_DECL_EXPORT

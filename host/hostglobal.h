// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtGlobal>

/// Marks what a host library offers to plug-ins. The same declaration serves the library that defines the symbol and
/// the code that uses it.
#define HOST_EXPORT Q_DECL_EXPORT

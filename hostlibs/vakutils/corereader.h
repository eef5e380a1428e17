// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "fileerror.h"

#include <VakUtils/vakfile.h>

#include <QByteArray>

namespace VAK {

/// Read the cores of a configuration's text; the caller owns them. On failure the list is empty and `*error` is set.
/// With Checks::Structure the cores hold only what could be read without looking at values.
QList<AoCore *> readStandardCores(const QByteArray &data, Checks checks, FileError *error);
QList<AOCore_Lite *> readLiteCores(const QByteArray &data, Checks checks, FileError *error);

/// The mode that the root element names.
VakMode modeOf(const QByteArray &data);

} // namespace VAK

// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <VakUtils/signalitem.h>

namespace VAK {

/// A core's foreign content also holds that of the elements which have no object of their own in the model (clock,
/// trigger, capture, expressions): under the attribute name `PART/NAME`, and child elements under `PART/`. A slash
/// cannot occur in an attribute's name, so these never meet the core's own.

/// Adds what belongs to `part`; what is already there stays.
void addForeignPart(ForeignXml *foreign, const QString &part, const ForeignXml &content);
/// What belongs to `part`; to the core itself for an empty one.
ForeignXml foreignPart(const ForeignXml &foreign, const QString &part);
/// The part of an expression: its text, so that it follows the expression when others come and go.
QString expressionPart(const QString &expression);

} // namespace VAK

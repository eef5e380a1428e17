// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "hostlibs/netcatcher/engine/enginemessages.h"

namespace NETCATCHER {

/// The messages in the VHDL engine's output, without its quotations of source lines, notes, and the hierarchy. When
/// that was elaborated with success, what follows it comes from the simulation and is left out.
QVector<EngineMessage> parseGhdlMessages(const QByteArray &output, bool isElaborated);

/// The message as users see it: "ERROR: FILE:LINE: text" or "WARNING: ...", with their own paths and, where it is
/// known, what to do about it.
QString ghdlUserMessage(const EngineMessage &message, const PrivateFolder &folder);

/// What users are told about a run that did not succeed, without "ERROR: "; empty when the engine's own messages
/// suffice.
QString ghdlFailureMessage(const EngineResult &result, const EngineLimits &limits, bool hasErrors);

} // namespace NETCATCHER

// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QByteArray>
#include <QString>
#include <QVector>

#include <cstddef>

namespace NETCATCHER {

class PrivateFolder;
struct EngineLimits;
struct EngineResult;

/// One message of the Verilog engine.
struct EngineMessage
{
    bool isError = false;
    QString code; ///< "PINNOTFOUND"; often empty
    QString file; ///< plain name; empty when the message is about no place
    int line = 0;
    QString text;

    /// Whether the engine stumbled over the text itself, not over what it means.
    bool isSyntaxError() const;
};

/// What to do about a message.
struct Advice
{
    const char *text;   ///< what the engine's message holds
    const char *advice; ///< what users can do
};

/// The messages in the engine's output, without its quotations of source lines, its closing remarks, and complaints
/// about itself that follow from an error in the sources.
QVector<EngineMessage> parseEngineMessages(const QByteArray &output);

/// The message as users see it: "ERROR: FILE:LINE: text" or "WARNING: ...", with their own paths and, where it is
/// known, what to do about it.
QString userMessage(const EngineMessage &message, const PrivateFolder &folder);
/// The same for an engine with advices of its own, of which the first that fits is given.
QString userMessage(const EngineMessage &message, const PrivateFolder &folder, const Advice *advices,
                    std::size_t count);

/// What users are told about the engine of a language that did not succeed, without "ERROR: "; empty when its own
/// messages suffice.
QString failureMessage(const EngineResult &result, const EngineLimits &limits, bool hasErrors, const QString &language);

} // namespace NETCATCHER

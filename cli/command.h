// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QStringList>

class QCommandLineParser;
class QTextStream;

/// What the program answers to the shell.
enum ExitStatus : int {
    Success = 0,
    Failure = 1,   ///< a file or design could not be read, or holds an error
    UsageError = 2 ///< the command line was not understood
};

/// A subcommand of rtlvak.
struct Command
{
    const char *name;
    const char *summary;
    /// Runs with the arguments after the subcommand's name; answers an ExitStatus.
    int (*run)(const QStringList &arguments);
};

/// Standard output and standard error as UTF-8.
QTextStream &standardOutput();
QTextStream &standardError();

/// Parses the arguments of subcommand `command`, whose usage line goes on with `operands` ("FILE..."). Adds and serves
/// `--help`. Answers the status to end with, or -1 to go on.
int parseArguments(QCommandLineParser *parser, const QString &command, const QString &operands,
                   const QStringList &arguments);
/// Says on standard error what is wrong with the command line, and where to read on; answers UsageError.
int usageError(const QString &command, const QString &message);

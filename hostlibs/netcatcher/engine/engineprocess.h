// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QByteArray>
#include <QProcess>
#include <QString>
#include <QStringList>

#include <functional>

namespace NETCATCHER {

/// What an engine may use up before it is ended.
struct EngineLimits
{
    qint64 milliseconds = 15 * 60 * 1000; ///< of all runs for one design
    quint64 memoryBytes = 0;              ///< of address space; 0: three quarters of the machine's memory
    quint64 fileBytes = quint64(8) << 30; ///< of one file that it writes
};

/// How an engine run ended.
struct EngineResult
{
    enum Outcome {
        Finished,   ///< by itself, with or without success
        NotStarted, ///< the program is missing or cannot be run
        Unconfined, ///< the kernel offers Landlock, but did not let the program be confined; it was not run
        Crashed,    ///< ended by a signal
        TimedOut,
        Enough, ///< ended by `isEnough`
    };

    Outcome outcome = NotStarted;
    int exitCode = -1;       ///< the signal's number when it crashed
    bool isConfined = false; ///< by Landlock
    QByteArray messages;     ///< what it wrote to its standard channels
};

/// Runs an engine in `folder`: without a shell, in a small environment, within limits, never longer than this process
/// lives, and, where the kernel offers Landlock, unable to write anywhere else or to use a network. `idle` is called
/// about twenty times a second while it works; so is `isEnough`, which ends it by answering true.
EngineResult runEngine(const QString &program, const QStringList &arguments, const QString &folder,
                       const EngineLimits &limits, const std::function<void()> &idle,
                       const std::function<bool()> &isEnough = {});

} // namespace NETCATCHER

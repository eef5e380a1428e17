// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QStringList>

/// What a run of rtlvak left behind.
struct CliRun
{
    int status = -1; ///< -1 when the program crashed or did not end
    QString output;
    QString error;                ///< without the warning about missing Landlock, which depends on the machine
    bool warnsOfLandlock = false; ///< whether that was given
};

/// Runs the rtlvak that was built, with no display to be had.
CliRun runRtlvak(const QStringList &arguments);

// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "runrtlvak.h"

#include "support/fakelandlock.h"

#include <QProcess>

CliRun runRtlvak(const QStringList &arguments)
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char *variable : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
        environment.remove(QLatin1String(variable));
    process.setProcessEnvironment(environment);
    process.start(QStringLiteral(RTLVAK_BINARY), arguments);
    CliRun run;
    if (process.waitForFinished(60000) && process.exitStatus() == QProcess::NormalExit)
        run.status = process.exitCode();
    run.output = QString::fromUtf8(process.readAllStandardOutput());
    run.error = QString::fromUtf8(process.readAllStandardError());
    run.warnsOfLandlock = run.error.contains(QLatin1String(support::noLandlockWarning));
    run.error.remove(QLatin1String(support::noLandlockWarning) + QLatin1Char('\n'));
    return run;
}

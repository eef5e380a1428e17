// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "command.h"
#include "commands.h"
#include "showconfig.h"

#include "hostlibs/device/devicecatalogue.h"

#include <QCommandLineParser>
#include <QTextStream>

static const QString commandName = QStringLiteral("show");

/// `FILE:LINE:COLUMN: message`, as editors and build servers understand it.
static int reportError(const QString &path, const VAK::FileError &error)
{
    standardError() << path << ':';
    if (error.line > 0)
        standardError() << error.line << ':' << error.column << ':';
    standardError() << ' ' << error.message << '\n' << Qt::flush;
    return Failure;
}

static int show(const QString &path, const DEV::Device *device, bool json)
{
    VAK::FileError error;
    std::optional<ShownConfig> config = loadConfig(path, &error);
    if (!config)
        return reportError(path, error);
    config->device = device;
    standardOutput() << (json ? QString::fromUtf8(jsonReport(*config)) : textReport(*config)) << Qt::flush;
    return Success;
}

int runShow(const QStringList &arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral(
        "Prints what an analyzer configuration says: its mode and, for each core, clock, trigger and "
        "capture with all signals. With a device, also what the capture and a Dynamic trigger need of it."));
    const QCommandLineOption deviceOption(QStringLiteral("device"),
                                          QStringLiteral("Compare with this device ('rtlvak devices' lists them)."),
                                          QStringLiteral("name"));
    const QCommandLineOption json(QStringLiteral("json"), QStringLiteral("Print JSON."));
    parser.addOptions({deviceOption, json});
    const int status = parseArguments(&parser, commandName, QStringLiteral("FILE"), arguments);
    if (status >= 0)
        return status;
    if (parser.positionalArguments().size() != 1)
        return usageError(commandName, QStringLiteral("expects one file."));
    const DEV::Device *device = nullptr;
    if (parser.isSet(deviceOption)) {
        const QString name = parser.value(deviceOption);
        device = DEV::DeviceCatalogue::instance().find(name);
        if (!device)
            return usageError(commandName,
                              QStringLiteral("unknown device '%1'; 'rtlvak devices' lists them.").arg(name));
    }
    return show(parser.positionalArguments().first(), device, parser.isSet(json));
}

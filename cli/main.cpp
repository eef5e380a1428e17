// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "command.h"
#include "commands.h"

#include <QCoreApplication>
#include <QTextStream>

#include <algorithm>
#include <iterator>

static const Command commands[] = {
    {"devices", "list the devices and what they offer", runDevices},
    {"show", "say what a configuration file holds", runShow},
    {"nets", "list the nets and buses of a design", runNets},
};

static void printUsage(QTextStream &stream)
{
    stream << "Usage: rtlvak COMMAND [options] [arguments]\n"
              "Works with embedded logic analyzer configurations without a display.\n\nCommands:\n";
    for (const Command &command : commands)
        stream << "  " << QString::fromLatin1(command.name).leftJustified(12) << command.summary << '\n';
    stream << "\n'rtlvak COMMAND --help' explains a command; 'rtlvak --version' prints the version.\n" << Qt::flush;
}

static int runCommand(const QStringList &arguments)
{
    const QString name = arguments.value(0);
    const auto found = std::find_if(std::begin(commands), std::end(commands),
                                    [&name](const Command &command) { return name == QLatin1String(command.name); });
    if (found != std::end(commands))
        return found->run(arguments.mid(1));
    if (name == QLatin1String("--help") || name == QLatin1String("-h")) {
        printUsage(standardOutput());
        return Success;
    }
    if (name == QLatin1String("--version")) {
        standardOutput() << "rtlvak " << QCoreApplication::applicationVersion() << '\n' << Qt::flush;
        return Success;
    }
    if (!name.isEmpty())
        standardError() << "rtlvak: unknown command '" << name << "'\n";
    printUsage(standardError());
    return UsageError;
}

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("rtlvak"));
    QCoreApplication::setApplicationVersion(QStringLiteral(RTLVAK_VERSION));
    return runCommand(QCoreApplication::arguments().mid(1));
}

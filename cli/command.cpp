// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "command.h"

#include <QCommandLineParser>
#include <QTextStream>

#include <cstdio>

static void configure(QTextStream *stream)
{
    stream->setCodec("UTF-8");
}

QTextStream &standardOutput()
{
    static QTextStream stream(stdout);
    configure(&stream);
    return stream;
}

QTextStream &standardError()
{
    static QTextStream stream(stderr);
    configure(&stream);
    return stream;
}

/// The parser's own text names the program without the subcommand.
static QString helpText(const QCommandLineParser &parser, const QString &command, const QString &operands)
{
    QString text = parser.helpText();
    const int endOfUsage = text.indexOf(QLatin1Char('\n'));
    return QStringLiteral("Usage: rtlvak %1 [options] %2").arg(command, operands).trimmed() + text.mid(endOfUsage);
}

int parseArguments(QCommandLineParser *parser, const QString &command, const QString &operands,
                   const QStringList &arguments)
{
    const QCommandLineOption help({QStringLiteral("h"), QStringLiteral("help")}, QStringLiteral("Show this help."));
    parser->addOption(help);
    if (!parser->parse(QStringList(QStringLiteral("rtlvak")) + arguments))
        return usageError(command, parser->errorText());
    if (!parser->isSet(help))
        return -1;
    standardOutput() << helpText(*parser, command, operands) << Qt::flush;
    return Success;
}

int usageError(const QString &command, const QString &message)
{
    standardError() << "rtlvak " << command << ": " << message << "\n"
                    << "Try 'rtlvak " << command << " --help'.\n"
                    << Qt::flush;
    return UsageError;
}

// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "enginemessages.h"

#include "privatefolder.h"

#include <QRegularExpression>

#include <algorithm>
#include <iterator>

namespace NETCATCHER {

namespace {

struct Advice
{
    const char *text;   ///< what the engine's message holds
    const char *advice; ///< what to do about it
};

} // namespace

static const Advice advices[] = {
    {"Cannot find include file", "add the folder of that file to the include paths"},
    {"Importing from missing package", "add the file that declares the package to the project"},
    {"Package/class", "add the file that declares the package to the project"},
    {"Bad package link", "add the file that declares the package to the project"},
    {"Interfaced port on top level", "choose a module without interface ports as the top module"},
    {"Parent instance's interface is not found", "choose a module without interface ports as the top module"},
    {"mismatch between port which is not an interface",
     "only modules with source can have interface ports; add the file that declares the module"},
    {"--top-module", "set another top module"},
    {"instantiation recursion", "a module instantiates itself without end"},
    {"Recursive multiple modules", "modules instantiate each other without end"},
    {"Internal Error", "the Verilog engine failed here; set the top module, or disable the file that it names"},
};

/// Remarks that only repeat what other lines say.
static const char *const remarks[] = {
    "Exiting due to",
    "Cannot continue",
    "This may be because there's no search path",
    "Command Failed",
};

static bool isRemark(const QString &text)
{
    return std::any_of(std::begin(remarks), std::end(remarks),
                       [&text](const char *remark) { return text.startsWith(QLatin1String(remark)); });
}

QVector<EngineMessage> parseEngineMessages(const QByteArray &output)
{
    static const QRegularExpression line(QStringLiteral("^%(Error|Warning)(?:-(\\w+))?: (.*)$"));
    static const QRegularExpression place(QStringLiteral("^(Internal Error: )?(vak.+?):(\\d+):(?:\\d+:)? (.*)$"));
    static const QRegularExpression ownSource(QStringLiteral("\\.\\./\\w+\\.(?:cpp|h):\\d+: "));
    QVector<EngineMessage> messages;
    const QStringList lines = QString::fromUtf8(output).split(QLatin1Char('\n'));
    for (const QString &each : lines) {
        const QRegularExpressionMatch match = line.match(each);
        if (!match.hasMatch())
            continue;
        EngineMessage message;
        message.isError = match.captured(1) == QLatin1String("Error");
        message.code = match.captured(2);
        message.text = match.captured(3);
        const QRegularExpressionMatch located = place.match(message.text);
        if (located.hasMatch()) {
            message.file = located.captured(2);
            message.line = located.captured(3).toInt();
            message.text = located.captured(1) + located.captured(4);
        }
        message.text.remove(ownSource);
        if (!isRemark(message.text))
            messages.append(message);
    }
    return messages;
}

QString userMessage(const EngineMessage &message, const PrivateFolder &folder)
{
    QString result = message.isError ? QStringLiteral("ERROR: ") : QStringLiteral("WARNING: ");
    if (!message.file.isEmpty())
        result +=
            folder.userPath(message.file) + QLatin1Char(':') + QString::number(message.line) + QLatin1String(": ");
    result += folder.withUserPaths(message.text);
    for (const Advice &each : advices) {
        if (message.isError && message.text.contains(QLatin1String(each.text)))
            return result + QLatin1String(" (") + QLatin1String(each.advice) + QLatin1Char(')');
    }
    return result;
}

} // namespace NETCATCHER

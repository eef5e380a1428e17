// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "enginemessages.h"

#include "engineprocess.h"
#include "privatefolder.h"

#include <QRegularExpression>

#include <algorithm>
#include <csignal>
#include <iterator>

namespace NETCATCHER {

static const Advice verilogAdvices[] = {
    {"Cannot find include file", "add the folder of that file to the include paths"},
    {"Importing from missing package", "add the file that declares the package to the project"},
    {"expecting TYPE-IDENTIFIER", "add the file that declares the package to the project, or correct the type's name"},
    {"Bad package link", "add the file that declares the package to the project"},
    {"Interfaced port on top level", "choose a module without interface ports as the top module"},
    {"Parent instance's interface is not found", "choose a module without interface ports as the top module"},
    {"mismatch between port which is not an interface",
     "only modules with source can have interface ports; add the file that declares the module"},
    {"--module-recursion-depth", "a module instantiates itself without end"},
    {"declaration not found for port",
     "declare the port; modules that instantiate each other without end give this, too"},
    {"Recursive inclusion of file", "a file includes itself; guard it with `ifndef"},
    {"__pinNumber", "more pins are connected than the module has ports"},
    {"`pragma protect", "the file is encrypted; disable it, and its modules become black boxes"},
    {"`protected", "the file is encrypted; disable it, and its modules become black boxes"},
    {"Too many preprocessor tokens on a line", "break the line, or check the macros in it"},
    {"memory exhausted", "expressions or blocks are nested too deep; name their parts"},
    {"Internal Error", "the Verilog engine failed here; set the top module, or disable the file that it names"},
};

/// What to try when the design as a whole is too much.
static const char smallerTop[] = "set the top module to a part of the design";

namespace {

struct Ending
{
    int signal;
    const char *text; ///< %1 is the number of the signal, %2 the engine's language
};

} // namespace

/// Signals that tell more than that the engine failed.
static const Ending endings[] = {
    {SIGKILL, "The %2 engine was killed (signal %1), as the system does when memory runs out; close other "
              "programs, or set the top module to a part of the design."},
    {SIGTERM, "The %2 engine was ended from outside (signal %1); read the design again."},
    {SIGINT, "The %2 engine was ended from outside (signal %1); read the design again."},
    {SIGHUP, "The %2 engine was ended from outside (signal %1); read the design again."},
    {0, "The %2 engine crashed. Set the top module, or disable files one by one to find what it cannot read; a "
        "module that instantiates itself without end is a usual cause."},
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

static bool isInternal(const EngineMessage &message)
{
    return message.text.startsWith(QLatin1String("Internal Error"));
}

/// Where a source has errors, the engine's complaints about itself are of no use.
static void removeAftermath(QVector<EngineMessage> &messages)
{
    const bool hasCause = std::any_of(messages.cbegin(), messages.cend(), [](const EngineMessage &message) {
        return message.isError && !isInternal(message);
    });
    if (hasCause)
        messages.erase(std::remove_if(messages.begin(), messages.end(), isInternal), messages.end());
}

bool EngineMessage::isSyntaxError() const
{
    return isError && (text.startsWith(QLatin1String("syntax error")) ||
                       text.contains(QLatin1String("is a SystemVerilog keyword misused")));
}

QVector<EngineMessage> parseEngineMessages(const QByteArray &output)
{
    static const QRegularExpression line(QStringLiteral("^%(Error|Warning)(?:-(\\w+))?: (.*)$"));
    // Beside plain names there are the absolute ones of some includes, and whatever a `line directive says.
    static const QRegularExpression place(
        QStringLiteral("^(Internal Error: )?(vak.+?|[^\\s:'\"]+):(\\d+):(?:\\d+:)? (.*)$"));
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
        message.text = match.captured(3).remove(ownSource);
        const QRegularExpressionMatch located = place.match(message.text);
        if (located.hasMatch()) {
            message.file = located.captured(2);
            message.line = located.captured(3).toInt();
            message.text = located.captured(1) + located.captured(4);
        }
        if (!isRemark(message.text))
            messages.append(message);
    }
    removeAftermath(messages);
    return messages;
}

QString userMessage(const EngineMessage &message, const PrivateFolder &folder)
{
    return userMessage(message, folder, verilogAdvices, std::size(verilogAdvices));
}

QString userMessage(const EngineMessage &message, const PrivateFolder &folder, const Advice *advices, std::size_t count)
{
    QString result = message.isError ? QStringLiteral("ERROR: ") : QStringLiteral("WARNING: ");
    if (!message.file.isEmpty())
        result +=
            folder.userPath(message.file) + QLatin1Char(':') + QString::number(message.line) + QLatin1String(": ");
    result += folder.withUserPaths(message.text);
    const Advice *const end = advices + count;
    const Advice *const found = std::find_if(advices, end, [&message](const Advice &each) {
        return message.isError && message.text.contains(QLatin1String(each.text));
    });
    return found == end ? result : result + QLatin1String(" (") + QLatin1String(found->advice) + QLatin1Char(')');
}

/// The first line of what a program said that is not in the form of the engine's messages: the system's own, mostly.
static QString firstWords(const QByteArray &output)
{
    constexpr int maxLength = 200;
    const QStringList lines = QString::fromUtf8(output).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    return lines.isEmpty() ? QString() : lines.constFirst().simplified().left(maxLength);
}

static QString endingText(int signal, const QString &language)
{
    const auto found = std::find_if(std::begin(endings), std::end(endings), [signal](const Ending &ending) {
        return ending.signal == signal || ending.signal == 0;
    });
    QString text = QLatin1String(found->text);
    return text.replace(QLatin1String("%1"), QString::number(signal)).replace(QLatin1String("%2"), language);
}

QString failureMessage(const EngineResult &result, const EngineLimits &limits, bool hasErrors, const QString &language)
{
    const QLatin1String advice(smallerTop);
    if (result.outcome == EngineResult::TimedOut)
        return QStringLiteral("The %3 engine did not finish within %1 seconds and was ended; %2.")
            .arg(QString::number(limits.milliseconds / 1000), advice, language);
    if (result.messages.contains("bad_alloc") || result.messages.contains("Out of memory"))
        return QStringLiteral("The %2 engine ran out of memory; %1.").arg(advice, language);
    if (result.outcome == EngineResult::Crashed && result.exitCode == SIGXFSZ)
        return QStringLiteral("The result of the %3 engine exceeds the limit of %1 bytes; %2.")
            .arg(QString::number(limits.fileBytes), advice, language);
    if (result.outcome == EngineResult::Crashed)
        return endingText(result.exitCode, language);
    if (hasErrors)
        return {};
    const QString words = firstWords(result.messages);
    return words.isEmpty() ? QStringLiteral("The %1 engine failed without saying why.").arg(language)
                           : QStringLiteral("The %2 engine failed: %1").arg(words, language);
}

} // namespace NETCATCHER

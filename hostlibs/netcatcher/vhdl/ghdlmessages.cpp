// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "ghdlmessages.h"

#include "hostlibs/netcatcher/engine/engineprocess.h"
#include "hostlibs/netcatcher/engine/privatefolder.h"

#include <QRegularExpression>

#include <algorithm>
#include <iterator>

namespace NETCATCHER {

static const Advice advices[] = {
    {"cannot find resource library", "add the files of that library to the project, and name the library with them"},
    {"not found in library", "add the file that declares it to the project, in that library"},
    {"cannot be at the top of a design", "give it bounds or a default, or set another top module"},
    {"has no architecture", "add the file with its architecture to the project"},
    {"cannot open file", "a design can read files beside its sources while it is read, and write none"},
    {"source encoding must be latin-1", "save it without the mark of UTF-8 at its beginning"},
    {"obsoleted by", "a file is named in two libraries, or declares what another one declares"},
};

static const char untoldTypes[] = "The VHDL engine cannot tell the types of all signals; types that an instance of a "
                                  "package declares are a usual cause.";

/// Remarks that only repeat what other lines say.
static const char *const remarks[] = {
    "error during elaboration", "simulation failed", "compilation error", "error limit reached",
    "importation has failed",   "report failed",     "assertion failed",
};

static bool isRemark(const QString &text)
{
    return std::any_of(std::begin(remarks), std::end(remarks),
                       [&text](const char *remark) { return text.startsWith(QLatin1String(remark)); });
}

/// The calls that led to an error; the first of them that has a place is where it happened.
static bool addCaller(const QString &line, QVector<EngineMessage> &messages)
{
    static const QRegularExpression caller(QStringLiteral("^  from: .* at ([^\\s:]+):(\\d+)$"));
    const QRegularExpressionMatch match = caller.match(line);
    if (match.hasMatch() && !messages.isEmpty() && messages.constLast().file.isEmpty()) {
        messages.last().file = match.captured(1);
        messages.last().line = match.captured(2).toInt();
    }
    return match.hasMatch();
}

/// Takes the place out of `bound check failure at FILE:LINE`.
static void findPlace(EngineMessage &message)
{
    static const QRegularExpression behind(QStringLiteral(" at ([^\\s:]+):(\\d+)$"));
    const QRegularExpressionMatch match = behind.match(message.text);
    if (!match.hasMatch())
        return;
    message.file = match.captured(1);
    message.line = match.captured(2).toInt();
    message.text.truncate(match.capturedStart());
}

/// What a message says behind its place: its severity, unless it is an error, and its text.
static bool readSeverity(const QString &text, EngineMessage &message)
{
    static const QRegularExpression warning(QStringLiteral("^(warning|note): ?(.*)$"));
    static const QRegularExpression assertion(QStringLiteral("^@\\w+:\\((?:assertion|report) (\\w+)\\): (.*)$"));
    message.isError = false;
    QRegularExpressionMatch match = warning.match(text);
    if (match.hasMatch()) {
        // The others are advice on style, mostly.
        message.text = match.captured(2).remove(QLatin1String(" [-Wlibrary]"));
        return message.text.contains(QLatin1String("was also defined in file"));
    }
    match = assertion.match(text);
    if (match.hasMatch()) {
        message.code = match.captured(1);
        message.text = match.captured(2);
        return message.code == QLatin1String("error") || message.code == QLatin1String("failure");
    }
    message.isError = true;
    message.text = text.trimmed();
    return true;
}

/// Lines in parentheses say more about the message before.
static bool addDetail(const EngineMessage &detail, QVector<EngineMessage> &messages)
{
    if (!detail.text.startsWith(QLatin1Char('(')) || messages.isEmpty() || !messages.constLast().isError)
        return false;
    EngineMessage &last = messages.last();
    last.text += QLatin1Char(' ') + detail.text;
    if (last.file.isEmpty()) {
        last.file = detail.file;
        last.line = detail.line;
    }
    return true;
}

/// What stands before the hierarchy; behind it is what the simulation says.
static QByteArray beforeHierarchy(const QByteArray &output)
{
    static const char topMark[] = " [entity]\n";
    const int mark = output.indexOf(topMark);
    return mark < 0 ? output : output.left(output.lastIndexOf('\n', mark) + 1);
}

QVector<EngineMessage> parseGhdlMessages(const QByteArray &output, bool isElaborated)
{
    static const QRegularExpression located(QStringLiteral("^(vakdir[^\\s:]+):(\\d+):\\d+:(.*)$"));
    static const QRegularExpression general(QStringLiteral("^\\S*ghdl[\\w.-]*:(?:error:)? ?(?!warning:)(.*)$"));
    QVector<EngineMessage> messages;
    const QStringList lines =
        QString::fromUtf8(isElaborated ? beforeHierarchy(output) : output).split(QLatin1Char('\n'));
    for (const QString &line : lines) {
        if (addCaller(line, messages))
            continue;
        EngineMessage message;
        QRegularExpressionMatch match = located.match(line);
        if (match.hasMatch()) {
            message.file = match.captured(1);
            message.line = match.captured(2).toInt();
            if (!readSeverity(match.captured(3), message))
                continue;
        } else if ((match = general.match(line)).hasMatch()) {
            message.isError = true;
            message.text = match.captured(1);
            findPlace(message);
        } else {
            continue;
        }
        if (!isRemark(message.text) && !addDetail(message, messages))
            messages.append(message);
    }
    return messages;
}

/// The engine stumbles over some types while it writes its result; a mistake of the design's has a place.
static bool isAboutTypes(const EngineMessage &message)
{
    return message.file.isEmpty() && message.text.startsWith(QLatin1String("NULL access dereferenced"));
}

QString ghdlUserMessage(const EngineMessage &message, const PrivateFolder &folder)
{
    EngineMessage shown = message;
    if (isAboutTypes(message))
        shown.text = QLatin1String(untoldTypes);
    return userMessage(shown, folder, advices, std::size(advices));
}

QString ghdlFailureMessage(const EngineResult &result, const EngineLimits &limits, bool hasErrors)
{
    if (result.outcome == EngineResult::Unconfined)
        return QStringLiteral("The VHDL engine was not run, because Landlock could not confine it; start this program "
                              "outside of other sandboxes.");
    if (result.outcome == EngineResult::NotStarted)
        return QStringLiteral("The VHDL engine cannot be started.");
    if (result.messages.contains("STORAGE_ERROR") || result.messages.contains("virtual memory exhausted"))
        return QStringLiteral("The VHDL engine ran out of memory; set the top module to a part of the design. An "
                              "entity that instantiates itself without end is a usual cause.");
    // Where it reads the types of signals.
    if (result.messages.contains("rtis_utils.adb:"))
        return QLatin1String(untoldTypes);
    if (result.messages.contains("GHDL Bug occurred"))
        return QStringLiteral("The VHDL engine failed here; set the top module to a part of the design, or disable "
                              "files one by one to find what it cannot read.");
    return failureMessage(result, limits, hasErrors, QStringLiteral("VHDL"));
}

} // namespace NETCATCHER

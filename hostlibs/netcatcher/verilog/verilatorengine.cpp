// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "verilatorengine.h"

#include "packageorder.h"

#include "hostlibs/netcatcher/cache/readmanifest.h"
#include "hostlibs/netcatcher/engine/sourcecheck.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QStandardPaths>

#include <algorithm>
#include <csignal>

namespace NETCATCHER {

static const char engineProgram[] = "verilator_bin";
/// Its own declarations for designs that use mailboxes, semaphores or processes.
static const char engineLibrary[] = "verilated_std.sv";
/// Of sources in which words of SystemVerilog are names.
static const char plainVerilogSuffix[] = "v2005";
static const char resultFolder[] = "vakout";
static const char resultPrefix[] = "Vx";
/// Larger files are left to the engine, whose own complaints replace most of what a scan would find in them.
constexpr qint64 maxScanBytes = qint64(256) << 20;
/// Three passes suffice for real designs; each further one must have learned something new.
constexpr int maxPasses = 12;

VerilatorEngine::VerilatorEngine(const DesignSources &sources, const EngineLimits &limits,
                                 const ProgressFunction &progress, ReadManifest &manifest)
    : m_sources(sources)
    , m_limits(limits)
    , m_progress(progress)
    , m_manifest(manifest)
    , m_folder(manifest)
{
}

QString VerilatorEngine::program()
{
    return QStandardPaths::findExecutable(QLatin1String(engineProgram));
}

QString VerilatorEngine::unconfinedWarning()
{
    return QStringLiteral("WARNING: This kernel offers no Landlock, so the Verilog engine runs without it and could "
                          "write your files if a design exploited it; Linux 5.13 or later with Landlock enabled "
                          "confines it");
}

QString VerilatorEngine::xmlPath() const
{
    return m_folder.filePath(QStringLiteral("%1/%2.xml").arg(QLatin1String(resultFolder), QLatin1String(resultPrefix)));
}

void VerilatorEngine::addError(const QString &text)
{
    m_messages.append(QLatin1String("ERROR: ") + text);
}

bool VerilatorEngine::hasErrors() const
{
    return std::any_of(m_messages.cbegin(), m_messages.cend(),
                       [](const QString &line) { return line.startsWith(QLatin1String("ERROR")); });
}

bool VerilatorEngine::linkSources()
{
    if (!m_folder.isValid()) {
        addError(QStringLiteral("Cannot create a folder in %1.").arg(QDir::tempPath()));
        return false;
    }
    for (const SourceFile &file : m_sources.files) {
        m_manifest.look(file.path);
        if (const QString problem = problemWithSource(file.path); !problem.isEmpty())
            addError(file.path + QLatin1String(": ") + problem);
        else if (const QString plainName = m_folder.addSource(file); !plainName.isEmpty())
            m_files.append(plainName);
        else
            addError(QStringLiteral("%1: The file cannot be linked into %2.").arg(file.path, m_folder.path()));
    }
    for (const QString &path : m_sources.includePaths) {
        m_manifest.look(path);
        if (!QFileInfo(path).isDir())
            m_messages.append(QStringLiteral("WARNING: %1: There is no such include folder.").arg(path));
        else
            m_folder.addIncludeFolder(path);
    }
    return !hasErrors();
}

HdlText VerilatorEngine::openSource(int origin)
{
    HdlText text;
    text.origin = origin;
    QFile file(m_folder.filePath(m_files[origin]));
    if (file.size() <= maxScanBytes && file.open(QIODevice::ReadOnly))
        text.text = file.readAll();
    return text;
}

std::optional<HdlText> VerilatorEngine::openInclude(const QByteArray &name, int origin)
{
    const std::optional<QString> found = m_folder.addInclude(m_files[origin], QString::fromUtf8(name));
    if (!found) {
        // The engine would wait for a pipe's other end, or read a device without end.
        const QString place = m_folder.irregularInclude(m_files[origin], QString::fromUtf8(name));
        if (!place.isEmpty())
            addError(QStringLiteral("%1: The included %2 is no regular file.")
                         .arg(m_folder.userPath(m_files[origin]), place));
        return {};
    }
    m_files.append(*found);
    return openSource(m_files.size() - 1);
}

void VerilatorEngine::scanSources()
{
    HdlScanner scanner(m_sources.defines,
                       [this](const QByteArray &name, int origin) { return openInclude(name, origin); });
    BuildProgress progress;
    const int sourceCount = m_files.size();
    for (int i = 0; i < sourceCount; ++i)
        progress.totalBytes += QFileInfo(m_folder.filePath(m_files[i])).size();
    QVector<HdlScan> scans;
    for (int i = 0; i < sourceCount; ++i) {
        m_progress(progress);
        if (QFileInfo(m_folder.filePath(m_files[i])).size() > maxScanBytes)
            m_messages.append(QStringLiteral("WARNING: %1: The file is larger than %2 MB and is not looked through "
                                             "beforehand; put it before the files that use its packages")
                                  .arg(m_folder.userPath(m_files[i]), QString::number(maxScanBytes >> 20)));
        scans.append(scanner.scan(openSource(i)));
        progress.doneBytes += QFileInfo(m_folder.filePath(m_files[i])).size();
        m_all.modules += scans[i].modules;
        for (auto it = scans[i].genvars.cbegin(); it != scans[i].genvars.cend(); ++it)
            m_all.genvars[it.key()].unite(it.value());
        m_all.recursive.unite(scans[i].recursive);
        for (auto it = scans[i].usages.cbegin(); it != scans[i].usages.cend(); ++it)
            m_all.usages.insert(it.key(), it.value());
        m_blackBoxes.learn(scans[i]);
        for (const QByteArray &name : scans[i].flattened)
            m_messages.append(QStringLiteral("WARNING: %1: The array of instances %2 has more than one dimension, of "
                                             "which only the first is listed")
                                  .arg(m_folder.userPath(m_files[i]), QString::fromUtf8(name)));
    }
    m_blackBoxes.standInForEscaped(m_all.modules);
    m_order = packageOrder(scans);
    // Only a name that was read from a source is written into one.
    const QByteArray top = m_sources.top.toUtf8();
    if (m_all.modules.contains(top) && (!isPlainName(top) || m_all.recursive.contains(top)))
        m_blackBoxes.wrapTop(top);
}

QStringList VerilatorEngine::arguments() const
{
    QStringList result{
        QStringLiteral("--xml-only"),
        QStringLiteral("--bbox-unsup"),
        QStringLiteral("--bbox-sys"),
        QStringLiteral("-Wno-fatal"),
        QStringLiteral("-Wno-lint"),
        QStringLiteral("-Wno-style"),
        QStringLiteral("-Wno-MULTITOP"),
        QStringLiteral("-Wno-ASSIGNIN"),
        QStringLiteral("--no-timing"),
        QStringLiteral("-O0"),
        QStringLiteral("-fno-dfg"),
        QStringLiteral("-UVERILATOR"),
        QStringLiteral("-Uverilator"),
        QStringLiteral("-DSYNTHESIS"),
        QStringLiteral("--error-limit"),
        QStringLiteral("100000"),
        QStringLiteral("--unroll-count"),
        QStringLiteral("1000000"),
        QStringLiteral("--prefix"),
        QLatin1String(resultPrefix),
        QStringLiteral("--Mdir"),
        QLatin1String(resultFolder),
        QStringLiteral("--relative-includes"),
    };
    const QString top = m_blackBoxes.wrapsTop() ? BlackBoxes::wrapperName() : m_sources.top;
    if (isPlainName(top.toUtf8()))
        result << QStringLiteral("--top-module") << top;
    const QString language = engineLanguage(m_sources.standard);
    if (!language.isEmpty())
        result << QStringLiteral("--default-language") << language;
    // SystemVerilog files are that whatever the standard of the others; stand-ins may have any word as a pin's name.
    result << QStringLiteral("+1800-2017ext+sv") << QStringLiteral("+1364-2005ext+") + BlackBoxes::suffix();
    result << QStringLiteral("+1364-2005ext+") + QLatin1String(plainVerilogSuffix);
    result << QStringLiteral("+libext+.") + BlackBoxes::suffix() << QStringLiteral("-y") << BlackBoxes::folderName();
    const QStringList includeFolders = m_folder.includeFolders();
    for (const QString &folder : includeFolders)
        result << QStringLiteral("-I") + folder;
    for (const QString &define : m_sources.defines)
        result << QStringLiteral("-D") + define;
    for (int file : m_order)
        result << m_files[file];
    return result + m_blackBoxes.files();
}

bool VerilatorEngine::learnIncludes(const QVector<EngineMessage> &messages)
{
    static const QRegularExpression missing(QStringLiteral("^Cannot find include file: (.*)$"));
    bool learned = false;
    for (const EngineMessage &message : messages) {
        const QRegularExpressionMatch match = missing.match(message.text);
        learned = (match.hasMatch() && m_folder.addInclude(message.file, match.captured(1))) || learned;
    }
    return learned;
}

bool VerilatorEngine::setPlainVerilog(int file, bool isPlain)
{
    const QString suffix = isPlain ? QLatin1String(plainVerilogSuffix) : QLatin1String("v");
    const QString before = m_files[file];
    m_files[file] = m_folder.changeSuffix(before, suffix);
    return m_files[file] != before;
}

/// Old Verilog uses words as names that newer standards took: `do`, `bit`, `final`. A file that the engine cannot parse
/// is tried as Verilog 2005, once; when that is no better, what was said first is what to tell.
bool VerilatorEngine::learnKeywords(const QVector<EngineMessage> &messages)
{
    bool learned = false;
    for (const EngineMessage &message : messages) {
        const int file = m_files.indexOf(message.file);
        if (file < 0)
            continue;
        if (message.file.endsWith(QLatin1String(plainVerilogSuffix))) {
            // A type of SystemVerilog looks like an interface there.
            const bool isNoBetter = message.isSyntaxError() ||
                                    message.text.startsWith(QLatin1String("Cannot find file containing interface"));
            learned = (isNoBetter && setPlainVerilog(file, false)) || learned;
        } else if (message.isSyntaxError() && message.file.endsWith(QLatin1String(".v")) &&
                   !m_triedAsPlain.contains(file)) {
            m_triedAsPlain.insert(file);
            learned = setPlainVerilog(file, true) || learned;
        }
    }
    return learned;
}

bool VerilatorEngine::learn(const QVector<EngineMessage> &messages)
{
    const bool includes = learnIncludes(messages);
    const bool keywords = learnKeywords(messages);
    return m_blackBoxes.learn(messages) || includes || keywords;
}

/// What the engine says when the sources are fine but hold nothing to elaborate; users are asked about that otherwise.
static VerilatorEngine::Outcome outcomeIn(const EngineMessage &message)
{
    if (message.isError && message.text.startsWith(QLatin1String("Specified --top-module")))
        return VerilatorEngine::TopMissing;
    if (message.isError && message.text.startsWith(QLatin1String("No top level module found")))
        return VerilatorEngine::NoModules;
    return VerilatorEngine::Failed;
}

/// The engine's stack runs over where a module instantiates itself without end. Empty when it failed otherwise.
static QString recursionError(const EngineResult &result, const QSet<QByteArray> &recursive)
{
    if (result.outcome != EngineResult::Crashed || result.exitCode != SIGSEGV || recursive.isEmpty())
        return {};
    QStringList names;
    for (const QByteArray &name : recursive)
        names.append(QString::fromUtf8(name));
    names.sort();
    return QStringLiteral("The Verilog engine crashed, as it does when a module instantiates itself without end. "
                          "Modules that instantiate themselves: %1. Make that depend on a condition, or set another "
                          "top module.")
        .arg(names.join(QStringLiteral(", ")));
}

/// Decides what the last run means, and says so in the messages.
VerilatorEngine::Outcome VerilatorEngine::judge(const EngineResult &result, const QVector<EngineMessage> &messages)
{
    Outcome special = Failed;
    int errors = 0;
    for (EngineMessage message : messages) {
        message.text = BlackBoxes::withoutPlaceholders(message.text);
        const Outcome outcome = outcomeIn(message);
        special = outcome == Failed ? special : outcome;
        if (outcome != Failed)
            continue;
        errors += message.isError ? 1 : 0;
        m_messages.append(userMessage(message, m_folder));
    }
    if (result.outcome == EngineResult::Finished && result.exitCode == 0)
        return Done;
    if (errors == 0 && special != Failed && result.outcome == EngineResult::Finished)
        return special;
    const QString recursion = recursionError(result, m_all.recursive);
    const QString failure =
        !recursion.isEmpty() ? recursion : failureMessage(result, m_limits, errors > 0, QStringLiteral("Verilog"));
    if (!failure.isEmpty())
        addError(failure);
    return Failed;
}

/// The engine names included files with their whole path.
QByteArray VerilatorEngine::relativeToFolder(QByteArray output) const
{
    for (const QString &path : {m_folder.path(), QFileInfo(m_folder.path()).canonicalFilePath()})
        output.replace(QFile::encodeName(path) + '/', QByteArray());
    return output;
}

VerilatorEngine::Outcome VerilatorEngine::run()
{
    if (!linkSources())
        return Failed;
    if (m_files.isEmpty())
        return NoModules;
    const QString engine = program();
    if (engine.isEmpty()) {
        addError(QStringLiteral("The Verilog engine %1 is not installed; install the Debian package \"verilator\" "
                                "(apt install verilator).")
                     .arg(QLatin1String(engineProgram)));
        return Failed;
    }
    scanSources();
    return hasErrors() ? Failed : runPasses(engine);
}

/// Says why, when the engine did not get as far as reading the sources.
bool VerilatorEngine::hasStarted(const EngineResult &result, const QString &engine)
{
    if (result.outcome == EngineResult::Unconfined)
        addError(QStringLiteral("The Verilog engine was not run, because Landlock could not confine it; start this "
                                "program outside of other sandboxes."));
    else if (result.outcome == EngineResult::NotStarted)
        addError(QStringLiteral("The Verilog engine %1 cannot be started.").arg(engine));
    else
        return true;
    return false;
}

VerilatorEngine::Outcome VerilatorEngine::runPasses(const QString &engine)
{
    QElapsedTimer timer;
    timer.start();
    for (int pass = 1;; ++pass) {
        if (!m_blackBoxes.write(m_folder.path())) {
            addError(QStringLiteral("Cannot write to %1.").arg(m_folder.path()));
            return Failed;
        }
        m_progress({BuildProgress::RunningEngine, 0, 0});
        EngineLimits left = m_limits;
        left.milliseconds = qMax(qint64(1), m_limits.milliseconds - timer.elapsed());
        const EngineResult result = runEngine(engine, arguments(), m_folder.path(), left, [this] {
            m_progress({BuildProgress::RunningEngine, 0, 0});
        });
        m_isUnconfined = !result.isConfined;
        if (!hasStarted(result, engine))
            return Failed;
        const QVector<EngineMessage> messages = parseEngineMessages(relativeToFolder(result.messages));
        const bool hasEnded = result.outcome == EngineResult::Finished && result.exitCode == 0;
        const bool isOver = hasEnded || result.outcome == EngineResult::TimedOut || pass == maxPasses;
        if (isOver || !learn(messages))
            return judge(result, messages);
    }
}

void VerilatorEngine::noteFilesRead(const QVector<QByteArray> &files)
{
    const QString folder = m_folder.path() + QLatin1Char('/');
    for (const QByteArray &name : files) {
        const QString path = QString::fromUtf8(relativeToFolder(name));
        if (QDir::isRelativePath(path) && QDir::cleanPath(folder + path).startsWith(folder))
            continue;
        if (QFileInfo(path).fileName() == QLatin1String(engineLibrary))
            m_manifest.look(path);
        else
            m_manifest.giveUp();
    }
}

QStringList VerilatorEngine::declaredModules() const
{
    QStringList names;
    for (const QByteArray &name : m_all.modules)
        names.append(QString::fromUtf8(name));
    names.removeDuplicates();
    return names;
}

QStringList VerilatorEngine::declaredRoots() const
{
    QStringList names;
    for (const QByteArray &name : m_all.modules) {
        if (!m_all.usages.contains(name))
            names.append(QString::fromUtf8(name));
    }
    names.removeDuplicates();
    return names;
}

} // namespace NETCATCHER

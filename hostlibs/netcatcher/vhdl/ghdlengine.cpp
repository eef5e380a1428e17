// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "ghdlengine.h"

#include "ghdlmessages.h"
#include "vhdllexer.h"

#include "hostlibs/netcatcher/cache/readmanifest.h"
#include "hostlibs/netcatcher/engine/sandbox.h"
#include "hostlibs/netcatcher/engine/sourcecheck.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QStandardPaths>

#include <algorithm>

namespace NETCATCHER {

static const char engineProgram[] = "ghdl-mcode";
static const char waveName[] = "vak.ghw";
static const QString defaultLibrary = QStringLiteral("work");
/// The first reads most designs; the second those that use words as names which VHDL-2008 reserves.
static const char *const standards[] = {"08", "93c"};
/// Larger files are generated tables; without a scan their names stay in lower case.
constexpr qint64 maxScanBytes = 256 << 20;
constexpr int pieceBytes = 1 << 20;
/// No design reads more; guards against one that makes up names.
constexpr int maxDataFiles = 100;
/// Enough for constants of a megabyte; the stack is not much larger.
static const char maxStackObject[] = "--max-stack-alloc=4096";

GhdlEngine::GhdlEngine(const DesignSources &sources, const EngineLimits &limits, const ProgressFunction &progress,
                       ReadManifest &manifest)
    : m_sources(sources)
    , m_limits(limits)
    , m_progress(progress)
    , m_manifest(manifest)
    , m_folder(manifest)
{
    m_timer.start();
}

QString GhdlEngine::program()
{
    return QStandardPaths::findExecutable(QLatin1String(engineProgram));
}

QString GhdlEngine::wavePath() const
{
    return m_folder.filePath(QLatin1String(waveName));
}

void GhdlEngine::addError(const QString &text)
{
    m_messages.append(QLatin1String("ERROR: ") + text);
}

bool GhdlEngine::hasErrors() const
{
    return std::any_of(m_messages.cbegin(), m_messages.cend(),
                       [](const QString &line) { return line.startsWith(QLatin1String("ERROR")); });
}

bool GhdlEngine::linkSources()
{
    if (!m_folder.isValid()) {
        addError(QStringLiteral("Cannot create a folder in %1.").arg(QDir::tempPath()));
        return false;
    }
    for (const SourceFile &file : m_sources.files) {
        if (file.language == SourceFile::Vhdl)
            addFile(file);
    }
    return !hasErrors();
}

/// A library's name in the form that the engine takes; empty when it is no name of VHDL.
static QString libraryName(const QString &given)
{
    static const QRegularExpression name(QStringLiteral("\\A[a-z](?:_?[a-z0-9])*\\z"));
    const QString lower = given.isEmpty() ? defaultLibrary : given.toLower();
    return name.match(lower).hasMatch() ? lower : QString();
}

void GhdlEngine::addFile(const SourceFile &file)
{
    m_manifest.look(file.path);
    const QString problem = problemWithSource(file.path);
    const QString library = libraryName(file.library);
    const QString plainName = problem.isEmpty() ? m_folder.addSource(file) : QString();
    if (!problem.isEmpty())
        addError(file.path + QLatin1String(": ") + problem);
    else if (library.isEmpty())
        addError(QStringLiteral("%1: The library \"%2\" cannot be named so in VHDL.").arg(file.path, file.library));
    else if (plainName.isEmpty())
        addError(QStringLiteral("%1: The file cannot be linked into %2.").arg(file.path, m_folder.path()));
    else
        m_files.append({plainName, library});
}

/// Files without anything in them are no files for the engine, but no mistake either.
bool GhdlEngine::scanSources()
{
    BuildProgress progress;
    for (const Source &source : qAsConst(m_files))
        progress.totalBytes += QFileInfo(m_folder.filePath(source.plainName)).size();
    QVector<Source> kept;
    for (const Source &source : qAsConst(m_files)) {
        m_progress(progress);
        QFile file(m_folder.filePath(source.plainName));
        const bool isScanned = file.size() <= maxScanBytes && file.open(QIODevice::ReadOnly);
        progress.doneBytes += file.size();
        const int known = m_scan.entities().size();
        if (isScanned && !m_scan.add(file.readAll()))
            continue;
        kept.append(source);
        for (int i = known; i < m_scan.entities().size(); ++i)
            m_libraryOf.insert(vhdlKey(m_scan.entities()[i]), source.library);
    }
    m_files = kept;
    return !m_files.isEmpty();
}

void GhdlEngine::chooseTops()
{
    if (m_sources.top.isEmpty()) {
        m_tops = m_scan.roots();
        return;
    }
    for (const QByteArray &name : m_scan.entities()) {
        const QString shown = QString::fromUtf8(vhdlDisplayName(name));
        const bool isExtended = name.startsWith('\\');
        if (shown == m_sources.top || (!isExtended && shown.toLower() == m_sources.top.toLower())) {
            m_tops.append(name);
            return;
        }
    }
}

bool GhdlEngine::canRun()
{
    if (program().isEmpty())
        addError(QStringLiteral("The VHDL engine %1 is not installed; install the Debian package \"%1\" "
                                "(apt install %1).")
                     .arg(QLatin1String(engineProgram)));
    else if (!Sandbox(m_folder.path()).isOffered())
        addError(QStringLiteral("VHDL is not read, because this kernel offers no Landlock: elaborating a design runs "
                                "what it says, and it could write your files; Linux 5.13 or later with Landlock "
                                "enabled confines it."));
    else
        return true;
    return false;
}

GhdlEngine::Outcome GhdlEngine::run()
{
    if (!linkSources())
        return Failed;
    if (m_files.isEmpty() || !scanSources())
        return NoEntities;
    if (!canRun())
        return Failed;
    chooseTops();
    if (m_tops.size() != 1)
        return import();
    return canBeElaborated(m_tops.first()) ? elaborate(m_tops.first()) : Failed;
}

/// The engine would take the least value of each, and ports without bits come of that.
bool GhdlEngine::canBeElaborated(const QByteArray &top)
{
    const QList<QByteArray> open = m_scan.openGenerics(vhdlKey(top));
    if (open.isEmpty())
        return true;
    addError(QStringLiteral("The generic %1 of the top entity %2 has no value; give it a default, or set another top "
                            "module.")
                 .arg(QString::fromUtf8(vhdlDisplayName(open.first())), QString::fromUtf8(vhdlDisplayName(top))));
    return false;
}

QStringList GhdlEngine::libraries() const
{
    QStringList names;
    for (const Source &source : m_files)
        names.append(source.library);
    names.removeDuplicates();
    return names;
}

QStringList GhdlEngine::filesOf(const QString &library) const
{
    QStringList names;
    for (const Source &source : m_files) {
        if (source.library == library)
            names.append(source.plainName);
    }
    return names;
}

static QStringList languageOptions(const QString &standard)
{
    return {QStringLiteral("--std=") + standard, QStringLiteral("-frelaxed"), QStringLiteral("-fsynopsys"),
            QStringLiteral("--mb-comments"), QStringLiteral("--syn-binding")};
}

static QString workOption(const QString &library)
{
    return QStringLiteral("--work=") + library;
}

/// Everything in one run: it takes the files in any order, and analyses what the top needs.
QStringList GhdlEngine::elaboration(const QString &standard, const QByteArray &top) const
{
    QStringList result = QStringList(QStringLiteral("-c")) + languageOptions(standard);
    const QStringList all = libraries();
    for (const QString &library : all)
        result += QStringList(workOption(library)) + filesOf(library);
    result << workOption(m_libraryOf.value(vhdlKey(top), defaultLibrary)) << QStringLiteral("-r");
    result << QString::fromLatin1(top);
    // Without a name the engine takes the first of those that stand in one file.
    const QByteArray architecture = m_scan.lastArchitecture(vhdlKey(top));
    if (!architecture.isEmpty())
        result << QString::fromLatin1(architecture);
    result << QStringLiteral("--stop-time=0ns") << QStringLiteral("--assert-level=none");
    result << QStringLiteral("--ieee-asserts=disable") << QLatin1String(maxStackObject);
    result << QStringLiteral("--disp-tree=inst") << QStringLiteral("--wave=") + QLatin1String(waveName);
    return result;
}

EngineResult GhdlEngine::runOnce(const QStringList &arguments, bool endsWithHierarchy)
{
    removeResult();
    EngineLimits left = m_limits;
    left.milliseconds = qMax(qint64(1), m_limits.milliseconds - m_timer.elapsed());
    m_progress({BuildProgress::RunningEngine, 0, 0});
    const auto idle = [this] { m_progress({BuildProgress::RunningEngine, 0, 0}); };
    const auto isEnough = [this, endsWithHierarchy] { return endsWithHierarchy && isHierarchyWritten(); };
    return runEngine(program(), arguments, m_folder.path(), left, idle, isEnough);
}

/// Only the syntax is checked, and nothing executed. False when there are errors.
bool GhdlEngine::importBy(const QString &standard)
{
    m_messages.clear();
    const QStringList all = libraries();
    for (const QString &library : all) {
        const QStringList arguments = QStringList(QStringLiteral("-i")) + languageOptions(standard);
        const EngineResult result = runOnce(arguments + QStringList(workOption(library)) + filesOf(library), false);
        if (result.outcome != EngineResult::Finished || result.exitCode != 0)
            judge(result);
    }
    return !hasErrors();
}

GhdlEngine::Outcome GhdlEngine::import()
{
    QStringList errors;
    for (const char *standard : standards) {
        if (importBy(QLatin1String(standard)))
            return m_scan.entities().isEmpty() ? NoEntities : NoOnlyTop;
        if (errors.isEmpty())
            errors = m_messages;
    }
    m_messages = errors;
    return Failed;
}

/// Whether the result holds the whole hierarchy; values may follow it. The engine may be writing it meanwhile, so it is
/// read piece by piece, each once.
bool GhdlEngine::isHierarchyWritten()
{
    const QByteArray mark = QByteArray::fromRawData("\0EOH", 5);
    QFile file(wavePath());
    if (m_isWritten || !file.open(QIODevice::ReadOnly) || !file.seek(m_searched))
        return m_isWritten;
    for (QByteArray piece = file.read(pieceBytes); !m_isWritten && !piece.isEmpty(); piece = file.read(pieceBytes)) {
        m_isWritten = (m_tail + piece).contains(mark);
        m_searched += piece.size();
        m_tail = (m_tail + piece).right(mark.size() - 1);
    }
    return m_isWritten;
}

/// The next run writes its own result.
void GhdlEngine::removeResult()
{
    QFile::remove(wavePath());
    m_searched = 0;
    m_tail.clear();
    m_isWritten = false;
}

/// Links the file that the design could not open when it lies beside one of the sources; contents of memories are
/// read so. False when there is none.
bool GhdlEngine::offerDataFile(const EngineResult &result)
{
    static const QRegularExpression missing(QStringLiteral("cannot open file \"([^\"]+)\""));
    const QRegularExpressionMatch match = missing.match(QFile::decodeName(result.messages));
    const QString name = QDir::cleanPath(match.captured(1));
    if (!match.hasMatch() || QDir::isAbsolutePath(name) || name.startsWith(QLatin1String("..")) ||
        name.startsWith(QLatin1String("vak")) || QFileInfo::exists(m_folder.filePath(name)))
        return false;
    for (const SourceFile &file : m_sources.files) {
        const QString path = QDir(QFileInfo(file.path).absolutePath()).filePath(name);
        m_manifest.look(path);
        if (QFileInfo(path).isFile())
            return m_folder.addData(path, name);
    }
    return false;
}

GhdlEngine::Outcome GhdlEngine::elaborate(const QByteArray &top)
{
    QStringList errors;
    for (const char *standard : standards) {
        m_messages.clear();
        EngineResult result = runOnce(elaboration(QLatin1String(standard), top), true);
        for (int offered = 0; offered < maxDataFiles && offerDataFile(result); ++offered)
            result = runOnce(elaboration(QLatin1String(standard), top), true);
        if (judge(result) == Done)
            return Done;
        if (errors.isEmpty())
            errors = m_messages;
    }
    m_messages = errors;
    return Failed;
}

/// Decides what the run means, and says so in the messages.
GhdlEngine::Outcome GhdlEngine::judge(const EngineResult &result)
{
    const bool isDone = isHierarchyWritten();
    int errors = 0;
    const QVector<EngineMessage> messages = parseGhdlMessages(result.messages, isDone);
    for (const EngineMessage &message : messages) {
        errors += message.isError ? 1 : 0;
        // What goes wrong behind the hierarchy is the simulation, which is nobody's concern here.
        if (!message.isError || !isDone)
            m_messages.append(ghdlUserMessage(message, m_folder));
    }
    if (isDone) {
        m_tree = parseGhdlTree(result.messages);
        return Done;
    }
    const QString failure = ghdlFailureMessage(result, m_limits, errors > 0);
    if (!failure.isEmpty())
        addError(m_folder.withUserPaths(failure));
    return Failed;
}

} // namespace NETCATCHER

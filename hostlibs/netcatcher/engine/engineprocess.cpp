// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "engineprocess.h"

#include "sandbox.h"

#include <QElapsedTimer>
#include <QLoggingCategory>
#include <QProcessEnvironment>

#include <algorithm>

#include <csignal>

#include <fcntl.h>
#include <linux/close_range.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <unistd.h>

namespace NETCATCHER {

Q_LOGGING_CATEGORY(engineLog, "netcatcher.engine", QtWarningMsg)

constexpr int idleMs = 50;
constexpr int maxMessageBytes = 64 << 20;
/// Enough for expressions nested thousands deep; a module that instantiates itself should not take long to fail,
/// though.
constexpr rlim_t stackBytes = rlim_t(8) << 20;
/// Kernels before 5.11 take them one by one; more are never open in practice.
constexpr rlim_t maxDescriptors = 65536;
/// What the child exits with when it cannot be confined.
constexpr int unconfinedStatus = 125;

namespace {

/// A process that dies with its parent, keeps to its limits, and writes in its folder only.
class LimitedProcess : public QProcess
{
public:
    LimitedProcess(const EngineLimits &given, const QString &folder)
        : limits(given)
        , sandbox(folder)
        , parentId(getpid())
    {
    }

    bool isConfined() const { return sandbox.isOffered(); }

protected:
    /// Runs in the child between fork and exec: only calls that are safe there.
    void setupChildProcess() override
    {
        prctl(PR_SET_PDEATHSIG, SIGKILL);
        if (getppid() != parentId)
            _exit(127);
        limit(RLIMIT_AS, limits.memoryBytes);
        limit(RLIMIT_FSIZE, limits.fileBytes);
        limit(RLIMIT_CORE, 0);
        limit(RLIMIT_STACK, stackBytes);
        // A signal that this program ignores would be ignored there, too, and a result be cut off without a word.
        signal(SIGXFSZ, SIG_DFL);
        closeOnExec();
        if (sandbox.isOffered() && !sandbox.enter())
            _exit(unconfinedStatus);
    }

private:
    static void limit(__rlimit_resource_t resource, rlim_t value)
    {
        rlimit current{};
        getrlimit(resource, &current);
        current.rlim_cur = std::min(value, current.rlim_max);
        setrlimit(resource, &current);
    }

    /// Keeps what other parts of this program have open from the engine.
    static void closeOnExec()
    {
        constexpr int firstOther = 3;
        if (close_range(firstOther, ~0u, CLOSE_RANGE_CLOEXEC) == 0)
            return;
        rlimit open{};
        getrlimit(RLIMIT_NOFILE, &open);
        const int end = int(std::min(open.rlim_cur, maxDescriptors));
        for (int i = firstOther; i < end; ++i)
            fcntl(i, F_SETFD, FD_CLOEXEC);
    }

    const EngineLimits limits;
    const Sandbox sandbox;
    const pid_t parentId;
};

} // namespace

static quint64 defaultMemory()
{
    const auto pages = quint64(sysconf(_SC_PHYS_PAGES));
    return pages * quint64(sysconf(_SC_PAGESIZE)) / 4 * 3;
}

static QProcessEnvironment smallEnvironment(const QString &folder)
{
    QProcessEnvironment environment;
    environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C"));
    environment.insert(QStringLiteral("PATH"), QStringLiteral("/usr/bin:/bin"));
    environment.insert(QStringLiteral("HOME"), folder);
    environment.insert(QStringLiteral("TMPDIR"), folder);
    return environment;
}

/// Waits for the end; answers why it was not waited for any longer, or that the program finished.
static EngineResult::Outcome waitForEnd(QProcess &process, qint64 milliseconds, QByteArray &messages,
                                        const std::function<void()> &idle, const std::function<bool()> &isEnough)
{
    QElapsedTimer timer;
    timer.start();
    while (process.state() != QProcess::NotRunning) {
        if (process.waitForFinished(idleMs))
            break;
        const QByteArray read = process.readAll();
        messages += read.left(maxMessageBytes - messages.size());
        idle();
        if (isEnough && isEnough())
            return EngineResult::Enough;
        if (timer.hasExpired(milliseconds))
            return EngineResult::TimedOut;
    }
    messages += process.readAll().left(maxMessageBytes - messages.size());
    return EngineResult::Finished;
}

EngineResult runEngine(const QString &program, const QStringList &arguments, const QString &folder,
                       const EngineLimits &limits, const std::function<void()> &idle,
                       const std::function<bool()> &isEnough)
{
    EngineLimits effective = limits;
    if (effective.memoryBytes == 0)
        effective.memoryBytes = defaultMemory();
    LimitedProcess process(effective, folder);
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.setStandardInputFile(QProcess::nullDevice());
    process.setWorkingDirectory(folder);
    process.setProcessEnvironment(smallEnvironment(folder));
    qCDebug(engineLog) << program << arguments;
    process.start(program, arguments, QIODevice::ReadOnly);
    EngineResult result;
    result.isConfined = process.isConfined();
    if (!process.waitForStarted())
        return result;
    result.outcome = waitForEnd(process, limits.milliseconds, result.messages, idle, isEnough);
    if (result.outcome != EngineResult::Finished) {
        process.kill();
        process.waitForFinished();
        result.messages += process.readAll().left(maxMessageBytes - result.messages.size());
        return result;
    }
    result.exitCode = process.exitCode();
    if (process.exitStatus() == QProcess::CrashExit)
        result.outcome = EngineResult::Crashed;
    else if (result.isConfined && result.exitCode == unconfinedStatus)
        result.outcome = EngineResult::Unconfined;
    return result;
}

} // namespace NETCATCHER

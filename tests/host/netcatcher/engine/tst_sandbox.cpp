// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "host/netcatcher/netlistprobe.h"

#include "hostlibs/netcatcher/engine/engineprocess.h"

#include "support/fakelandlock.h"
#include "support/tempdir.h"

#include <QDir>
#include <QFile>
#include <QtTest>

#include <csignal>

#include <arpa/inet.h>
#include <fcntl.h>
#include <netinet/in.h>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

using NETCATCHER::EngineResult;
using support::landlockVersion;

/// What engines cannot do where the kernel offers Landlock, in each of its versions; and that users are told where it
/// is missing. Nothing here depends on the kernel of the day: what it lacks is expected to be told.
class TestSandbox : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void everyVersionHoldsWhatItCan_data();
    void everyVersionHoldsWhatItCan();
    void missingLandlockIsTold();
    void presentLandlockIsNotTold();
    void warningIsNotKeptWithTheDesign();
    void enginesThatCannotBeConfinedAreNotRun();
    void endlessFilesCannotBeIncluded_data();
    void endlessFilesCannotBeIncluded();
    void emptyDeviceCanBeIncluded();
    void openDescriptorsAreNotInherited();
    void enginesEndWithTheProgram();

private:
    QByteArray misdeeds(long version) const;

    std::unique_ptr<support::TempDir> dir;
    QString folder;
};

void TestSandbox::init()
{
    dir = std::make_unique<support::TempDir>();
    folder = dir->filePath("private");
    QVERIFY(QDir().mkdir(folder));
}

namespace {

/// A program that tries what it should not, and from which version of Landlock on that fails.
struct Misdeed
{
    const char *name;
    const char *program; ///< Perl; true when it succeeded; $d is the folder around the private one
    long since;
};

} // namespace

static const Misdeed allMisdeeds[] = {
    {"create", "open(F, '>', \"$d/new\")", 1},
    {"overwrite", "open(F, '>', \"$d/outside\")", 1},
    {"append", "open(F, '>>', \"$d/outside\")", 1},
    {"truncate", "truncate(\"$d/cut\", 0)", 3},
    {"make folder", "mkdir(\"$d/made\")", 1},
    {"remove folder", "rmdir(\"$d/empty\")", 1},
    {"symbolic link", "symlink('/etc/passwd', \"$d/symlink\")", 1},
    {"hard link", "link(\"$d/outside\", \"$d/hardlink\")", 1},
    {"hard link out", "link('inside', \"$d/linkedout\")", 1},
    {"hard link in", "link(\"$d/outside\", 'linkedin')", 1},
    {"rename", "rename(\"$d/other\", \"$d/renamed\")", 1},
    {"move out", "rename('inside', \"$d/movedout\")", 1},
    {"move in", "rename(\"$d/outside\", 'movedin')", 1},
    {"remove", "unlink(\"$d/third\")", 1},
    {"read device", "open(F, '<', '/dev/zero')", 1},
    {"connect", "socket(S, PF_INET, SOCK_STREAM, 0) && connect(S, sockaddr_in($port, INADDR_LOOPBACK))", 4},
    {"listen", "socket(S, PF_INET, SOCK_STREAM, 0) && bind(S, sockaddr_in(0, INADDR_LOOPBACK))", 4},
    {"signal", "kill(0, getppid())", 6},
};

void TestSandbox::everyVersionHoldsWhatItCan_data()
{
    QTest::addColumn<long>("version");
    for (long version = 0; version <= landlockVersion(); ++version)
        QTest::newRow(qPrintable(QString("version %1").arg(version))) << version;
}

/// What succeeds with this version, in a process of its own.
QByteArray TestSandbox::misdeeds(long version) const
{
    const int listener = socket(AF_INET, SOCK_STREAM, 0);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t size = sizeof address;
    auto *generic = reinterpret_cast<sockaddr *>(&address);
    if (bind(listener, generic, size) != 0 || listen(listener, 1) != 0 || getsockname(listener, generic, &size) != 0)
        return "no listener";
    QString script = QString("use Socket; my $d = '%1'; my $port = %2; open(I, '>', 'inside') or print 'no inside ';\n")
                         .arg(dir->path())
                         .arg(ntohs(address.sin_port));
    for (const Misdeed &each : allMisdeeds)
        script += QString("print '%1, ' if %2;\n").arg(each.name, each.program);
    const QByteArray done = support::inChild([&]() -> QByteArray {
        if (!support::claimLandlockVersion(version))
            return "no filter";
        const EngineResult result = NETCATCHER::runEngine("/usr/bin/perl", {"-e", script}, folder, {}, [] {});
        return (result.isConfined ? "confined: " : "free: ") + result.messages;
    });
    close(listener);
    return done;
}

void TestSandbox::everyVersionHoldsWhatItCan()
{
    QFETCH(long, version);
    for (const char *name : {"outside", "other", "third", "cut"})
        dir->write(name, "contents");
    QVERIFY(QDir(dir->path()).mkdir("empty"));
    QByteArray expected = version > 0 ? "confined: " : "free: ";
    for (const Misdeed &each : allMisdeeds) {
        if (version < each.since)
            expected += QByteArray(each.name) + ", ";
    }
    QCOMPARE(misdeeds(version), expected);
}

static const char design[] = "module a(input x); wire y = x; endmodule\n";

void TestSandbox::missingLandlockIsTold()
{
    const QString path = dir->write("a.v", design);
    const QByteArray told = support::inChild([&]() -> QByteArray {
        if (!support::hideLandlock())
            return "no filter";
        NETCATCHER::NetlistBuilder builder(probe::sources({path}));
        builder.analyse();
        QString error;
        const auto netlist = builder.build(&error);
        return (builder.messages() + (netlist ? probe::rows(*netlist) : QStringList(error))).join('\n').toUtf8();
    });
    QCOMPARE(told, support::noLandlockWarning + QByteArray("\nx\ny"));
}

void TestSandbox::presentLandlockIsNotTold()
{
    NETCATCHER::NetlistBuilder builder(probe::sources({dir->write("a.v", design)}));
    QVERIFY(builder.analyse());
    QCOMPARE(builder.messages(),
             landlockVersion() > 0 ? QStringList() : QStringList(QLatin1String(support::noLandlockWarning)));
}

void TestSandbox::warningIsNotKeptWithTheDesign()
{
    const QString path = dir->write("a.v", design);
    const QByteArray before = qgetenv("XDG_CACHE_HOME");
    qputenv("XDG_CACHE_HOME", QFile::encodeName(dir->filePath("cache")));
    const auto read = [&path] {
        NETCATCHER::NetlistBuilder builder(probe::sources({path}));
        builder.analyse();
        return builder.messages().join('\n').toUtf8() + '\n' + builder.tops().join(' ').toUtf8();
    };
    const QByteArray first =
        support::inChild([&] { return support::hideLandlock() ? read() : QByteArray("no filter"); });
    const bool isKept = !QDir(dir->filePath("cache")).isEmpty();
    const QByteArray second = read();
    qputenv("XDG_CACHE_HOME", before);
    QCOMPARE(first, support::noLandlockWarning + QByteArray("\na"));
    QVERIFY(isKept);
    QCOMPARE(second, QByteArray("\na"));
}

void TestSandbox::enginesThatCannotBeConfinedAreNotRun()
{
    const QString path = dir->write("a.v", design);
    const QByteArray told = support::inChild([&]() -> QByteArray {
        support::exhaustLandlock();
        NETCATCHER::NetlistBuilder builder(probe::sources({path}));
        const bool isAnalysed = builder.analyse();
        return builder.messages().join('\n').toUtf8() + (isAnalysed ? "\nanalysed" : "\nrefused");
    });
    const QByteArray refusal = "ERROR: The Verilog engine was not run, because Landlock could not confine it; start "
                               "this program outside of other sandboxes.\nrefused";
    QCOMPARE(told, landlockVersion() > 0 ? refusal : support::noLandlockWarning + QByteArray("\nanalysed"));
}

void TestSandbox::endlessFilesCannotBeIncluded_data()
{
    QTest::addColumn<QString>("file");
    QTest::newRow("zeros") << "/dev/zero";
    QTest::newRow("the kernel's own") << "/proc/kmsg";
}

void TestSandbox::endlessFilesCannotBeIncluded()
{
    QFETCH(QString, file);
    // The scan of the sources does not know what the macro is, and leaves it to the engine.
    const QString path =
        dir->write("a.v", "`define NAME \"" + file.toUtf8() + "\"\n`include `NAME\nmodule a(input x); endmodule\n");
    NETCATCHER::EngineLimits limits;
    limits.memoryBytes = 256 << 20;
    limits.milliseconds = 10000;
    const probe::Result result = probe::build(probe::sources({path}), limits);
    QCOMPARE(result.errors().size(), 1);
    if (landlockVersion() > 0)
        QCOMPARE(result.errors().first(), "ERROR: " + path + ":2: File not found: " + file);
    QVERIFY(!result.netlist);
}

void TestSandbox::emptyDeviceCanBeIncluded()
{
    const QString path = dir->write("a.v", "`include \"/dev/null\"\nmodule a(input x); endmodule\n");
    const probe::Result result = probe::build(probe::sources({path}));
    QCOMPARE(result.messages, QStringList());
    QVERIFY(result.netlist);
}

void TestSandbox::openDescriptorsAreNotInherited()
{
    const int canary = open("/etc/passwd", O_RDONLY);
    QVERIFY(canary > 2 && (fcntl(canary, F_GETFD) & FD_CLOEXEC) == 0);
    const EngineResult result = NETCATCHER::runEngine(
        "/bin/sh", {"-c", "for f in /proc/$$/fd/*; do [ -e $f ] && echo ${f##*/}; done; :"}, folder, {}, [] {});
    close(canary);
    QCOMPARE(result.messages, QByteArray("0\n1\n2\n"));
}

void TestSandbox::enginesEndWithTheProgram()
{
    // Orphans become this process's children, so that their end can be awaited.
    QCOMPARE(prctl(PR_SET_CHILD_SUBREAPER, 1, 0, 0, 0), 0);
    const pid_t program = fork();
    if (program == 0) {
        NETCATCHER::runEngine("/bin/sh", {"-c", "echo $$ > half; mv half id; exec sleep 60"}, folder, {}, [] {});
        _exit(0);
    }
    QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(folder + "/id"), 20000);
    const pid_t engine = dir->read("private/id").trimmed().toInt();
    QVERIFY(engine > 0);
    QCOMPARE(kill(program, SIGKILL), 0);
    QCOMPARE(waitpid(program, nullptr, 0), program);
    int status = 0;
    QCOMPARE(waitpid(engine, &status, 0), engine);
    QVERIFY(WIFSIGNALED(status));
    QCOMPARE(WTERMSIG(status), SIGKILL);
}

QTEST_GUILESS_MAIN(TestSandbox)
#include "tst_sandbox.moc"

// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

// Netlists of generated designs from ten thousand to a million nets: time and peak memory of our part (parse and build)
// beside the engine's own, the netlist in bytes a net, and a second opening beside the first. Each design is measured
// by a process of its own. Prints ratios of one run; ends with status 1 when one is worse than it may be.

#include "hostlibs/netcatcher/netlistbuilder.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTextStream>

#include <array>
#include <cstdio>

#include <malloc.h>
#include <sys/resource.h>

using NETCATCHER::BuildProgress;

/// `stages` pipeline stages, each with a single net and a bus.
static void writePipeline(QTextStream &out, const QString &name, int stages)
{
    out << "module " << name << "(input clk, input [7:0] d, output [7:0] q);\nwire [7:0] b0;\nassign b0 = d;\n";
    for (int i = 1; i <= stages; ++i) {
        out << "wire s" << i << "; reg [7:0] b" << i << "; assign s" << i << " = ^b" << i - 1
            << "; always @(posedge clk) b" << i << " <= b" << i - 1 << " + s" << i << ";\n";
    }
    out << "assign q = b" << stages << ";\nendmodule\n";
}

/// A module with `count` instances of another in a chain.
static void writeChain(QTextStream &out, const QString &name, const QString &module, int count)
{
    out << "module " << name << "(input clk, input [7:0] d, output [7:0] q);\nwire [7:0] w0;\nassign w0 = d;\n";
    for (int i = 1; i <= count; ++i) {
        out << "wire [7:0] w" << i << "; " << module << " u" << i << "(.clk(clk), .d(w" << i - 1 << "), .q(w" << i
            << "));\n";
    }
    out << "assign q = w" << count << ";\nendmodule\n";
}

static QString writeDesign(const QTemporaryDir &dir, int nets, bool isFlat)
{
    const QString path = dir.filePath(QStringLiteral("design.v"));
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return {};
    QTextStream out(&file);
    if (isFlat) {
        writePipeline(out, QStringLiteral("top"), nets / 2);
    } else {
        writePipeline(out, QStringLiteral("leaf"), 98);
        writeChain(out, QStringLiteral("middle"), QStringLiteral("leaf"), 50);
        writeChain(out, QStringLiteral("top"), QStringLiteral("middle"), nets / (200 * 50));
    }
    return path;
}

/// What is allocated now. Handles lie in pages of their own, which this does not see.
static double heapBytes()
{
    const struct mallinfo2 info = mallinfo2();
    return double(info.uordblks) + double(info.hblkhd);
}

/// Adds up the time of each stage.
class StageClock
{
public:
    StageClock() { m_timer.start(); }
    void enter(BuildProgress::Stage stage)
    {
        m_seconds[std::size_t(m_stage)] += double(m_timer.nsecsElapsed()) / 1e9;
        m_timer.restart();
        m_stage = stage;
    }
    double seconds(BuildProgress::Stage stage) const { return m_seconds[std::size_t(stage)]; }

private:
    QElapsedTimer m_timer;
    BuildProgress::Stage m_stage = BuildProgress::ReadingSources;
    std::array<double, 4> m_seconds{};
};

struct Opened
{
    std::unique_ptr<NETCATCHER::RtlNetlist> netlist;
    double seconds = 0;
};

/// Opens a design as the programs do.
static Opened openDesign(const NETCATCHER::DesignSources &sources, StageClock *clock = nullptr)
{
    const auto progress = [clock](const BuildProgress &state) {
        if (clock)
            clock->enter(state.stage);
    };
    QElapsedTimer timer;
    timer.start();
    NETCATCHER::NetlistBuilder builder(sources);
    builder.analyse(progress);
    QString error;
    Opened opened{builder.build(&error, progress), double(timer.nsecsElapsed()) / 1e9};
    if (!opened.netlist)
        std::printf("%s\n", qPrintable(error));
    return opened;
}

/// What the process had in memory at most since the last call of forgetPeak().
static double peakBytes()
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly))
        return 0;
    const QList<QByteArray> lines = status.readAll().split('\n');
    for (const QByteArray &line : lines) {
        if (line.startsWith("VmHWM:"))
            return line.simplified().split(' ').value(1).toDouble() * 1024;
    }
    return 0;
}

static void forgetPeak()
{
    QFile references(QStringLiteral("/proc/self/clear_refs"));
    if (references.open(QIODevice::WriteOnly))
        references.write("5");
}

static double peakBytesOfEngine()
{
    rusage usage{};
    getrusage(RUSAGE_CHILDREN, &usage);
    return double(usage.ru_maxrss) * 1024;
}

static bool isWithin(const char *what, double value, double limit)
{
    if (value <= limit)
        return true;
    std::printf("    %s: %.2f is more than %.2f\n", what, value, limit);
    return false;
}

static bool measure(int nets, bool isFlat)
{
    const QTemporaryDir dir;
    qputenv("XDG_CACHE_HOME", QFile::encodeName(dir.filePath(QStringLiteral("cache"))));
    const QVariantMap file{{QStringLiteral("Path"), writeDesign(dir, nets, isFlat)}};
    const auto sources = NETCATCHER::DesignSources::fromSourceInfo({{QStringLiteral("Files"), QVariantList{file}}});
    StageClock clock;
    forgetPeak();
    const double heapBefore = heapBytes();
    const double peakBefore = peakBytes();
    const Opened first = openDesign(sources, &clock);
    if (!first.netlist)
        return false;
    const double peak = (peakBytes() - peakBefore) / peakBytesOfEngine();
    const NETCATCHER::Hierachy *top = first.netlist->topHierarchy();
    const double listed = top->singleNetsIncludeSub().size() + top->netbusesIncludeSub().size();
    clock.enter(BuildProgress::BuildingNetlist);
    const double engine = clock.seconds(BuildProgress::RunningEngine);
    const double ours = clock.seconds(BuildProgress::ReadingResult) + clock.seconds(BuildProgress::BuildingNetlist);
    const double bytesEach = (heapBytes() - heapBefore) / listed + sizeof(NETCATCHER::RtlNet);
    const double second = openDesign(sources).seconds;
    std::printf(
        "%9.0f nets %s: engine %.2f s, scan %.2f s, parse, keep and build %.3f s = %.2f of the engine; peak memory "
        "%.2f of the engine; %.1f bytes a net; second opening %.4f s, %.0f times faster\n",
        listed, isFlat ? "flat" : "in a hierarchy", engine, clock.seconds(BuildProgress::ReadingSources), ours,
        ours / engine, peak, bytesEach, second, first.seconds / second);
    const bool isQuick = isWithin("our part of the engine's time", ours / engine, 0.5);
    const bool isSmall = nets < 1000000 || isWithin("bytes a net", bytesEach, 25);
    return isWithin("a second opening, of a tenth of the first", second * 10 / first.seconds, 1) && isQuick && isSmall;
}

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    if (argc == 3)
        return measure(QByteArray(argv[1]).toInt(), qstrcmp(argv[2], "flat") == 0) ? 0 : 1;
    int failures = 0;
    const auto run = [&](const char *nets, const char *form) {
        failures += QProcess::execute(application.applicationFilePath(),
                                      {QString::fromLatin1(nets), QString::fromLatin1(form)}) != 0;
    };
    for (const char *nets : {"10000", "100000"})
        run(nets, "flat");
    for (const char *nets : {"10000", "100000", "1000000"})
        run(nets, "hierarchical");
    return failures == 0 ? 0 : 1;
}

// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

// Netlists of generated designs from ten thousand to a million nets: the time of our part (scan, parse, build) beside
// the engine's own, the memory of the netlist in bytes a net, a search over all names, and a second opening beside the
// first. Prints ratios of one run.

#include "hostlibs/netcatcher/netlistbuilder.h"
#include "rules/netsearch.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <QTextStream>

#include <array>
#include <cstdio>

#include <malloc.h>

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

static void measureSearch(const NETCATCHER::RtlNetlist &netlist)
{
    RTLVAK::SearchCriteria criteria;
    criteria.pattern = QStringLiteral("b97[7:0]");
    QElapsedTimer timer;
    timer.start();
    const RTLVAK::SearchHits hits = RTLVAK::searchFlat(&netlist, criteria);
    std::printf("    plain search over all names: %d hits, %.3f s\n", hits.buses.size(), double(timer.elapsed()) / 1e3);
}

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

static void measure(int nets, bool isFlat)
{
    const QTemporaryDir dir;
    qputenv("XDG_CACHE_HOME", QFile::encodeName(dir.filePath(QStringLiteral("cache"))));
    const QVariantMap file{{QStringLiteral("Path"), writeDesign(dir, nets, isFlat)}};
    const auto sources = NETCATCHER::DesignSources::fromSourceInfo({{QStringLiteral("Files"), QVariantList{file}}});
    StageClock clock;
    const double before = heapBytes();
    const Opened first = openDesign(sources, &clock);
    if (!first.netlist)
        return;
    const NETCATCHER::Hierachy *top = first.netlist->topHierarchy();
    const double listed = top->singleNetsIncludeSub().size() + top->netbusesIncludeSub().size();
    clock.enter(BuildProgress::BuildingNetlist);
    const double engine = clock.seconds(BuildProgress::RunningEngine);
    const double scan = clock.seconds(BuildProgress::ReadingSources);
    const double ours = clock.seconds(BuildProgress::ReadingResult) + clock.seconds(BuildProgress::BuildingNetlist);
    std::printf("%9.0f nets %s: engine %.2f s, parse, keep and build %.2f s = %.2f of the engine, scan %.2f s, "
                "%.1f bytes a net\n",
                listed, isFlat ? "flat" : "in a hierarchy", engine, ours, ours / engine, scan,
                (heapBytes() - before) / listed + sizeof(NETCATCHER::RtlNet));
    const double second = openDesign(sources).seconds;
    std::printf("    second opening: %.4f s, %.0f times faster\n", second, first.seconds / second);
    measureSearch(*first.netlist);
}

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    measure(10000, true);
    measure(100000, true);
    measure(10000, false);
    measure(100000, false);
    measure(1000000, false);
    return 0;
}

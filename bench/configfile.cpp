// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

// Writing and reading a bus of 65 536 bits in its one line, beside the same bus with all its members written out
// (because one of them was renamed). Prints ratios of one run; times are the best of several rounds.

#include "hostlibs/vakutils/corereader.h"
#include "hostlibs/vakutils/corewriter.h"

#include <VakUtils/aocore.h>

#include <QElapsedTimer>

#include <algorithm>
#include <cstdio>
#include <functional>
#include <limits>

using namespace VAK;

static constexpr int bits = 65536;
static constexpr int rounds = 9;

static SignalItem wideBus()
{
    SignalItem bus;
    bus.name = QStringLiteral("u_core/data[%1:0]").arg(bits - 1);
    bus.kind = 1;
    for (int bit = bits - 1; bit >= 0; --bit) {
        SignalItem member;
        member.name = QStringLiteral("u_core/data[%1]").arg(bit);
        bus.members.append(member);
    }
    return bus;
}

static double bestMilliseconds(const std::function<void()> &work)
{
    double best = std::numeric_limits<double>::max();
    for (int round = 0; round < rounds; ++round) {
        QElapsedTimer timer;
        timer.start();
        work();
        best = std::min(best, double(timer.nsecsElapsed()) / 1e6);
    }
    return best;
}

struct Figures
{
    double bytes = 0;
    double writeMs = 0;
    double readMs = 0;
};

static Figures measure(const SignalItem &bus)
{
    AoCore core(0);
    core.setallCapSignal({bus});
    QByteArray text;
    Figures figures;
    figures.writeMs = bestMilliseconds([&] { text = standardFile({&core}); });
    figures.readMs = bestMilliseconds([&] {
        FileError error;
        qDeleteAll(readStandardCores(text, Checks::StructureAndValues, &error));
    });
    figures.bytes = text.size();
    return figures;
}

int main()
{
    SignalItem bus = wideBus();
    const Figures compact = measure(bus);
    bus.members.last().displayName = QStringLiteral("lowest");
    const Figures expanded = measure(bus);
    std::printf("bus of %d bits       one line    members    ratio\n", bits);
    std::printf("file, bytes        %10.0f %10.0f %8.1f\n", compact.bytes, expanded.bytes,
                expanded.bytes / compact.bytes);
    std::printf("write, ms          %10.2f %10.2f %8.1f\n", compact.writeMs, expanded.writeMs,
                expanded.writeMs / compact.writeMs);
    std::printf("read, ms           %10.2f %10.2f %8.1f\n", compact.readMs, expanded.readMs,
                expanded.readMs / compact.readMs);
    return 0;
}

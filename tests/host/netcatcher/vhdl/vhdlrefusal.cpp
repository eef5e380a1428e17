// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "vhdlrefusal.h"

#include "host/netcatcher/netlistprobe.h"

#include "support/fakelandlock.h"

#include <QtTest>

namespace probe {

const char vhdlRefusal[] = "ERROR: VHDL is not read, because this kernel offers no Landlock: elaborating a design runs "
                           "what it says, and it could write your files; Linux 5.13 or later with Landlock enabled "
                           "confines it.";

void VhdlRefusal::vhdlIsRefused_data()
{
    QTest::addColumn<QStringList>("files");
    QTest::newRow("alone") << QStringList{"packets.vhd"};
    QTest::newRow("several") << QStringList{"lanes.vhd", "packets.vhd"};
    QTest::newRow("inside of Verilog") << QStringList{"crossing.v", "crossing_parts.vhd"};
    QTest::newRow("around Verilog") << QStringList{"bridge.vhd", "bridge_parts.v"};
}

void VhdlRefusal::vhdlIsRefused()
{
    QFETCH(QStringList, files);
    QStringList paths;
    for (const QString &file : files)
        paths.append(dataFile(file));
    const Result result = build(sources(paths));
    QCOMPARE(result.errors(), QStringList(QLatin1String(vhdlRefusal)));
    QVERIFY(!result.isAnalysed && !result.netlist);
}

int runVhdlTest(QObject *test, int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    VhdlRefusal refusal;
    return QTest::qExec(support::landlockVersion() > 0 ? test : &refusal, argc, argv);
}

} // namespace probe

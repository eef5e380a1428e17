// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "simulatorrows.h"

#include "host/netcatcher/netlistprobe.h"

#include <QDir>
#include <QtTest>

/// Compares netlists, path by path, range by range and width by width, with what a simulator that shares no code with
/// the engine finds in the same sources.
class TestNetlistOracle : public QObject
{
    Q_OBJECT

private slots:
    void agreesWithTheSimulator_data();
    void agreesWithTheSimulator();
};

/// Designs that the simulator cannot tell about.
static const QStringList exceptions{
    "boxed",        // has modules without source
    "bridge_parts", // is the part of a design in VHDL
    "charge",       // has declarations that the simulator does not read
    "crossing",     // has parts in VHDL
    "jtag_model",   // is a part of another design
    "planes",       // has arrays of more than one dimension, which the simulator flattens
    "usable",       // has unused nets, which the simulator drops
};

void TestNetlistOracle::agreesWithTheSimulator_data()
{
    QTest::addColumn<QString>("design");
    const QStringList files = QDir(probe::dataFile(QString())).entryList({"*.v"}, QDir::Files, QDir::Name);
    for (const QString &file : files) {
        const QString design = file.left(file.size() - 2);
        if (!exceptions.contains(design))
            QTest::newRow(qPrintable(design)) << design;
    }
}

void TestNetlistOracle::agreesWithTheSimulator()
{
    QFETCH(QString, design);
    const QString source = probe::dataFile(design + ".v");
    const probe::Result result = probe::build(probe::sources({source}));
    QVERIFY2(result.netlist, qPrintable(result.error));
    const QStringList expected = probe::simulatorRows(source, {design}).value(design);
    const QStringList actual = probe::rowsAsOfSimulator(*result.netlist);
    QVERIFY(expected.size() >= 8);
    for (int i = 0; i < qMin(expected.size(), actual.size()); ++i)
        QCOMPARE(actual[i], expected[i]);
    QCOMPARE(actual.size(), expected.size());
}

QTEST_GUILESS_MAIN(TestNetlistOracle)
#include "tst_netlistoracle.moc"

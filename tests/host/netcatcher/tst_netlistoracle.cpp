// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "netlistprobe.h"

#include "support/tempdir.h"

#include <QDir>
#include <QProcess>
#include <QRegularExpression>
#include <QtTest>

/// Compares netlists, path by path, range by range and width by width, with what a simulator that shares no code with
/// the engine finds in the same sources. A module of the tests' own asks it through its programming interface.
class TestNetlistOracle : public QObject
{
    Q_OBJECT

private slots:
    void agreesWithTheSimulator_data();
    void agreesWithTheSimulator();
};

/// Designs that the simulator cannot tell about.
static const QStringList exceptions{
    "boxed",      // has modules without source
    "charge",     // has declarations that the simulator does not read
    "jtag_model", // is a part of another design
    "planes",     // has arrays of more than one dimension, which the simulator flattens
    "usable",     // has unused nets, which the simulator drops
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

/// The output of a program; null, with the reason printed, when it fails.
static QByteArray outputOf(const QString &program, const QStringList &arguments, const QString &folder)
{
    QProcess process;
    process.setWorkingDirectory(folder);
    process.start(program, arguments);
    const bool hasEnded =
        process.waitForFinished(60000) && process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
    if (!hasEnded)
        qWarning().noquote() << program << process.errorString() << process.readAllStandardError();
    return hasEnded ? process.readAllStandardOutput() + '\n' : QByteArray();
}

/// Both sides' form of one net. The simulator does not tell `[0:0]` from a scalar, and it numbers generate blocks
/// without names in its own way; the standard's numbers stand in the golden lists.
static QString entry(QString name, int width)
{
    static const QRegularExpression number(QStringLiteral("\\bgenblk\\d+"));
    if (width == 1 && name.endsWith("[0:0]"))
        name.chop(5);
    return name.replace(number, QStringLiteral("genblk")) + '\t' + QString::number(width);
}

static QStringList fromSimulator(const QByteArray &output)
{
    QStringList entries;
    const QStringList lines = QString::fromUtf8(output).split('\n');
    for (const QString &line : lines) {
        QStringList columns = line.split('\t');
        if (columns[0] != "NET" || columns[1] == "vpiRealVar" || columns[1] == "vpiNamedEvent")
            continue;
        columns[2].replace("\\\"", "\"").replace("\\\\", "\\"); // as in a string literal
        entries.append(entry(columns[2], columns[3].toInt()));
    }
    entries.sort();
    return entries;
}

static QStringList fromNetlist(const NETCATCHER::RtlNetlist &netlist)
{
    QStringList entries;
    for (const NETCATCHER::RtlNet *net : netlist.topHierarchy()->singleNetsIncludeSub())
        entries.append(entry(net->fullPathName(), 1));
    for (const NETCATCHER::RtlNetBus *bus : netlist.topHierarchy()->netbusesIncludeSub())
        entries.append(entry(bus->fullBusName(), bus->nets().size()));
    entries.sort();
    return entries;
}

void TestNetlistOracle::agreesWithTheSimulator()
{
    QFETCH(QString, design);
    const support::TempDir dir;
    const QString source = probe::dataFile(design + ".v");
    QVERIFY(!outputOf("iverilog", {"-g2005", "-s", design, "-o", "sim", source}, dir.path()).isNull());
    const QByteArray output = outputOf("vvp", {"-n", "-M", VAK_VPI_FOLDER, "-m", "netwalker", "sim"}, dir.path());
    QVERIFY(!output.isNull());
    const probe::Result result = probe::build(probe::sources({source}));
    QVERIFY2(result.netlist, qPrintable(result.error));
    const QStringList expected = fromSimulator(output);
    const QStringList actual = fromNetlist(*result.netlist);
    QVERIFY(expected.size() >= 8);
    for (int i = 0; i < qMin(expected.size(), actual.size()); ++i)
        QCOMPARE(actual[i], expected[i]);
    QCOMPARE(actual.size(), expected.size());
}

QTEST_GUILESS_MAIN(TestNetlistOracle)
#include "tst_netlistoracle.moc"

// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "netlistprobe.h"

#include "support/tempdir.h"

#include <QMap>
#include <QProcess>
#include <QtTest>

/// Compares netlists, path by path and width by width, with what a simulator that shares no code with the engine finds
/// in the same sources: the scopes and variables of its trace.
class TestNetlistOracle : public QObject
{
    Q_OBJECT

private slots:
    void agreesWithTheSimulator_data();
    void agreesWithTheSimulator();
};

using Widths = QMap<QString, int>;

void TestNetlistOracle::agreesWithTheSimulator_data()
{
    QTest::addColumn<QString>("design");
    QTest::newRow("vectors") << "vectors";
    QTest::newRow("generated") << "generated";
}

static bool run(const QString &program, const QStringList &arguments, const QString &folder)
{
    QProcess process;
    process.setWorkingDirectory(folder);
    process.start(program, arguments);
    return process.waitForFinished(60000) && process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
}

static QByteArray trace(const QString &design, const support::TempDir &dir)
{
    const QString bench =
        dir.write("bench.v", "module oracle; initial begin $dumpfile(\"trace.vcd\"); $dumpvars(0, dut); "
                             "end " +
                                 design.toUtf8() + " dut(); endmodule\n");
    if (!run("iverilog", {"-g2005", "-o", "sim", bench, probe::dataFile(design + ".v")}, dir.path()) ||
        !run("vvp", {"-n", "sim"}, dir.path()))
        return {};
    return dir.read("trace.vcd");
}

/// Generate blocks without names are numbered differently by every tool; functions and processes have no nets.
static bool isCompared(const QString &path)
{
    return !path.contains("genblk") && !path.contains("(local)");
}

/// The variables of a trace below its second scope, under our names.
static Widths fromTrace(const QByteArray &text)
{
    Widths widths;
    QStringList scopes;
    const QList<QByteArray> lines = text.split('\n');
    for (const QByteArray &line : lines) {
        const QStringList words = QString::fromLatin1(line).split(' ', Qt::SkipEmptyParts);
        const QString first = words.value(0);
        if (first == "$scope") {
            const bool isGenerate = words[1] == "begin" && words[2] != "work";
            scopes.append(words[1] == "module" ? words[2] + '/' : isGenerate ? words[2] + '.' : "(local)");
        } else if (first == "$upscope") {
            scopes.removeLast();
        } else if (first == "$var" && words[1] != "parameter") {
            QString name = words[4];
            if (name.startsWith('\\'))
                name.remove(0, 1);
            const QString path = scopes.mid(2).join(QString()) + name;
            if (isCompared(path))
                widths.insert(path, words[2].toInt());
        }
    }
    return widths;
}

static Widths fromNetlist(const NETCATCHER::RtlNetlist &netlist)
{
    Widths widths;
    for (const NETCATCHER::RtlNet *net : netlist.topHierarchy()->singleNetsIncludeSub()) {
        if (isCompared(net->fullPathName()))
            widths.insert(net->fullPathName(), 1);
    }
    for (const NETCATCHER::RtlNetBus *bus : netlist.topHierarchy()->netbusesIncludeSub()) {
        const QString name = bus->fullBusName();
        widths.insert(name.left(name.lastIndexOf('[')), bus->nets().size());
    }
    return widths;
}

void TestNetlistOracle::agreesWithTheSimulator()
{
    QFETCH(QString, design);
    const support::TempDir dir;
    const QByteArray text = trace(design, dir);
    QVERIFY2(!text.isEmpty(), "iverilog and vvp did not run");
    const probe::Result result = probe::build(probe::sources({probe::dataFile(design + ".v")}));
    QVERIFY2(result.netlist, qPrintable(result.error));
    const Widths expected = fromTrace(text);
    const Widths actual = fromNetlist(*result.netlist);
    QVERIFY(expected.size() > 20);
    for (auto it = expected.cbegin(); it != expected.cend(); ++it)
        QVERIFY2(actual.value(it.key()) == it.value(), qPrintable(it.key()));
    for (auto it = actual.cbegin(); it != actual.cend(); ++it)
        QVERIFY2(expected.contains(it.key()), qPrintable(it.key()));
}

QTEST_GUILESS_MAIN(TestNetlistOracle)
#include "tst_netlistoracle.moc"

// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "simulatorrows.h"

#include "host/netcatcher/netlistprobe.h"

#include <QCryptographicHash>
#include <QFile>
#include <QMap>
#include <QRegularExpression>
#include <QtTest>

#include <algorithm>
#include <iterator>

/// Netlists of code that was not written for this program: the simulation libraries of Debian's package yosys, each
/// module of them as the top. What is expected lies in tests/data/hdl/realcode, one module a line: its name, single
/// nets, buses, bits and unusable rows. A line with a sixth column is for a module that is declared only when the macro
/// named there is defined. The rows themselves are compared with what a simulator finds.
class TestNetlistRealCode : public QObject
{
    Q_OBJECT

private slots:
    void everyModuleIsExtracted_data();
    void everyModuleIsExtracted();
};

namespace {

struct Expected
{
    QStringList counts;
    QString neededDefine;
};

struct Table
{
    QByteArray sha256;
    QStringList defines;
    QMap<QString, Expected> modules;
};

} // namespace

static QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

static Table readTable(const QString &name)
{
    Table table;
    const QStringList lines = QString::fromUtf8(contentOf(probe::dataFile("realcode/" + name))).split('\n');
    for (const QString &line : lines) {
        const QStringList columns = line.split('\t');
        if (columns[0] == "sha256")
            table.sha256 = columns.value(1).toLatin1();
        else if (columns[0] == "define")
            table.defines.append(columns.value(1));
        else if (columns.size() >= 5)
            table.modules.insert(columns[0], {columns.mid(1, 4), columns.value(5)});
    }
    return table;
}

/// The names behind the word `module` at the beginnings of lines, whatever conditions they stand under.
static QStringList modulesWrittenIn(const QByteArray &source)
{
    static const QRegularExpression declaration(QStringLiteral("^\\s*module\\s+(?:\\\\(\\S+)|(\\w+))"),
                                                QRegularExpression::MultilineOption);
    QStringList names;
    auto matches = declaration.globalMatch(QString::fromUtf8(source));
    while (matches.hasNext()) {
        const QRegularExpressionMatch match = matches.next();
        names.append(match.captured(1) + match.captured(2));
    }
    return names;
}

static QStringList countsOf(const NETCATCHER::RtlNetlist &netlist)
{
    const NETCATCHER::NetCounts counts = netlist.counts();
    return {QString::number(counts.singleNets), QString::number(counts.buses), QString::number(counts.bits),
            QString::number(counts.unusable)};
}

/// Nets that nothing drives or reads, which the simulator drops.
static const QStringList unusedNets{"bm0_out[-1:0]\t2", "bm1_out[-1:0]\t2", "mux/bm0_out\t1", "mux/bm1_out\t1"};

/// The rows that only one of the two knows, before and behind a bar; empty when there are none.
static QString disagreement(const QStringList &ours, const QStringList &simulated)
{
    QStringList extra, missing;
    std::set_difference(ours.begin(), ours.end(), simulated.begin(), simulated.end(), std::back_inserter(extra));
    std::set_difference(simulated.begin(), simulated.end(), ours.begin(), ours.end(), std::back_inserter(missing));
    for (const QString &unused : unusedNets)
        extra.removeOne(unused);
    return extra.isEmpty() && missing.isEmpty() ? QString() : extra.join(' ') + " | " + missing.join(' ');
}

/// What is wrong with `module` as the top; empty when its counts are the expected ones.
static QString faultOf(const QString &path, const QString &module, const QStringList &defines, const Expected &expected,
                       const QStringList &simulated)
{
    NETCATCHER::DesignSources sources = probe::sources({path}, module);
    sources.defines = defines;
    const probe::Result result = probe::build(sources);
    if (!result.netlist)
        return module + ": " + result.messages.join("; ") + result.error;
    if (result.netlist->topHierarchy()->module() != module)
        return module + ": another module was taken as the top";
    const QStringList counts = countsOf(*result.netlist);
    if (counts != expected.counts)
        return module + '\t' + counts.join('\t');
    const QString rows =
        simulated.isEmpty() ? QString() : disagreement(probe::rowsAsOfSimulator(*result.netlist), simulated);
    return rows.isEmpty() ? QString() : module + ": " + rows;
}

/// A module that its file does not declare is not found, and nothing else is said.
static bool isUndeclared(const QString &path, const QString &module, const QStringList &defines)
{
    NETCATCHER::DesignSources sources = probe::sources({path}, module);
    sources.defines = defines;
    const probe::Result result = probe::build(sources);
    return result.isAnalysed && result.modules.isEmpty() && !result.netlist && result.errors().isEmpty();
}

void TestNetlistRealCode::everyModuleIsExtracted_data()
{
    QTest::addColumn<QString>("file");
    QTest::newRow("simlib") << "simlib.v";
    QTest::newRow("simcells") << "simcells.v";
    QTest::newRow("ice40") << "ice40/cells_sim.v";
    QTest::newRow("ecp5") << "ecp5/cells_sim.v";
    QTest::newRow("xilinx") << "xilinx/cells_sim.v";
}

void TestNetlistRealCode::everyModuleIsExtracted()
{
    QFETCH(QString, file);
    const QString path = "/usr/share/yosys/" + file;
    const QByteArray source = contentOf(path);
    QVERIFY2(!source.isEmpty(), qPrintable(path + " is missing; Debian's package yosys provides it"));
    const Table table = readTable(QString(QTest::currentDataTag()) + ".counts");
    const QByteArray hash = QCryptographicHash::hash(source, QCryptographicHash::Sha256).toHex();
    QVERIFY2(
        hash == table.sha256,
        qPrintable(path + " is not the file that was counted (another version of yosys?); its SHA-256 is " + hash));
    const QStringList names = modulesWrittenIn(source);
    QStringList declared;
    for (const QString &name : names) {
        if (table.modules.value(name).neededDefine.isEmpty())
            declared.append(name);
    }
    const QMap<QString, QStringList> simulated = probe::simulatorRows(path, declared, table.defines);
    QStringList faults;
    for (const QString &name : names) {
        const Expected expected = table.modules.value(name);
        QStringList defines = table.defines;
        if (!expected.neededDefine.isEmpty()) {
            QVERIFY2(isUndeclared(path, name, defines), qPrintable(name));
            defines.append(expected.neededDefine);
        }
        const QString fault = faultOf(path, name, defines, expected, simulated.value(name));
        if (!fault.isEmpty())
            faults.append(fault);
    }
    QVERIFY2(faults.isEmpty(), qPrintable('\n' + faults.join('\n')));
    QCOMPARE(names.size(), table.modules.size());
    QVERIFY2(declared.size() * 100 >= names.size() * 95, qPrintable(QString::number(declared.size())));
    QVERIFY2(simulated.size() * 100 >= names.size() * 95, qPrintable(QString::number(simulated.size())));
}

QTEST_GUILESS_MAIN(TestNetlistRealCode)
#include "tst_netlistrealcode.moc"

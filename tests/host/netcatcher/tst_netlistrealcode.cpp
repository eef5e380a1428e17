// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "netlistprobe.h"

#include <QCryptographicHash>
#include <QFile>
#include <QMap>
#include <QRegularExpression>
#include <QtTest>

/// Netlists of code that was not written for this program: the simulation libraries of Debian's package yosys, each
/// module of them as the top. What is expected lies in tests/data/hdl/realcode, one module a line: its name, single
/// nets, buses, bits and unusable rows. A line with a sixth column is for a module that is declared only when the macro
/// named there is defined.
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

/// What is wrong with `module` as the top; empty when its counts are the expected ones.
static QString faultOf(const QString &path, const QString &module, const QStringList &defines, const Expected &expected)
{
    NETCATCHER::DesignSources sources = probe::sources({path}, module);
    sources.defines = defines;
    const probe::Result result = probe::build(sources);
    if (!result.netlist)
        return module + ": " + result.messages.join("; ") + result.error;
    if (result.netlist->topHierarchy()->module() != module)
        return module + ": another module was taken as the top";
    const QStringList counts = countsOf(*result.netlist);
    return counts == expected.counts ? QString() : module + '\t' + counts.join('\t');
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
    QStringList faults;
    int extracted = 0;
    for (const QString &name : names) {
        const Expected expected = table.modules.value(name);
        QStringList defines = table.defines;
        if (!expected.neededDefine.isEmpty()) {
            QVERIFY2(isUndeclared(path, name, defines), qPrintable(name));
            defines.append(expected.neededDefine);
        } else {
            ++extracted;
        }
        const QString fault = faultOf(path, name, defines, expected);
        if (!fault.isEmpty())
            faults.append(fault);
    }
    QVERIFY2(faults.isEmpty(), qPrintable('\n' + faults.join('\n')));
    QCOMPARE(names.size(), table.modules.size());
    QVERIFY2(extracted * 100 >= names.size() * 95, qPrintable(QString::number(extracted)));
}

QTEST_GUILESS_MAIN(TestNetlistRealCode)
#include "tst_netlistrealcode.moc"

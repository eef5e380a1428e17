// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "host/netcatcher/netlistprobe.h"

#include "support/fakelandlock.h"
#include "support/tempdir.h"

#include <QFile>
#include <QtTest>

#include <sys/resource.h>

/// Sources of 200 MB, as generators write them: mostly comments.
class TestLargeSource : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();

    void largeSourceIsReadLikeAnyOther();
    void memoryStaysBelowTwiceTheFile();
    void largerSourcesAreNamed();

private:
    support::TempDir dir;
    QString large;
    QString user;
};

constexpr qint64 largeBytes = qint64(200) << 20;
static const char line[] = "// One of many lines that a generator has left behind for whoever reads them.\n";

void TestLargeSource::initTestCase()
{
    user = dir.write("user.sv", "module a import p::*; (input [W-1:0] x); leaf u(.x(x)); endmodule\n");
    large = dir.write("large.sv", "package p; localparam W = 3; endpackage\n");
    QFile file(large);
    QVERIFY(file.open(QIODevice::Append));
    const QByteArray piece = QByteArray(line).repeated(10000);
    while (file.size() < largeBytes)
        QCOMPARE(file.write(piece), qint64(piece.size()));
    const QByteArray end = "module leaf(input [2:0] x); wire y = x[0]; vendor v(.p(x)); endmodule\n";
    QCOMPARE(file.write(end), qint64(end.size()));
}

void TestLargeSource::largeSourceIsReadLikeAnyOther()
{
    // The package in it is needed by the file before it, and a module in it has a black box.
    const probe::Result result = probe::build(probe::sources({user, large}, "a"));
    QCOMPARE(result.messages, QStringList());
    QCOMPARE(result.modules, QStringList({"a", "leaf"}));
    QCOMPARE(probe::rows(*result.netlist), QStringList({"x[2:0]", "u/x[2:0]", "u/y"}));
}

/// The most memory that this process has had, in bytes.
static qint64 peakMemory()
{
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return qint64(usage.ru_maxrss) * 1024;
}

void TestLargeSource::memoryStaysBelowTwiceTheFile()
{
    // In a process of its own, whose peak is that of this read. It ends with an error before the engine has much to do.
    const QString empty = dir.write("empty.v", "`error_here\n");
    const QByteArray told = support::inChild([&] {
        const qint64 before = peakMemory();
        const probe::Result result = probe::build(probe::sources({empty, large, user}, "a"));
        return QByteArray::number(peakMemory() - before) + ' ' + QByteArray::number(result.errors().size());
    });
    const QList<QByteArray> numbers = told.split(' ');
    QCOMPARE(numbers.size(), 2);
    QVERIFY2(numbers[0].toLongLong() < 2 * largeBytes, told.constData());
}

void TestLargeSource::largerSourcesAreNamed()
{
    const QString larger = dir.write("larger.sv", "module b(input x); endmodule\n/*");
    QVERIFY(QFile::resize(larger, qint64(300) << 20));
    NETCATCHER::EngineLimits limits;
    limits.milliseconds = 1000;
    const probe::Result result = probe::build(probe::sources({larger}), limits);
    QCOMPARE(result.messages.value(0),
             "WARNING: " + larger +
                 ": The file is larger than 256 MB and is not looked through beforehand; put it "
                 "before the files that use its packages");
}

QTEST_GUILESS_MAIN(TestLargeSource)
#include "tst_largesource.moc"

// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "host/netcatcher/netlistprobe.h"

#include "support/tempdir.h"

#include <QtTest>

/// Verilog files that use words of SystemVerilog as names.
class TestNetlistWords : public QObject
{
    Q_OBJECT

private slots:
    void wordsMayBeNames_data();
    void wordsMayBeNames();
    void eachFileIsTriedByItself();
    void blackBoxesAreStillFound();
    void includesAreStillFound();
    void firstErrorsAreTold_data();
    void firstErrorsAreTold();
    void systemVerilogFilesAreNotTried();
};

void TestNetlistWords::wordsMayBeNames_data()
{
    QTest::addColumn<QString>("word");
    for (const char *word : {"do", "bit", "final", "weak", "strong", "checker", "logic", "global", "interface"})
        QTest::newRow(word) << word;
}

void TestNetlistWords::wordsMayBeNames()
{
    QFETCH(QString, word);
    const support::TempDir dir;
    const QString path =
        dir.write("old.v", QString("module old(input d, output %1);\nassign %1 = d;\nendmodule\n").arg(word).toUtf8());
    const probe::Result result = probe::build(probe::sources({path}));
    QCOMPARE(result.messages, QStringList());
    QCOMPARE(probe::rows(*result.netlist), QStringList({"d", word}));
}

void TestNetlistWords::eachFileIsTriedByItself()
{
    const support::TempDir dir;
    const QString old = dir.write("old.v", "module old(input bit, output q); assign q = bit; endmodule\n");
    const QString modern =
        dir.write("modern.v", "module modern(input logic d, output logic q);\nold u(d, q);\nendmodule\n");
    const probe::Result result = probe::build(probe::sources({old, modern}));
    QCOMPARE(result.messages, QStringList());
    QCOMPARE(probe::rows(*result.netlist), QStringList({"d", "q", "u/bit", "u/q"}));
}

void TestNetlistWords::blackBoxesAreStillFound()
{
    const support::TempDir dir;
    const QString path = dir.write("old.v", "module old(input bit, output q);\nvendor_buffer u(.I(bit), .O(q));\n"
                                            "endmodule\n");
    const probe::Result result = probe::build(probe::sources({path}));
    QCOMPARE(result.messages, QStringList());
    QCOMPARE(probe::rows(*result.netlist), QStringList({"bit", "q"}));
}

void TestNetlistWords::includesAreStillFound()
{
    const support::TempDir dir;
    dir.write("width.vh", "`define WIDTH 4\n");
    const QString path = dir.write("old.v", "`include \"width.vh\"\nmodule old(input [`WIDTH-1:0] do, output q);\n"
                                            "assign q = ^do;\nendmodule\n");
    const probe::Result result = probe::build(probe::sources({path}));
    QCOMPARE(result.messages, QStringList());
    QCOMPARE(probe::rows(*result.netlist), QStringList({"do[3:0]", "q"}));
}

void TestNetlistWords::firstErrorsAreTold_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("error");
    QTest::newRow("both at once") << QByteArray("module a(input do,\noutput logic q);\nassign q = do;\nendmodule\n")
                                  << ":1: Unexpected 'do': 'do' is a SystemVerilog keyword misused as an identifier.";
    QTest::newRow("neither") << QByteArray("module a(input d, output logic q);\nassign q == d;\nendmodule\n")
                             << ":2: syntax error, unexpected ==, expecting '='";
}

void TestNetlistWords::firstErrorsAreTold()
{
    QFETCH(QByteArray, text);
    QFETCH(QString, error);
    const support::TempDir dir;
    const QString path = dir.write("a.v", text);
    const probe::Result result = probe::build(probe::sources({path}));
    QVERIFY(!result.netlist);
    QVERIFY(!result.messages.isEmpty());
    QVERIFY2(result.messages.first().startsWith("ERROR: " + path + error), qPrintable(result.messages.join('\n')));
}

void TestNetlistWords::systemVerilogFilesAreNotTried()
{
    const support::TempDir dir;
    const QString path = dir.write("a.sv", "module a(input do, output q);\nassign q = do;\nendmodule\n");
    const probe::Result result = probe::build(probe::sources({path}));
    QVERIFY(!result.netlist);
    QVERIFY(result.messages.value(0).startsWith("ERROR: " + path + ":1: "));
}

QTEST_GUILESS_MAIN(TestNetlistWords)
#include "tst_netlistwords.moc"

// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "netlistprobe.h"

#include "support/tempdir.h"

#include <QDir>
#include <QFile>
#include <QStandardPaths>
#include <QtTest>

/// Sources that ask for commands and files: reading a design carries out nothing of it.
class TestInertSources : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void nothingInASourceIsCarriedOut_data();
    void nothingInASourceIsCarriedOut();

private:
    void installWatchedEngine() const;

    std::unique_ptr<support::TempDir> dir;
    QByteArray searchPath;
    QString folder;
};

void TestInertSources::init()
{
    dir = std::make_unique<support::TempDir>();
    searchPath = qgetenv("PATH");
    folder = QDir::currentPath();
    QVERIFY(QDir::setCurrent(dir->path()));
}

void TestInertSources::cleanup()
{
    qputenv("PATH", searchPath);
    QVERIFY(QDir::setCurrent(folder));
}

/// Puts a program before the real engine that runs it and complains about files that a design made in its folder.
void TestInertSources::installWatchedEngine() const
{
    const QString engine = QStandardPaths::findExecutable("verilator_bin");
    const QString program =
        dir->write("bin/verilator_bin", "#!/bin/sh\n'" + engine.toUtf8() +
                                            "' \"$@\"\ncode=$?\n"
                                            "find . -name '*canary*' -exec echo '%Error: carried out:' {} ';' >&2\n"
                                            "exit $code\n");
    QVERIFY(QFile::setPermissions(program, QFile::ReadOwner | QFile::ExeOwner));
    qputenv("PATH", QFile::encodeName(dir->filePath("bin")) + ':' + searchPath);
}

void TestInertSources::nothingInASourceIsCarriedOut_data()
{
    QTest::addColumn<QByteArray>("body");
    QTest::newRow("constant") << QByteArray("localparam P = $system(\"touch CANARY\");");
    QTest::newRow("command") << QByteArray("initial $system(\"touch CANARY\");");
    QTest::newRow("imported function") << QByteArray(
        "import \"DPI-C\" context function int system(input string s);\n"
        "localparam P = system(\"touch CANARY\"); initial system(\"touch CANARY\");");
    QTest::newRow("file") << QByteArray("integer f; initial begin f = $fopen(\"CANARY\", \"w\"); $fwrite(f, \"x\"); "
                                        "$fclose(f); end");
    QTest::newRow("memory") << QByteArray("reg [7:0] m [0:3]; initial begin m[0] = 1; $writememh(\"CANARY\", m); "
                                          "$readmemh(\"CANARY\", m); end");
    QTest::newRow("dump") << QByteArray("initial begin $dumpfile(\"CANARY\"); $dumpvars; end");
    QTest::newRow("other language") << QByteArray("`systemc_header\n#include <stdlib.h>\n"
                                                  "int i = system(\"touch CANARY\");\n`verilog");
    QTest::newRow("options") << QByteArray("/* verilator -Mdir CANARY */ // verilator --prefix CANARY\n"
                                           "`pragma protect begin");
}

void TestInertSources::nothingInASourceIsCarriedOut()
{
    QFETCH(QByteArray, body);
    installWatchedEngine();
    // Landlock would keep the engine from the first of them, but not from those in its own folder.
    for (const QByteArray &canary :
         {dir->filePath("canary").toUtf8(), QByteArray("canary"), QByteArray("vakout/canary")}) {
        const QByteArray text = QByteArray(body).replace("CANARY", canary);
        const probe::Result result = probe::build(
            probe::sources({dir->write("design.sv", "module a(input x);\nwire y = x;\n" + text + "\nendmodule\n")}));
        QCOMPARE(result.messages.filter("carried out"), QStringList());
        QCOMPARE(QDir(dir->path()).entryList(QDir::Files), QStringList("design.sv"));
        QVERIFY(result.netlist ? probe::rows(*result.netlist).contains("y") : !result.errors().isEmpty());
    }
}

QTEST_GUILESS_MAIN(TestInertSources)
#include "tst_inertsources.moc"

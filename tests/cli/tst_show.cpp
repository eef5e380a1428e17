// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "runrtlvak.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QtTest>

class TestShow : public QObject
{
    Q_OBJECT

private slots:
    void standardFileIsShownWhole();
    void liteFileIsShownWhole();
    void usageIsComparedWithTheDevice();
    void exceededCapacityIsNamed();
    void ownBlocksOfADeviceAreCounted();
    void dynamicTriggerIsComparedToo();
    void newCoreShowsItsDefaults();
    void fileWithoutCores();
    void standardFileAsJson();
    void liteFileAsJson();
    void errorsNameThePlace_data();
    void errorsNameThePlace();
    void wrongCommandLines_data();
    void wrongCommandLines();
    void fileNameIsShownAsGiven();
};

static QString data(const char *name)
{
    return QStringLiteral(VAK_TEST_DATA "/config/%1").arg(QLatin1String(name));
}

void TestShow::standardFileIsShownWhole()
{
    const CliRun run = runRtlvak({"show", data("standard-full.rvk")});
    QCOMPARE(run.status, 0);
    QCOMPARE(run.error, QString());
    const QString expected = QString::fromUtf8(R"(: Standard mode, 2 cores

Core 0 in soc_top
  Sample clock     clk, rising edge
  Trigger          Dynamic, in SSRAM
  Trigger Port 0   2 inputs
    u_core/valid
    u_core/ready  (shown as "ready <in> & "out"", missing in the design)
  Trigger Port 7   10 inputs
    u_core/pc[7:0]  (8 bits)
    group_0[1:0]  (2 bits, shown as "both")
      u_core/valid
      g_lane[1].u_add/carry  (shown as "carry of 1")
  M0               Trigger Port 0 == 1R
  M1               Trigger Port 7 in range 0000000100 .. 0000010000, total 65535
  M2               Trigger Port 0 != XN, consecutive 3
  M14              Trigger Port 3 <= 01  (off)
  Expression       M0&!(M1|M2)
  Expression       M0
  Capture          REG, 3 stored, 2 segments of 1000, trigger at 5, force by falling edge on, initial data on
  Captured         16 bits
    u_core/valid  (inactive)
    up[0:7]  (8 bits)
    u_mem/q[3:0]  (4 bits, unusable)
      u_mem/q[2]  (unusable)
      u_mem/q[1]  (missing in the design)
      u_mem/q[0]  (inactive)
    lane[1][3:1]  (3 bits)
      lane[1][3]
      lane[1][2]
      lane[1][1]
    neg[1:-2]  (4 bits)
    größe/Δ[0]  (shown as "Größe")

Core 1 in soc_top
  Sample clock     u_pll/clk_out[0], falling edge
  Trigger          Static
  Capture          SSRAM, 65536 stored, 1 segment of 65536, trigger at 65532, force by falling edge off, initial data off
  Captured         0 bits
)");
    QCOMPARE(run.output, data("standard-full.rvk") + expected);
}

void TestShow::liteFileIsShownWhole()
{
    const CliRun run = runRtlvak({"show", data("lite-full.rvk")});
    QCOMPARE(run.status, 0);
    const QString expected = QStringLiteral(R"(: Lite mode, 2 cores

Core 0 in soc_top
  Sample clock     clk, falling edge
  Capture          SSRAM, 2048 samples, input register on, initial data on
  Captured         34 bits
    u_core/valid
    u_core/pc[31:0]  (32 bits, shown as "counter")
    group_3[0:0]  (1 bit)
      u_core/ready

Core 1
  Sample clock     none
  Capture          REG, 2 samples, input register off, initial data off
  Captured         0 bits
)");
    QCOMPARE(run.output, data("lite-full.rvk") + expected);
}

void TestShow::usageIsComparedWithTheDevice()
{
    // Core 1 of the Lite file stores nothing; core 0 takes 2048/16 rows of 9 cells.
    const CliRun run = runRtlvak({"show", data("lite-full.rvk"), "--device", "LFE5U-25F"});
    QCOMPARE(run.status, 0);
    QVERIFY2(run.output.contains(QStringLiteral("  Capture usage    SSRAM 1152/3036 of LFE5U-25F\n")),
             qPrintable(run.output));
    QVERIFY(run.output.contains(QStringLiteral("  Capture usage    REG 0/24288 of LFE5U-25F\n")));
}

void TestShow::exceededCapacityIsNamed()
{
    const CliRun run = runRtlvak({"show", data("lite-full.rvk"), "--device=KXB-S2"});
    QCOMPARE(run.status, 0);
    QVERIFY2(run.output.contains(QStringLiteral("  Capture usage    SSRAM 1152/0 of KXB-S2, exceeded\n")),
             qPrintable(run.output));
}

void TestShow::ownBlocksOfADeviceAreCounted()
{
    QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("a.rvk"));
    QFile golden(data("lite-full.rvk"));
    QVERIFY(golden.open(QIODevice::ReadOnly));
    QFile changed(file);
    QVERIFY(changed.open(QIODevice::WriteOnly));
    changed.write(golden.readAll().replace("implementation=\"SSRAM\"", "implementation=\"BSRAM\""));
    changed.close();
    // 34 bits of 2048 samples: 4 blocks of 2048x9 (or 8192x2 by 17), but 17 of 2048x2.
    CliRun run = runRtlvak({"show", file, "--device", "iCE40HX8K"});
    QVERIFY2(run.output.contains(QStringLiteral("BSRAM 4/32 of iCE40HX8K (17 of its own blocks)\n")),
             qPrintable(run.output));
    run = runRtlvak({"show", file, "--device", "LFE5U-25F"});
    QVERIFY2(run.output.contains(QStringLiteral("BSRAM 4/56 of LFE5U-25F\n")), qPrintable(run.output));
}

void TestShow::dynamicTriggerIsComparedToo()
{
    const CliRun run = runRtlvak({"show", data("standard-full.rvk"), "--device", "KXC-T2"});
    QVERIFY2(run.output.contains(QStringLiteral("  Trigger usage    SSRAM Usage : 2/768\n")), qPrintable(run.output));
    QCOMPARE(run.output.count(QStringLiteral("Trigger usage")), 1);
}

void TestShow::newCoreShowsItsDefaults()
{
    const CliRun run = runRtlvak({"show", data("standard-new-core.rvk")});
    QCOMPARE(run.output, data("standard-new-core.rvk") +
                             QStringLiteral(": Standard mode, 1 core\n\nCore 0\n  Sample clock     none\n"
                                            "  Trigger          Static\n"
                                            "  Capture          BSRAM, 1024 stored, 1 segment of 1024, trigger at 0, "
                                            "force by falling edge off, initial data off\n"
                                            "  Captured         0 bits\n"));
}

void TestShow::fileWithoutCores()
{
    QCOMPARE(runRtlvak({"show", data("lite-empty.rvk")}).output,
             data("lite-empty.rvk") + QStringLiteral(": Lite mode, 0 cores\n"));
}

static QJsonObject jsonOf(const CliRun &run)
{
    return QJsonDocument::fromJson(run.output.toUtf8()).object();
}

void TestShow::standardFileAsJson()
{
    const CliRun run = runRtlvak({"show", "--json", data("standard-full.rvk"), "--device", "LFE5U-25F"});
    QCOMPARE(run.status, 0);
    const QJsonObject root = jsonOf(run);
    QCOMPARE(root.value(QStringLiteral("mode")).toString(), QStringLiteral("standard"));
    QCOMPARE(root.value(QStringLiteral("file")).toString(), data("standard-full.rvk"));
    const QJsonObject core = root.value(QStringLiteral("cores")).toArray().at(0).toObject();
    QCOMPARE(core.value(QStringLiteral("sampleClock")).toString(), QStringLiteral("clk"));
    const QJsonObject trigger = core.value(QStringLiteral("trigger")).toObject();
    QCOMPARE(trigger.value(QStringLiteral("mode")).toString(), QStringLiteral("dynamic"));
    QCOMPARE(trigger.value(QStringLiteral("ports")).toArray().size(), 2);
    QCOMPARE(trigger.value(QStringLiteral("units")).toArray().size(), 4);
    const QJsonObject unit = trigger.value(QStringLiteral("units")).toArray().at(1).toObject();
    QCOMPARE(unit, (QJsonObject{{"index", 1},
                                {"enabled", true},
                                {"port", 7},
                                {"function", "in range"},
                                {"value0", "0000000100"},
                                {"value1", "0000010000"},
                                {"counter", "total"},
                                {"count", 65535}}));
    QCOMPARE(trigger.value(QStringLiteral("expressions")).toArray(), (QJsonArray{"M0&!(M1|M2)", "M0"}));
    const QJsonObject capture = core.value(QStringLiteral("capture")).toObject();
    QCOMPARE(capture.value(QStringLiteral("width")).toInt(), 16);
    QCOMPARE(capture.value(QStringLiteral("storageSize")).toInt(), 3);
    const QJsonArray list = capture.value(QStringLiteral("signals")).toArray();
    QCOMPARE(list.size(), 6);
    QCOMPARE(list.at(0).toObject().value(QStringLiteral("captured")).toBool(true), false);
    QCOMPARE(list.at(1).toObject().value(QStringLiteral("members")).toArray().size(), 8);
    QCOMPARE(capture.value(QStringLiteral("usage")).toObject(),
             (QJsonObject{{"device", "LFE5U-25F"}, {"need", 51}, {"available", 24288}, {"exceeded", false}}));
}

void TestShow::liteFileAsJson()
{
    const QJsonObject root = jsonOf(runRtlvak({"show", "--json", data("lite-full.rvk")}));
    QCOMPARE(root.value(QStringLiteral("mode")).toString(), QStringLiteral("lite"));
    const QJsonObject core = root.value(QStringLiteral("cores")).toArray().at(0).toObject();
    QVERIFY(!core.contains(QStringLiteral("trigger")));
    const QJsonObject capture = core.value(QStringLiteral("capture")).toObject();
    QCOMPARE(capture.value(QStringLiteral("amount")).toInt(), 2048);
    QCOMPARE(capture.value(QStringLiteral("inputRegister")).toBool(), true);
    QCOMPARE(capture.value(QStringLiteral("implementation")).toString(), QStringLiteral("SSRAM"));
    QVERIFY(!capture.contains(QStringLiteral("usage")));
}

void TestShow::errorsNameThePlace_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("message");
    QTest::newRow("value") << QByteArray("<?xml version=\"1.0\"?>\n<vak version=\"9\" mode=\"standard\"/>\n")
                           << QStringLiteral(":2:1: found version=\"9\", expected 1, the only version known here\n");
    QTest::newRow("lite value") << QByteArray("<?xml version=\"1.0\"?>\n<vak version=\"9\" mode=\"lite\"/>\n")
                                << QStringLiteral(
                                       ":2:1: found version=\"9\", expected 1, the only version known here\n");
    QTest::newRow("mode") << QByteArray("<?xml version=\"1.0\"?>\n  <vak version=\"1\" mode=\"odd\"/>\n")
                          << QStringLiteral(":2:3: found mode=\"odd\", expected \"standard\" or \"lite\"\n");
    QTest::newRow("root") << QByteArray("<?xml version=\"1.0\"?>\n\n<html/>\n")
                          << QStringLiteral(":3:1: found <html>, expected <vak>\n");
}

void TestShow::errorsNameThePlace()
{
    QFETCH(QByteArray, text);
    QFETCH(QString, message);
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("a.rvk"));
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(text);
    file.close();
    const CliRun run = runRtlvak({"show", path});
    QCOMPARE(run.status, 1);
    QCOMPARE(run.error, path + message);
    QCOMPARE(run.output, QString());
    const CliRun missing = runRtlvak({"show", path + QStringLiteral(".no")});
    QCOMPARE(missing.status, 1);
    QCOMPARE(missing.error, path + QStringLiteral(".no: No such file or directory\n"));
}

void TestShow::wrongCommandLines_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("message");
    QTest::newRow("no file") << QStringList{"show"} << QStringLiteral("expects one file.");
    QTest::newRow("two files") << QStringList{"show", "a", "b"} << QStringLiteral("expects one file.");
    QTest::newRow("option") << QStringList{"show", "--what"} << QStringLiteral("Unknown option 'what'.");
    QTest::newRow("device") << QStringList{"show", "a", "--device", "kxa-q1"}
                            << QStringLiteral("unknown device 'kxa-q1'; 'rtlvak devices' lists them.");
}

void TestShow::wrongCommandLines()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, message);
    const CliRun run = runRtlvak(arguments);
    QCOMPARE(run.status, 2);
    QCOMPARE(run.error, QStringLiteral("rtlvak show: %1\nTry 'rtlvak show --help'.\n").arg(message));
    QCOMPARE(run.output, QString());
    const CliRun help = runRtlvak({"show", "--help"});
    QCOMPARE(help.status, 0);
    QVERIFY(help.output.startsWith(QStringLiteral("Usage: rtlvak show [options] FILE\n")));
}

void TestShow::fileNameIsShownAsGiven()
{
    QTemporaryDir folder;
    const QString path = folder.filePath(QString::fromUtf8("ein größeres %1 Gerät.rvk"));
    QVERIFY(QFile::copy(data("lite-empty.rvk"), path));
    QCOMPARE(runRtlvak({"show", path}).output, path + QStringLiteral(": Lite mode, 0 cores\n"));
}

QTEST_GUILESS_MAIN(TestShow)
#include "tst_show.moc"

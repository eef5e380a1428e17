// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "runrtlvak.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QtTest>

class TestRtlvak : public QObject
{
    Q_OBJECT

private slots:
    void helpGoesToStandardOutput();
    void versionIsPrinted();
    void missingOrUnknownCommandIsAUsageError();
    void unknownOptionIsAUsageError();
    void commandExplainsItself();
    void devicesAreListed();
    void devicesAsJson();
    void linksNoScreenLibraries();
};

void TestRtlvak::helpGoesToStandardOutput()
{
    const CliRun run = runRtlvak({"--help"});
    QCOMPARE(run.status, 0);
    QVERIFY(run.output.startsWith(QStringLiteral("Usage: rtlvak COMMAND")));
    QVERIFY(run.output.contains(QStringLiteral("\n  devices ")));
    QVERIFY(run.error.isEmpty());
}

void TestRtlvak::versionIsPrinted()
{
    const CliRun run = runRtlvak({"--version"});
    QCOMPARE(run.status, 0);
    QVERIFY(QRegularExpression(QStringLiteral("^rtlvak \\d+\\.\\d+\\.\\d+\n$")).match(run.output).hasMatch());
}

void TestRtlvak::missingOrUnknownCommandIsAUsageError()
{
    const CliRun missing = runRtlvak({});
    QCOMPARE(missing.status, 2);
    QVERIFY(missing.output.isEmpty());
    QVERIFY(missing.error.startsWith(QStringLiteral("Usage: rtlvak COMMAND")));
    const CliRun unknown = runRtlvak({"frobnicate"});
    QCOMPARE(unknown.status, 2);
    QVERIFY(unknown.error.startsWith(QStringLiteral("rtlvak: unknown command 'frobnicate'\n")));
}

void TestRtlvak::unknownOptionIsAUsageError()
{
    const CliRun run = runRtlvak({"devices", "--frobnicate"});
    QCOMPARE(run.status, 2);
    QCOMPARE(run.error, QStringLiteral("rtlvak devices: Unknown option 'frobnicate'.\nTry 'rtlvak devices --help'.\n"));
    QCOMPARE(runRtlvak({"devices", "file"}).status, 2);
}

void TestRtlvak::commandExplainsItself()
{
    const CliRun run = runRtlvak({"devices", "--help"});
    QCOMPARE(run.status, 0);
    QVERIFY(run.output.startsWith(QStringLiteral("Usage: rtlvak devices [options]\n")));
    QVERIFY(run.output.contains(QStringLiteral("--json")));
}

void TestRtlvak::devicesAreListed()
{
    const CliRun run = runRtlvak({"devices"});
    QCOMPARE(run.status, 0);
    const QStringList lines = run.output.split(QLatin1Char('\n'));
    QCOMPARE(lines.first().simplified(), QStringLiteral("NAME FAMILY BSRAM SSRAM REG"));
    QVERIFY(run.output.contains(QRegularExpression(QStringLiteral("\nLFE5U-25F +ECP5 +56 +3036 +24288\n"))));
}

void TestRtlvak::devicesAsJson()
{
    const CliRun run = runRtlvak({"devices", "--json"});
    QCOMPARE(run.status, 0);
    const QJsonArray devices =
        QJsonDocument::fromJson(run.output.toUtf8()).object().value(QStringLiteral("devices")).toArray();
    QVERIFY(devices.size() > 20);
    QCOMPARE(devices.at(0).toObject().value(QStringLiteral("name")).toString(), QStringLiteral("KXA-Q1"));
    QCOMPARE(devices.at(0).toObject().value(QStringLiteral("blockShapes")).toArray().size(), 6);
}

void TestRtlvak::linksNoScreenLibraries()
{
    QProcess ldd;
    ldd.start(QStringLiteral("ldd"), {QStringLiteral(RTLVAK_BINARY)});
    QVERIFY(ldd.waitForFinished());
    const QString libraries = QString::fromUtf8(ldd.readAllStandardOutput());
    QVERIFY2(libraries.contains(QStringLiteral("libQt5Core")), qPrintable(libraries));
    for (const char *screen : {"libQt5Gui", "libQt5Widgets", "libX11", "libGL", "libVakUtils"})
        QVERIFY2(!libraries.contains(QLatin1String(screen)), screen);
}

QTEST_GUILESS_MAIN(TestRtlvak)
#include "tst_rtlvak.moc"

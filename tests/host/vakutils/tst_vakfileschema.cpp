// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "modeltools.h"

#include <VakUtils/vakfile.h>

#include <QProcess>
#include <QtTest>

using namespace VAK;

/// The schema of the documentation and the program agree: xmllint has never heard of the one's source code.
class TestVakFileSchema : public QObject
{
    Q_OBJECT

private slots:
    void goldenFilesAreValid();
    void everyWrittenFileIsValid();
    void schemaRefusesWhatTheReaderRefuses_data();
    void schemaRefusesWhatTheReaderRefuses();
};

/// xmllint's complaints about the files; empty when all are valid.
static QString complaints(const QStringList &files)
{
    QProcess xmllint;
    xmllint.start(QStringLiteral("xmllint"), QStringList{QStringLiteral("--noout"), QStringLiteral("--nonet"),
                                                         QStringLiteral("--schema"), QStringLiteral(VAK_SCHEMA)} +
                                                 files);
    if (!xmllint.waitForFinished(60000))
        return QStringLiteral("xmllint did not run: %1").arg(xmllint.errorString());
    const QString said = QString::fromUtf8(xmllint.readAllStandardError());
    return xmllint.exitStatus() == QProcess::NormalExit && xmllint.exitCode() == 0 ? QString() : said;
}

void TestVakFileSchema::goldenFilesAreValid()
{
    QStringList files;
    for (const QString &name : goldenFiles())
        files.append(goldenFile(name));
    QVERIFY(files.size() >= 6);
    const QString said = complaints(files);
    QVERIFY2(said.isEmpty(), qPrintable(said));
}

void TestVakFileSchema::everyWrittenFileIsValid()
{
    QTemporaryDir folder;
    QStringList files;
    for (int seed = 1; seed <= 60; ++seed) {
        QRandomGenerator random{quint32(seed)};
        files.append(folder.filePath(QStringLiteral("standard%1.rvk").arg(seed)));
        QVERIFY(writeVAKConfigToXml(randomStandardCores(&random).cores, files.last()));
        files.append(folder.filePath(QStringLiteral("lite%1.rvk").arg(seed)));
        QVERIFY(writeVAKConfigToXml_Lite(randomLiteCores(&random).cores, files.last()));
    }
    const QString said = complaints(files);
    QVERIFY2(said.isEmpty(), qPrintable(said));
}

void TestVakFileSchema::schemaRefusesWhatTheReaderRefuses_data()
{
    QTest::addColumn<QByteArray>("from");
    QTest::addColumn<QByteArray>("to");
    const auto row = [](const char *name, const char *from, const char *to) {
        QTest::newRow(name) << QByteArray(from) << QByteArray(to);
    };
    row("version", "version=\"1\" mode", "version=\"2\" mode");
    row("mode", "mode=\"standard\"", "mode=\"other\"");
    row("edge", "edge=\"rising\"", "edge=\"up\"");
    row("clock", "<clock net=\"clk\" edge=\"rising\"/>", "");
    row("number", "storageSize=\"3\"", "storageSize=\"-3\"");
    row("port", "port=\"none\"", "port=\"16\"");
    row("value", "value0=\"1R\"", "value0=\"1Q\"");
    row("count", "count=\"65535\"", "count=\"65536\"");
    row("flag", "initialData=\"true\"", "initialData=\"1\"");
    row("missing attribute", "counter=\"total\"", "");
}

void TestVakFileSchema::schemaRefusesWhatTheReaderRefuses()
{
    QFETCH(QByteArray, from);
    QFETCH(QByteArray, to);
    QTemporaryDir folder;
    QByteArray text = fileContent(goldenFile(QStringLiteral("standard-full.rvk")));
    QVERIFY(text.contains(from));
    const QString file = folder.filePath(QStringLiteral("a.rvk"));
    QVERIFY(writeContent(file, text.replace(from, to)));
    QVERIFY(complaints({file}).contains(QStringLiteral("fails to validate")));
    bool ok = true;
    QVERIFY(readVAKConfigFromXml(file, &ok).isEmpty());
    QVERIFY(!ok);
}

QTEST_GUILESS_MAIN(TestVakFileSchema)
#include "tst_vakfileschema.moc"

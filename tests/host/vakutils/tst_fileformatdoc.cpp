// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "modeltools.h"

#include <VakUtils/vakfile.h>

#include <QtTest>

using namespace VAK;

class TestFileFormatDoc : public QObject
{
    Q_OBJECT

private slots:
    void examplesAreFilesAsTheyAreWritten();
    void quotedMessageIsTheReaders();
};

static QString documentation()
{
    return QString::fromUtf8(fileContent(QStringLiteral(VAK_DOCS "/file-format.md")));
}

void TestFileFormatDoc::examplesAreFilesAsTheyAreWritten()
{
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("a.rvk"));
    static const QRegularExpression block(QStringLiteral("```xml\n(.*?)```"),
                                          QRegularExpression::DotMatchesEverythingOption);
    auto examples = block.globalMatch(documentation());
    int count = 0;
    for (; examples.hasNext(); ++count) {
        const QByteArray text = examples.next().captured(1).toUtf8();
        QVERIFY(writeContent(path, text));
        bool ok = false;
        QString error;
        if (vakModeFromVakConfigFile(path) == VakMode::Lite)
            QVERIFY(writeVAKConfigToXml_Lite(LiteCores(readVAKConfigFromXml_Lite(path, &ok, &error)).cores, path));
        else
            QVERIFY(writeVAKConfigToXml(StandardCores(readVAKConfigFromXml(path, &ok, &error)).cores, path));
        QVERIFY2(ok, qPrintable(error));
        QCOMPARE(QString::fromUtf8(fileContent(path)), QString::fromUtf8(text));
    }
    QCOMPARE(count, 3);
}

void TestFileFormatDoc::quotedMessageIsTheReaders()
{
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("a.rvk"));
    QByteArray text = fileContent(goldenFile(QStringLiteral("standard-new-core.rvk")));
    QVERIFY(writeContent(path, text.replace("edge=\"rising\"", "edge=\"up\"")));
    QString error;
    QVERIFY(readVAKConfigFromXml(path, nullptr, &error).isEmpty());
    QVERIFY2(documentation().contains(QLatin1Char('`') + error + QLatin1Char('`')), qPrintable(error));
}

QTEST_GUILESS_MAIN(TestFileFormatDoc)
#include "tst_fileformatdoc.moc"

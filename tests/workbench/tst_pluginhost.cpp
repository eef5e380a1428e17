// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "support/tempdir.h"

#include "workbench/pluginhost.h"

#include <QFile>
#include <QTest>

using Workbench::PluginHost;

class TestPluginHost : public QObject
{
    Q_OBJECT

private slots:
    void folderWithoutPluginsIsEmpty();
    void fileThatIsNoLibraryIsReported();
    void libraryWithoutPluginIsReported();
    void editorIsStarted();
};

void TestPluginHost::folderWithoutPluginsIsEmpty()
{
    const support::TempDir dir;
    dir.write("readme.txt", "text");
    PluginHost host;
    host.load(dir.path());
    host.load(dir.filePath("none"));
    QVERIFY(host.plugins().isEmpty());
    QVERIFY(!host.has("VakInserterPlugin"));
}

void TestPluginHost::fileThatIsNoLibraryIsReported()
{
    const support::TempDir dir;
    dir.write("libbroken.so", "no library");
    PluginHost host;
    host.load(dir.path());
    QCOMPARE(host.plugins().size(), 1);
    QCOMPARE(host.plugins().at(0).path, dir.filePath("libbroken.so"));
    QVERIFY(!host.plugins().at(0).isWorking());
    QVERIFY(host.plugins().at(0).error.contains("libbroken.so"));
}

void TestPluginHost::libraryWithoutPluginIsReported()
{
    const support::TempDir dir;
    QVERIFY(QFile::copy(QString(VAK_LIBRARY_FOLDER) + "/libQUtility.so", dir.filePath("libQUtility.so")));
    PluginHost host;
    host.load(dir.path());
    QCOMPARE(host.plugins().size(), 1);
    QVERIFY(!host.plugins().at(0).isWorking());
}

void TestPluginHost::editorIsStarted()
{
    PluginHost host;
    host.load(VAK_PLUGIN_FOLDER);
    QVERIFY(host.has("VakInserterPlugin"));
    QVERIFY(!host.has("OtherPlugin"));
    const Workbench::PluginInfo &info = host.plugins().at(0);
    QCOMPARE(info.iid, QString("RTLVAK.VakInserterPlugin/1.0"));
    QVERIFY2(info.isWorking(), qPrintable(info.error));
}

QTEST_MAIN(TestPluginHost)
#include "tst_pluginhost.moc"

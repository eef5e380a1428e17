// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "vhdlrefusal.h"

#include "host/netcatcher/hostilenames.h"
#include "host/netcatcher/netlistprobe.h"

#include "support/tempdir.h"

#include <QDir>
#include <QFile>
#include <QtTest>

/// Names out of untrusted projects with VHDL: whatever they look like, they are only names.
class TestHostileVhdl : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void vhdlFile_data() { probe::hostileNames(); }
    void vhdlFile();
    void errorInVhdlFile_data() { probe::hostileNames(); }
    void errorInVhdlFile();
    void vhdlLibrary_data() { probe::hostileNames(); }
    void vhdlLibrary();
    void topEntity_data() { probe::hostileNames(); }
    void topEntity();
    void extendedIdentifier_data() { probe::hostileNames(); }
    void extendedIdentifier();
    void temporaryFolderOfVhdl_data() { probe::hostileNames(); }
    void temporaryFolderOfVhdl();

private:
    bool isUntouched() const;

    std::unique_ptr<support::TempDir> dir;
    QString workingFolder;
    QByteArray temporary;
};

void TestHostileVhdl::init()
{
    dir = std::make_unique<support::TempDir>();
    workingFolder = QDir::currentPath();
    temporary = qgetenv("TMPDIR");
    QVERIFY(QDir::setCurrent(dir->path()));
}

void TestHostileVhdl::cleanup()
{
    QDir::setCurrent(workingFolder);
    temporary.isNull() ? qunsetenv("TMPDIR") : qputenv("TMPDIR", temporary);
}

bool TestHostileVhdl::isUntouched() const
{
    return !QFile::exists(dir->filePath("canary")) && QDir(dir->path()).entryList({"*canary*"}, QDir::Files).isEmpty();
}

static const char vhdlDesign[] = "entity a is port (x : in bit); end;\narchitecture r of a is begin end;\n";

void TestHostileVhdl::vhdlFile()
{
    QFETCH(QString, name);
    const QString path = dir->write(name + "/" + probe::withSuffix(name, ".vhd"), vhdlDesign);
    const probe::Result result = probe::build(probe::sources({path}));
    QVERIFY2(result.netlist, qPrintable(result.messages.join('\n')));
    QCOMPARE(probe::rows(*result.netlist), QStringList("x"));
    QVERIFY(isUntouched());
}

void TestHostileVhdl::errorInVhdlFile()
{
    QFETCH(QString, name);
    const QString path = dir->write("rtl/" + probe::withSuffix(name, ".vhd"), "\nentity a is\nnonsense;\nend;\n");
    const probe::Result result = probe::build(probe::sources({path}));
    QVERIFY(!result.errors().isEmpty());
    QVERIFY2(result.errors().first().startsWith("ERROR: " + path + ":3: "), qPrintable(result.errors().first()));
    QVERIFY(isUntouched());
}

void TestHostileVhdl::vhdlLibrary()
{
    QFETCH(QString, name);
    NETCATCHER::DesignSources sources = probe::sources({dir->write("a.vhd", vhdlDesign)});
    sources.files[0].library = name;
    const probe::Result result = probe::build(sources);
    QVERIFY(isUntouched());
    if (QTest::currentDataTag() == QByteArray("long")) {
        QVERIFY(result.netlist);
        return;
    }
    QCOMPARE(result.messages, QStringList("ERROR: " + dir->filePath("a.vhd") + ": The library \"" + name +
                                          "\" cannot be named so in VHDL."));
}

void TestHostileVhdl::topEntity()
{
    QFETCH(QString, name);
    const probe::Result result = probe::build(probe::sources({dir->write("a.vhd", vhdlDesign)}, name));
    QCOMPARE(result.modules, QStringList());
    QCOMPARE(result.errors(), QStringList());
    QVERIFY(!result.netlist);
    QVERIFY(isUntouched());
}

/// Whatever stands between backslashes is a name, and the engine is told it as the top.
void TestHostileVhdl::extendedIdentifier()
{
    QFETCH(QString, name);
    const QByteArray written = '\\' + name.toUtf8().replace("\\", "\\\\") + '\\';
    const QByteArray source = "entity " + written + " is port (x : in bit); end;\narchitecture r of " + written +
                              " is signal " + written + " : bit; begin " + written + " <= x; end;\n";
    const probe::Result result = probe::build(probe::sources({dir->write("a.vhd", source)}));
    QVERIFY(result.netlist || !result.errors().isEmpty() || result.modules.isEmpty());
    if (result.netlist && !name.contains(QChar(0x4f60)))
        QVERIFY(result.netlist->findNet(name));
    QVERIFY(isUntouched());
}

void TestHostileVhdl::temporaryFolderOfVhdl()
{
    QFETCH(QString, name);
    const QString path = dir->write("a.vhd", vhdlDesign);
    QVERIFY(QDir(dir->path()).mkdir(name));
    qputenv("TMPDIR", QFile::encodeName(dir->filePath(name)));
    const probe::Result result = probe::build(probe::sources({path}));
    QVERIFY2(result.netlist, qPrintable(result.messages.join('\n')));
    QVERIFY(isUntouched());
    QVERIFY(QDir(dir->filePath(name)).isEmpty());
}

VHDL_TEST_MAIN(TestHostileVhdl)
#include "tst_hostilevhdl.moc"

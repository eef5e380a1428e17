// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "textfile.h"

#include "hostlibs/ovte/jsonlines.h"
#include "hostlibs/ovte/projectfile.h"

#include <QTemporaryDir>
#include <QTest>

#include <memory>

using namespace TE;

class TestProjectFile : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void typeFollowsSuffix_data();
    void typeFollowsSuffix();
    void typeNamesGoBothWays();
    void designSourcesAreTheThreeLanguages();
    void newProjectHasDefaults();
    void contentsAreOneFileALine();
    void writtenProjectReadsBackEqual();
    void sameProjectGivesTheSameBytes();
    void exampleIsInNormalForm();
    void unknownMembersAreKept();
    void pathsAreRelativeToTheProject();
    void absentMembersHaveDefaults();
    void oddTextsSurvive();
    void wrongProjectNamesFileAndLine_data();
    void wrongProjectNamesFileAndLine();
    void missingFileIsAnError();
    void unchangedFileIsNotTouched();
    void failedWriteLeavesTheOldFile();
    void writingKeepsPermissionsAndFollowsLinks();
    void lineOfValue_data();
    void lineOfValue();

private:
    QString path(const QString &name) const { return dir->filePath(name); }
    Project example() const;

    std::unique_ptr<QTemporaryDir> dir;
};

void TestProjectFile::init()
{
    dir = std::make_unique<QTemporaryDir>();
}

Project TestProjectFile::example() const
{
    Project project;
    project.topModule = "soc";
    project.includePaths = QStringList{"rtl/include", "../shared"};
    project.defines = QStringList{"SYNTH", "WIDTH=8"};
    project.verilogStandard = "1364-2005";
    project.synthesisTool = "Synplify";
    project.device = {"ECP5-25", "CABGA256"};
    project.files.append({path("rtl/soc.sv"), SystemVerilogFile, true, ""});
    project.files.append({path("sim/tb.v"), VerilogFile, false, ""});
    project.files.append({path("rtl/uart.vhd"), VhdlFile, true, "io"});
    return project;
}

void TestProjectFile::typeFollowsSuffix_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("type");
    QTest::newRow("none") << "README" << 0;
    QTest::newRow("unknown") << "notes.txt" << 0;
    QTest::newRow("gate netlist") << "soc.vg" << 1;
    QTest::newRow("verilog") << "rtl/a.v" << 2;
    QTest::newRow("upper case") << "A.V" << 2;
    QTest::newRow("systemverilog") << "a.sv" << 3;
    QTest::newRow("vhdl") << "a.vhd" << 4;
    QTest::newRow("vhdl long") << "a.vhdl" << 4;
    QTest::newRow("timing") << "a.sdc" << 5;
    QTest::newRow("physical") << "a.pcf" << 6;
    QTest::newRow("analyzer") << "a.rvk" << 7;
    QTest::newRow("include") << "a.svh" << 8;
    QTest::newRow("memory") << "rom.hex" << 9;
}

void TestProjectFile::typeFollowsSuffix()
{
    QFETCH(QString, name);
    QTEST(fileTypeOfPath(name), "type");
}

void TestProjectFile::typeNamesGoBothWays()
{
    QCOMPARE(fileTypes().size(), 10);
    for (int type = OtherFile; type <= MemoryContentFile; ++type) {
        QVERIFY(fileTypes().contains(type));
        QCOMPARE(fileTypeFromName(fileTypeName(type)), type);
        QVERIFY(!fileTypeTitle(type).isEmpty());
    }
    QCOMPARE(fileTypeFromName("perl"), -1);
    QVERIFY(fileTypeName(10).isEmpty());
    QVERIFY(fileTypeTitle(-1).isEmpty());
}

void TestProjectFile::designSourcesAreTheThreeLanguages()
{
    QList<int> sources;
    for (const int type : fileTypes()) {
        if (isDesignSource(type))
            sources.append(type);
    }
    QCOMPARE(sources, QList<int>({2, 3, 4}));
}

void TestProjectFile::newProjectHasDefaults()
{
    const Project project;
    QCOMPARE(project.verilogStandard, QString("1800-2017"));
    QCOMPARE(verilogStandardTitle(project.verilogStandard), QString("SystemVerilog 2017"));
    QCOMPARE(project.synthesisTool, QString("OrvaneSynthesis"));
    QVERIFY(verilogStandards().contains("1364-2001"));
    QCOMPARE(synthesisTools(), QStringList({"OrvaneSynthesis", "Synplify"}));
}

void TestProjectFile::contentsAreOneFileALine()
{
    const QByteArray expected = R"({
  "vakproj": 1,
  "device": "ECP5-25",
  "package": "CABGA256",
  "top": "soc",
  "standard": "1364-2005",
  "synthesisTool": "Synplify",
  "includePaths": [
    "rtl/include",
    "../shared"
  ],
  "defines": [
    "SYNTH",
    "WIDTH=8"
  ],
  "files": [
    { "path": "rtl/soc.sv", "type": "systemverilog", "enabled": true, "library": "" },
    { "path": "sim/tb.v", "type": "verilog", "enabled": false, "library": "" },
    { "path": "rtl/uart.vhd", "type": "vhdl", "enabled": true, "library": "io" }
  ]
}
)";
    QCOMPARE(projectFileContents(example(), dir->path()), expected);
    const QByteArray empty = R"({
  "vakproj": 1,
  "device": "",
  "package": "",
  "top": "",
  "standard": "1800-2017",
  "synthesisTool": "OrvaneSynthesis",
  "includePaths": [],
  "defines": [],
  "files": []
}
)";
    QCOMPARE(projectFileContents({}, dir->path()), empty);
}

void TestProjectFile::writtenProjectReadsBackEqual()
{
    const Project before = example();
    QString error;
    QVERIFY2(writeProjectFile(before, path("soc.vakproj"), &error), qPrintable(error));
    Project after;
    QVERIFY2(readProjectFile(path("soc.vakproj"), &after, &error), qPrintable(error));
    QCOMPARE(after.topModule, before.topModule);
    QCOMPARE(after.includePaths, before.includePaths);
    QCOMPARE(after.defines, before.defines);
    QCOMPARE(after.verilogStandard, before.verilogStandard);
    QCOMPARE(after.synthesisTool, before.synthesisTool);
    QCOMPARE(after.device.name, before.device.name);
    QCOMPARE(after.device.package, before.device.package);
    QCOMPARE(after.files.size(), before.files.size());
    for (int i = 0; i < before.files.size(); ++i) {
        QCOMPARE(after.files.at(i).path, before.files.at(i).path);
        QCOMPARE(after.files.at(i).type, before.files.at(i).type);
        QCOMPARE(after.files.at(i).enabled, before.files.at(i).enabled);
        QCOMPARE(after.files.at(i).library, before.files.at(i).library);
    }
}

void TestProjectFile::sameProjectGivesTheSameBytes()
{
    QString error;
    QVERIFY(writeProjectFile(example(), path("soc.vakproj"), &error));
    const QByteArray first = readText(path("soc.vakproj"));
    Project read;
    QVERIFY(readProjectFile(path("soc.vakproj"), &read, &error));
    QCOMPARE(projectFileContents(read, dir->path()), first);
}

void TestProjectFile::exampleIsInNormalForm()
{
    const QString file = QString(VAK_TEST_DATA) + "/../../examples/soc/soc.vakproj";
    Project project;
    QString error;
    QVERIFY2(readProjectFile(file, &project, &error), qPrintable(error));
    QVERIFY(project.files.size() > 10);
    QCOMPARE(projectFileContents(project, QFileInfo(file).absolutePath()), readText(file));
}

void TestProjectFile::unknownMembersAreKept()
{
    QVERIFY(writeText(path("a.vakproj"), R"({"vakproj": 1, "zeta": [1, {"a": null}], "alpha": "é",
        "files": [{"path": "a.v", "note": "keep \"me\"", "order": 2.5}]})"));
    Project project;
    QString error;
    QVERIFY2(readProjectFile(path("a.vakproj"), &project, &error), qPrintable(error));
    const QByteArray contents = projectFileContents(project, dir->path());
    QVERIFY(contents.contains("  \"alpha\": \"é\",\n  \"zeta\": [1,{\"a\":null}]\n}"));
    QVERIFY(contents.contains(R"("library": "", "note": "keep \"me\"", "order": 2.5 })"));
}

void TestProjectFile::pathsAreRelativeToTheProject()
{
    QVERIFY(
        writeText(path("p/a.vakproj"), R"({"vakproj": 1, "files": [{"path": "../q/./x.v"}, {"path": "/abs/y.v"}]})"));
    Project project;
    QString error;
    QVERIFY2(readProjectFile(path("p/a.vakproj"), &project, &error), qPrintable(error));
    QCOMPARE(project.files.at(0).path, path("q/x.v"));
    QCOMPARE(project.files.at(1).path, QString("/abs/y.v"));
    QVERIFY(projectFileContents(project, path("p")).contains("\"path\": \"../q/x.v\""));
}

void TestProjectFile::absentMembersHaveDefaults()
{
    QVERIFY(writeText(path("a.vakproj"), R"({"vakproj": 1, "files": [{"path": "a.sv"}]})"));
    Project project;
    project.topModule = "left over";
    QString error;
    QVERIFY2(readProjectFile(path("a.vakproj"), &project, &error), qPrintable(error));
    QVERIFY(project.topModule.isEmpty());
    QCOMPARE(project.verilogStandard, QString("1800-2017"));
    QCOMPARE(project.files.at(0).type, int(SystemVerilogFile));
    QVERIFY(project.files.at(0).enabled);
}

void TestProjectFile::oddTextsSurvive()
{
    Project project;
    project.defines = QStringList{"MSG=\"a\\b\"", "UMLAUT=äöü", "LINE=a\nb\tc"};
    project.files.append({path("odd [1] \"q\" &.v"), VerilogFile, true, ""});
    QString error;
    QVERIFY(writeProjectFile(project, path("a.vakproj"), &error));
    Project read;
    QVERIFY2(readProjectFile(path("a.vakproj"), &read, &error), qPrintable(error));
    QCOMPARE(read.defines, project.defines);
    QCOMPARE(read.files.at(0).path, project.files.at(0).path);
}

void TestProjectFile::wrongProjectNamesFileAndLine_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("error");
    const auto row = [](const char *name, const char *text, const char *error) {
        QTest::newRow(name) << QByteArray(text) << QString(error);
    };
    row("empty", "", ":1: illegal value.");
    row("no json", "{\n\"vakproj\": 1,\n oops\n}", ":3: unterminated object.");
    row("list", "[1]", ":1: this is not a project file: \"vakproj\": 1 is missing.");
    row("other json", "{\"files\": []}", ":1: this is not a project file: \"vakproj\": 1 is missing.");
    row("newer", "{\n\n\"vakproj\": 2}",
        ":3: the project has version 2, this program reads version 1; open it with a newer version of the program.");
    row("number for text", "{\"vakproj\": 1,\n\"top\": 7}", ":2: \"top\" must be a text in quotes.");
    row("text for list", "{\"vakproj\": 1,\n\n\"files\": \"a.v\"}", ":3: \"files\" must be a list in square brackets.");
    row("numbers in list", "{\"vakproj\": 1,\n\"defines\": [\"A\",\n 3]}",
        ":3: \"defines\" must hold texts in quotes.");
    row("unknown tool", "{\"vakproj\": 1,\n\"synthesisTool\": \"yes\"}",
        ":2: \"synthesisTool\" is \"yes\"; it must be one of \"OrvaneSynthesis\", \"Synplify\".");
    row("file without path", "{\"vakproj\": 1, \"files\": [\n{\"path\": \"a.v\"},\n{\"type\": \"vhdl\"}]}",
        ":3: a file needs a \"path\".");
    row("file as text", "{\"vakproj\": 1, \"files\": [\n\"a.v\"]}",
        ":2: a file must be given as { \"path\": \"...\" }.");
    row("enabled as text", "{\"vakproj\": 1, \"files\": [{\"path\": \"a.v\",\n\"enabled\": \"no\"}]}",
        ":2: \"enabled\" must be true or false.");
    row("listed twice", "{\"vakproj\": 1, \"files\": [{\"path\": \"a.v\"},\n{\"path\": \"./a.v\"}]}",
        ":2: \"./a.v\" is listed twice; remove one of the two lines.");
    row("unknown type", "{\"vakproj\": 1, \"files\": [{\"path\": \"a.v\",\n\n\"type\": \"perl\"}]}",
        ":3: the type \"perl\" is not known; it must be one of \"verilog\", \"systemverilog\", \"vhdl\", \"include\", "
        "\"memory\", \"analyzer\", \"timing\", \"physical\", \"netlist\", \"other\".");
}

void TestProjectFile::wrongProjectNamesFileAndLine()
{
    QFETCH(QByteArray, text);
    QFETCH(QString, error);
    QVERIFY(writeText(path("a.vakproj"), text));
    Project project;
    project.topModule = "kept";
    QString found;
    QVERIFY(!readProjectFile(path("a.vakproj"), &project, &found));
    QCOMPARE(found, path("a.vakproj") + error);
    QCOMPARE(project.topModule, QString("kept"));
}

void TestProjectFile::missingFileIsAnError()
{
    Project project;
    QString error;
    QVERIFY(!readProjectFile(path("none.vakproj"), &project, &error));
    QVERIFY2(error.startsWith(path("none.vakproj") + ": "), qPrintable(error));
    QVERIFY2(error.endsWith("Check the path and the permissions."), qPrintable(error));
}

void TestProjectFile::unchangedFileIsNotTouched()
{
    const QString file = path("a.vakproj");
    QString error;
    QVERIFY(writeProjectFile(example(), file, &error));
    const QDateTime past = QDateTime::currentDateTime().addDays(-3);
    QFile handle(file);
    QVERIFY(handle.open(QIODevice::ReadWrite) && handle.setFileTime(past, QFileDevice::FileModificationTime));
    handle.close();
    QVERIFY(writeProjectFile(example(), file, &error));
    QCOMPARE(QFileInfo(file).lastModified().date(), past.date());
    QVERIFY(writeProjectFile({}, file, &error));
    QVERIFY(QFileInfo(file).lastModified().date() != past.date());
}

void TestProjectFile::failedWriteLeavesTheOldFile()
{
    QVERIFY(QDir().mkpath(path("folder.vakproj")));
    QString error;
    QVERIFY(!writeProjectFile(example(), path("folder.vakproj"), &error));
    QVERIFY2(error.startsWith(path("folder.vakproj") + ": "), qPrintable(error));
    QVERIFY(!writeProjectFile(example(), path("no/such/folder/a.vakproj"), &error));
    QVERIFY2(error.contains("The project was not saved"), qPrintable(error));
    QVERIFY(QDir(path("folder.vakproj")).exists());
}

void TestProjectFile::writingKeepsPermissionsAndFollowsLinks()
{
    QString error;
    const QString target = path("target.vakproj");
    QVERIFY(writeProjectFile({}, target, &error));
    const auto permissions = QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ReadGroup;
    QVERIFY(QFile::setPermissions(target, permissions));
    QVERIFY(QFile::link(target, path("link.vakproj")));
    QVERIFY(writeProjectFile(example(), path("link.vakproj"), &error));
    QVERIFY(QFileInfo(path("link.vakproj")).isSymLink());
    QVERIFY(readText(target).contains("\"soc\""));
    QCOMPARE(QFile::permissions(target) & (QFileDevice::ReadGroup | QFileDevice::ReadOther), QFileDevice::ReadGroup);
}

void TestProjectFile::lineOfValue_data()
{
    QTest::addColumn<QStringList>("where");
    QTest::addColumn<int>("line");
    QTest::newRow("root") << QStringList() << 2;
    QTest::newRow("first member") << QStringList{"a"} << 2;
    QTest::newRow("after brackets in text") << QStringList{"b"} << 3;
    QTest::newRow("nested") << QStringList{"b", "2", "c"} << 6;
    QTest::newRow("escaped name") << QStringList{"q\"x"} << 8;
    QTest::newRow("path too long") << QStringList{"b", "0", "nothing"} << 4;
    QTest::newRow("unknown name") << QStringList{"zzz"} << 2;
}

void TestProjectFile::lineOfValue()
{
    const QByteArray json = R"(
{"a": "]}, \" {[",
 "b": [
   1,
   [2, {"c": 3}], {"d": {},
     "c": true}
 ],
 "q\"x": 1}
)";
    QFETCH(QStringList, where);
    QTEST(lineOfJsonValue(json, where), "line");
}

QTEST_GUILESS_MAIN(TestProjectFile)
#include "tst_projectfile.moc"

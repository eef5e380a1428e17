// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "eventlog.h"
#include "textfile.h"

#include "hostlibs/ovte/projectengine.h"

#include <OVTE/designmanager.h>
#include <OVTE/taskengine.h>

#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

using namespace TE;

class TestProjectEngine : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void withNoProjectThereIsADesignManager();
    void createdProjectIsOnDisk();
    void openingKeepsTheOldProjectOnFailure();
    void openingPublishesOnlyADeviceChange();
    void addedFileIsPublishedOnce();
    void removedFileCarriesTypeAndEnable();
    void enablingIsPublishedOnRealChange();
    void typeChangeCarriesBothTypes();
    void optionChangeIsPublishedOnRealChange();
    void refusedOptionsSayWhy();
    void deviceChangeIsPublishedOnRealChange();
    void stateIsConsistentWhenAnEventArrives();
    void fileInfoOfUnknownPath();
    void fileInfoOfRelativePath();
    void sourceInfoListsEnabledSourcesInOrder();
    void optionValuesFollow();
    void fileListOpensAsAProject();
    void fileListIsImported();
    void importNeedsAProject();
    void savingClearsModified();
    void savedElsewhereKeepsItsPaths();
    void changeByAnotherProgramIsNoticed();
    void contentsChangeIsPublished();
    void rewritingTheSameIsNotPublished();
    void replacementByRenameIsPublishedAgainAndAgain();
    void deletedAndMadeAnewIsPublished();
    void deletionIsPublished();
    void checkedFileIsPublishedAtOnce();
    void withoutWatchingNothingIsPublished();

private:
    QString path(const QString &name) const { return dir->filePath(name); }
    bool replaceByRename(const QString &name, const QByteArray &text) const;

    ProjectEngine *engine = ProjectEngine::instance();
    const DesignManager *manager = TaskEngine::instance()->designManager();
    std::unique_ptr<QTemporaryDir> dir;
    std::unique_ptr<EventLog> log;
};

void TestProjectEngine::init()
{
    dir = std::make_unique<QTemporaryDir>();
    QVERIFY(engine->createProject(path("soc.vakproj")));
    log = std::make_unique<EventLog>();
}

void TestProjectEngine::cleanup()
{
    log.reset();
    engine->setWatching(false);
    engine->closeProject();
}

bool TestProjectEngine::replaceByRename(const QString &name, const QByteArray &text) const
{
    return writeText(path(name + ".tmp"), text) && QFile::remove(path(name)) &&
           QFile::rename(path(name + ".tmp"), path(name));
}

void TestProjectEngine::withNoProjectThereIsADesignManager()
{
    engine->closeProject();
    QVERIFY(manager != nullptr);
    QVERIFY(!engine->isOpen());
    QVERIFY(manager->workingDir().isEmpty());
    QVERIFY(manager->getSourceFileInfo().value(SourceKey::Files).toList().isEmpty());
    QCOMPARE(manager->getSourceFileInfo().value(SourceKey::Top).toString(), QString());
    QCOMPARE(manager->getOptionValue(OptionName::SynthesizeTool).toString(), QString("OrvaneSynthesis"));
    QVERIFY(!engine->addFile(path("a.v")));
    QString error;
    QVERIFY(!engine->setOption(OptionName::TopModule, "x", &error));
    QCOMPARE(error, QString("No project is open; open or create one first."));
    QVERIFY(log->lines.isEmpty());
}

void TestProjectEngine::createdProjectIsOnDisk()
{
    QCOMPARE(engine->projectFile(), path("soc.vakproj"));
    QCOMPARE(engine->workingDir(), dir->path());
    QVERIFY(readText(path("soc.vakproj")).contains("\"vakproj\": 1"));
    QString error;
    QVERIFY(!engine->createProject(path("no/such/a.vakproj"), &error));
    QVERIFY(!error.isEmpty());
    QCOMPARE(engine->projectFile(), path("soc.vakproj"));
}

void TestProjectEngine::openingKeepsTheOldProjectOnFailure()
{
    engine->addFile(path("a.v"));
    QVERIFY(writeText(path("bad.vakproj"), "{"));
    QString error;
    QVERIFY(!engine->openProject(path("bad.vakproj"), &error));
    QVERIFY(error.contains("bad.vakproj:1: "));
    QCOMPARE(engine->projectFile(), path("soc.vakproj"));
    QCOMPARE(engine->project().files.size(), 1);
}

void TestProjectEngine::openingPublishesOnlyADeviceChange()
{
    QVERIFY(writeText(path("b.vakproj"), R"({"vakproj": 1, "device": "D", "top": "t", "files": [{"path": "a.v"}]})"));
    QSignalSpy changed(engine, &ProjectEngine::projectChanged);
    QVERIFY(engine->openProject(path("b.vakproj")));
    QCOMPARE(log->take(), QStringList{"TE.Device.Change"});
    QCOMPARE(manager->currentDevice().name, QString("D"));
    QVERIFY(engine->openProject(path("b.vakproj")));
    QVERIFY(log->lines.isEmpty());
    engine->closeProject();
    QCOMPARE(log->take(), QStringList{"TE.Device.Change"});
    QCOMPARE(changed.count(), 3);
}

void TestProjectEngine::addedFileIsPublishedOnce()
{
    QVERIFY(engine->addFile(path("rtl/a.sv")));
    QVERIFY(!engine->addFile("rtl/../rtl/a.sv"));
    QVERIFY(!engine->addFile(""));
    QCOMPARE(log->take(), QStringList{"TE.File.Add file=a.sv"});
    const DesignFile file = manager->getFileInfo(path("rtl/a.sv"));
    QCOMPARE(file.type, int(SystemVerilogFile));
    QVERIFY(file.enabled);
    QVERIFY(engine->isModified());
}

void TestProjectEngine::removedFileCarriesTypeAndEnable()
{
    engine->addFile("a.v");
    engine->addFile("b.vhd");
    engine->setFileEnabled("b.vhd", false);
    log->take();
    QVERIFY(engine->removeFile("a.v"));
    QVERIFY(engine->removeFile(path("b.vhd")));
    QVERIFY(!engine->removeFile("a.v"));
    QCOMPARE(log->take(), QStringList({"TE.File.Remove file=a.v type=2 enable=true",
                                       "TE.File.Remove file=b.vhd type=4 enable=false"}));
    QVERIFY(engine->project().files.isEmpty());
}

void TestProjectEngine::enablingIsPublishedOnRealChange()
{
    engine->addFile("a.v");
    log->take();
    QVERIFY(!engine->setFileEnabled("a.v", true));
    QVERIFY(engine->setFileEnabled("a.v", false));
    QVERIFY(!engine->setFileEnabled("a.v", false));
    QVERIFY(engine->setFileEnabled("a.v", true));
    QVERIFY(!engine->setFileEnabled("none.v", true));
    QCOMPARE(log->take(), QStringList({"TE.File.Change.Enable file=a.v type=2 enable=false",
                                       "TE.File.Change.Enable file=a.v type=2 enable=true"}));
}

void TestProjectEngine::typeChangeCarriesBothTypes()
{
    engine->addFile("a.v");
    log->take();
    QVERIFY(!engine->setFileType("a.v", VerilogFile));
    QVERIFY(!engine->setFileType("a.v", 77));
    QVERIFY(engine->setFileType("a.v", HdlIncludeFile));
    QCOMPARE(log->take(), QStringList{"TE.File.Change.Type file=a.v type=8 previous=2"});
    QCOMPARE(manager->getFileInfo(path("a.v")).type, 8);
}

void TestProjectEngine::optionChangeIsPublishedOnRealChange()
{
    QVERIFY(engine->setOption(OptionName::TopModule, " soc "));
    QVERIFY(engine->setOption(OptionName::TopModule, "soc"));
    QVERIFY(engine->setOption(OptionName::IncludePath, QStringList({"inc", " ", "inc"})));
    QVERIFY(engine->setOption(OptionName::IncludePath, QStringList({"inc"})));
    QVERIFY(engine->setOption(OptionName::Defines, QStringList({"A=1"})));
    QVERIFY(engine->setOption(OptionName::VerilogStandard, "1364-2001"));
    QVERIFY(engine->setOption(OptionName::VerilogStandard, "1364-2001"));
    QVERIFY(engine->setOption(OptionName::SynthesizeTool, "Synplify"));
    QCOMPARE(log->take(), QStringList({"TE.Option.Change option=TopModule", "TE.Option.Change option=IncludePath",
                                       "TE.Option.Change option=Defines", "TE.Option.Change option=Verilog_Standard",
                                       "TE.Option.Change option=Synthesize_tool"}));
    QCOMPARE(engine->option(OptionName::TopModule).toString(), QString("soc"));
}

void TestProjectEngine::refusedOptionsSayWhy()
{
    QString error;
    QVERIFY(!engine->setOption(OptionName::SynthesizeTool, "Nosuch", &error));
    QCOMPARE(error, QString("The option \"Synthesize_tool\" does not take \"Nosuch\"."));
    QVERIFY(!engine->setOption(OptionName::VerilogStandard, "C++17"));
    QVERIFY(!engine->setOption("Nosuch", "x"));
    QVERIFY(log->lines.isEmpty());
    QVERIFY(!engine->isModified());
    QVERIFY(!engine->option("Nosuch").isValid());
}

void TestProjectEngine::deviceChangeIsPublishedOnRealChange()
{
    engine->setDevice({"D", ""});
    engine->setDevice({"D", ""});
    engine->setDevice({"D", "P"});
    QCOMPARE(log->take(), QStringList({"TE.Device.Change", "TE.Device.Change"}));
    QCOMPARE(manager->currentDevice().package, QString("P"));
}

void TestProjectEngine::stateIsConsistentWhenAnEventArrives()
{
    struct Probe : QUtil::IEventHandler
    {
        void handleIEvent(const QUtil::IEvent *event) override
        {
            const QString file = event->get(EventKey::File).toString();
            seen.append(TaskEngine::instance()->designManager()->getFileInfo(file).type);
        }
        QList<int> seen;
    };
    Probe probe;
    probe.subscribe(EventType::FileAdd);
    probe.subscribe(EventType::FileRemove);
    engine->addFile("a.v");
    engine->removeFile("a.v");
    QCOMPARE(probe.seen, QList<int>({VerilogFile, OtherFile}));
}

void TestProjectEngine::fileInfoOfUnknownPath()
{
    const DesignFile file = manager->getFileInfo("/no/such.v");
    QCOMPARE(file.type, 0);
    QVERIFY(!file.enabled);
}

void TestProjectEngine::fileInfoOfRelativePath()
{
    engine->addFile(path("rtl/a.v"));
    QCOMPARE(manager->getFileInfo("rtl/a.v").type, int(VerilogFile));
    QCOMPARE(manager->getFileInfo("rtl/A.v").type, 0);
}

void TestProjectEngine::sourceInfoListsEnabledSourcesInOrder()
{
    for (const char *name : {"z.v", "a.sv", "c.sdc", "m.vhd", "i.vh", "off.v"})
        engine->addFile(name);
    engine->setFileEnabled("off.v", false);
    engine->setFileLibrary("m.vhd", "io");
    engine->setOption(OptionName::TopModule, "soc");
    engine->setOption(OptionName::IncludePath, QStringList({"inc", "/abs"}));
    engine->setOption(OptionName::Defines, QStringList({"A=1"}));
    const auto info = manager->getSourceFileInfo();
    QCOMPARE(info.value("Top").toString(), QString("soc"));
    QStringList files;
    for (const QVariant &entry : info.value("Files").toList()) {
        const QVariantMap file = entry.toMap();
        files.append(file.value("Path").toString() + ' ' + file.value("Type").toString() + ' ' +
                     file.value("Library").toString());
    }
    QCOMPARE(files, QStringList({path("z.v") + " 2 ", path("a.sv") + " 3 ", path("m.vhd") + " 4 io"}));
    QCOMPARE(info.value(SourceKey::IncludePath).toStringList(), QStringList({path("inc"), "/abs"}));
    QCOMPARE(info.value(SourceKey::Defines).toStringList(), QStringList{"A=1"});
    QCOMPARE(info.value(SourceKey::Standard).toString(), QString("1800-2017"));
}

void TestProjectEngine::optionValuesFollow()
{
    engine->setOption(OptionName::IncludePath, QStringList({"inc"}));
    QCOMPARE(manager->getOptionValue("IncludePath").toStringList(), QStringList{"inc"});
    QVERIFY(!manager->getOptionValue("Nosuch").isValid());
}

void TestProjectEngine::fileListOpensAsAProject()
{
    writeText(path("a.v"), "");
    writeText(path("soc.f"), "+incdir+inc\n+define+A\n--top soc a.v none.v");
    QStringList notes;
    QString error;
    QVERIFY2(engine->openFileList(path("soc.f"), &notes, &error), qPrintable(error));
    QCOMPARE(notes.size(), 1);
    QVERIFY(engine->isOpen());
    QVERIFY(engine->projectFile().isEmpty());
    QCOMPARE(engine->workingDir(), dir->path());
    QCOMPARE(engine->project().files.size(), 1);
    QCOMPARE(engine->project().topModule, QString("soc"));
    QVERIFY(engine->saveProject());
    QVERIFY(!engine->openFileList(path("none.f"), &notes, &error));
    QVERIFY(error.contains("none.f"));
}

void TestProjectEngine::fileListIsImported()
{
    writeText(path("a.v"), "");
    writeText(path("b.v"), "");
    writeText(path("soc.f"), "+incdir+inc\n+define+A\n-top soc a.v b.v none.v");
    engine->addFile("a.v");
    log->take();
    QStringList notes;
    QVERIFY(engine->importFileList(path("soc.f"), &notes));
    QCOMPARE(log->take(), QStringList({"TE.File.Add file=b.v", "TE.Option.Change option=IncludePath",
                                       "TE.Option.Change option=Defines", "TE.Option.Change option=TopModule"}));
    QCOMPARE(engine->project().includePaths, QStringList{"inc"});
    QCOMPARE(notes.size(), 1);
    QVERIFY(engine->importFileList(path("soc.f")));
    QVERIFY(log->lines.isEmpty());
}

void TestProjectEngine::importNeedsAProject()
{
    engine->closeProject();
    writeText(path("soc.f"), "");
    QString error;
    QVERIFY(!engine->importFileList(path("soc.f"), nullptr, &error));
    QCOMPARE(error, QString("No project is open; open or create one first."));
}

void TestProjectEngine::savingClearsModified()
{
    QSignalSpy modified(engine, &ProjectEngine::modifiedChanged);
    engine->addFile("a.v");
    engine->addFile("b.v");
    QVERIFY(engine->saveProject());
    QCOMPARE(modified, QList<QVariantList>({{true}, {false}}));
    QVERIFY(readText(path("soc.vakproj")).contains("\"path\": \"b.v\""));
}

void TestProjectEngine::savedElsewhereKeepsItsPaths()
{
    engine->addFile("rtl/a.v");
    engine->setOption(OptionName::IncludePath, QStringList({"inc", "/abs"}));
    log->take();
    QDir().mkpath(path("other"));
    QVERIFY(engine->saveProjectAs(path("other/b.vakproj")));
    QCOMPARE(engine->projectFile(), path("other/b.vakproj"));
    QCOMPARE(engine->workingDir(), path("other"));
    QVERIFY(!engine->isModified());
    QCOMPARE(engine->project().includePaths, QStringList({"../inc", "/abs"}));
    QCOMPARE(engine->project().files.at(0).path, path("rtl/a.v"));
    QVERIFY(readText(path("other/b.vakproj")).contains("\"path\": \"../rtl/a.v\""));
    QVERIFY(log->lines.isEmpty());
    QString error;
    QVERIFY(!engine->saveProjectAs(path("none/b.vakproj"), &error));
    QVERIFY(error.contains("none/b.vakproj"));
    QCOMPARE(engine->projectFile(), path("other/b.vakproj"));
}

void TestProjectEngine::changeByAnotherProgramIsNoticed()
{
    QVERIFY(!engine->isChangedOutside());
    engine->addFile("a.v");
    QVERIFY(!engine->isChangedOutside());
    QVERIFY(engine->saveProject());
    QVERIFY(!engine->isChangedOutside());
    writeText(path("soc.vakproj"), "{\"vakproj\": 1}");
    QVERIFY(engine->isChangedOutside());
    QVERIFY(engine->openProject(path("soc.vakproj")));
    QVERIFY(!engine->isChangedOutside());
    QVERIFY(QFile::remove(path("soc.vakproj")));
    QVERIFY(!engine->isChangedOutside());
}

void TestProjectEngine::contentsChangeIsPublished()
{
    writeText(path("a.v"), "one");
    engine->addFile("a.v");
    engine->setWatching(true);
    log->take();
    QSignalSpy modified(engine, &ProjectEngine::fileModified);
    writeText(path("a.v"), "two");
    QTRY_COMPARE(log->lines, QStringList{"TE.File.Modified file=a.v"});
    log->take();
    QCOMPARE(modified.count(), 1);
}

void TestProjectEngine::rewritingTheSameIsNotPublished()
{
    writeText(path("a.v"), "one");
    writeText(path("b.v"), "one");
    engine->addFile("a.v");
    engine->addFile("b.v");
    engine->setWatching(true);
    log->take();
    writeText(path("a.v"), "one");
    writeText(path("b.v"), "two");
    QTRY_COMPARE(log->lines, QStringList{"TE.File.Modified file=b.v"});
    log->take();
}

void TestProjectEngine::replacementByRenameIsPublishedAgainAndAgain()
{
    writeText(path("a.v"), "0");
    engine->addFile("a.v");
    engine->setWatching(true);
    log->take();
    for (const char *text : {"1", "2", "3"}) {
        QVERIFY(replaceByRename("a.v", text));
        QTRY_COMPARE(log->lines, QStringList{"TE.File.Modified file=a.v"});
        log->take();
    }
}

void TestProjectEngine::deletedAndMadeAnewIsPublished()
{
    writeText(path("a.v"), "0");
    engine->addFile("a.v");
    engine->setWatching(true);
    log->take();
    QVERIFY(QFile::remove(path("a.v")));
    QTRY_COMPARE(log->lines, QStringList{"TE.File.Modified file=a.v"});
    log->take();
    writeText(path("a.v"), "0");
    QTRY_COMPARE(log->lines, QStringList{"TE.File.Modified file=a.v"});
    log->take();
    writeText(path("a.v"), "1");
    QTRY_COMPARE(log->lines, QStringList{"TE.File.Modified file=a.v"});
    log->take();
}

void TestProjectEngine::deletionIsPublished()
{
    writeText(path("a.v"), "0");
    engine->addFile("a.v");
    engine->setWatching(true);
    log->take();
    QVERIFY(QFile::remove(path("a.v")));
    QTRY_COMPARE(log->lines, QStringList{"TE.File.Modified file=a.v"});
    log->take();
    QCOMPARE(engine->project().files.size(), 1);
}

void TestProjectEngine::checkedFileIsPublishedAtOnce()
{
    writeText(path("a.v"), "0");
    engine->addFile("a.v");
    engine->setWatching(true);
    log->take();
    writeText(path("a.v"), "1");
    engine->checkFile(path("a.v"));
    QCOMPARE(log->take(), QStringList{"TE.File.Modified file=a.v"});
    engine->checkFile(path("a.v"));
    engine->checkFile(path("other.v"));
    QVERIFY(log->lines.isEmpty());
}

void TestProjectEngine::withoutWatchingNothingIsPublished()
{
    writeText(path("a.v"), "0");
    engine->addFile("a.v");
    log->take();
    writeText(path("a.v"), "1");
    engine->checkFile(path("a.v"));
    QVERIFY(log->lines.isEmpty());
}

QTEST_GUILESS_MAIN(TestProjectEngine)
#include "tst_projectengine.moc"

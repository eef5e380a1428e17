// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "hostilenames.h"
#include "netlistprobe.h"

#include "support/engineswitch.h"
#include "support/tempdir.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QtTest>

/// Names out of untrusted projects: whatever they look like, they are only names. Commands that hide in them would
/// leave a file named "canary" in the working folder, which for those that come with the engine is its own.
class TestHostileNames : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void sourceFile_data() { probe::hostileNames(); }
    void sourceFile();
    void errorInSourceFile_data() { probe::hostileNames(); }
    void errorInSourceFile();
    void folderOfSources_data() { probe::hostileNames(); }
    void folderOfSources();
    void includeFolder_data() { probe::hostileNames(); }
    void includeFolder();
    void define_data() { probe::hostileNames(); }
    void define();
    void topModule_data() { probe::hostileNames(); }
    void topModule();
    void includedFile_data() { probe::hostileNames(); }
    void includedFile();
    void definedText_data() { probe::hostileNames(); }
    void definedText();
    void optionAsTop_data();
    void optionAsTop();
    void optionInDefine_data() { optionAsTop_data(); }
    void optionInDefine();
    void temporaryFolder_data() { probe::hostileNames(); }
    void temporaryFolder();
    void canaryCouldBeThere_data();
    void canaryCouldBeThere();
    void canaryOfTheEngineCouldBeThere();

private:
    void watchEngine(const QByteArray &before) const;
    probe::Result build(const NETCATCHER::DesignSources &sources);
    bool isUntouched() const;

    std::unique_ptr<support::TempDir> dir;
    std::unique_ptr<support::EngineSwitch> engine;
    bool hasSung = false; ///< the canary of the engine
    QString workingFolder;
    QByteArray temporary;
};

void TestHostileNames::init()
{
    dir = std::make_unique<support::TempDir>();
    engine = std::make_unique<support::EngineSwitch>();
    watchEngine({});
    hasSung = false;
    workingFolder = QDir::currentPath();
    temporary = qgetenv("TMPDIR");
    QVERIFY(QDir::setCurrent(dir->path()));
}

void TestHostileNames::cleanup()
{
    engine.reset();
    QDir::setCurrent(workingFolder);
    temporary.isNull() ? qunsetenv("TMPDIR") : qputenv("TMPDIR", temporary);
}

static const char song[] = "the canary sings";

/// Lets the engine say whether there is a canary in its folder, which is gone when a test could look.
void TestHostileNames::watchEngine(const QByteArray &before) const
{
    const QByteArray look = QByteArray("status=$?\n[ -z \"$(find . -name canary)\" ] || echo '%Error: ") + song + "'\n";
    engine->replace(before, look + "exit $status");
}

probe::Result TestHostileNames::build(const NETCATCHER::DesignSources &sources)
{
    probe::Result result = probe::build(sources);
    hasSung = hasSung || !result.messages.filter(song).isEmpty();
    return result;
}

bool TestHostileNames::isUntouched() const
{
    return !hasSung && !QFile::exists(dir->filePath("canary")) &&
           QDir(dir->path()).entryList({"*canary*"}, QDir::Files).isEmpty();
}

static const char design[] = "module a(input x); wire y = x; endmodule\n";

void TestHostileNames::sourceFile()
{
    QFETCH(QString, name);
    const QString path = dir->write("rtl/" + probe::withSuffix(name, ".v"), design);
    const probe::Result result = build(probe::sources({path}));
    QVERIFY2(result.netlist, qPrintable(result.messages.join('\n')));
    QCOMPARE(probe::rows(*result.netlist), QStringList({"x", "y"}));
    QVERIFY(isUntouched());
}

void TestHostileNames::errorInSourceFile()
{
    QFETCH(QString, name);
    const QString path = dir->write("rtl/" + probe::withSuffix(name, ".v"), "\nmodule a(input x)\nendmodule\n");
    const probe::Result result = build(probe::sources({path}));
    QVERIFY(!result.errors().isEmpty());
    QVERIFY2(result.errors().first().startsWith("ERROR: " + path + ":3: syntax error"),
             qPrintable(result.errors().first()));
    QVERIFY(isUntouched());
}

void TestHostileNames::folderOfSources()
{
    QFETCH(QString, name);
    const QString path = dir->write(name + "/a.v", "`include \"w.vh\"\nmodule a(input [`W:0] x); endmodule\n");
    dir->write(name + "/w.vh", "`define W 4\n");
    const probe::Result result = build(probe::sources({path}));
    QVERIFY2(result.netlist, qPrintable(result.messages.join('\n')));
    QCOMPARE(probe::rows(*result.netlist), QStringList("x[4:0]"));
    QVERIFY(isUntouched());
}

void TestHostileNames::includeFolder()
{
    QFETCH(QString, name);
    const QString path = dir->write("a.v", "`include \"w.vh\"\nmodule a(input [`W:0] x); endmodule\n");
    dir->write(name + "/w.vh", "`include \"v.vh\"\n");
    dir->write(name + "/v.vh", "`define W 4\n");
    NETCATCHER::DesignSources sources = probe::sources({path});
    sources.includePaths.append(dir->filePath(name));
    const probe::Result result = build(sources);
    QVERIFY2(result.netlist, qPrintable(result.messages.join('\n')));
    QCOMPARE(probe::rows(*result.netlist), QStringList("x[4:0]"));
    QVERIFY(isUntouched());
}

void TestHostileNames::define()
{
    QFETCH(QString, name);
    NETCATCHER::DesignSources sources = probe::sources({dir->write("a.v", design)});
    sources.defines.append(name);
    const probe::Result named = build(sources);
    QVERIFY(named.netlist || !named.errors().isEmpty());
    sources.defines = QStringList("UNUSED=" + name);
    const probe::Result valued = build(sources);
    QVERIFY(valued.netlist || !valued.errors().isEmpty());
    QVERIFY(isUntouched());
}

void TestHostileNames::topModule()
{
    QFETCH(QString, name);
    const probe::Result result = build(probe::sources({dir->write("a.v", design)}, name));
    QCOMPARE(result.modules, QStringList());
    QCOMPARE(result.errors(), QStringList());
    QVERIFY(!result.netlist);
    QVERIFY(isUntouched());
}

/// The text in an include directive; the engine reads a backslash in it as itself.
void TestHostileNames::includedFile()
{
    QFETCH(QString, name);
    dir->write("rtl/" + name, "`define W 4\n");
    const QString path =
        dir->write("rtl/a.v", "`include \"" + name.toUtf8() + "\"\nmodule a(input [`W:0] x); endmodule\n");
    const probe::Result result = build(probe::sources({path}));
    QVERIFY(isUntouched());
    // These two end the text in the language itself.
    if (name.contains('"') || name.contains('\n')) {
        QVERIFY(!result.netlist);
        for (const QString &line : result.messages)
            QVERIFY2(line.startsWith("ERROR: " + path + ":"), qPrintable(line));
        return;
    }
    QVERIFY2(result.netlist, qPrintable(result.messages.join('\n')));
    QCOMPARE(probe::rows(*result.netlist), QStringList("x[4:0]"));
}

/// What a macro's value says is HDL, and nothing else, where it is used.
void TestHostileNames::definedText()
{
    QFETCH(QString, name);
    NETCATCHER::DesignSources sources = probe::sources({dir->write(
        "a.v", "module a(input x);\nwire y = x;\n`ifdef USED\ninitial $display(`TEXT);\n`endif\nendmodule\n")});
    sources.defines = QStringList("TEXT=" + name);
    const probe::Result unused = build(sources);
    QVERIFY2(unused.netlist, qPrintable(unused.messages.join('\n')));
    QCOMPARE(probe::rows(*unused.netlist), QStringList({"x", "y"}));
    sources.defines.append("USED");
    const probe::Result used = build(sources);
    QVERIFY(used.netlist ? used.errors().isEmpty() : used.error.startsWith("ERROR: " + sources.files[0].path + ":"));
    QVERIFY(isUntouched());
}

void TestHostileNames::optionAsTop_data()
{
    QTest::addColumn<QString>("option");
    for (const char *option :
         {"--version", "-f", "-f canary", "--Mdir", "-o", "+define+X", "+libext+.v", "--exe", "--build", "-CFLAGS",
          "--pipe-filter", "--pipe-filter 'touch canary'", "--gdb", "--debug", "-", "--", "@canary"})
        QTest::newRow(option) << option;
}

void TestHostileNames::optionAsTop()
{
    QFETCH(QString, option);
    const probe::Result result = build(probe::sources({dir->write("a.v", design)}, option));
    QCOMPARE(result.messages, QStringList());
    QCOMPARE(result.modules, QStringList());
    QVERIFY(!result.netlist);
    QVERIFY(isUntouched());
}

void TestHostileNames::optionInDefine()
{
    QFETCH(QString, option);
    NETCATCHER::DesignSources sources = probe::sources({dir->write("a.v", design)});
    sources.defines = QStringList({option, "UNUSED=" + option});
    sources.includePaths = QStringList(option);
    sources.standard = option;
    const probe::Result result = build(sources);
    QCOMPARE(result.messages, QStringList("WARNING: " + option + ": There is no such include folder."));
    QVERIFY(result.netlist);
    QCOMPARE(probe::rows(*result.netlist), QStringList({"x", "y"}));
    QVERIFY(isUntouched());
}

void TestHostileNames::canaryCouldBeThere_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name :
         {"$(touch canary)", "`touch canary`", "a;touch canary", "a&touch canary", "a|touch canary", "a\ntouch canary"})
        QTest::newRow(name) << name;
}

/// A shell that is given such a name does leave the file behind that the other tests look for.
void TestHostileNames::canaryCouldBeThere()
{
    QFETCH(QString, name);
    QVERIFY(isUntouched());
    QProcess shell;
    shell.start("/bin/sh", {"-c", "true " + name + "; wait"});
    QVERIFY(shell.waitForFinished());
    QVERIFY(!isUntouched());
}

void TestHostileNames::canaryOfTheEngineCouldBeThere()
{
    const NETCATCHER::DesignSources sources = probe::sources({dir->write("a.v", design)});
    build(sources);
    QVERIFY(isUntouched());
    watchEngine("mkdir -p vakout; touch vakout/canary");
    build(sources);
    QVERIFY(!isUntouched());
}

void TestHostileNames::temporaryFolder()
{
    QFETCH(QString, name);
    const QString path = dir->write("a.v", "`include \"w.vh\"\nmodule a(input [`W:0] x); box u(.x(x)); endmodule\n");
    dir->write("w.vh", "`define W 4\n");
    QVERIFY(QDir(dir->path()).mkdir(name));
    qputenv("TMPDIR", QFile::encodeName(dir->filePath(name)));
    const probe::Result result = build(probe::sources({path}));
    QVERIFY2(result.netlist, qPrintable(result.messages.join('\n')));
    QCOMPARE(probe::rows(*result.netlist), QStringList("x[4:0]"));
    QVERIFY(isUntouched());
    QVERIFY(QDir(dir->filePath(name)).isEmpty());
}

QTEST_GUILESS_MAIN(TestHostileNames)
#include "tst_hostilenames.moc"

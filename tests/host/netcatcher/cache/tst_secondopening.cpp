// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "host/netcatcher/netlistprobe.h"

#include "hostlibs/netcatcher/verilog/verilatorengine.h"

#include "support/engineswitch.h"
#include "support/tempdir.h"

#include <QDateTime>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QtTest>

#include <functional>

using NETCATCHER::BuildProgress;
using NETCATCHER::DesignSources;
using NETCATCHER::Hierachy;
using NETCATCHER::NetlistBuilder;

/// A design in a folder of its own, with a cache of its own.
struct Scene
{
    Scene();
    ~Scene() { qputenv("XDG_CACHE_HOME", "/dev/null/none"); }

    QStringList entries() const { return QDir(dir.filePath("cache/rtlvakins/netlists")).entryList(QDir::Files); }

    support::TempDir dir;
    support::EngineSwitch engine;
    DesignSources sources;
};

/// The include is found in the second of two include folders and in the third; the first one of the list does not
/// exist.
Scene::Scene()
{
    qputenv("XDG_CACHE_HOME", QFile::encodeName(dir.filePath("cache")));
    dir.write("one/other.vh", {});
    dir.write("two/width.vh", "`define WIDTH 4\n");
    dir.write("three/width.vh", "`define WIDTH 5\n");
    const QString top = dir.write("rtl/top.v", "`include \"width.vh\"\n"
                                               "module top(input [`WIDTH-1:0] x); leaf u(.x(x[0])); endmodule\n");
    const QString leaf = dir.write("rtl/leaf.sv", "module leaf(input x);\n`ifdef EXTRA\nwire extra = x;\n`endif\n"
                                                  "vendor_cell u_cell(.p(x));\nendmodule\n");
    sources = probe::sources({top, leaf});
    sources.includePaths =
        QStringList{dir.filePath("none"), dir.filePath("one"), dir.filePath("two"), dir.filePath("three")};
}

using Change = std::function<void(Scene &)>;
Q_DECLARE_METATYPE(Change)
Q_DECLARE_METATYPE(NETCATCHER::DesignSources)

/// Opening a design that was opened before: when the engine is not needed, and that the result is the same.
class TestSecondOpening : public QObject
{
    Q_OBJECT

private slots:
    void givesTheSame_data();
    void givesTheSame();
    void isManyTimesFaster();
    void runsNoEngineWhenNothingChanged_data();
    void runsNoEngineWhenNothingChanged();
    void runsTheEngineAfterAChange_data();
    void runsTheEngineAfterAChange();
    void warningsOfTheTableAreRepeated();
    void formerDesignIsStillThere();
    void vanishedSourceIsAnError();
    void missingEngineIsAnError();
    void cacheThatIsNotWantedIsLeftAlone();
    void errorsAreNotKept_data();
    void errorsAreNotKept();
    void errorOfAnEngineThatSucceedsIsNotKept();
    void endedEngineIsNotKept();
    void changeWhileTheEngineRunsIsNotKept_data();
    void changeWhileTheEngineRunsIsNotKept();
    void includeByAbsolutePathIsNotKept_data();
    void includeByAbsolutePathIsNotKept();
    void libraryOfTheEngineIsWatched();
    void includeThatOnlyTheEngineFindsIsWatched();
    void placeWhereNothingCanBeKept_data();
    void placeWhereNothingCanBeKept();
};

static QStringList tree(const Hierachy *node)
{
    QStringList lines{node->name() + ':' + node->module()};
    for (const Hierachy *child : node->children())
        lines += tree(child);
    return lines;
}

/// Everything that is offered about a design.
static QStringList description(const probe::Result &result)
{
    QStringList lines{"read: " + QString::number(result.isAnalysed), "error: " + result.error};
    lines += "tops: " + result.tops.join(' ');
    lines += "modules: " + result.modules.join(' ');
    lines += result.messages;
    lines.removeAll(NETCATCHER::VerilatorEngine::unconfinedWarning()); // is about the run that there was
    if (!result.netlist)
        return lines;
    lines += "jtag: " + QString::number(result.netlist->jtagUsed());
    lines += tree(result.netlist->topHierarchy());
    lines += probe::rows(*result.netlist);
    for (const NETCATCHER::RtlNetBus *bus : result.netlist->topHierarchy()->netbusesIncludeSub()) {
        for (const NETCATCHER::RtlNet *bit : bus->nets())
            lines += bit->fullPathName();
    }
    return lines;
}

static const QString engineFailed = QStringLiteral("ERROR: The Verilog engine failed without saying why.");

static DesignSources data(const QStringList &names, const QString &top = {})
{
    QStringList paths;
    for (const QString &name : names)
        paths.append(probe::dataFile(name));
    return probe::sources(paths, top);
}

void TestSecondOpening::givesTheSame_data()
{
    QTest::addColumn<DesignSources>("sources");
    const QStringList names = QDir(probe::dataFile({})).entryList({"*.nets"});
    QVERIFY(names.size() >= 6);
    for (const QString &name : names) {
        const QString base = QFileInfo(name).completeBaseName();
        QTest::newRow(qPrintable(base)) << data(
            QDir(probe::dataFile({})).entryList({base + ".v", base + ".sv", base + "_pkg.sv"}));
    }
    QTest::newRow("several tops") << data({"vectors.v", "usable.v"});
    QTest::newRow("one of several") << data({"vectors.v", "usable.v"}, "usable");
    QTest::newRow("instance as top") << data({"vectors.v"}, "counter");
    QTest::newRow("interface as top") << data({"streams.sv"}, "stream_if");
    QTest::newRow("JTAG with source") << data({"boxed.v", "jtag_model.v"});
    DesignSources warned = data({"vectors.v"});
    warned.includePaths.append("/dev/null/none");
    QTest::newRow("with a warning") << warned;
}

void TestSecondOpening::givesTheSame()
{
    QFETCH(DesignSources, sources);
    const Scene scene;
    const QStringList first = description(probe::build(sources));
    scene.engine.turnOff();
    QCOMPARE(description(probe::build(sources)), first);
    QVERIFY(first.first() == "read: 1" && !first.contains(engineFailed));
}

void TestSecondOpening::isManyTimesFaster()
{
    Scene scene;
    QByteArray text = "module top(input clk, input d0);\n";
    for (int i = 1; i <= 5000; ++i)
        text += QString("reg d%1; always @(posedge clk) d%1 <= d%2;\n").arg(i).arg(i - 1).toLatin1();
    const DesignSources sources = probe::sources({scene.dir.write("long.v", text + "endmodule\n")});
    QElapsedTimer timer;
    timer.start();
    QVERIFY(probe::build(sources).netlist);
    const qint64 first = timer.restart();
    QVERIFY(probe::build(sources).netlist);
    QVERIFY2(timer.elapsed() * 10 <= first, qPrintable(QString("%1 ms, %2 ms").arg(first).arg(timer.elapsed())));
}

void TestSecondOpening::runsNoEngineWhenNothingChanged_data()
{
    QTest::addColumn<Change>("change");
    const auto add = [](const char *name, const Change &change) { QTest::newRow(name) << change; };
    add("nothing", [](Scene &) {});
    add("time of a source", [](Scene &scene) {
        QFile file(scene.dir.filePath("rtl/top.v"));
        QVERIFY(file.open(QIODevice::ReadWrite));
        QVERIFY(file.setFileTime(QDateTime::currentDateTime().addDays(-1), QFileDevice::FileModificationTime));
    });
    add("source written again", [](Scene &scene) { scene.dir.write("rtl/top.v", scene.dir.read("rtl/top.v")); });
    add("file that nobody looks for", [](Scene &scene) { scene.dir.write("rtl/vendor_cell.v", "module"); });
    add("include of a later folder", [](Scene &scene) { scene.dir.write("three/width.vh", "`define WIDTH 9\n"); });
}

void TestSecondOpening::runsNoEngineWhenNothingChanged()
{
    QFETCH(Change, change);
    Scene scene;
    const QStringList first = description(probe::build(scene.sources));
    QVERIFY(first.first() == "read: 1");
    change(scene);
    scene.engine.turnOff();
    QCOMPARE(description(probe::build(scene.sources)), first);
    QCOMPARE(scene.entries().size(), 1);
}

void TestSecondOpening::runsTheEngineAfterAChange_data()
{
    QTest::addColumn<Change>("change");
    const auto add = [](const char *name, const Change &change) { QTest::newRow(name) << change; };
    add("source", [](Scene &scene) { scene.dir.write("rtl/leaf.sv", "module leaf(input x, y); endmodule\n"); });
    add("include", [](Scene &scene) { scene.dir.write("two/width.vh", "`define WIDTH 6\n"); });
    add("include vanished", [](Scene &scene) { scene.dir.remove("two/width.vh"); });
    add("include in an earlier folder", [](Scene &scene) { scene.dir.write("one/width.vh", "`define WIDTH 7\n"); });
    add("include beside the source", [](Scene &scene) { scene.dir.write("rtl/width.vh", "`define WIDTH 8\n"); });
    add("include folder appeared", [](Scene &scene) { scene.dir.write("none/x.vh", {}); });
    add("include folder vanished", [](Scene &scene) { QDir(scene.dir.filePath("one")).removeRecursively(); });
    add("order of include folders", [](Scene &scene) { scene.sources.includePaths.swapItemsAt(2, 3); });
    add("no include folder", [](Scene &scene) { scene.sources.includePaths.removeFirst(); });
    add("define", [](Scene &scene) { scene.sources.defines.append("EXTRA"); });
    add("top", [](Scene &scene) { scene.sources.top = "leaf"; });
    add("standard", [](Scene &scene) { scene.sources.standard = "1364-2001"; });
    add("language", [](Scene &scene) { scene.sources.files[0].language = NETCATCHER::SourceFile::SystemVerilog; });
    add("order of the files", [](Scene &scene) { scene.sources.files.swapItemsAt(0, 1); });
    add("one file less", [](Scene &scene) { scene.sources.files.removeLast(); });
    add("another spelling of a path", [](Scene &scene) { scene.sources.files[0].path.replace("/rtl/", "/rtl/./"); });
    add("engine", [](Scene &scene) { scene.engine.replace("# another version"); });
    add("time of the engine", [](Scene &scene) {
        QFile file(scene.engine.program());
        QVERIFY(file.open(QIODevice::ReadWrite));
        QVERIFY(file.setFileTime(QDateTime::currentDateTime().addDays(-1), QFileDevice::FileModificationTime));
    });
}

void TestSecondOpening::runsTheEngineAfterAChange()
{
    QFETCH(Change, change);
    Scene scene;
    QVERIFY(probe::build(scene.sources).netlist);
    scene.engine.turnOff();
    QVERIFY(probe::build(scene.sources).netlist);
    change(scene);
    QCOMPARE(probe::build(scene.sources).errors(), QStringList(engineFailed));
    scene.engine.turnOn();
    const QStringList changed = description(probe::build(scene.sources));
    QCOMPARE(changed.first(), QString("read: 1"));
    scene.engine.turnOff();
    QCOMPARE(description(probe::build(scene.sources)), changed);
}

void TestSecondOpening::warningsOfTheTableAreRepeated()
{
    const Scene scene;
    scene.dir.write("two/width.vh", "`define WIDTH 99999999\n");
    const QStringList warnings = probe::build(scene.sources).warnings();
    QVERIFY(warnings.contains("WARNING: x in module top is too wide to be taken apart and cannot be used"));
    scene.engine.turnOff();
    QCOMPARE(probe::build(scene.sources).messages, warnings);
}

void TestSecondOpening::formerDesignIsStillThere()
{
    Scene scene;
    const QStringList first = description(probe::build(scene.sources));
    scene.sources.top = "leaf";
    QVERIFY(description(probe::build(scene.sources)) != first);
    scene.sources.top.clear();
    scene.engine.turnOff();
    QCOMPARE(description(probe::build(scene.sources)), first);
}

void TestSecondOpening::vanishedSourceIsAnError()
{
    const Scene scene;
    QVERIFY(probe::build(scene.sources).netlist);
    scene.dir.remove("rtl/leaf.sv");
    QCOMPARE(probe::build(scene.sources).errors(),
             QStringList("ERROR: " + scene.dir.filePath("rtl/leaf.sv") + ": There is no such file."));
}

void TestSecondOpening::missingEngineIsAnError()
{
    const Scene scene;
    QVERIFY(probe::build(scene.sources).netlist);
    const QByteArray path = qgetenv("PATH");
    qputenv("PATH", QFile::encodeName(scene.dir.path()));
    const probe::Result result = probe::build(scene.sources);
    qputenv("PATH", path);
    QVERIFY(!result.netlist);
    QVERIFY(result.error.contains("is not installed"));
}

void TestSecondOpening::cacheThatIsNotWantedIsLeftAlone()
{
    const Scene scene;
    NetlistBuilder first(scene.sources);
    first.setCached(false);
    QVERIFY(first.analyse());
    QVERIFY(scene.entries().isEmpty());
    QVERIFY(probe::build(scene.sources).netlist);
    QCOMPARE(scene.entries().size(), 1);
    scene.engine.turnOff();
    NetlistBuilder second(scene.sources);
    second.setCached(false);
    QVERIFY(!second.analyse());
}

void TestSecondOpening::errorsAreNotKept_data()
{
    QTest::addColumn<QByteArray>("source");
    QTest::addColumn<QString>("top");
    QTest::newRow("syntax error") << QByteArray("module top(") << QString();
    QTest::newRow("missing include") << QByteArray("`include \"gone.vh\"\nmodule top; endmodule\n") << QString();
    QTest::newRow("no such top") << QByteArray("module top; endmodule\n") << QString("other");
}

void TestSecondOpening::errorsAreNotKept()
{
    QFETCH(QByteArray, source);
    QFETCH(QString, top);
    const Scene scene;
    const DesignSources sources = probe::sources({scene.dir.write("top.sv", source)}, top);
    QVERIFY(!probe::build(sources).netlist);
    QVERIFY(scene.entries().isEmpty());
}

void TestSecondOpening::errorOfAnEngineThatSucceedsIsNotKept()
{
    const Scene scene;
    scene.engine.replace("echo '%Error: half of it is missing'");
    const probe::Result result = probe::build(scene.sources);
    QVERIFY(!result.errors().isEmpty());
    QVERIFY(scene.entries().isEmpty());
}

void TestSecondOpening::endedEngineIsNotKept()
{
    const Scene scene;
    scene.engine.replace({}, "while :; do :; done");
    NETCATCHER::EngineLimits limits;
    limits.milliseconds = 1000;
    const probe::Result result = probe::build(scene.sources, limits);
    QVERIFY(!result.isAnalysed);
    QVERIFY(scene.entries().isEmpty());
}

void TestSecondOpening::changeWhileTheEngineRunsIsNotKept_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<bool>("isKept");
    QTest::newRow("source") << "rtl/leaf.sv" << false;
    QTest::newRow("include") << "two/width.vh" << false;
    QTest::newRow("include that comes before") << "one/width.vh" << false;
    QTest::newRow("another file") << "rtl/other.v" << true;
}

void TestSecondOpening::changeWhileTheEngineRunsIsNotKept()
{
    QFETCH(QString, file);
    QFETCH(bool, isKept);
    const Scene scene;
    NetlistBuilder builder(scene.sources);
    bool isWritten = false;
    const auto save = [&](const BuildProgress &progress) {
        if (progress.stage == BuildProgress::RunningEngine && !isWritten)
            scene.dir.write(file, scene.dir.read(file) + "\n// saved\n");
        isWritten = isWritten || progress.stage == BuildProgress::RunningEngine;
    };
    QVERIFY(builder.analyse(save));
    QVERIFY(isWritten);
    QCOMPARE(scene.entries().size(), isKept ? 1 : 0);
}

void TestSecondOpening::includeByAbsolutePathIsNotKept_data()
{
    QTest::addColumn<QByteArray>("directive");
    QTest::newRow("plain") << QByteArray("`include \"%1\"\n");
    QTest::newRow("macro") << QByteArray("`define NAME \"%1\"\n`include `NAME\n");
}

void TestSecondOpening::includeByAbsolutePathIsNotKept()
{
    QFETCH(QByteArray, directive);
    const Scene scene;
    const QString include = scene.dir.write("far/width.vh", "`define WIDTH 3\n");
    const QString top = scene.dir.write("top.v", directive.replace("%1", QFile::encodeName(include)) +
                                                     "module top(input [`WIDTH-1:0] x); endmodule\n");
    QCOMPARE(probe::rows(*probe::build(probe::sources({top})).netlist), QStringList("x[2:0]"));
    QVERIFY(scene.entries().isEmpty());
    scene.dir.write("far/width.vh", "`define WIDTH 4\n");
    QCOMPARE(probe::rows(*probe::build(probe::sources({top})).netlist), QStringList("x[3:0]"));
}

void TestSecondOpening::libraryOfTheEngineIsWatched()
{
    // The engine's own cannot be changed here, but is known by its name.
    const Scene scene;
    const QString library = scene.dir.write("verilated_std.sv", "`define WIDTH 3\n");
    const DesignSources sources = probe::sources({scene.dir.write(
        "top.v", "`include \"" + QFile::encodeName(library) + "\"\nmodule top(input [`WIDTH-1:0] x); endmodule\n")});
    QVERIFY(probe::build(sources).netlist->findNet("x[2]"));
    QCOMPARE(scene.entries().size(), 1);
    scene.dir.write("verilated_std.sv", "`define WIDTH 4\n");
    QVERIFY(probe::build(sources).netlist->findNet("x[3]"));
}

void TestSecondOpening::includeThatOnlyTheEngineFindsIsWatched()
{
    Scene scene;
    scene.dir.write("rtl/top.v", "`define NAME \"width.vh\"\n`include `NAME\n"
                                 "module top(input [`WIDTH-1:0] x); leaf u(.x(x[0])); endmodule\n");
    QVERIFY(probe::build(scene.sources).netlist->findNet("x[3]"));
    QCOMPARE(scene.entries().size(), 1);
    scene.dir.write("one/width.vh", "`define WIDTH 7\n");
    QVERIFY(probe::build(scene.sources).netlist->findNet("x[6]"));
    scene.dir.write("one/width.vh", "`define WIDTH 8\n");
    QVERIFY(probe::build(scene.sources).netlist->findNet("x[7]"));
}

void TestSecondOpening::placeWhereNothingCanBeKept_data()
{
    QTest::addColumn<QByteArray>("place");
    QTest::newRow("below a device") << QByteArray("/dev/null/none");
    QTest::newRow("system folder") << QByteArray("/proc/self");
    QTest::newRow("relative path") << QByteArray("cache");
}

void TestSecondOpening::placeWhereNothingCanBeKept()
{
    QFETCH(QByteArray, place);
    const Scene scene;
    qputenv("XDG_CACHE_HOME", place);
    const QString before = QDir::currentPath();
    QVERIFY(QDir::setCurrent(scene.dir.path()));
    const QStringList first = description(probe::build(scene.sources));
    const QStringList second = description(probe::build(scene.sources));
    QVERIFY(QDir::setCurrent(before));
    QCOMPARE(first.first(), QString("read: 1"));
    QCOMPARE(second, first);
    QVERIFY(!QFile::exists(scene.dir.filePath("cache")));
}

QTEST_GUILESS_MAIN(TestSecondOpening)
#include "tst_secondopening.moc"

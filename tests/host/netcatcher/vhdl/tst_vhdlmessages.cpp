// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "vhdlrefusal.h"

#include "host/netcatcher/netlistprobe.h"

#include "support/tempdir.h"

#include <QFile>
#include <QtTest>

/// What users are told about VHDL designs that cannot be read, or not as they expect; and what `tops` and `modules`
/// hold.
class TestVhdlMessages : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void onlyRootIsTheTop();
    void severalRootsAreAllTops();
    void topNeedNotBeARoot();
    void topIsFoundInAnyCase();
    void extendedNamesKeepTheirCase();
    void misspeltTopEmptiesTheModules();
    void entityInsideItselfIsARoot();
    void entitiesInsideEachOtherHaveNoTop();
    void lastArchitectureIsRead();
    void sourcesWithoutEntities_data();
    void sourcesWithoutEntities();

    void errorsNameFileAndLine_data();
    void errorsNameFileAndLine();
    void syntaxErrorIsToldWithoutATop();
    void olderStandardIsTried();
    void olderStandardIsTriedWithoutATop();
    void duplicateEntityIsAWarning();
    void missingFileIsNamed();
    void libraryMustHaveAName();
    void openGenericOfTheTop();
    void genericsOfTypesWithDefaultsAreNotOpen();
    void assertionsAreNoErrors();
    void simulationIsNotRun();
    void typesOfPackageInstancesAreNotRead();
    void caseGenerateIsAWarning();
    void hugeBusIsListedButUnusable();
    void contentsOfMemoriesAreReadBesideTheSources();
    void commentsMayHoldAnything();

private:
    probe::Result build(const QByteArray &source, const QString &top = {}) const;

    std::unique_ptr<support::TempDir> dir;
};

void TestVhdlMessages::init()
{
    dir = std::make_unique<support::TempDir>();
}

probe::Result TestVhdlMessages::build(const QByteArray &source, const QString &top) const
{
    return probe::build(probe::sources({dir->write("design.vhd", source)}, top));
}

static const char twoRoots[] = "entity A is port (X : in bit); end;\n"
                               "architecture R of A is begin U : entity work.LEAF port map (X); end;\n"
                               "entity B is port (X : in bit); end;\n"
                               "architecture R of B is signal Y : bit; begin Y <= X; end;\n"
                               "entity Leaf is port (X : in bit); end;\n"
                               "architecture R of Leaf is signal Z : bit; begin Z <= X; end;\n";

void TestVhdlMessages::onlyRootIsTheTop()
{
    const probe::Result result = build("entity A is end;\narchitecture R of A is begin u : entity work.b; end;\n"
                                       "entity B is end;\narchitecture R of B is begin end;\n");
    QCOMPARE(result.messages, QStringList());
    QCOMPARE(result.tops, QStringList("A"));
    QCOMPARE(result.modules, QStringList({"A", "B"}));
    QVERIFY(result.netlist);
}

void TestVhdlMessages::severalRootsAreAllTops()
{
    const probe::Result result = build(twoRoots);
    QVERIFY(result.isAnalysed);
    QCOMPARE(result.tops, QStringList({"A", "B"}));
    QCOMPARE(result.modules, QStringList({"A", "B", "Leaf"}));
    QVERIFY(!result.netlist);
    QCOMPARE(result.error, QString("The design has several top modules: A, B."));
}

void TestVhdlMessages::topNeedNotBeARoot()
{
    const probe::Result result = build(twoRoots, "Leaf");
    QCOMPARE(result.tops, QStringList("Leaf"));
    QVERIFY(result.netlist);
    QCOMPARE(probe::rows(*result.netlist), QStringList({"X", "Z"}));
}

void TestVhdlMessages::topIsFoundInAnyCase()
{
    const probe::Result result = build(twoRoots, "LEAF");
    QCOMPARE(result.tops, QStringList("LEAF"));
    QCOMPARE(result.modules, QStringList({"A", "B", "Leaf"}));
    QVERIFY(result.netlist);
    // Deliberately as it was asked for: callers compare the two letter by letter.
    QCOMPARE(result.netlist->topHierarchy()->name(), QString("LEAF"));
}

void TestVhdlMessages::extendedNamesKeepTheirCase()
{
    const QByteArray source = "entity \\My Top\\ is port (\\a/b\\ : in bit); end;\n"
                              "architecture R of \\My Top\\ is begin end;\n";
    QCOMPARE(build(source, "my top").modules, QStringList());
    const probe::Result result = build(source, "My Top");
    QVERIFY2(result.netlist, qPrintable(result.messages.join('\n')));
    QCOMPARE(probe::rows(*result.netlist), QStringList("a/b"));
}

void TestVhdlMessages::misspeltTopEmptiesTheModules()
{
    const probe::Result result = build(twoRoots, "Leav");
    QCOMPARE(result.messages, QStringList());
    QCOMPARE(result.modules, QStringList());
    QVERIFY(!result.netlist);
}

void TestVhdlMessages::entityInsideItselfIsARoot()
{
    const probe::Result result =
        build("entity Tree is generic (Depth : natural := 2); port (X : in bit); end;\n"
              "architecture R of Tree is begin\n"
              "G : if Depth > 0 generate U : entity work.Tree generic map (Depth - 1) port map (X); end generate;\n"
              "end;\n");
    QCOMPARE(result.messages, QStringList());
    QVERIFY(result.netlist);
    QCOMPARE(probe::rows(*result.netlist), QStringList({"X", "G.U/X", "G.U/G.U/X"}));
}

void TestVhdlMessages::entitiesInsideEachOtherHaveNoTop()
{
    const probe::Result result = build("entity A is end;\narchitecture R of A is begin u : entity work.B; end;\n"
                                       "entity B is end;\narchitecture R of B is begin u : entity work.A; end;\n");
    QCOMPARE(result.messages,
             QStringList("ERROR: The design has no top module: each of A, B is instantiated by another "
                         "one; end the recursion, or set the top module."));
    QVERIFY(!result.netlist);
}

void TestVhdlMessages::lastArchitectureIsRead()
{
    const probe::Result result = build("entity A is end;\narchitecture Z of A is signal Q : bit; begin end;\n"
                                       "architecture Y of A is signal P : bit; begin end;\n");
    QVERIFY(result.netlist);
    QCOMPARE(probe::rows(*result.netlist), QStringList("P\tunusable"));
}

void TestVhdlMessages::sourcesWithoutEntities_data()
{
    QTest::addColumn<QByteArray>("source");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("comment") << QByteArray("-- entity a is end;\n/* entity b is end; */\n");
    QTest::newRow("package") << QByteArray("package p is constant c : integer := 1; end;\n");
}

void TestVhdlMessages::sourcesWithoutEntities()
{
    QFETCH(QByteArray, source);
    const probe::Result result = build(source);
    QCOMPARE(result.messages, QStringList());
    QCOMPARE(result.modules, QStringList());
    QCOMPARE(result.error, QString("The design has no top module."));
}

void TestVhdlMessages::errorsNameFileAndLine_data()
{
    QTest::addColumn<QByteArray>("source");
    QTest::addColumn<QString>("message"); // behind the path
    const QByteArray head = "entity A is port (X : in bit); end;\narchitecture R of A is\n";
    QTest::newRow("syntax") << QByteArray("entity A is\nport X : in bit; end;\n") << ":2: ";
    QTest::newRow("unknown name") << head + "begin X2 <= X;\nend;\n"
                                  << ":3: no declaration for \"x2\"";
    QTest::newRow("missing library") << "library unisim;\n" + head + "begin end;\n"
                                     << ":1: cannot find resource library \"unisim\" (add the files of that library "
                                        "to the project, and name the library with them)";
    QTest::newRow("missing package") << "use work.p.all;\n" + head + "begin end;\n"
                                     << ":1: unit \"p\" not found in library \"work\" (add the file that declares it "
                                        "to the project, in that library)";
    QTest::newRow("missing entity")
        << head + "begin\nu : entity work.nothing;\nend;\n"
        << ":4: unit \"nothing\" not found in library \"work\" (add the file that declares it to the project, in that "
           "library)";
    QTest::newRow("mark of UTF-8") << "\xef\xbb\xbf" + head + "begin end;\n"
                                   << ":1: source encoding must be latin-1 (UTF-8 BOM detected) (save it without the "
                                      "mark of UTF-8 at its beginning)";
    QTest::newRow("unbound port")
        << QByteArray("entity A is port (\nX : in bit_vector); end;\narchitecture R of A is begin end;\n")
        << ":2: entity \"a\" cannot be at the top of a design (port \"x\" is unconstrained and has no default value) "
           "(give it bounds or a default, or set another top module)";
    QTest::newRow("while elaborating")
        << head + "signal V : bit_vector(3 downto 0);\nfunction F return integer is\nbegin\nreturn 2**30 * 2**30;\n"
                  "end;\nsignal W : bit_vector(F downto 0);\nbegin end;\n"
        << ":6: bound check failure";
    QTest::newRow("binary") << QByteArray("\x7f"
                                          "ELF\x01\x02\0\0",
                                          8)
                            << ":1: ";
}

void TestVhdlMessages::errorsNameFileAndLine()
{
    QFETCH(QByteArray, source);
    QFETCH(QString, message);
    const probe::Result result = build(source, source.startsWith('\x7f') ? QString() : QString("A"));
    QVERIFY(!result.errors().isEmpty());
    const QString expected = "ERROR: " + dir->filePath("design.vhd") + message;
    QVERIFY2(result.errors().first().startsWith(expected), qPrintable(result.errors().first()));
    QVERIFY(!result.netlist && result.modules.isEmpty());
}

void TestVhdlMessages::syntaxErrorIsToldWithoutATop()
{
    const probe::Result result = build(QByteArray(twoRoots) + "entity C is end\n");
    QCOMPARE(result.errors().size(), 1);
    QVERIFY2(result.errors().first().startsWith("ERROR: " + dir->filePath("design.vhd") + ":7: "),
             qPrintable(result.errors().first()));
}

void TestVhdlMessages::olderStandardIsTried()
{
    // A word that is reserved later; an error that both standards see is told in the words of the newer.
    const QByteArray source = "entity A is port (Default : in bit); end;\narchitecture R of A is begin\n%1\nend;\n";
    const probe::Result result = build(QByteArray(source).replace("%1", ""));
    QCOMPARE(result.messages, QStringList());
    QVERIFY(result.netlist);
    QCOMPARE(probe::rows(*result.netlist), QStringList("Default"));
    const probe::Result wrong = build(QByteArray(source).replace("%1", "oops"));
    QVERIFY(wrong.errors().first().startsWith("ERROR: " + dir->filePath("design.vhd") + ":1: "));
}

void TestVhdlMessages::olderStandardIsTriedWithoutATop()
{
    const QByteArray older = "entity C is port (Default : in bit); end;\narchitecture R of C is begin %1\nend;\n";
    const probe::Result result = build(QByteArray(older).replace("%1", "") + twoRoots);
    QCOMPARE(result.messages, QStringList());
    QCOMPARE(result.tops, QStringList({"C", "A", "B"}));
    const probe::Result wrong = build(QByteArray(older).replace("%1", "oops") + twoRoots);
    QVERIFY(wrong.errors().first().startsWith("ERROR: " + dir->filePath("design.vhd") + ":1: "));
}

void TestVhdlMessages::duplicateEntityIsAWarning()
{
    const auto entity = [](const QByteArray &signal) {
        return "entity A is end;\narchitecture R of A is signal " + signal + " : bit; begin end;\n";
    };
    const QString first = dir->write("one.vhd", entity("First"));
    const QString second = dir->write("two.vhd", entity("Second"));
    const probe::Result result = probe::build(probe::sources({first, second}));
    QCOMPARE(result.messages,
             QStringList("WARNING: " + second + ":1: entity \"a\" was also defined in file \"" + first + '"'));
    QVERIFY(result.netlist);
    QCOMPARE(probe::rows(*result.netlist), QStringList("Second\tunusable"));
}

void TestVhdlMessages::missingFileIsNamed()
{
    const QString path = dir->filePath("none.vhd");
    QCOMPARE(probe::build(probe::sources({path})).messages, QStringList("ERROR: " + path + ": There is no such file."));
}

void TestVhdlMessages::libraryMustHaveAName()
{
    NETCATCHER::DesignSources sources = probe::sources({dir->write("design.vhd", twoRoots)}, "B");
    sources.files[0].library = "--work";
    QCOMPARE(probe::build(sources).messages, QStringList("ERROR: " + dir->filePath("design.vhd") +
                                                         ": The library \"--work\" cannot be named so in VHDL."));
    sources.files[0].library = "My_Lib2";
    QVERIFY(probe::build(sources).netlist);
}

void TestVhdlMessages::openGenericOfTheTop()
{
    const probe::Result result = build("entity A is generic (Depth : integer := 3; Width : integer);\n"
                                       "port (X : in bit_vector(Width downto 0)); end;\n"
                                       "architecture R of A is begin end;\n");
    QCOMPARE(result.messages, QStringList("ERROR: The generic Width of the top entity A has no value; give it a "
                                          "default, or set another top module."));
}

void TestVhdlMessages::genericsOfTypesWithDefaultsAreNotOpen()
{
    const probe::Result result =
        build("entity A is generic (M : string := \"a;b)\"; N, K : integer := (3 + 1) * 2); port (X : in bit); end;\n"
              "architecture R of A is begin end;\n");
    QCOMPARE(result.messages, QStringList());
    QVERIFY(result.netlist);
}

void TestVhdlMessages::assertionsAreNoErrors()
{
    const probe::Result result = build("entity A is end;\narchitecture R of A is\n"
                                       "impure function F return integer is begin\n"
                                       "report \"elaborated\" severity failure; return 3; end;\n"
                                       "signal V : bit_vector(F downto 0);\nbegin\n"
                                       "assert false report \"running\" severity failure;\nend;\n");
    QCOMPARE(result.messages, QStringList("WARNING: " + dir->filePath("design.vhd") + ":4: elaborated"));
    QVERIFY(result.netlist);
    QCOMPARE(probe::rows(*result.netlist), QStringList("V[3:0]\tunusable"));
}

void TestVhdlMessages::simulationIsNotRun()
{
    NETCATCHER::EngineLimits limits;
    limits.milliseconds = 60000;
    const QString path = dir->write("design.vhd", "entity A is port (X : in bit); end;\narchitecture R of A is begin\n"
                                                  "process begin loop end loop; end process;\nend;\n");
    QElapsedTimer timer;
    timer.start();
    const probe::Result result = probe::build(probe::sources({path}), limits);
    QVERIFY(timer.elapsed() < limits.milliseconds / 2);
    QCOMPARE(result.messages, QStringList());
    QVERIFY(result.netlist);
    QCOMPARE(probe::rows(*result.netlist), QStringList("X"));
}

void TestVhdlMessages::typesOfPackageInstancesAreNotRead()
{
    // An unbound component gives a warning, which must not be taken for the reason.
    const probe::Result result =
        build("package P is generic (N : natural); subtype V is bit_vector(N - 1 downto 0); end;\n"
              "package P5 is new work.P generic map (N => 5);\n"
              "entity A is port (X : in bit); end;\n"
              "architecture R of A is component C is port (X : in bit); end component; signal S : work.P5.V;\n"
              "begin U : C port map (X); S(0) <= X; end;\n");
    QCOMPARE(result.errors(), QStringList("ERROR: The VHDL engine cannot tell the types of all signals; types that an "
                                          "instance of a package declares are a usual cause."));
}

void TestVhdlMessages::caseGenerateIsAWarning()
{
    const probe::Result result =
        build("entity A is generic (K : integer := 1); port (X : in bit); end;\narchitecture R of A is begin\n"
              "Chosen : case K generate when 1 => signal S : bit; begin S <= X; when others => end generate;\nend;\n");
    QCOMPARE(result.messages, QStringList("WARNING: The nets and instances inside of case generate statements, like "
                                          "chosen, are not listed; an if generate statement lists its own"));
    QVERIFY(result.netlist);
    QCOMPARE(probe::rows(*result.netlist), QStringList("X"));
}

void TestVhdlMessages::hugeBusIsListedButUnusable()
{
    const probe::Result result = build("entity A is port (X : in bit_vector(1999999 downto 0); Y : in bit); end;\n"
                                       "architecture R of A is begin end;\n");
    QCOMPARE(result.messages, QStringList("WARNING: X in module A is too wide to be taken apart and cannot be used"));
    QVERIFY(result.netlist);
    QCOMPARE(probe::rows(*result.netlist), QStringList({"X[1999999:0]\tunusable", "Y"}));
}

void TestVhdlMessages::contentsOfMemoriesAreReadBesideTheSources()
{
    const QByteArray source = "use std.textio.all;\nentity A is end;\narchitecture R of A is\n"
                              "impure function F(Name : string) return integer is\n"
                              "file D : text open read_mode is Name; variable L : line; variable V : integer;\n"
                              "begin readline(D, L); read(L, V); return V; end;\n"
                              "signal S : bit_vector(F(\"data/width.txt\") downto 0);\nbegin end;\n";
    const probe::Result without = build(source);
    QCOMPARE(without.messages, QStringList("ERROR: " + dir->filePath("design.vhd") +
                                           ":5: cannot open file \"data/width.txt\" (a design "
                                           "can read files beside its sources while it is read, and write none)"));
    dir->write("data/width.txt", "11\n");
    const probe::Result with = build(source);
    QVERIFY2(with.netlist, qPrintable(with.messages.join('\n')));
    QCOMPARE(probe::rows(*with.netlist), QStringList("S[11:0]\tunusable"));
}

void TestVhdlMessages::commentsMayHoldAnything()
{
    const probe::Result result = build("-- gr\xc3\xb6\xc3\x9f"
                                       "e \xe4\xbd\xa0\nentity A is port (X : in bit); end;\n"
                                       "architecture R of A is begin end; -- \xfc\n");
    QCOMPARE(result.messages, QStringList());
    QVERIFY(result.netlist);
}

VHDL_TEST_MAIN(TestVhdlMessages)
#include "tst_vhdlmessages.moc"

// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "modeltools.h"

#include <VakUtils/matchunit.h>
#include <VakUtils/triggerport.h>
#include <VakUtils/vakfile.h>

#include <QtTest>

using namespace VAK;

class TestVakFile : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void goldenFilesComeBackByteForByte_data();
    void goldenFilesComeBackByteForByte();
    void whatWasWrittenIsReadAgain_data();
    void whatWasWrittenIsReadAgain();
    void sameModelGivesSameBytes();
    void goldenFileIsUnderstood();
    void goldenLiteFileIsUnderstood();
    void dataSignalsAreTheCapturedOnes();
    void newCoreTakesFiveLines();
    void longBusIsOneLine();
    void spoiltMemberExpandsTheBus_data();
    void spoiltMemberExpandsTheBus();
    void unitThatDiffersInOneFieldIsWritten();
    void expressionTakesItsForeignContentAlong();
    void equalExpressionsShareTheirForeignContent();
    void foreignContentOfTheRootOutlivesTheFirstCore();
    void characterThatXmlCannotExpressIsReplaced();
    void brokenForeignTextIsLeftOut();
    void numbersThatTheEditorDoesNotOfferAreKept();
    void lowerCaseValueIsStoredUpperCase();
    void commentsAreNotKept();
    void resultsMayBeIgnored();

private:
    QString path(const char *name = "a.rvk") const { return folder->filePath(QLatin1String(name)); }
    StandardCores read(const QString &file) const;
    QByteArray written(const QList<AoCore *> &cores) const;

    std::unique_ptr<QTemporaryDir> folder;
};

void TestVakFile::init()
{
    folder = std::make_unique<QTemporaryDir>();
    QVERIFY(folder->isValid());
}

StandardCores TestVakFile::read(const QString &file) const
{
    bool ok = false;
    QString error;
    StandardCores cores(readVAKConfigFromXml(file, &ok, &error));
    if (!ok)
        qWarning().noquote() << error;
    return cores;
}

QByteArray TestVakFile::written(const QList<AoCore *> &cores) const
{
    return writeVAKConfigToXml(cores, path("written.rvk")) ? fileContent(path("written.rvk")) : QByteArray();
}

void TestVakFile::goldenFilesComeBackByteForByte_data()
{
    QTest::addColumn<QString>("file");
    for (const QString &name : goldenFiles())
        QTest::newRow(qPrintable(name)) << goldenFile(name);
}

void TestVakFile::goldenFilesComeBackByteForByte()
{
    QFETCH(QString, file);
    const bool lite = vakModeFromVakConfigFile(file) == VakMode::Lite;
    bool ok = false;
    QString error;
    if (lite) {
        QVERIFY(checkVAKLiteFile(file));
        const LiteCores cores(readVAKConfigFromXml_Lite(file, &ok, &error));
        QVERIFY2(ok, qPrintable(error));
        QVERIFY(writeVAKConfigToXml_Lite(cores.cores, path()));
    } else {
        QVERIFY(checkVAKStandardFile(file));
        const StandardCores cores(readVAKConfigFromXml(file, &ok, &error));
        QVERIFY2(ok, qPrintable(error));
        QVERIFY(writeVAKConfigToXml(cores.cores, path()));
    }
    QCOMPARE(fileContent(path()), fileContent(file));
}

void TestVakFile::whatWasWrittenIsReadAgain_data()
{
    QTest::addColumn<int>("seed");
    for (int seed = 1; seed <= 60; ++seed)
        QTest::addRow("seed %d", seed) << seed;
}

void TestVakFile::whatWasWrittenIsReadAgain()
{
    QFETCH(int, seed);
    QRandomGenerator random{quint32(seed)};
    bool ok = false;
    const StandardCores standard = randomStandardCores(&random);
    QVERIFY(writeVAKConfigToXml(standard.cores, path()));
    const StandardCores standardAgain(readVAKConfigFromXml(path(), &ok));
    QVERIFY(ok);
    QCOMPARE(difference(standard.cores, standardAgain.cores), QString());
    const LiteCores lite = randomLiteCores(&random);
    QVERIFY(writeVAKConfigToXml_Lite(lite.cores, path()));
    const LiteCores liteAgain(readVAKConfigFromXml_Lite(path(), &ok));
    QVERIFY(ok);
    QCOMPARE(difference(lite.cores, liteAgain.cores), QString());
}

void TestVakFile::sameModelGivesSameBytes()
{
    QRandomGenerator random(7);
    const StandardCores cores = randomStandardCores(&random);
    const QByteArray first = written(cores.cores);
    QVERIFY(!first.isEmpty());
    QCOMPARE(written(cores.cores), first);
    QCOMPARE(written(read(path("written.rvk")).cores), first);
    QVERIFY(first.endsWith("</vak>\n"));
    QVERIFY(!first.contains('\r'));
}

void TestVakFile::goldenFileIsUnderstood()
{
    const StandardCores read = this->read(goldenFile(QStringLiteral("standard-full.rvk")));
    QCOMPARE(read.cores.size(), 2);
    const AoCore &core = *read.cores.first();
    QCOMPARE(core.moduleName(), QStringLiteral("soc_top"));
    QCOMPARE(core.sampleClock(), QStringLiteral("clk"));
    QCOMPARE(core.triggerMode(), int(DynamicTrigger));
    QCOMPARE(core.triggerImplementation(), int(SsramImplementation));
    QCOMPARE(core.captureImplementation(), int(RegImplementation));
    QCOMPARE(core.availableTriggers().size(), 2);
    QCOMPARE(core.getTrigger(7)->width(), 10);
    QCOMPARE(core.getTrigger(0)->getSignalNet().at(1).displayName, QStringLiteral("ready <in> & \"out\""));
    QVERIFY(!core.getTrigger(0)->getSignalNet().at(1).present);
    QCOMPARE(core.enabledMatchUnits().size(), 3);
    QCOMPARE(core.matchUnit(1)->value1(), QStringLiteral("0000010000"));
    QCOMPARE(core.matchUnit(1)->counterMode(), CounterMode::Total);
    QCOMPARE(core.matchUnit(1)->counterValue(), 65535);
    QCOMPARE(core.matchUnit(14)->triggerPort(), core.getTrigger(3));
    QVERIFY(!core.matchUnit(15)->triggerPort());
    QCOMPARE(core.expressions(), QStringList({"M0&!(M1|M2)", "M0"}));
    QCOMPARE(core.getallCapSignal().at(1), busSignal(QStringLiteral("up"), 0, 7));
    QCOMPARE(core.getallCapSignal().at(4).members.last().name, QStringLiteral("neg[-2]"));
    QCOMPARE(core.storageSize(), 3);
    QCOMPARE(core.segmentNumber(), 2);
    QCOMPARE(core.captureAmount(), 1000);
    QCOMPARE(core.triggerPosition(), 5);
    QVERIFY(core.forceTriggerByFallingEdge());
    QVERIFY(core.captureInitialData());
    QCOMPARE(read.cores.at(1)->sampleEdge(), int(FallingEdge));
}

void TestVakFile::goldenLiteFileIsUnderstood()
{
    bool ok = false;
    const LiteCores read(readVAKConfigFromXml_Lite(goldenFile(QStringLiteral("lite-full.rvk")), &ok));
    QVERIFY(ok);
    QCOMPARE(read.cores.size(), 2);
    const AOCore_Lite &core = *read.cores.first();
    QCOMPARE(core.captureAmount(), 2048);
    QCOMPARE(core.captureImplementation(), int(SsramImplementation));
    QVERIFY(core.enableInputRegister());
    QVERIFY(core.captureInitialData());
    QCOMPARE(core.sampleEdge(), int(FallingEdge));
    QCOMPARE(core.getallCapSignal().size(), 3);
    QCOMPARE(core.getallCapSignal().at(1).members.size(), 32);
}

void TestVakFile::dataSignalsAreTheCapturedOnes()
{
    const StandardCores read = this->read(goldenFile(QStringLiteral("standard-full.rvk")));
    QStringList names;
    for (const SignalItem &signal : read.cores.first()->getDataSignal())
        names.append(signal.name);
    QCOMPARE(names, QStringList({"up[0:7]", "lane[1][3:1]", "neg[1:-2]", QStringLiteral("größe/Δ[0]")}));
}

void TestVakFile::newCoreTakesFiveLines()
{
    AoCore core(0);
    QCOMPARE(written({&core}), fileContent(goldenFile(QStringLiteral("standard-new-core.rvk"))));
    AOCore_Lite lite(0);
    QVERIFY(writeVAKConfigToXml_Lite({&lite}, path()));
    QCOMPARE(fileContent(path()), fileContent(goldenFile(QStringLiteral("lite-new-core.rvk"))));
    QVERIFY(writeVAKConfigToXml({}, path()));
    QCOMPARE(fileContent(path()), fileContent(goldenFile(QStringLiteral("standard-empty.rvk"))));
}

void TestVakFile::longBusIsOneLine()
{
    AoCore core(0);
    core.setallCapSignal({busSignal(QStringLiteral("u/d"), 65535, 0)});
    core.setDataSignal(core.getallCapSignal());
    const QByteArray bytes = written({&core});
    QVERIFY2(bytes.size() < 1300, qPrintable(QString::number(bytes.size())));
    QVERIFY(bytes.contains("base=\"u/d\" first=\"65535\" last=\"0\"/>"));
    QCOMPARE(difference(*read(path("written.rvk")).cores.first(), core), QString());
}

void TestVakFile::spoiltMemberExpandsTheBus_data()
{
    QTest::addColumn<SignalItem>("bus");
    const SignalItem plain = busSignal(QStringLiteral("d"), 3, 0);
    const auto row = [](const char *name, SignalItem bus, auto change) {
        change(bus);
        QTest::newRow(name) << bus;
    };
    row("renamed", plain, [](SignalItem &bus) { bus.members[2].displayName = QStringLiteral("x"); });
    row("missing", plain, [](SignalItem &bus) { bus.members[2].present = false; });
    row("unusable", plain, [](SignalItem &bus) { bus.members[2].enabled = false; });
    row("inactive", plain, [](SignalItem &bus) { bus.members[2].active = 0; });
    row("out of order", plain, [](SignalItem &bus) { bus.members.swapItemsAt(1, 2); });
    row("gap", plain, [](SignalItem &bus) { bus.members.removeAt(1); });
    row("other base", plain, [](SignalItem &bus) { bus.members[1].name = QStringLiteral("e[2]"); });
    row("leading zero", plain, [](SignalItem &bus) { bus.members[0].name = QStringLiteral("d[03]"); });
    row("foreign on the bus", plain, [](SignalItem &bus) {
        bus.foreign.attributes.append({QStringLiteral("a"), QStringLiteral("1")});
    });
    row("foreign on a member", plain,
        [](SignalItem &bus) { bus.members[3].foreign.elements = QStringLiteral("<a/>"); });
}

void TestVakFile::spoiltMemberExpandsTheBus()
{
    QFETCH(SignalItem, bus);
    AoCore core(0);
    core.setallCapSignal({bus});
    const QByteArray bytes = written({&core});
    QCOMPARE(bytes.count("<bit "), bus.members.size());
    QVERIFY(!bytes.contains("base="));
    QCOMPARE(read(path("written.rvk")).cores.first()->getallCapSignal(), QList<SignalItem>{bus});
}

void TestVakFile::unitThatDiffersInOneFieldIsWritten()
{
    AoCore core(0);
    core.matchUnit(0)->setEnabled(true);
    core.matchUnit(1)->setTriggerPort(core.getTrigger(0));
    core.matchUnit(2)->setFunction(MatchFunction::Less);
    core.matchUnit(3)->setValue0(QStringLiteral("0"));
    core.matchUnit(4)->setCounterMode(CounterMode::Total);
    core.matchUnit(5)->setCounterValue(2);
    ForeignXml foreign;
    foreign.elements = QStringLiteral("<a/>");
    core.matchUnit(6)->setForeign(foreign);
    core.getTrigger(9)->setForeign(foreign);
    const QByteArray bytes = written({&core});
    QCOMPARE(bytes.count("<unit "), 7);
    QCOMPARE(bytes.count("<port "), 1);
    QCOMPARE(difference(*read(path("written.rvk")).cores.first(), core), QString());
}

void TestVakFile::expressionTakesItsForeignContentAlong()
{
    const StandardCores read = this->read(goldenFile(QStringLiteral("standard-foreign.rvk")));
    AoCore *core = read.cores.first();
    core->setExpression({QStringLiteral("M1"), QStringLiteral("M3&!(M15|M0)")});
    const QByteArray bytes = written(read.cores);
    QVERIFY(bytes.contains("      <expression text=\"M1\"/>\n"
                           "      <expression text=\"M3&amp;!(M15|M0)\" x:e=\"1\">\n"
                           "        <x:u/>\n"));
    core->setExpression({});
    QVERIFY(!written(read.cores).contains("x:u"));
}

void TestVakFile::equalExpressionsShareTheirForeignContent()
{
    QByteArray text = fileContent(goldenFile(QStringLiteral("standard-foreign.rvk")));
    text.replace("<expression text=\"M0\"/>",
                 "<expression text=\"M0\" x:e=\"1\"/><expression text=\"M0\" x:e=\"2\" x:f=\"3\"/>");
    QVERIFY(writeContent(path(), text));
    const QByteArray bytes = written(read(path()).cores);
    QCOMPARE(bytes.count("<expression text=\"M0\" x:e=\"1\" x:f=\"3\"/>"), 2);
    QCOMPARE(written(read(path("written.rvk")).cores), bytes);
}

void TestVakFile::foreignContentOfTheRootOutlivesTheFirstCore()
{
    bool ok = false;
    LiteCores read(readVAKConfigFromXml_Lite(goldenFile(QStringLiteral("lite-full.rvk")), &ok));
    QVERIFY(ok);
    read.cores.removeFirst();
    QVERIFY(writeVAKConfigToXml_Lite(read.cores, path()));
    QVERIFY(fileContent(path()).contains("xmlns:other=\"urn:example:other\""));
}

void TestVakFile::characterThatXmlCannotExpressIsReplaced()
{
    AoCore core(0);
    SignalItem signal = netSignal(QStringLiteral("a"));
    signal.displayName = QStringLiteral("x") + QChar(1) + QChar(0xD800) + QChar(0xFFFE) + QStringLiteral("y");
    core.setallCapSignal({signal});
    QVERIFY(!written({&core}).isEmpty());
    QCOMPARE(read(path("written.rvk")).cores.first()->getallCapSignal().first().displayName,
             QStringLiteral("x") + QString(3, QChar(0xFFFD)) + QStringLiteral("y"));
    signal.displayName = QString::fromUtf8("\xF0\x9F\x94\x8D"); // a character of two UTF-16 units stays
    core.setallCapSignal({signal});
    QVERIFY(!written({&core}).isEmpty());
    QCOMPARE(read(path("written.rvk")).cores.first()->getallCapSignal().first(), signal);
}

void TestVakFile::brokenForeignTextIsLeftOut()
{
    AoCore core(0);
    ForeignXml foreign;
    foreign.elements = QStringLiteral("<a></b>");
    core.setForeign(foreign);
    QCOMPARE(written({&core}), fileContent(goldenFile(QStringLiteral("standard-new-core.rvk"))));
}

void TestVakFile::numbersThatTheEditorDoesNotOfferAreKept()
{
    AoCore core(0);
    core.setStorageSize(3);
    core.setSegmentNumber(0);
    core.setCaptureAmount(2147483647);
    core.setTriggerPosition(99999);
    QVERIFY(!written({&core}).isEmpty());
    QCOMPARE(difference(*read(path("written.rvk")).cores.first(), core), QString());
}

void TestVakFile::lowerCaseValueIsStoredUpperCase()
{
    QByteArray text = fileContent(goldenFile(QStringLiteral("standard-full.rvk")));
    QVERIFY(writeContent(path(), text.replace("value0=\"1R\"", "value0=\"xr\"")));
    QCOMPARE(read(path()).cores.first()->matchUnit(0)->value0(), QStringLiteral("XR"));
}

void TestVakFile::commentsAreNotKept()
{
    QByteArray text = fileContent(goldenFile(QStringLiteral("standard-new-core.rvk")));
    QVERIFY(writeContent(path(), text.replace("<clock", "<!-- a <b> --><?pi x?>\n\n<clock")));
    QCOMPARE(written(read(path()).cores), fileContent(goldenFile(QStringLiteral("standard-new-core.rvk"))));
}

void TestVakFile::resultsMayBeIgnored()
{
    const StandardCores cores(readVAKConfigFromXml(goldenFile(QStringLiteral("standard-full.rvk"))));
    QCOMPARE(cores.cores.size(), 2);
    QVERIFY(readVAKConfigFromXml(path("missing.rvk")).isEmpty());
    QVERIFY(readVAKConfigFromXml_Lite(path("missing.rvk")).isEmpty());
}

QTEST_GUILESS_MAIN(TestVakFile)
#include "tst_vakfile.moc"

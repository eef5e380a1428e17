// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "viewfixture.h"

#include "views/rtlnetlistsource.h"
#include "widgets/messagedlg.h"

#include <netcatcher/rtlnetlist.h>

#include <QPushButton>
#include <QTextEdit>
#include <QtTest>

using namespace RTLVAK;
using namespace support;

/// Obtaining the netlist, asked for by itself and through the Standard view.
class TestRtlNetlistSource : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase_data() { addModes(); }
    void initTestCase();
    void init();

    void theLibraryIsAskedInTheFixedWay();
    void oneTopAndNoTopOptionOpensWithThatTop();
    void theNamedTopIsTaken();
    void noFilesAreRefusedBeforeTheLibraryIsAsked_data();
    void noFilesAreRefusedBeforeTheLibraryIsAsked();
    void moduleRefusals_data();
    void moduleRefusals();
    void errorMessagesAreShownInTheDialog();
    void onlyMessagesThatBeginWithErrorStopTheRead_data();
    void onlyMessagesThatBeginWithErrorStopTheRead();
    void errorsComeBeforeAnyRefusalOfModules();
    void aNullNetlistGivesNoBox();
    void anotherTopThanAskedForIsRefused_data();
    void anotherTopThanAskedForIsRefused();
    void theJtagPrimitiveIsRefusedAfterTheNetlistIsBuilt();
    void anotherTopIsSaidBeforeTheJtagPrimitive();

    void viewMayDieWhileTheLibraryWorks_data();
    void viewMayDieWhileTheLibraryWorks();
    void viewMayDieInTheRefusal();
    void viewMayDieInTheMessages();

    void includePathsAreAbsoluteAndClean();

    void readDropsTheOldNetlistFirst();
    void failedReadLeavesTheViewWithoutNetlist();
    void aReadWithinAReadDoesNothing_data();
    void aReadWithinAReadDoesNothing();
};

/// What a box said, in one line.
static QString lineOf(const BoxRecord &box)
{
    return box.title + " / " + box.text;
}

void TestRtlNetlistSource::initTestCase()
{
    QCOMPARE(missingDoubles(), QString());
}

void TestRtlNetlistSource::init()
{
    fakes::resetDesign();
    fakes::resetNetcatcher();
    fakes::addSource("/design/soc.v");
    fakes::setDesign(design());
}

void TestRtlNetlistSource::theLibraryIsAskedInTheFixedWay()
{
    fakes::setTop("soc");
    fakes::addSource("/design/b.sv", 3);
    QWidget view;
    QVERIFY(private_impl::acquireRtlNetlist(&view));
    QCOMPARE(fakes::sourceFileInfoCalls(), 1);
    QCOMPARE(fakes::modulesCalls().size(), 1);
    const fakes::ModulesCall modules = fakes::modulesCalls().first();
    QCOMPARE(modules.tops, QStringList());
    QCOMPARE(modules.modules, QStringList());
    QCOMPARE(modules.messages, QStringList());
    QVERIFY(!modules.parent);
    QCOMPARE(modules.sourceInfo.value("Top").toString(), QString("soc"));
    QCOMPARE(modules.sourceInfo.value("Files").toList().size(), 2);
    QCOMPARE(fakes::netsCalls().size(), 1);
    const fakes::NetsCall nets = fakes::netsCalls().first();
    QVERIFY(nets.outWasNull);
    QCOMPARE(nets.paths, QStringList());
    QVERIFY(!nets.parent);
}

void TestRtlNetlistSource::oneTopAndNoTopOptionOpensWithThatTop()
{
    QWidget view;
    DialogDriver driver;
    const auto netlist = private_impl::acquireRtlNetlist(&view);
    QVERIFY(netlist);
    QCOMPARE(netlist->topHierarchy()->name(), QString("soc"));
    QCOMPARE(driver.shownCount(), 0);
}

void TestRtlNetlistSource::theNamedTopIsTaken()
{
    fakes::setTop("soc");
    QWidget view;
    DialogDriver driver;
    QVERIFY(private_impl::acquireRtlNetlist(&view));
    QCOMPARE(driver.shownCount(), 0);
}

void TestRtlNetlistSource::noFilesAreRefusedBeforeTheLibraryIsAsked_data()
{
    QTest::addColumn<QVariant>("files");
    QTest::newRow("no list") << QVariant();
    QTest::newRow("empty list") << QVariant(QVariantList());
    QTest::newRow("entry without path") << QVariant(QVariantList{QVariantMap{{"Type", 2}}});
}

void TestRtlNetlistSource::noFilesAreRefusedBeforeTheLibraryIsAsked()
{
    QFETCH(QVariant, files);
    fakes::setSourceFileInfo({{"Top", "soc"}, {"Files", files}});
    QWidget view;
    DialogDriver driver;
    driver.answerBox(QMessageBox::Ok);
    QVERIFY(!private_impl::acquireRtlNetlist(&view));
    const BoxRecord box = driver.boxes().first();
    QCOMPARE(lineOf(box), QString("Error / Design files are not exist."));
    QCOMPARE(box.icon, QMessageBox::Critical);
    QCOMPARE(box.buttons, QMessageBox::StandardButtons(QMessageBox::Ok));
    QCOMPARE(box.parent, &view);
    QCOMPARE(fakes::modulesCalls().size(), 0);
}

void TestRtlNetlistSource::moduleRefusals_data()
{
    QTest::addColumn<QString>("top");
    QTest::addColumn<QStringList>("tops");
    QTest::addColumn<QStringList>("modules");
    QTest::addColumn<QString>("box");

    const QString noModule("Design files contain some errors / Get no module from design.");
    QTest::newRow("named top, no module") << "soc" << QStringList() << QStringList()
                                          << "Invalid Top Module / No module named \"soc\", please reset top module.";
    QTest::newRow("named top with placeholder")
        << "%1<b>" << QStringList() << QStringList()
        << "Invalid Top Module / No module named \"%1<b>\", please reset top module.";
    QTest::newRow("named top, a top but no module")
        << "soc" << QStringList{"a"} << QStringList()
        << "Invalid Top Module / No module named \"soc\", please reset top module.";
    QTest::newRow("no top named, no module") << "" << QStringList() << QStringList() << noModule;
    QTest::newRow("no top named, one top, no module") << "" << QStringList{"a"} << QStringList() << noModule;
    QTest::newRow("no top named, two tops") << "" << QStringList{"a", "b"} << QStringList{"a", "b"}
                                            << "Multiple Top Module / Multiple top, please set top module.";
    QTest::newRow("no top named, no top")
        << "" << QStringList() << QStringList{"a", "b"} << "Multiple Top Module / Multiple top, please set top module.";
    QTest::newRow("named top not the sole candidate")
        << "a" << QStringList{"a", "b"} << QStringList{"a", "b"} << noModule;
    QTest::newRow("named top no candidate") << "a" << QStringList() << QStringList{"a", "b"} << noModule;
}

void TestRtlNetlistSource::moduleRefusals()
{
    QFETCH(QString, top);
    QFETCH(QStringList, tops);
    QFETCH(QStringList, modules);
    fakes::setTop(top);
    fakes::setModules(tops, modules);
    QWidget view;
    DialogDriver driver;
    driver.answerBox(QMessageBox::Ok);
    QVERIFY(!private_impl::acquireRtlNetlist(&view));
    QCOMPARE(driver.boxes().size(), 1);
    QTEST(lineOf(driver.boxes().first()), "box");
    QCOMPARE(driver.boxes().first().icon, QMessageBox::Critical);
    QCOMPARE(driver.boxes().first().buttons, QMessageBox::StandardButtons(QMessageBox::Ok));
    QCOMPARE(driver.boxes().first().parent, &view);
    QCOMPARE(driver.boxes().first().textFormat, Qt::PlainText);
    QCOMPARE(fakes::netsCalls().size(), 0);
}

void TestRtlNetlistSource::errorMessagesAreShownInTheDialog()
{
    const QStringList messages{"WARNING: a.v:1: unused", "ERROR: a.v:2: syntax <error>", "more"};
    fakes::setModules({"soc"}, {"soc"}, messages);
    QWidget view;
    DialogDriver driver;
    driver.answerDialogOf<MessageDlg>([&](MessageDlg &dialog) {
        QCOMPARE(dialog.windowTitle(), QString("Design files contain some errors."));
        QCOMPARE(child<QTextEdit>(dialog, "textEdit").toPlainText(), messages.join('\n'));
        QCOMPARE(dialog.parentWidget(), &view);
        QVERIFY(dialog.isModal());
        dialog.accept();
    });
    QVERIFY(!private_impl::acquireRtlNetlist(&view));
    QCOMPARE(driver.shownCount(), 1);
    QCOMPARE(fakes::netsCalls().size(), 0);
    QCOMPARE(view.findChildren<MessageDlg *>().size(), 0);
}

void TestRtlNetlistSource::onlyMessagesThatBeginWithErrorStopTheRead_data()
{
    QTest::addColumn<QString>("message");
    QTest::addColumn<bool>("stops");
    QTest::newRow("ERROR first") << "ERROR: x" << true;
    QTest::newRow("ERROR alone") << "ERROR" << true;
    QTest::newRow("longer word") << "ERRORS found" << true;
    QTest::newRow("warning") << "WARNING: x" << false;
    QTest::newRow("ERROR later") << "WARNING: ERROR: x" << false;
    QTest::newRow("blank before") << " ERROR: x" << false;
    QTest::newRow("other case") << "Error: x" << false;
    QTest::newRow("empty") << "" << false;
}

void TestRtlNetlistSource::onlyMessagesThatBeginWithErrorStopTheRead()
{
    QFETCH(QString, message);
    QFETCH(bool, stops);
    fakes::setModules({"soc"}, {"soc"}, {"INFO: first", message});
    QWidget view;
    DialogDriver driver;
    if (stops)
        driver.answerDialog([](QDialog &dialog) { dialog.accept(); });
    QCOMPARE(!private_impl::acquireRtlNetlist(&view), stops);
    QCOMPARE(driver.shownCount(), stops ? 1 : 0);
}

void TestRtlNetlistSource::errorsComeBeforeAnyRefusalOfModules()
{
    fakes::setTop("soc");
    fakes::setModules({}, {}, {"ERROR: x"});
    QWidget view;
    DialogDriver driver;
    driver.answerDialogOf<MessageDlg>([](MessageDlg &dialog) { dialog.accept(); });
    QVERIFY(!private_impl::acquireRtlNetlist(&view));
    QCOMPARE(driver.shownCount(), 1);
}

void TestRtlNetlistSource::aNullNetlistGivesNoBox()
{
    fakes::deliverNull();
    QWidget view;
    DialogDriver driver;
    QVERIFY(!private_impl::acquireRtlNetlist(&view));
    QCOMPARE(fakes::netsCalls().size(), 1);
    QCOMPARE(driver.shownCount(), 0);
}

void TestRtlNetlistSource::anotherTopThanAskedForIsRefused_data()
{
    QTest::addColumn<QString>("top");
    QTest::newRow("another name") << "chip";
    QTest::newRow("another case") << "Soc";
    QTest::newRow("trailing blank") << "soc ";
}

void TestRtlNetlistSource::anotherTopThanAskedForIsRefused()
{
    QFETCH(QString, top);
    fakes::setTop(top);
    const int before = fakes::liveNetlists();
    QWidget view;
    DialogDriver driver;
    driver.answerBox(QMessageBox::Ok);
    QVERIFY(!private_impl::acquireRtlNetlist(&view));
    QCOMPARE(lineOf(driver.boxes().first()),
             "Error / Get module \"" + top + "\" failed, just received default module \"soc\".");
    QCOMPARE(driver.boxes().first().icon, QMessageBox::Critical);
    QCOMPARE(driver.boxes().first().buttons, QMessageBox::StandardButtons(QMessageBox::Ok));
    QCOMPARE(fakes::liveNetlists(), before);
}

void TestRtlNetlistSource::theJtagPrimitiveIsRefusedAfterTheNetlistIsBuilt()
{
    fakes::deliverNetlist(design(), true);
    const int before = fakes::liveNetlists();
    QWidget view;
    DialogDriver driver;
    driver.answerBox(QMessageBox::Ok);
    QVERIFY(!private_impl::acquireRtlNetlist(&view));
    QCOMPARE(lineOf(driver.boxes().first()), QString("Error / OV_JTAG used in design conflicts with RVK."));
    QCOMPARE(driver.boxes().first().icon, QMessageBox::Critical);
    QCOMPARE(driver.boxes().first().parent, &view);
    QCOMPARE(fakes::netsCalls().size(), 1);
    QCOMPARE(fakes::liveNetlists(), before);
}

void TestRtlNetlistSource::anotherTopIsSaidBeforeTheJtagPrimitive()
{
    fakes::setTop("chip");
    fakes::deliverNetlist(design(), true);
    QWidget view;
    DialogDriver driver;
    driver.answerBox(QMessageBox::Ok);
    QVERIFY(!private_impl::acquireRtlNetlist(&view));
    QCOMPARE(driver.boxes().size(), 1);
    QVERIFY(driver.boxes().first().text.contains("just received default module"));
}

void TestRtlNetlistSource::viewMayDieWhileTheLibraryWorks_data()
{
    QTest::addColumn<bool>("early");
    QTest::addColumn<bool>("jtagUsed");
    QTest::newRow("while it finds modules") << true << false;
    QTest::newRow("while it builds the netlist") << false << false;
    QTest::newRow("while it builds a netlist to be refused") << false << true;
}

void TestRtlNetlistSource::viewMayDieWhileTheLibraryWorks()
{
    QFETCH(bool, early);
    QFETCH(bool, jtagUsed);
    const int before = fakes::liveNetlists();
    ViewFixture fixture;
    QVERIFY(fixture.open(2));
    fakes::deliverNetlist(design(), jtagUsed);
    const auto kill = [&fixture] { fixture.kill(); };
    if (early)
        fakes::whileCatchingModules(kill);
    else
        fakes::whileCatchingNets(kill);
    QVERIFY(!fixture.call("readRtlNetlist"));
    QVERIFY(!fixture.viewLives());
    QCOMPARE(fixture.driver.shownCount(), 0);
    QCOMPARE(fakes::liveNetlists(), before);
    QCOMPARE(fakes::netsCalls().size(), early ? 1 : 2);
}

void TestRtlNetlistSource::viewMayDieInTheRefusal()
{
    ViewFixture fixture;
    QVERIFY(fixture.open());
    fakes::setTop("chip");
    fixture.driver.actOnBox([&fixture](QMessageBox &) { fixture.kill(); });
    QVERIFY(!fixture.call("readRtlNetlist"));
    QVERIFY(!fixture.viewLives());
}

void TestRtlNetlistSource::viewMayDieInTheMessages()
{
    ViewFixture fixture;
    QVERIFY(fixture.open());
    fakes::setModules({"soc"}, {"soc"}, {"ERROR: x"});
    fixture.driver.answerDialog([&fixture](QDialog &) { fixture.kill(); });
    QVERIFY(!fixture.call("readRtlNetlist"));
    QVERIFY(!fixture.viewLives());
}

void TestRtlNetlistSource::includePathsAreAbsoluteAndClean()
{
    fakes::setWorkingDir("/my designs/project");
    fakes::setOption("IncludePath", QStringList({"inc", "../common/./inc/", "/opt//lib/../include", "."}));
    QCOMPARE(private_impl::includePaths(),
             QStringList({"/my designs/project/inc", "/my designs/common/inc", "/opt/include", "/my designs/project"}));
    fakes::setOption("IncludePath", QVariant());
    QCOMPARE(private_impl::includePaths(), QStringList());
}

/// Lite pages do not take a null netlist, so the old one lives until they hold a new one.
static int keptByPages(const ViewFixture &fixture)
{
    return fixture.mode == Mode::Lite ? 1 : 0;
}

void TestRtlNetlistSource::readDropsTheOldNetlistFirst()
{
    const int before = fakes::liveNetlists();
    ViewFixture fixture;
    QVERIFY(fixture.open(2));
    int during = -1;
    fakes::whileCatchingModules([&during] { during = fakes::liveNetlists(); });
    QVERIFY(fixture.call("readRtlNetlist"));
    QCOMPARE(during, before + keptByPages(fixture));
    QCOMPARE(fakes::liveNetlists(), before + 1);
}

void TestRtlNetlistSource::failedReadLeavesTheViewWithoutNetlist()
{
    const int before = fakes::liveNetlists();
    ViewFixture fixture;
    QVERIFY(fixture.open(2));
    fakes::setModules({}, {});
    fixture.driver.answerBox(QMessageBox::Ok);
    QVERIFY(!fixture.call("readRtlNetlist"));
    QCOMPARE(fakes::liveNetlists(), before + keptByPages(fixture));
    QVERIFY(!fixture.view().isModified());
}

void TestRtlNetlistSource::aReadWithinAReadDoesNothing_data()
{
    QTest::addColumn<bool>("early");
    QTest::newRow("while it finds modules") << true;
    QTest::newRow("while it builds the netlist") << false;
}

void TestRtlNetlistSource::aReadWithinAReadDoesNothing()
{
    QFETCH(bool, early);
    ViewFixture fixture;
    QVERIFY(fixture.open());
    fakes::publish("TE.Option.Change", {{"option", "TopModule"}});
    QCOMPARE(fixture.banners().size(), 1);
    const int calls = fakes::modulesCalls().size();
    bool inner = true;
    const auto again = [&] {
        inner = fixture.call("readRtlNetlist");
        fixture.clickBanner(0, "btnA");
        fixture.call("onRtlReload");
    };
    if (early)
        fakes::whileCatchingModules(again);
    else
        fakes::whileCatchingNets(again);
    QVERIFY(fixture.call("readRtlNetlist"));
    QVERIFY(!inner);
    QCOMPARE(fakes::modulesCalls().size(), calls + 1);
    QCOMPARE(fixture.banners().size(), 1); // the question is still to be answered
    fakes::whileCatchingModules({});
    fakes::whileCatchingNets({});
    QVERIFY(fixture.call("readRtlNetlist"));
}

QTEST_MAIN(TestRtlNetlistSource)
#include "tst_rtlnetlistsource.moc"

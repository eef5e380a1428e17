// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "analyzertest.h"

#include "support/dialogdriver.h"
#include "support/widgethelpers.h"

#include "hostlibs/ovte/projectengine.h"
#include "workbench/mainwindow.h"

#include <OVTE/designmanager.h>

#include <QAction>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QElapsedTimer>
#include <QFile>
#include <QFileSystemWatcher>
#include <QLabel>
#include <QLineEdit>
#include <QProcess>
#include <QPushButton>
#include <QRadioButton>
#include <QStackedWidget>
#include <QTest>
#include <QTreeWidget>

using support::child;
using support::DialogDriver;

/// Other programs at work on what an open analyzer shows: its file, its sources, its project.
class TestOutsideChanges : public AnalyzerTest
{
    Q_OBJECT

private slots:
    void changeOfTheFileIsAskedAboutOnce_data();
    void changeOfTheFileIsAskedAboutOnce();
    void everyReplacementIsNoticed();
    void keptFileIsWrittenAnewAndFollowedAgain();
    void keptFileThatCameBackIsFollowedAgain();
    void removedFileClosesWithoutAQuestion();
    void sourceWithAnotherPortAndWithoutANet();
    void misspeltTopClosesTheAnalyzerOnly();
    void reloadOfSixteenCoresLeavesNothingBehind();

private:
    /// Runs a shell script in the test's folder, as another program that works while the window does.
    void runProgram(const QString &script);
    QString changed() const;
    QString removed() const;
    QStringList found(QDialog &dialog, const QString &wildcard) const;
    QStringList usageTexts() const;
};

void TestOutsideChanges::runProgram(const QString &script)
{
    QProcess program;
    program.setWorkingDirectory(dir->path());
    program.start("/bin/sh", {"-ec", script});
    QTRY_COMPARE(program.state(), QProcess::NotRunning);
    QCOMPARE(program.exitCode(), 0);
}

QString TestOutsideChanges::changed() const
{
    return "The file '" + path("a.rvk") + "' changed on disk.\nDo you want to reload?";
}

QString TestOutsideChanges::removed() const
{
    return "The file '" + path("a.rvk") + "' has been removed on disk.\nDo you still want to keep it?";
}

void TestOutsideChanges::changeOfTheFileIsAskedAboutOnce_data()
{
    QTest::addColumn<QString>("script");
    QTest::addColumn<bool>("exists");
    QTest::newRow("rewritten") << "cat other >a.rvk" << true;
    QTest::newRow("rewritten in pieces") << "for i in 1 2 3 4; do cat other >a.rvk; sleep 0.1; done" << true;
    QTest::newRow("replaced by rename") << "cp other new; mv new a.rvk" << true;
    QTest::newRow("touched") << "touch a.rvk" << true;
    QTest::newRow("deleted") << "rm a.rvk" << false;
    QTest::newRow("deleted and made again") << "rm a.rvk; sleep 0.2; cp other a.rvk" << true;
}

void TestOutsideChanges::changeOfTheFileIsAskedAboutOnce()
{
    QFETCH(QString, script);
    QFETCH(bool, exists);
    constexpr int delayMs = 500;
    constexpr int slackMs = 10; // the view may have been told that much earlier than the test
    openAnalyzer();
    dir->write("other", analyzerFile().replace("rising", "falling"));
    QElapsedTimer sinceNotice;
    QFileSystemWatcher watcher({path("a.rvk")});
    connect(&watcher, &QFileSystemWatcher::fileChanged, this, [&sinceNotice] {
        if (!sinceNotice.isValid())
            sinceNotice.start();
    });
    runProgram(script);
    QTRY_VERIFY(!banners().isEmpty());
    QVERIFY(sinceNotice.isValid());
    QVERIFY2(sinceNotice.elapsed() >= delayMs - slackMs, qPrintable(QString::number(sinceNotice.elapsed())));
    QCOMPARE(banners(), QStringList{exists ? changed() : removed()});
    QVERIFY(child<QRadioButton>(page(), "radioButtonRising").isChecked());

    answerBanner(exists ? "btnB" : "btnA");
    QTest::qWait(delayMs + 100); // what was noticed until now may not ask again
    QVERIFY(banners().isEmpty());
    QCOMPARE(tabs(), QStringList{"a.rvk"});
    if (exists) {
        runProgram("touch a.rvk");
        QTRY_COMPARE(banners(), QStringList{changed()});
    }
}

void TestOutsideChanges::everyReplacementIsNoticed()
{
    openAnalyzer();
    for (const char *edge : {"falling", "rising"}) {
        dir->write("other", analyzerFile().replace("rising", edge));
        runProgram("mv other a.rvk");
        QTRY_COMPARE(banners(), QStringList{changed()});
        answerBanner("btnA");
        QCOMPARE(isEdited(), QByteArray(edge) == "falling");
    }
    runProgram("rm a.rvk; sleep 0.2; echo nonsense >a.rvk");
    QTRY_COMPARE(banners(), QStringList{changed()});
    DialogDriver driver;
    driver.answerBox(QMessageBox::Ok);
    answerBanner("btnA");
    QCOMPARE(driver.boxes().at(0).text, QString("Invalid VAK file."));
    QTRY_VERIFY(analyzer.isNull());
}

void TestOutsideChanges::keptFileIsWrittenAnewAndFollowedAgain()
{
    openAnalyzer();
    edit();
    runProgram("rm a.rvk");
    QTRY_COMPARE(banners(), QStringList{removed()});
    answerBanner("btnA");
    QVERIFY(isEdited());
    trigger("actionSave");
    QCOMPARE(dir->read("a.rvk"), analyzerFile().replace("rising", "falling"));
    runProgram("touch a.rvk");
    QTRY_COMPARE(banners(), QStringList{changed()});
}

void TestOutsideChanges::keptFileThatCameBackIsFollowedAgain()
{
    openAnalyzer();
    runProgram("mv a.rvk away");
    QTRY_COMPARE(banners(), QStringList{removed()});
    runProgram("mv away a.rvk");
    answerBanner("btnA");
    QVERIFY(banners().isEmpty());
    runProgram("touch a.rvk");
    QTRY_COMPARE(banners(), QStringList{changed()});
}

void TestOutsideChanges::removedFileClosesWithoutAQuestion()
{
    openAnalyzer();
    edit();
    runProgram("rm a.rvk");
    QTRY_COMPARE(banners(), QStringList{removed()});
    const DialogDriver driver;
    answerBanner("btnB");
    QTRY_VERIFY(analyzer.isNull());
    QCOMPARE(driver.shownCount(), 0);
    QVERIFY(tabs().isEmpty());
    QVERIFY(!QFile::exists(path("a.rvk")));
}

/// What the search dialog lists for a name.
QStringList TestOutsideChanges::found(QDialog &dialog, const QString &wildcard) const
{
    child<QRadioButton>(dialog, "radioButtonWildcard").click();
    auto &name = child<QLineEdit>(dialog, "lineEditName");
    name.clear();
    QTest::keyClicks(&name, wildcard);
    QTest::keyClick(&name, Qt::Key_Return);
    return support::topTexts(child<QTreeWidget>(dialog, "treeWidget"));
}

static const char otherBlink[] = R"(module blink(input clk, input rst, input enable, output led);
    wire pulse;
    reg [3:0] count;
    divider u_divider(.clk(clk), .rst(rst), .tick(pulse));
    always @(posedge clk) if (rst) count <= 0; else if (pulse && enable) count <= count + 1;
    assign led = count[3];
endmodule
)";

void TestOutsideChanges::sourceWithAnotherPortAndWithoutANet()
{
    openAnalyzer();
    edit();
    dir->write("other.v", otherBlink);
    runProgram("mv other.v blink.v");
    QTRY_COMPARE(banners(), QStringList{"Design files changed. Do you want to reload?"});
    answerBanner("btnA");
    QVERIFY(banners().isEmpty());

    const auto colour = [this](int row) { return signalTree().topLevelItem(row)->foreground(0).color(); };
    QCOMPARE(support::topTexts(signalTree()), QStringList({"tick", "count[3:0]"}));
    QCOMPARE(colour(0), QColor(Qt::red));
    QCOMPARE(colour(1), QColor(Qt::black));

    DialogDriver driver;
    driver.answerDialog([this](QDialog &dialog) {
        QCOMPARE(found(dialog, "tick"), QStringList());
        QCOMPARE(found(dialog, "enable"), QStringList{"enable"});
        support::clickButton(dialog, "btnAddAll");
        child<QDialogButtonBox>(dialog, "buttonBox").button(QDialogButtonBox::Ok)->click();
    });
    support::clickButton(page(), "btnAdd");
    QVERIFY(support::topTexts(signalTree()).contains("enable"));
    QCOMPARE(colour(support::topTexts(signalTree()).indexOf("enable")), QColor(Qt::black));
    QVERIFY(isEdited());
    QCOMPARE(tabs(), QStringList{"a.rvk *"});
    QCOMPARE(dir->read("a.rvk"), analyzerFile());
}

void TestOutsideChanges::misspeltTopClosesTheAnalyzerOnly()
{
    dir->write("b.rvk", analyzerFile());
    openAnalyzer();
    edit();
    QVERIFY(window->open(path("b.rvk")));
    const QPointer<Core::IView> neighbour = activeView();
    QVERIFY(window->open(path("blink.v")));
    QVERIFY(window->open(path("a.rvk")));
    DialogDriver driver;
    driver.answerDialog([](QDialog &dialog) {
        child<QComboBox>(dialog, "topModule").setEditText("blnik");
        dialog.accept();
    });
    trigger("actionConfiguration");
    const QStringList question{"Top module changed. Do you want to reload?"};
    QCOMPARE(banners(), question);
    driver.answerBox(QMessageBox::Ok);
    answerBanner("btnA");
    QCOMPARE(driver.boxes().size(), 1);
    QCOMPARE(driver.boxes().at(0).title, QString("Invalid Top Module"));
    QCOMPARE(driver.boxes().at(0).text, QString("No module named \"blnik\", please reset top module."));
    QTRY_VERIFY(analyzer.isNull());
    QCOMPARE(tabs(), QStringList({"b.rvk", "blink.v"}));
    QCOMPARE(dir->read("a.rvk.recovered"), analyzerFile().replace("rising", "falling"));

    // The neighbour still asks, and goes on with the corrected top.
    QCOMPARE(banners(*neighbour), question);
    QVERIFY(TE::ProjectEngine::instance()->setOption(TE::OptionName::TopModule, "blink"));
    QVERIFY(window->open(path("b.rvk")));
    analyzer = neighbour;
    answerBanner("btnA");
    QVERIFY(banners().isEmpty());
    QCOMPARE(driver.boxes().size(), 1);
}

QStringList TestOutsideChanges::usageTexts() const
{
    QStringList texts;
    for (const QLabel *label : page().findChildren<QLabel *>())
        texts.append(label->text());
    return texts;
}

void TestOutsideChanges::reloadOfSixteenCoresLeavesNothingBehind()
{
    constexpr int coreCount = 16;
    openAnalyzer(analyzerFile(coreCount));
    edit();
    auto &stack = child<QStackedWidget>(*analyzer, "stackedWidget");
    int objectCount = 0;
    for (int round = 0; round < 2; ++round) {
        QList<QPointer<QWidget>> oldPages;
        for (int i = 0; i < stack.count(); ++i)
            oldPages.append(stack.widget(i));
        QCOMPARE(oldPages.size(), coreCount);
        dir->write("other", analyzerFile(coreCount) + QByteArray(round, '\n'));
        runProgram("mv other a.rvk");
        QTRY_COMPARE(banners(), QStringList{changed()});
        answerBanner("btnA");
        support::runDeferredDeletes();
        QVERIFY(!isEdited());
        QCOMPARE(tabs(), QStringList{"a.rvk *"});
        QCOMPARE(stack.count(), coreCount);
        for (const QPointer<QWidget> &oldPage : oldPages)
            QVERIFY(oldPage.isNull());
        const int before = objectCount;
        objectCount = analyzer->findChildren<QObject *>().size();
        QVERIFY(round == 0 || objectCount == before);
    }
    QVERIFY(!usageTexts().filter("/24").isEmpty());
    TE::DeviceInfo device;
    device.name = "KXB-M16";
    TE::ProjectEngine::instance()->setDevice(device);
    QVERIFY(usageTexts().filter("/24").isEmpty());
    trigger("actionSave");
    QCOMPARE(dir->read("a.rvk"), analyzerFile(coreCount));
}

QTEST_MAIN(TestOutsideChanges)
#include "tst_outsidechanges.moc"

// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "workbenchtest.h"

#include "support/dialogdriver.h"
#include "support/widgethelpers.h"

#include "hostlibs/ovte/projectengine.h"
#include "widgets/reloadbanner.h"
#include "workbench/mainwindow.h"

#include <IdeCore/iview.h>
#include <VakUtils/aocore.h>
#include <VakUtils/vakfile.h>

#include <QFile>
#include <QLineEdit>
#include <QMessageBox>
#include <QTest>

using support::child;
using support::DialogDriver;

/// Unsaved work that is kept when a design can no longer be read, and what becomes of it.
class TestRecovery : public WorkbenchTest
{
    Q_OBJECT

private slots:
    void workIsKeptAndTheMessagesSaySo();
    void yesContinuesWithIt();
    void noOpensTheFileAndAsksAgain();
    void discardDeletesIt();
    void laterWorkDoesNotReplaceEarlierWork();
    void earlierFilesInItsPlaceStay();
    void aShownFileIsNotAskedAbout();
    void neighboursStayOpen();

private:
    void loseTheDesign(const QString &neighbour = {}, QMessageBox::StandardButton answer = QMessageBox::NoButton);
    QString clockIn(const QString &name) const;
};

QString TestRecovery::clockIn(const QString &name) const
{
    const QList<VAK::AoCore *> cores = VAK::readVAKConfigFromXml(path(name));
    const QString clock = cores.isEmpty() ? QString("no core") : cores.first()->sampleClock();
    qDeleteAll(cores);
    return clock;
}

/// Opens a.rvk, whose clock is "clk", changes that to "rst", names a top that there is not, and reloads.
/// Work that was kept before is asked about; `answer` is what the user says to that.
void TestRecovery::loseTheDesign(const QString &neighbour, QMessageBox::StandardButton answer)
{
    VAK::AoCore core(0);
    core.setSampleClock("clk");
    QVERIFY(VAK::writeVAKConfigToXml({&core}, path("a.rvk")));
    QVERIFY(window->open(path("blink.vakproj")));
    if (!neighbour.isEmpty())
        QVERIFY(window->open(path(neighbour)));
    DialogDriver driver;
    if (answer != QMessageBox::NoButton)
        driver.answerBox(answer);
    QVERIFY(window->open(path("a.rvk")));
    child<QLineEdit>(*activeView(), "editSampleClock").setText("rst");
    QVERIFY(tabs().contains("a.rvk *"));

    QVERIFY(TE::ProjectEngine::instance()->setOption("TopModule", "nothing"));
    driver.answerBox(QMessageBox::Ok);
    support::clickButton(*activeView()->findChild<RTLVAK::ReloadBanner *>(), "btnA");
    QCOMPARE(driver.boxes().last().text, QString("No module named \"nothing\", please reset top module."));
    support::runDeferredDeletes();
    QVERIFY(TE::ProjectEngine::instance()->setOption("TopModule", "blink"));
}

void TestRecovery::workIsKeptAndTheMessagesSaySo()
{
    loseTheDesign();
    QCOMPARE(tabs(), QStringList());
    QCOMPARE(clockIn("a.rvk"), QString("clk"));
    QCOMPARE(clockIn("a.rvk.recovered"), QString("rst"));
    QVERIFY(messages().contains("Unsaved work on " + path("a.rvk") + " is kept in " + path("a.rvk.recovered")));
}

void TestRecovery::yesContinuesWithIt()
{
    loseTheDesign();
    DialogDriver driver;
    driver.answerBox(QMessageBox::Yes);
    QVERIFY(window->open(path("a.rvk")));
    QCOMPARE(driver.boxes().size(), 1);
    QCOMPARE(driver.boxes().first().title, QString("Recovered Work"));
    QCOMPARE(driver.boxes().first().text,
             "Unsaved work on \"" + path("a.rvk") +
                 "\" was kept when its design could not be read.\nDo you want to continue with it?");
    QCOMPARE(driver.boxes().first().defaultButton, QMessageBox::Yes);
    QCOMPARE(driver.boxes().first().escapeButton, QMessageBox::No);
    QCOMPARE(child<QLineEdit>(*activeView(), "editSampleClock").text(), QString("rst"));
    QCOMPARE(clockIn("a.rvk"), QString("rst"));
    QCOMPARE(clockIn("a.rvk.saved"), QString("clk"));
    QVERIFY(!QFile::exists(path("a.rvk.recovered")));
}

void TestRecovery::noOpensTheFileAndAsksAgain()
{
    loseTheDesign();
    for (int i = 0; i < 2; ++i) {
        DialogDriver driver;
        driver.escapeBox();
        QVERIFY(window->open(path("a.rvk")));
        QCOMPARE(child<QLineEdit>(*activeView(), "editSampleClock").text(), QString("clk"));
        trigger("actionClose");
        support::runDeferredDeletes();
    }
    QCOMPARE(clockIn("a.rvk.recovered"), QString("rst"));
}

void TestRecovery::discardDeletesIt()
{
    loseTheDesign();
    DialogDriver driver;
    driver.answerBox(QMessageBox::Discard);
    QVERIFY(window->open(path("a.rvk")));
    QCOMPARE(child<QLineEdit>(*activeView(), "editSampleClock").text(), QString("clk"));
    QVERIFY(!QFile::exists(path("a.rvk.recovered")));
    QVERIFY(!QFile::exists(path("a.rvk.saved")));
}

void TestRecovery::laterWorkDoesNotReplaceEarlierWork()
{
    dir->write("a.rvk.recovered", "earlier");
    loseTheDesign("", QMessageBox::No);
    QCOMPARE(clockIn("a.rvk.recovered2"), QString("rst"));
    QVERIFY(messages().contains("Unsaved work on " + path("a.rvk") + " is kept in " + path("a.rvk.recovered2")));
    DialogDriver driver;
    driver.answerBox(QMessageBox::Discard);
    driver.answerBox(QMessageBox::No);
    QVERIFY(window->open(path("a.rvk")));
    QCOMPARE(driver.boxes().size(), 2);
    QVERIFY(!QFile::exists(path("a.rvk.recovered2")));
    QCOMPARE(dir->read("a.rvk.recovered"), QByteArray("earlier"));
}

void TestRecovery::earlierFilesInItsPlaceStay()
{
    dir->write("a.rvk.saved", "earlier");
    loseTheDesign();
    DialogDriver driver;
    driver.answerBox(QMessageBox::Yes);
    QVERIFY(window->open(path("a.rvk")));
    QCOMPARE(dir->read("a.rvk.saved"), QByteArray("earlier"));
    QCOMPARE(clockIn("a.rvk.saved2"), QString("clk"));
}

void TestRecovery::aShownFileIsNotAskedAbout()
{
    loseTheDesign();
    DialogDriver driver;
    driver.answerBox(QMessageBox::No);
    QVERIFY(window->open(path("a.rvk")));
    QVERIFY(window->open(path("a.rvk")));
    QCOMPARE(driver.boxes().size(), 1);
    QCOMPARE(tabs(), QStringList{"a.rvk"});
}

void TestRecovery::neighboursStayOpen()
{
    loseTheDesign("blink.v");
    QCOMPARE(tabs(), QStringList{"blink.v"});
}

QTEST_MAIN(TestRecovery)
#include "tst_recovery.moc"

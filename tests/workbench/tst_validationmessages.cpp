// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "analyzertest.h"

#include "support/dialogdriver.h"

#include "workbench/mainwindow.h"

#include <QAction>
#include <QTest>

using support::DialogDriver;

/// Files that open but may not be saved, and what the person is told: real file, real design, real window.
class TestValidationMessages : public AnalyzerTest
{
    Q_OBJECT

private slots:
    void completeFileIsSaved();
    void incompleteFileIsNotSaved_data();
    void incompleteFileIsNotSaved();
};

void TestValidationMessages::completeFileIsSaved()
{
    openAnalyzer(analyzerFile(2));
    edit();
    const DialogDriver driver;
    trigger("actionSave");
    QCOMPARE(driver.shownCount(), 0);
    QCOMPARE(tabs(), QStringList{"a.rvk"});
    QVERIFY(dir->read("a.rvk").contains("edge=\"falling\""));
}

/// The file of one core with `from`, which it must hold, replaced by `to`.
static QByteArray fileWith(const QByteArray &from, const QByteArray &to)
{
    QByteArray text = analyzerFile();
    if (!text.contains(from))
        qFatal("the file holds no %s", from.constData());
    return text.replace(from, to);
}

static const char port[] = R"(<port index="0">
        <net name="tick" displayName="" enabled="true" present="true" active="true"/>
      </port>)";
static const char unit[] = R"(enabled="true" port="0" function="==" value0="1")";
static const char expression[] = R"(<expression text="M0"/>)";
static const char captured[] = R"(      <net name="tick" displayName="" enabled="true" present="true" active="true"/>
      <bus name="count[3:0]" displayName="" enabled="true" present="true" active="true" base="count" first="3" last="0"/>
    </capture>)";

static void addTriggerRows()
{
    const auto row = [](const char *name, const QByteArray &file, const QStringList &lines) {
        QTest::newRow(name) << file << lines;
    };
    row("no trigger port", fileWith(port, ""),
        {"Core 0: No available trigger ports", "Core 0: Trigger port 0 for M0 is not available"});
    row("no match unit", fileWith(unit, R"(enabled="false" port="0" function="==" value0="1")"),
        {"Core 0: No available match units", "Core 0: M0 in expression \"M0\" is not enable"});
    row("unit without port", fileWith(unit, R"(enabled="true" port="none" function="==" value0="1")"),
        {"Core 0: M0 doesn't bind a trigger port"});
    row("port not available", fileWith(unit, R"(enabled="true" port="7" function="==" value0="1")"),
        {"Core 0: Trigger port 7 for M0 is not available"});
    row("value too long", fileWith(unit, R"(enabled="true" port="0" function="==" value0="1X")"),
        {"Core 0: Length of M0 is not equal to trigger port 0"});
    row("value missing", fileWith(unit, R"(enabled="true" port="0" function="==" value0="")"),
        {"Core 0: Length of M0 is not equal to trigger port 0"});
    row("no expression", fileWith(expression, ""), {"Core 0: No expressions specified"});
    row("disabled unit twice", fileWith(expression, R"(<expression text="M1|M0&amp;!M1"/>)"),
        {"Core 0: M1 in expression \"M1|M0&!M1\" is not enable",
         "Core 0: M1 in expression \"M1|M0&!M1\" is not enable"});
    row("unit beyond the last", fileWith(expression, R"(<expression text="M0|M16"/>)"),
        {"Core 0: M16 in expression \"M0|M16\" is not enable"});
    row("number beyond all", fileWith(expression, R"(<expression text="M99999999999"/>)"),
        {"Core 0: M99999999999 in expression \"M99999999999\" is not enable"});
}

static void addCaptureRows()
{
    const auto row = [](const char *name, const QByteArray &file, const QStringList &lines) {
        QTest::newRow(name) << file << lines;
    };
    const QByteArray clock("net=\"clk\"");
    row("no clock", fileWith(clock, "net=\"\""), {"Core 0: No sample clock specified"});
    row("unknown clock", fileWith(clock, "net=\"clock\""), {"Core 0: The specified sample clock does not exist"});
    row("constant clock", fileWith(clock, "net=\"zero\""), {"Core 0: Invalid sampling clock selected"});
    row("nothing captured", fileWith(captured, "    </capture>"), {"Core 0: No capture signals specified"});
    row("all switched off", fileWith(captured, QByteArray(captured).replace("active=\"true\"", "active=\"false\"")),
        {"Core 0: No capture signals specified"});
    row("two cores", analyzerFile(2).replace(expression, ""),
        {"Core 0: No expressions specified", "Core 1: No expressions specified"});
}

void TestValidationMessages::incompleteFileIsNotSaved_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QStringList>("lines");
    addTriggerRows();
    addCaptureRows();
}

void TestValidationMessages::incompleteFileIsNotSaved()
{
    QFETCH(QByteArray, file);
    QFETCH(QStringList, lines);
    dir->write("blink.v", dir->read("blink.v").replace("endmodule", "    wire zero = 1'b0;\nendmodule"));
    openAnalyzer(file);
    edit();
    DialogDriver driver;
    driver.answerBox(QMessageBox::Ok);
    trigger("actionSave");
    QCOMPARE(driver.shownCount(), 1);
    QCOMPARE(driver.boxes().at(0).title, QString("Error"));
    QCOMPARE(driver.boxes().at(0).text, QString("Your settings contain some errors.             "));
    QCOMPARE(driver.boxes().at(0).detailedText.split('\n'), lines);
    QCOMPARE(dir->read("a.rvk"), file);
    QCOMPARE(tabs(), QStringList{"a.rvk *"});
    QVERIFY(isEdited());
}

QTEST_MAIN(TestValidationMessages)
#include "tst_validationmessages.moc"

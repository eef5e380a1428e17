// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "analyzertest.h"

#include "support/dialogdriver.h"
#include "support/widgethelpers.h"

#include "widgets/messagedlg.h"
#include "workbench/mainwindow.h"

#include <QTest>
#include <QTextEdit>

using support::child;
using support::DialogDriver;

/// Designs that an analyzer can not be opened with, read by the real netlist library, and what the person is told.
class TestDesignRefusals : public AnalyzerTest
{
    Q_OBJECT

private slots:
    void designIsRefused_data();
    void designIsRefused();
    void designWithErrorsIsRefused();
    void designIsAccepted_data();
    void designIsAccepted();

private:
    bool openWith(const QByteArray &source, const QString &top);
};

/// Opens an analyzer on a design of one source file; of none when `source` is null.
bool TestDesignRefusals::openWith(const QByteArray &source, const QString &top)
{
    QByteArray project = dir->read("blink.vakproj");
    const int files = project.indexOf("\"files\"");
    project.truncate(files);
    project.replace("\"top\": \"blink\"", "\"top\": \"" + top.toUtf8() + '"');
    project += "\"files\": [";
    if (!source.isNull())
        project += R"({ "path": "design.sv", "type": "systemverilog", "enabled": true, "library": "" })";
    dir->write("other.vakproj", project + "]\n}\n");
    dir->write("design.sv", source);
    dir->write("a.rvk", analyzerFile());
    return window->open(path("other.vakproj")) && window->open(path("a.rvk"));
}

static const char oneRoot[] = "module soc(input clk); leaf u(.clk(clk)); endmodule\n"
                              "module leaf(input clk); endmodule\n";
static const char twoRoots[] = "module a(input clk); endmodule\n"
                               "module b(input clk); endmodule\n";
static const char interfaceText[] = "interface bus_if(input clk); logic [3:0] data; endinterface\n";

void TestDesignRefusals::designIsRefused_data()
{
    QTest::addColumn<QByteArray>("source");
    QTest::addColumn<QString>("top");
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("text");
    const QByteArray bus(interfaceText);
    const QString noModule("Design files contain some errors");
    QTest::newRow("no source") << QByteArray() << "soc"
                               << "Error"
                               << "Design files are not exist.";
    QTest::newRow("misspelt top") << QByteArray(oneRoot) << "sco"
                                  << "Invalid Top Module"
                                  << "No module named \"sco\", please reset top module.";
    QTest::newRow("top in another case") << QByteArray(oneRoot) << "Soc"
                                         << "Invalid Top Module"
                                         << "No module named \"Soc\", please reset top module.";
    QTest::newRow("no module") << QByteArray("// nothing yet\n") << "" << noModule << "Get no module from design.";
    QTest::newRow("only an interface") << bus << "" << noModule << "Get no module from design.";
    QTest::newRow("several roots") << QByteArray(twoRoots) << ""
                                   << "Multiple Top Module"
                                   << "Multiple top, please set top module.";
    QTest::newRow("interface as top of several roots")
        << bus + twoRoots << "bus_if" << noModule << "Get no module from design.";
    QTest::newRow("interface as top of one root")
        << bus + oneRoot << "bus_if"
        << "Error"
        << "Get module \"bus_if\" failed, just received default module \"soc\".";
    QTest::newRow("interface as top of nothing") << bus << "bus_if"
                                                 << "Invalid Top Module"
                                                 << "No module named \"bus_if\", please reset top module.";
    QTest::newRow("primitive") << QByteArray("module soc(input clk); sub u(.clk(clk)); endmodule\n"
                                             "module sub(input clk); OV_JTAG u_jtag(.TCK(clk)); endmodule\n")
                               << ""
                               << "Error"
                               << "OV_JTAG used in design conflicts with RVK.";
}

void TestDesignRefusals::designIsRefused()
{
    QFETCH(QByteArray, source);
    QFETCH(QString, top);
    DialogDriver driver;
    driver.answerBox(QMessageBox::Ok);
    QVERIFY(!openWith(source, top));
    QCOMPARE(driver.shownCount(), 1);
    QTEST(driver.boxes().at(0).title, "title");
    QTEST(driver.boxes().at(0).text, "text");
    QCOMPARE(driver.boxes().at(0).icon, QMessageBox::Critical);
    QVERIFY(tabs().isEmpty());
    QCOMPARE(dir->read("a.rvk"), analyzerFile());
}

void TestDesignRefusals::designWithErrorsIsRefused()
{
    DialogDriver driver;
    QString text;
    driver.answerDialogOf<RTLVAK::MessageDlg>([&text](RTLVAK::MessageDlg &dialog) {
        QCOMPARE(dialog.windowTitle(), QString("Design files contain some errors."));
        text = child<QTextEdit>(dialog, "textEdit").toPlainText();
        dialog.accept();
    });
    QVERIFY(!openWith("module soc(input clk);\n  wire x = ;\nendmodule\n", "soc"));
    QCOMPARE(driver.shownCount(), 1);
    QVERIFY2(text.startsWith("ERROR: " + path("design.sv") + ":2: syntax error"), qPrintable(text));
    QVERIFY(tabs().isEmpty());
}

void TestDesignRefusals::designIsAccepted_data()
{
    QTest::addColumn<QByteArray>("source");
    QTest::addColumn<QString>("top");
    QTest::newRow("one root without a name") << QByteArray(oneRoot) << "";
    QTest::newRow("named root") << QByteArray(oneRoot) << "soc";
    QTest::newRow("named leaf") << QByteArray(oneRoot) << "leaf";
    QTest::newRow("one of several roots") << QByteArray(twoRoots) << "b";
    QTest::newRow("warnings only") << QByteArray("module soc(input clk);\n"
                                                 "// ERROR is no message\n"
                                                 "wire [3:0] x = {clk, clk};\nendmodule\n"
                                                 "module soc(input clk); endmodule\n")
                                   << "soc";
}

void TestDesignRefusals::designIsAccepted()
{
    QFETCH(QByteArray, source);
    QFETCH(QString, top);
    const DialogDriver driver;
    QVERIFY(openWith(source, top));
    QCOMPARE(driver.shownCount(), 0);
    QCOMPARE(tabs(), QStringList{"a.rvk"});
}

QTEST_MAIN(TestDesignRefusals)
#include "tst_designrefusals.moc"

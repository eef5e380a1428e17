// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "hostlibs/netcatcher/store/netstore.h"
#include "hostlibs/netcatcher/verilog/designexpansion.h"
#include "hostlibs/netcatcher/verilog/verilatortext.h"
#include "hostlibs/netcatcher/verilog/verilatorxml.h"

#include <QBuffer>
#include <QRandomGenerator>
#include <QtTest>

using namespace NETCATCHER;

/// The reader of the engine's result, whose text is not to be trusted either.
class TestVerilatorXml : public QObject
{
    Q_OBJECT

private slots:
    void readsModulesTypesAndRoots();
    void constants_data();
    void constants();
    void names_data();
    void names();
    void referencesToBytesAreBytes();
    void truncatedTextIsAnError();
    void foreignTextIsAnError_data();
    void foreignTextIsAnError();
    void damagedTextNeverCrashes();
    void cyclesInTheTypeTableEnd();
    void cyclesInTheHierarchyAreRefused();
    void progressNeverGoesBack();
};

static const char sample[] = R"(<?xml version="1.0" ?>
<verilator_xml>
  <files><file id="a" filename="top.v" language="1800-2017"/></files>
  <cells><cell loc="a,1,1,1,2" name="top" submodname="top" hier="top">
    <cell name="u" submodname="leaf__W2" hier="top.u"/></cell></cells>
  <netlist>
    <module loc="a,3,8,3,11" name="top" origName="top" topModule="1">
      <var name="clk" dtype_id="1" dir="input" vartype="logic" origName="clk"/>
      <var name="P" dtype_id="1" vartype="logic" param="true"><const name="1'h0" dtype_id="1"/></var>
      <var name="x" dtype_id="2" vartype="logic" origName="x"/>
      <contassign dtype_id="2"><varref name="clk" dtype_id="1"/><varref name="x" dtype_id="2"/></contassign>
      <instance name="u" defName="leaf__W2" origName="u">
        <port name="a" direction="in"><varref name="x" dtype_id="2"/></port>
        <range><const name="32'sh1" dtype_id="3"/><const name="32'sh0" dtype_id="3"/></range>
      </instance>
      <begin name="g[0]"><var name="y" dtype_id="4" vartype="logic"/></begin>
    </module>
    <module loc="a,20,8,20,11" name="leaf__W2" origName="leaf">
      <var name="a" dtype_id="2" dir="input" vartype="logic"/>
    </module>
    <typetable>
      <basicdtype id="1" name="logic"/>
      <basicdtype id="2" name="logic" left="1" right="0"/>
      <structdtype id="4" name="s"><memberdtype id="5" name="f" sub_dtype_id="6"/></structdtype>
      <packarraydtype id="6" sub_dtype_id="2"><range><const name="32'sh2" dtype_id="3"/><const name="32'sh1" dtype_id="3"/></range></packarraydtype>
    </typetable>
  </netlist>
</verilator_xml>
)";

static bool read(const QByteArray &text, RawDesign &design, QString *error = nullptr)
{
    QBuffer buffer;
    buffer.setData(text);
    buffer.open(QIODevice::ReadOnly);
    QString ignored;
    return readVerilatorXml(
        buffer, design, [](qint64) {}, error ? error : &ignored);
}

static std::unique_ptr<RtlNetlist> expand(const RawDesign &design, QString *error)
{
    ExpansionOptions options;
    options.top = design.roots.value(0);
    options.isBlackBox = [](const RawModule &) { return false; };
    QStringList warnings;
    auto data = std::make_unique<RtlNetlist::Data>();
    data->store = NetStore::build(expandDesign(design, options, &warnings), error);
    return data->store ? std::make_unique<RtlNetlist>(std::move(data)) : nullptr;
}

void TestVerilatorXml::readsModulesTypesAndRoots()
{
    RawDesign design;
    QVERIFY(read(sample, design));
    QCOMPARE(design.roots, QVector<QByteArray>({"top"}));
    QCOMPARE(design.modules.size(), std::size_t(2));
    QCOMPARE(design.modules[1].key, QByteArray("leaf__W2"));
    QCOMPARE(design.modules[1].name, QByteArray("leaf"));
    QCOMPARE(design.modules[1].file, QByteArray("top.v"));
    QCOMPARE(design.modules[1].line, 20);
    QString error;
    const auto netlist = expand(design, &error);
    QVERIFY2(netlist, qPrintable(error));
    QStringList names;
    for (const RtlNetBus *bus : netlist->topHierarchy()->netbusesIncludeSub())
        names.append(bus->fullBusName());
    QCOMPARE(names, QStringList({"x[1:0]", "g[0].y.f[2][1:0]", "g[0].y.f[1][1:0]", "u[1]/a[1:0]", "u[0]/a[1:0]"}));
}

void TestVerilatorXml::constants_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("isNumber");
    QTest::addColumn<int>("value");
    QTest::newRow("signed") << "32'sh7" << true << 7;
    QTest::newRow("negative") << "32'shfffffffc" << true << -4;
    QTest::newRow("unsigned") << "32'h10" << true << 16;
    QTest::newRow("decimal") << "8'd12" << true << 12;
    QTest::newRow("binary") << "4'b101" << true << 5;
    QTest::newRow("octal") << "6'o17" << true << 15;
    QTest::newRow("narrow negative") << "4'shf" << true << -1;
    QTest::newRow("negative bound of an array") << "32'hfffffffe" << true << -2;
    QTest::newRow("lowest") << "32'h80000000" << true << std::numeric_limits<int>::min();
    QTest::newRow("too large") << "33'h80000000" << false << 0;
    QTest::newRow("more digits than bits") << "32'h100000000" << false << 0;
    QTest::newRow("wide") << "64'h1" << false << 0;
    QTest::newRow("unknown") << "32'hx" << false << 0;
    QTest::newRow("no base") << "12" << false << 0;
    QTest::newRow("empty") << "" << false << 0;
    QTest::newRow("only a quote") << "'" << false << 0;
    QTest::newRow("no digits") << "32'h" << false << 0;
    QTest::newRow("no width") << "'h3" << false << 0;
}

void TestVerilatorXml::constants()
{
    QFETCH(QString, text);
    int value = 0;
    QTEST(parseVerilatorConstant(text, &value), "isNumber");
    if (parseVerilatorConstant(text, &value))
        QTEST(value, "value");
}

void TestVerilatorXml::names_data()
{
    QTest::addColumn<QByteArray>("encoded");
    QTest::addColumn<QByteArray>("decoded");
    QTest::newRow("plain") << QByteArray("fifo_v2") << QByteArray("fifo_v2");
    QTest::newRow("dollar") << QByteArray("__024add") << QByteArray("$add");
    QTest::newRow("several") << QByteArray("a__02bb__05b1__05d") << QByteArray("a+b[1]");
    QTest::newRow("scope") << QByteArray("g__BRA__1__KET____DOT__u") << QByteArray("g[1].u");
    QTest::newRow("clone") << QByteArray("leaf__W8") << QByteArray("leaf__W8");
    QTest::newRow("cut off") << QByteArray("leaf__0") << QByteArray("leaf__0");
    QTest::newRow("no code") << QByteArray("leaf__0zz") << QByteArray("leaf__0zz");
}

void TestVerilatorXml::names()
{
    QFETCH(QByteArray, encoded);
    QTEST(decodedVerilatorName(encoded), "decoded");
}

void TestVerilatorXml::referencesToBytesAreBytes()
{
    // Long enough to come in several pieces, with borders anywhere in the references.
    const QByteArray name = QByteArray("&#195;&#188;&#27;&quot;&#233;x").repeated(20000);
    RawDesign design;
    QString error;
    QVERIFY2(read(QByteArray(sample).replace("name=\"clk\"", "name=\"" + name + '"'), design, &error),
             qPrintable(error));
    const QByteArray bytes = QByteArray("\xc3\xbc?????\"\xe9x").repeated(20000);
    QVERIFY(design.modules[0].variables[0].name == utf8OfSource(bytes));
}

void TestVerilatorXml::truncatedTextIsAnError()
{
    const QByteArray text(sample);
    const int end = text.lastIndexOf('>');
    for (int i = 0; i < 50; ++i) {
        RawDesign design;
        QString error;
        QVERIFY(!read(text.left(end * i / 50), design, &error));
        QVERIFY(error.startsWith("line "));
    }
    RawDesign design;
    QVERIFY(read(text, design));
}

void TestVerilatorXml::foreignTextIsAnError_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("other root") << QByteArray("<html><module name='a'/></html>");
    QTest::newRow("no XML") << QByteArray("module a; endmodule");
    QTest::newRow("binary") << QByteArray("\0\1\2\3", 4);
    QTest::newRow("entity") << QByteArray("<!DOCTYPE v [<!ENTITY e SYSTEM 'file:///etc/passwd'>]><verilator_xml>&e;"
                                          "</verilator_xml>");
}

void TestVerilatorXml::foreignTextIsAnError()
{
    QFETCH(QByteArray, text);
    RawDesign design;
    QVERIFY(!read(text, design));
    QVERIFY(design.modules.empty());
}

void TestVerilatorXml::damagedTextNeverCrashes()
{
    QRandomGenerator random(20261121);
    const QByteArray text(sample);
    const QList<QByteArray> pieces{"<begin name=\"b\">",
                                   "</begin>",
                                   "<const name=\"32'sh1\"/>",
                                   "<range>",
                                   "</range>",
                                   "<typetable>",
                                   "<memberdtype name=\"m\" sub_dtype_id=\"4\"/>",
                                   "<var name=\"v\"/>",
                                   "<module name=\"top\" origName=\"top\">",
                                   "</module>",
                                   "<instance defName=\"top\"/>",
                                   "<port direction=\"in\"><varref name=\"x\"/></port>",
                                   "\"",
                                   "99999999999",
                                   "-1"};
    for (int round = 0; round < 3000; ++round) {
        QByteArray damaged = text;
        for (int i = 0; i <= round % 4; ++i) {
            const int position = random.bounded(damaged.size());
            damaged.replace(position, random.bounded(12), pieces[random.bounded(pieces.size())]);
        }
        RawDesign design;
        QString error;
        if (read(damaged, design, &error) && !design.modules.empty() && design.roots.contains(design.modules[0].key))
            expand(design, &error);
    }
}

void TestVerilatorXml::cyclesInTheTypeTableEnd()
{
    QByteArray text(sample);
    text.replace("<memberdtype id=\"5\" name=\"f\" sub_dtype_id=\"6\"/>",
                 "<memberdtype id=\"5\" name=\"f\" sub_dtype_id=\"4\"/>");
    text.replace("<basicdtype id=\"1\" name=\"logic\"/>", "<refdtype id=\"1\" sub_dtype_id=\"1\"/>");
    RawDesign design;
    QVERIFY(read(text, design));
    QString error;
    const auto netlist = expand(design, &error);
    QVERIFY(netlist);
    QVERIFY(netlist->topHierarchy()->singleNets().isEmpty());
}

void TestVerilatorXml::cyclesInTheHierarchyAreRefused()
{
    QByteArray text(sample);
    text.replace(
        "<module loc=\"a,20,8,20,11\" name=\"leaf__W2\" origName=\"leaf\">",
        "<module loc=\"a,20,8,20,11\" name=\"leaf__W2\" origName=\"leaf\"><instance name=\"v\" defName=\"top\"/>");
    RawDesign design;
    QVERIFY(read(text, design));
    QString error;
    QVERIFY(!expand(design, &error));
    QCOMPARE(error, QString("The design instantiates a module inside itself."));
}

void TestVerilatorXml::progressNeverGoesBack()
{
    QByteArray text = "<verilator_xml><netlist><module name=\"a\" origName=\"a\">";
    for (int i = 0; i < 20000; ++i)
        text += "<var name=\"v" + QByteArray::number(i) + "\" dtype_id=\"1\"/>";
    text += "</module></netlist></verilator_xml>";
    QBuffer buffer(&text);
    buffer.open(QIODevice::ReadOnly);
    RawDesign design;
    QString error;
    qint64 last = 0;
    int calls = 0;
    QVERIFY(readVerilatorXml(
        buffer, design,
        [&](qint64 bytes) {
            QVERIFY(bytes >= last && bytes <= text.size());
            last = bytes;
            ++calls;
        },
        &error));
    QVERIFY(calls > 5);
    QCOMPARE(design.modules[0].variables.size(), std::size_t(20000));
}

QTEST_GUILESS_MAIN(TestVerilatorXml)
#include "tst_verilatorxml.moc"

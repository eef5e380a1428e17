// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "modeltools.h"

#include <VakUtils/vakfile.h>

#include <QtTest>

using namespace VAK;

Q_DECLARE_METATYPE(VAK::VakMode)

class TestVakFileErrors : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void modeComesFromTheRootAlone_data();
    void modeComesFromTheRootAlone();
    void wrongStructureIsRefused_data();
    void wrongStructureIsRefused();
    void wrongValueIsRefusedByTheReaderOnly_data();
    void wrongValueIsRefusedByTheReaderOnly();
    void moreThanSixteenCoresAreRefused();
    void liteFilesAreCheckedAlike();
    void eachModeRefusesTheOther();
    void fileThatIsNoneIsNamed();
    void tooLargeFileIsRefused();
    void entitiesAreNotExpanded();
    void shortFileCannotFillTheMemory();
    void checkingAStructureExpandsNothing();

private:
    QString path() const { return folder->filePath(QStringLiteral("a.rvk")); }
    QString readerMessage() const;

    std::unique_ptr<QTemporaryDir> folder;
};

void TestVakFileErrors::init()
{
    folder = std::make_unique<QTemporaryDir>();
    QVERIFY(folder->isValid());
}

QString TestVakFileErrors::readerMessage() const
{
    bool ok = true;
    QString message;
    const StandardCores cores(readVAKConfigFromXml(path(), &ok, &message));
    return !ok && cores.cores.isEmpty() ? message : QStringLiteral("no error");
}

void TestVakFileErrors::modeComesFromTheRootAlone_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<VakMode>("mode");
    QTest::newRow("standard") << QByteArray("<vak version=\"1\" mode=\"standard\"/>") << VakMode::Standard;
    QTest::newRow("lite") << QByteArray("<vak version=\"1\" mode=\"lite\"/>") << VakMode::Lite;
    QTest::newRow("broken behind the root") << QByteArray("<vak mode='lite'><core") << VakMode::Lite;
    QTest::newRow("newer version") << QByteArray("<vak version=\"2\" mode=\"standard\"/>") << VakMode::Standard;
    QTest::newRow("comment before") << QByteArray("<!-- c -->\n<vak mode=\"standard\"/>") << VakMode::Standard;
    QTest::newRow("other mode") << QByteArray("<vak version=\"1\" mode=\"Standard\"/>") << VakMode::Invalid;
    QTest::newRow("no mode") << QByteArray("<vak version=\"1\"/>") << VakMode::Invalid;
    QTest::newRow("other root") << QByteArray("<core mode=\"lite\"/>") << VakMode::Invalid;
    QTest::newRow("document type") << QByteArray("<!DOCTYPE vak><vak mode=\"lite\"/>") << VakMode::Invalid;
    QTest::newRow("empty") << QByteArray() << VakMode::Invalid;
    QTest::newRow("no XML") << QByteArray("vak") << VakMode::Invalid;
}

void TestVakFileErrors::modeComesFromTheRootAlone()
{
    QFETCH(QByteArray, text);
    QFETCH(VakMode, mode);
    QVERIFY(writeContent(path(), text));
    QCOMPARE(vakModeFromVakConfigFile(path()), mode);
    QCOMPARE(vakModeFromVakConfigFile(path() + QStringLiteral(".missing")), VakMode::Invalid);
}

/// Rows that say what to change in the complete golden file, and the message.
static void change(const char *name, const QByteArray &from, const QByteArray &to, const char *message)
{
    QTest::newRow(name) << from << to << QString::fromUtf8(message);
}

void TestVakFileErrors::wrongStructureIsRefused_data()
{
    QTest::addColumn<QByteArray>("from");
    QTest::addColumn<QByteArray>("to");
    QTest::addColumn<QString>("message");
    change("root", "<vak version=\"1\" mode=\"standard\">", "<vax version=\"1\" mode=\"standard\">",
           "line 2, column 1: found <vax>, expected <vak>");
    change("mode", "mode=\"standard\"", "mode=\"fancy\"",
           "line 2, column 1: found mode=\"fancy\", expected \"standard\" or \"lite\"");
    change("no version", "version=\"1\" ", "",
           "line 2, column 1: found <vak>, expected the attribute \"version\" in it");
    change("no index", "<core index=\"0\"", "<core",
           "line 3, column 3: found <core>, expected the attribute \"index\" in it");
    change("no clock", "<clock net=\"clk\" edge=\"rising\"/>", "",
           "line 3, column 3: found <core> without <clock>, expected one in it");
    change("misspelt capture", "<capture implementation=\"REG\"", "<kapture implementation=\"REG\"", "mismatch");
    change("second clock", "<clock net=\"clk\" edge=\"rising\"/>",
           "<clock net=\"clk\" edge=\"rising\"/><clock net=\"clk\" edge=\"rising\"/>",
           "line 4, column 37: found a second <clock>, expected one in a core");
    change("misspelt attribute", "segments=\"2\"", "segment=\"2\"",
           "line 25, column 5: found <capture>, expected the attribute \"segments\" in it");
    change("text", "<port index=\"0\">", "<port index=\"0\">\n        1 &lt; 2\n",
           "line 6, column 23: found the text \"1 < 2\", expected an element or the end of <port>");
    change("group without members", "<group name=\"group_0[1:0]\"",
           "<group name=\"g\" displayName=\"\" enabled=\"true\" present=\"true\" active=\"true\"/>\n<group "
           "name=\"group_0[1:0]\"",
           "line 12, column 9: found <group> without members, expected <bit> elements, or the attributes base, first "
           "and last");
    change("range without last", "first=\"7\" last=\"0\"", "first=\"7\"",
           "line 11, column 9: found <bus>, expected the attribute \"last\" in it");
    change("document type", "<vak version", "<!DOCTYPE vak [<!ENTITY a SYSTEM \"file:///etc/passwd\">]>\n<vak version",
           "line 1, column 39: found a document type declaration, expected an element");
    change("unknown entity", "net=\"clk\"", "net=\"&clk;\"", "line 4, column");
    change("second root", "</vak>", "</vak><vak/>", "line 44, column");
    change("cut off", "</vak>", "", "line 45, column");
    change("crossing tags", "</port>\n      <port index=\"7\">", "</trigger>\n      <port index=\"7\">",
           "line 9, column");
    change("attribute twice", "net=\"clk\"", "net=\"clk\" net=\"clk\"", "line 4, column");
    change("other encoding", "encoding=\"UTF-8\"", "encoding=\"ISO-8859-1\"",
           "line 1, column 1: found the encoding ISO-8859-1, expected UTF-8");
    change("broken UTF-8", "soc_top", "soc\xC3top", "line 3, column 30: found bytes that are no UTF-8, expected UTF-8");
}

void TestVakFileErrors::wrongStructureIsRefused()
{
    QFETCH(QByteArray, from);
    QFETCH(QByteArray, to);
    QFETCH(QString, message);
    QByteArray text = fileContent(goldenFile(QStringLiteral("standard-full.rvk")));
    const int at = text.indexOf(from);
    QVERIFY(at >= 0);
    QVERIFY(writeContent(path(), text.replace(at, from.size(), to)));
    QVERIFY(!checkVAKStandardFile(path()));
    const QString found = readerMessage();
    QVERIFY2(found.startsWith(QStringLiteral("line ")), qPrintable(found));
    QVERIFY2(found.contains(message), qPrintable(found));
}

void TestVakFileErrors::wrongValueIsRefusedByTheReaderOnly_data()
{
    QTest::addColumn<QByteArray>("from");
    QTest::addColumn<QByteArray>("to");
    QTest::addColumn<QString>("message");
    change("newer version", "version=\"1\" mode", "version=\"2\" mode",
           "line 2, column 1: found version=\"2\", expected 1, the only version known here");
    change("edge", "edge=\"rising\"", "edge=\"up\"",
           "line 4, column 5: found edge=\"up\", expected \"rising\" or \"falling\"");
    change("trigger mode", "mode=\"dynamic\"", "mode=\"1\"",
           "line 5, column 5: found mode=\"1\", expected \"static\" or \"dynamic\"");
    change("implementation", "implementation=\"REG\" storage", "implementation=\"reg\" storage",
           "line 25, column 5: found implementation=\"reg\", expected \"BSRAM\", \"REG\" or \"SSRAM\"");
    change("storage", "storageSize=\"3\"", "storageSize=\"3k\"",
           "line 25, column 5: found storageSize=\"3k\", expected a whole number from 0");
    change("blank", "storageSize=\"3\"", "storageSize=\" 3\"",
           "line 25, column 5: found storageSize=\" 3\", expected a whole number from 0");
    change("negative", "triggerPosition=\"5\"", "triggerPosition=\"-5\"",
           "line 25, column 5: found triggerPosition=\"-5\", expected a whole number from 0");
    change("beyond int", "amount=\"1000\"", "amount=\"2147483648\"",
           "line 25, column 5: found amount=\"2147483648\", expected a whole number from 0");
    change("flag", "initialData=\"true\"", "initialData=\"1\"",
           "line 25, column 5: found initialData=\"1\", expected \"false\" or \"true\"");
    change("core number", "<core index=\"1\"", "<core index=\"2\"",
           "line 39, column 3: found index=\"2\", expected 1, since cores are numbered in their order");
    change("port number", "<port index=\"7\"", "<port index=\"16\"",
           "line 10, column 7: found index=\"16\", expected a whole number from 0 to 15");
    change("port twice", "<port index=\"7\"", "<port index=\"0\"",
           "line 10, column 7: found index=\"0\", expected each index once");
    change("unit twice", "<unit index=\"2\"", "<unit index=\"1\"",
           "line 19, column 7: found index=\"1\", expected each index once");
    change("port of unit", "port=\"none\"", "port=\"\"",
           "line 21, column 7: found port=\"\", expected \"none\" or a whole number from 0 to 15");
    change("function", "function=\"!=\"", "function=\"=~\"", "line 19, column");
    change("value", "value0=\"1R\"", "value0=\"1Q\"",
           "line 17, column 7: found value0=\"1Q\", expected the characters 0 1 X R F B N");
    change("edge in a range", "value0=\"0000000100\"", "value0=\"000000010R\"",
           "line 18, column 7: found value0=\"000000010R\", expected the characters 0 1 for this function");
    change("bound", "value1=\"0000010000\"", "value1=\"00000100X0\"",
           "line 18, column 7: found value1=\"00000100X0\", expected the characters 0 1 for this function");
    change(
        "needless bound", "value0=\"1R\" value1=\"\"", "value0=\"1R\" value1=\"1\"",
        "line 17, column 7: found value1=\"1\", expected nothing, since only the range functions have an upper bound");
    change("counter", "counter=\"total\"", "counter=\"sum\"",
           "line 18, column 7: found counter=\"sum\", expected \"off\", \"total\" or \"consecutive\"");
    change("count", "count=\"65535\"", "count=\"65536\"",
           "line 18, column 7: found count=\"65536\", expected a whole number from 1 to 65535");
    change("members", "first=\"7\" last=\"0\"", "first=\"0\" last=\"262144\"",
           "line 11, column 9: found 262145 members, expected at most 262144");
    change("long value", "value0=\"1R\"", "value0=\"" + QByteArray(100, 'y') + "\"",
           "found value0=\"YYYYYYYYYYYYYYYYYYYYYYYYYYYYYYYYYYYYYYYYYYYYYYYYYYYYYYYYY...\", expected");
    change("expressions", "<expression text=\"M0\"/>", QByteArray("<expression text=\"M0\"/>").repeated(16),
           "found expression number 17, expected at most 16");
}

void TestVakFileErrors::wrongValueIsRefusedByTheReaderOnly()
{
    QFETCH(QByteArray, from);
    QFETCH(QByteArray, to);
    QFETCH(QString, message);
    QByteArray text = fileContent(goldenFile(QStringLiteral("standard-full.rvk")));
    const int at = text.indexOf(from);
    QVERIFY(at >= 0);
    QVERIFY(writeContent(path(), text.replace(at, from.size(), to)));
    QVERIFY(checkVAKStandardFile(path()));
    const QString found = readerMessage();
    QVERIFY2(found.startsWith(QStringLiteral("line ")), qPrintable(found));
    QVERIFY2(found.contains(message), qPrintable(found));
}

void TestVakFileErrors::moreThanSixteenCoresAreRefused()
{
    StandardCores cores;
    for (int i = 0; i < 17; ++i) {
        cores.owner.push_back(std::make_unique<AoCore>(i));
        cores.cores.append(cores.owner.back().get());
    }
    QVERIFY(writeVAKConfigToXml(cores.cores.mid(0, 16), path()));
    QCOMPARE(readerMessage(), QStringLiteral("no error"));
    QVERIFY(writeVAKConfigToXml(cores.cores, path()));
    QVERIFY(checkVAKStandardFile(path()));
    QCOMPARE(readerMessage(), QStringLiteral("line 83, column 3: found core number 17, expected at most 16"));
}

void TestVakFileErrors::liteFilesAreCheckedAlike()
{
    QByteArray text = fileContent(goldenFile(QStringLiteral("lite-full.rvk")));
    bool ok = true;
    QString message;
    QVERIFY(writeContent(path(), QByteArray(text).replace("amount=\"2048\"", "amount=\"two\"")));
    QVERIFY(checkVAKLiteFile(path()));
    QVERIFY(readVAKConfigFromXml_Lite(path(), &ok, &message).isEmpty());
    QVERIFY(!ok);
    QCOMPARE(message, QStringLiteral("line 5, column 5: found amount=\"two\", expected a whole number from 0"));
    QVERIFY(writeContent(path(), QByteArray(text).replace("inputRegister", "register")));
    QVERIFY(!checkVAKLiteFile(path()));
}

void TestVakFileErrors::eachModeRefusesTheOther()
{
    QVERIFY(!checkVAKStandardFile(goldenFile(QStringLiteral("lite-full.rvk"))));
    QVERIFY(!checkVAKLiteFile(goldenFile(QStringLiteral("standard-full.rvk"))));
    bool ok = true;
    QString message;
    QVERIFY(readVAKConfigFromXml(goldenFile(QStringLiteral("lite-full.rvk")), &ok, &message).isEmpty());
    QVERIFY(!ok);
    QCOMPARE(message, QStringLiteral("line 2, column 1: found mode=\"lite\", expected \"standard\""));
}

void TestVakFileErrors::fileThatIsNoneIsNamed()
{
    QCOMPARE(readerMessage(), QStringLiteral("No such file or directory"));
    QVERIFY(!checkVAKStandardFile(path()));
    QVERIFY(QDir().mkdir(path()));
    QCOMPARE(readerMessage(), QStringLiteral("found something that is not a file, expected a file"));
    QVERIFY(!checkVAKStandardFile(path()));
    QCOMPARE(vakModeFromVakConfigFile(QStringLiteral("/dev/zero")), VakMode::Invalid);
}

void TestVakFileErrors::tooLargeFileIsRefused()
{
    QVERIFY(writeContent(path(), fileContent(goldenFile(QStringLiteral("standard-new-core.rvk")))));
    QVERIFY(QFile::resize(path(), 64 * 1024 * 1024 + 1));
    QCOMPARE(readerMessage(), QStringLiteral("found a file of more than 64 MiB, expected at most that"));
    QVERIFY(!checkVAKStandardFile(path()));
}

void TestVakFileErrors::entitiesAreNotExpanded()
{
    QByteArray bomb = "<!DOCTYPE vak [<!ENTITY a0 \"aaaaaaaaaa\">";
    for (int i = 1; i < 30; ++i) {
        const QByteArray inner = "&a" + QByteArray::number(i - 1) + ";";
        bomb += "<!ENTITY a" + QByteArray::number(i) + " \"" + inner.repeated(10) + "\">";
    }
    QVERIFY(writeContent(path(), bomb + "]><vak version=\"1\" mode=\"standard\" x=\"&a29;\"/>"));
    QVERIFY2(readerMessage().endsWith(QStringLiteral(": found a document type declaration, expected an element")),
             qPrintable(readerMessage()));
}

static QByteArray fileWithSignals(const QByteArray &signalLines)
{
    return fileContent(goldenFile(QStringLiteral("standard-new-core.rvk")))
        .replace("initialData=\"false\"/>", "initialData=\"false\">" + signalLines + "</capture>");
}

void TestVakFileErrors::shortFileCannotFillTheMemory()
{
    const QByteArray bus =
        "<bus name=\"d\" displayName=\"\" enabled=\"true\" present=\"true\" active=\"true\" base=\"d\" "
        "first=\"0\" last=\"262143\"/>\n";
    QVERIFY(writeContent(path(), fileWithSignals(bus.repeated(3))));
    QCOMPARE(readerMessage(), QStringLiteral("no error"));
    QVERIFY(writeContent(path(), fileWithSignals(bus.repeated(4))));
    QVERIFY2(readerMessage().endsWith(
                 QStringLiteral("found signal inputs beyond the limit, expected at most 1048576 in a file")),
             qPrintable(readerMessage()));
    QByteArray deep;
    for (int i = 0; i < 100000; ++i)
        deep += "<x>";
    QVERIFY(writeContent(path(), fileWithSignals(deep)));
    QVERIFY2(readerMessage().endsWith(QStringLiteral("found an element at depth 65, expected at most 64")),
             qPrintable(readerMessage()));
}

void TestVakFileErrors::checkingAStructureExpandsNothing()
{
    QVERIFY(writeContent(
        path(), fileWithSignals(QByteArray("<bus name=\"d\" displayName=\"\" enabled=\"true\" present=\"true\" "
                                           "active=\"true\" base=\"d\" first=\"-2147483646\" "
                                           "last=\"2147483646\"/>\n")
                                    .repeated(1000))));
    QVERIFY(checkVAKStandardFile(path()));
    QVERIFY2(readerMessage().contains(QStringLiteral("found 4294967293 members, expected at most 262144")),
             qPrintable(readerMessage()));
}

QTEST_GUILESS_MAIN(TestVakFileErrors)
#include "tst_vakfileerrors.moc"

// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "hostlibs/device/devicecatalogue.h"

#include <QDir>
#include <QSet>
#include <QtTest>

#include <algorithm>

using namespace DEV;

static QByteArray oneDevice(const QByteArray &fields)
{
    return "{\"devices\": [{" + fields + "}]}";
}

static const char completeFields[] =
    R"("name": "MINE", "blockRams": 3, "shadowRamCells": 4, "registers": 5, "blockShapes": [[1024, 4]])";

class TestDeviceCatalogue : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void knowsTheDevicesWithFunctionsOfTheirOwn_data();
    void knowsTheDevicesWithFunctionsOfTheirOwn();
    void generalFamilyGrowsWithAndWithoutShadowRam();
    void openFlowFiguresFollowTheDataSheets_data();
    void openFlowFiguresFollowTheDataSheets();
    void builtInDevicesAreWhole();
    void namesAreComparedExactly();
    void packageMustBeOneOfTheDevice();
    void ownDeviceIsAdded();
    void laterDeviceReplacesTheEarlier();
    void wrongTextIsRefusedWhole_data();
    void wrongTextIsRefusedWhole();
    void missingFileIsNamed();
    void documentedExampleIsAccepted();
    void userFilesExtendTheCatalogue();

private:
    DeviceCatalogue builtIn;
};

void TestDeviceCatalogue::initTestCase()
{
    builtIn = DeviceCatalogue::builtIn();
    QVERIFY(!builtIn.devices().isEmpty());
}

void TestDeviceCatalogue::knowsTheDevicesWithFunctionsOfTheirOwn_data()
{
    QTest::addColumn<QString>("kind");
    for (const char *name : {"KXA-Q1", "KXA-Q1R"})
        QTest::newRow(name) << QStringLiteral("9k");
    for (const char *name : {"KXC-T2", "KXC-T2R", "KXC-T1", "KXC-T0N"})
        QTest::newRow(name) << QStringLiteral("18k-no36");
}

static QString shapeText(const QVector<BlockShape> &shapes)
{
    QString text;
    for (const BlockShape &shape : shapes)
        text += QStringLiteral("%1x%2 ").arg(shape.depth).arg(shape.width);
    return text;
}

void TestDeviceCatalogue::knowsTheDevicesWithFunctionsOfTheirOwn()
{
    QFETCH(QString, kind);
    const Device *device = builtIn.find(QString::fromLatin1(QTest::currentDataTag()));
    QVERIFY(device);
    QVERIFY(device->blockRams > 0);
    QVERIFY(device->registers > 0);
    QCOMPARE(shapeText(device->blockShapes), shapeText(blockShapes(kind)));
}

void TestDeviceCatalogue::generalFamilyGrowsWithAndWithoutShadowRam()
{
    int withShadowRam = 0;
    int without = 0;
    int registers = 0;
    for (const Device &device : builtIn.devices()) {
        if (device.family != QLatin1String("KXB"))
            continue;
        QVERIFY(device.registers > registers);
        registers = device.registers;
        ++(device.shadowRamCells > 0 ? withShadowRam : without);
    }
    QVERIFY(withShadowRam >= 2);
    QVERIFY(without >= 2);
}

void TestDeviceCatalogue::openFlowFiguresFollowTheDataSheets_data()
{
    QTest::addColumn<int>("blockRams");
    QTest::addColumn<int>("shadowRamCells");
    QTest::addColumn<int>("registers");
    QTest::newRow("iCE40HX1K") << 16 << 0 << 1280;
    QTest::newRow("iCE40HX8K") << 32 << 0 << 7680;
    QTest::newRow("iCE40UP5K") << 30 << 0 << 5280;
    QTest::newRow("LFE5U-25F") << 56 << 3036 << 24288;
    QTest::newRow("LFE5UM5G-85F") << 208 << 10455 << 83640;
}

void TestDeviceCatalogue::openFlowFiguresFollowTheDataSheets()
{
    QFETCH(int, blockRams);
    QFETCH(int, shadowRamCells);
    QFETCH(int, registers);
    const Device *device = builtIn.find(QString::fromLatin1(QTest::currentDataTag()));
    QVERIFY(device);
    QCOMPARE(device->blockRams, blockRams);
    QCOMPARE(device->shadowRamCells, shadowRamCells);
    QCOMPARE(device->registers, registers);
}

void TestDeviceCatalogue::builtInDevicesAreWhole()
{
    QSet<QString> names;
    for (const Device &device : builtIn.devices()) {
        QVERIFY2(!names.contains(device.name), qPrintable(device.name));
        names.insert(device.name);
        QVERIFY2(!device.packages.isEmpty(), qPrintable(device.name));
        QVERIFY2(!device.family.isEmpty(), qPrintable(device.name));
        QVERIFY2(device.registers > 0, qPrintable(device.name));
        QVERIFY2(!device.blockShapes.isEmpty(), qPrintable(device.name));
    }
}

void TestDeviceCatalogue::namesAreComparedExactly()
{
    QVERIFY(builtIn.find(QStringLiteral("KXA-Q1")));
    QVERIFY(!builtIn.find(QStringLiteral("kxa-q1")));
    QVERIFY(!builtIn.find(QStringLiteral("KXA-Q1 ")));
    QVERIFY(!builtIn.find(QString()));
}

void TestDeviceCatalogue::packageMustBeOneOfTheDevice()
{
    const QString name = QStringLiteral("iCE40HX8K");
    QVERIFY(builtIn.find(name, QStringLiteral("CT256")));
    QVERIFY(!builtIn.find(name, QStringLiteral("SG32")));
    DeviceCatalogue own;
    QVERIFY(own.addJson(oneDevice(completeFields), nullptr));
    QVERIFY(own.find(QStringLiteral("MINE"), QStringLiteral("any")));
}

void TestDeviceCatalogue::ownDeviceIsAdded()
{
    DeviceCatalogue catalogue = builtIn;
    QString error;
    QVERIFY2(catalogue.addJson(oneDevice(completeFields), &error), qPrintable(error));
    QCOMPARE(catalogue.devices().size(), builtIn.devices().size() + 1);
    const Device *device = catalogue.find(QStringLiteral("MINE"));
    QVERIFY(device);
    QCOMPARE(device->blockRams, 3);
    QCOMPARE(device->shadowRamCells, 4);
    QCOMPARE(device->registers, 5);
    QCOMPARE(shapeText(device->blockShapes), QStringLiteral("1024x4 "));
}

void TestDeviceCatalogue::laterDeviceReplacesTheEarlier()
{
    DeviceCatalogue catalogue;
    QVERIFY(catalogue.addJson(oneDevice(completeFields), nullptr));
    QVERIFY(catalogue.addJson(oneDevice(QByteArray(completeFields).replace(R"("blockRams": 3)", R"("blockRams": 9)")),
                              nullptr));
    QCOMPARE(catalogue.devices().size(), 1);
    QCOMPARE(catalogue.find(QStringLiteral("MINE"))->blockRams, 9);
}

void TestDeviceCatalogue::wrongTextIsRefusedWhole_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<QString>("message");
    const QByteArray good = "{" + QByteArray(completeFields) + "}, ";
    const auto row = [&good](const char *name, const char *from, const char *to, const QString &message) {
        const QByteArray bad = "{" + QByteArray(completeFields).replace(from, to) + "}";
        QTest::newRow(name) << QByteArray("{\"devices\": [" + good + bad + "]}") << message;
    };
    row("negative", "\"blockRams\": 3", "\"blockRams\": -3",
        QStringLiteral("MINE: \"blockRams\" must be a whole number from 0 to 100000000"));
    row("fraction", "\"registers\": 5", "\"registers\": 5.5",
        QStringLiteral("MINE: \"registers\" must be a whole number from 0 to 100000000"));
    row("missing figure", "\"shadowRamCells\": 4, ", "",
        QStringLiteral("MINE: \"shadowRamCells\" must be a whole number from 0 to 100000000"));
    row("no name", "\"name\": \"MINE\", ", "", QStringLiteral("a device has no \"name\""));
    row("zero depth", "1024", "0",
        QStringLiteral("MINE: \"blockShapes\": each shape is [depth, width], both 1 or more"));
    row("unknown kind", "[[1024, 4]]", "\"5k\"",
        QStringLiteral(
            "MINE: \"blockShapes\" must be \"18k\", \"18k-no36\", \"9k\", \"4k\" or a list of [depth, width]"));
    row("packages", "\"registers\": 5", "\"registers\": 5, \"packages\": \"A\"",
        QStringLiteral("MINE: \"packages\" must be a list of texts"));
    QTest::newRow("no list") << QByteArray("{}") << QStringLiteral("expected an object with a list \"devices\"");
    QTest::newRow("cut off") << QByteArray("{\"devices\": [") << QStringLiteral("byte 13: unterminated array");
}

void TestDeviceCatalogue::wrongTextIsRefusedWhole()
{
    QFETCH(QByteArray, json);
    QFETCH(QString, message);
    DeviceCatalogue catalogue;
    QString error;
    QVERIFY(!catalogue.addJson(json, &error));
    QCOMPARE(error, message);
    QVERIFY(catalogue.devices().isEmpty());
}

void TestDeviceCatalogue::missingFileIsNamed()
{
    DeviceCatalogue catalogue;
    QString error;
    QVERIFY(!catalogue.addFile(QStringLiteral("/nowhere/x.json"), &error));
    QCOMPARE(error, QStringLiteral("/nowhere/x.json: No such file or directory"));
}

void TestDeviceCatalogue::documentedExampleIsAccepted()
{
    QFile documentation(QStringLiteral(VAK_DOCS "/devices.md"));
    QVERIFY(documentation.open(QIODevice::ReadOnly));
    const QByteArray text = documentation.readAll();
    const int begin = text.indexOf("```json\n") + 8;
    DeviceCatalogue catalogue;
    QString error;
    QVERIFY2(catalogue.addJson(text.mid(begin, text.indexOf("```", begin) - begin), &error), qPrintable(error));
    QCOMPARE(catalogue.devices().size(), 2);
    QCOMPARE(shapeText(catalogue.find(QStringLiteral("LAB-3"))->blockShapes), QStringLiteral("1024x8 512x16 "));
}

static bool writeCatalogueFile(const QTemporaryDir &home, const char *name, const QByteArray &text)
{
    QDir(home.path()).mkpath(QStringLiteral("rtlvakins/devices"));
    QFile file(home.filePath(QStringLiteral("rtlvakins/devices/%1").arg(QLatin1String(name))));
    return file.open(QIODevice::WriteOnly) && file.write(text) == text.size();
}

void TestDeviceCatalogue::userFilesExtendTheCatalogue()
{
    const QTemporaryDir home;
    const QTemporaryDir shared;
    const QByteArray ofAll = QByteArray(completeFields).replace(R"("blockRams": 3)", R"("blockRams": 99)");
    QVERIFY(writeCatalogueFile(home, "a.json", oneDevice(completeFields)));
    QVERIFY(writeCatalogueFile(home, "b.json", "{"));
    QVERIFY(writeCatalogueFile(home, "ignored.txt", "{"));
    QVERIFY(writeCatalogueFile(shared, "a.json", oneDevice(ofAll)));
    QVERIFY(writeCatalogueFile(shared, "z.json", oneDevice(QByteArray(ofAll).replace("MINE", "OURS"))));
    qputenv("XDG_DATA_HOME", home.path().toLocal8Bit());
    qputenv("XDG_DATA_DIRS", shared.path().toLocal8Bit());
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("b\\.json: byte")));
    const DeviceCatalogue &catalogue = DeviceCatalogue::instance();
    QVERIFY(catalogue.find(QStringLiteral("KXA-Q1")));
    QVERIFY(catalogue.find(QStringLiteral("OURS")));
    QVERIFY(catalogue.find(QStringLiteral("MINE")));
    QCOMPARE(catalogue.find(QStringLiteral("MINE"))->blockRams, 3); // the user's own file wins
    QCOMPARE(catalogue.messages().size(), 1);
    QVERIFY(catalogue.messages().first().contains(QStringLiteral("b.json")));
}

QTEST_GUILESS_MAIN(TestDeviceCatalogue)
#include "tst_devicecatalogue.moc"

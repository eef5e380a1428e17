// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "hostlibs/netcatcher/cache/archivebytes.h"
#include "hostlibs/netcatcher/cache/netlistarchive.h"
#include "hostlibs/netcatcher/cache/readmanifest.h"
#include "hostlibs/netcatcher/store/netstore.h"

#include <QCryptographicHash>
#include <QtTest>

#include <functional>
#include <limits>

using namespace NETCATCHER;

/// The form of cache entries: it gives back what went in, and whatever else comes, the reader neither crashes nor
/// believes it.
class TestNetlistArchive : public QObject
{
    Q_OBJECT

private slots:
    void givesBackWhatWentIn();
    void resultWithoutATable();
    void tooLargeIsNotWritten();
    void anotherKeyIsNotRead();
    void anotherVersionIsNotRead();
    void everyDamagedByteIsNoticed();
    void everyTruncationIsNoticed();
    void forgedBytesAreHarmless_data();
    void forgedBytesAreHarmless();
    void forgedTruncationsAreNotRead();
    void forgedTablesAreNotRead_data();
    void forgedTablesAreNotRead();
    void forgedBusIsCapped();
};

static const QByteArray key(64, 'a');
constexpr int headBytes = 20 + 32;

static ModuleTable smallTable()
{
    ModuleTable table;
    ModuleDef top;
    top.name = QString::fromUtf8("top \xc3\xbc");
    top.addSingle("clk", false);
    top.addSingle("tied", true);
    top.addBus("v", 3, -4, false);
    top.addBus("idle", 0, 7, true);
    top.addWhole("wide", BusDef::Capped, 99999999, 0);
    top.addWhole("words[0:15][7:0]", BusDef::Memory);
    top.children = {{"u/1", 1}, {"u2", 1}, {"u3", 2}};
    ModuleDef leaf;
    leaf.name = "leaf";
    leaf.addSingle("x", false);
    leaf.children = {{"box", 2}};
    ModuleDef box;
    box.name = "OV_JTAG";
    box.blackBox = true;
    table.modules = {top, leaf, box};
    return table;
}

static ReadResult smallResult()
{
    ReadResult result;
    result.tops = QStringList{"top"};
    result.modules = QStringList{"top", "leaf"};
    result.messages = QStringList{"WARNING: one", QString()};
    result.table = smallTable();
    return result;
}

static QByteArray archive(const ReadResult &result)
{
    ReadManifest manifest;
    manifest.look(QStringLiteral("/dev/null/nothing"));
    return writeArchive(key, manifest, result, 1 << 20);
}

static std::optional<ReadResult> readBack(const QByteArray &bytes)
{
    ReadManifest manifest;
    return readArchive(bytes, key, &manifest);
}

/// The bytes with a checksum that is right for them.
static QByteArray forged(QByteArray bytes)
{
    const QByteArray sum = QCryptographicHash::hash(bytes.mid(headBytes), QCryptographicHash::Sha256);
    return bytes.replace(headBytes - 32, 32, sum);
}

/// Everything that a netlist shows of a module.
static QStringList description(const ModuleDef &module)
{
    QStringList lines{module.name, module.blackBox ? "box" : "module", QString::number(module.bitCount())};
    for (const ModuleDef::Child &child : module.children)
        lines.append(child.name + ':' + QByteArray::number(child.module));
    for (quint32 i = 0; i < module.singleCount(); ++i)
        lines.append(module.singleName(i) + (module.isSingleUnusable(i) ? "!" : ""));
    for (quint32 i = 0; i < module.busCount(); ++i)
        lines.append(module.busName(i) + (module.bus(i).unusable ? "!" : "") + QString::number(module.bus(i).form) +
                     '@' + QString::number(module.bus(i).firstBit));
    return lines;
}

void TestNetlistArchive::givesBackWhatWentIn()
{
    ReadManifest before;
    before.look(QStringLiteral("/dev/null/nothing"));
    before.look(QStringLiteral("/dev"));
    const ReadResult result = smallResult();
    ReadManifest after;
    const auto read = readArchive(writeArchive(key, before, result, 1 << 20), key, &after);
    QVERIFY(read);
    QCOMPARE(read->tops, result.tops);
    QCOMPARE(read->modules, result.modules);
    QCOMPARE(read->messages, result.messages);
    QVERIFY(read->table);
    QCOMPARE(read->table->top, result.table->top);
    QCOMPARE(read->table->modules.size(), result.table->modules.size());
    for (std::size_t i = 0; i < read->table->modules.size(); ++i)
        QCOMPARE(description(read->table->modules[i]), description(result.table->modules[i]));
    QCOMPARE(writeArchive(key, after, *read, 1 << 20), writeArchive(key, before, result, 1 << 20));
}

void TestNetlistArchive::resultWithoutATable()
{
    ReadResult result;
    result.tops = QStringList{"a", "b"};
    const auto read = readBack(archive(result));
    QVERIFY(read);
    QCOMPARE(read->tops, result.tops);
    QVERIFY(!read->table);
}

void TestNetlistArchive::tooLargeIsNotWritten()
{
    const ReadManifest manifest;
    const int size = writeArchive(key, manifest, smallResult(), 1 << 20).size();
    QVERIFY(size > headBytes);
    QCOMPARE(writeArchive(key, manifest, smallResult(), size).size(), size);
    QVERIFY(writeArchive(key, manifest, smallResult(), size - 1).isEmpty());
}

void TestNetlistArchive::anotherKeyIsNotRead()
{
    ReadManifest manifest;
    QVERIFY(readArchive(archive(smallResult()), key, &manifest));
    QVERIFY(!readArchive(archive(smallResult()), QByteArray(64, 'b'), &manifest));
}

void TestNetlistArchive::anotherVersionIsNotRead()
{
    QByteArray bytes = archive(smallResult());
    QVERIFY(bytes.startsWith("RtlVakIns netlist 1\n"));
    bytes[18] = '0';
    QVERIFY(!readBack(bytes));
}

void TestNetlistArchive::everyDamagedByteIsNoticed()
{
    const QByteArray bytes = archive(smallResult());
    for (int i = 0; i < bytes.size(); ++i) {
        for (const int mask : {0x01, 0x80, 0xff}) {
            QByteArray damaged = bytes;
            damaged[i] = char(damaged[i] ^ mask);
            QVERIFY2(!readBack(damaged), qPrintable(QString::number(i)));
        }
    }
}

void TestNetlistArchive::everyTruncationIsNoticed()
{
    const QByteArray bytes = archive(smallResult());
    for (int i = 0; i < bytes.size(); ++i)
        QVERIFY2(!readBack(bytes.left(i)), qPrintable(QString::number(i)));
    QVERIFY(!readBack(bytes + '\0'));
}

void TestNetlistArchive::forgedBytesAreHarmless_data()
{
    QTest::addColumn<int>("value");
    for (const int value : {0x00, 0x01, 0x7f, 0x80, 0xff})
        QTest::addRow("%02x", unsigned(value)) << value;
}

/// What is read of a forged entry must be fit to build a netlist of and to ask that for everything.
void TestNetlistArchive::forgedBytesAreHarmless()
{
    QFETCH(int, value);
    const QByteArray bytes = archive(smallResult());
    int readable = 0;
    for (int i = headBytes; i < bytes.size(); ++i) {
        QByteArray changed = bytes;
        changed[i] = char(value);
        auto read = readBack(forged(changed));
        if (!read || !read->table)
            continue;
        ++readable;
        QString error;
        auto data = std::make_unique<RtlNetlist::Data>();
        data->store = NetStore::build(std::move(*read->table), &error);
        QVERIFY2(data->store, qPrintable(error));
        const RtlNetlist netlist(std::move(data));
        for (const RtlNet *net : netlist.topHierarchy()->singleNetsIncludeSub())
            QVERIFY(net->fullPathName().size() < bytes.size());
        for (const RtlNetBus *bus : netlist.topHierarchy()->netbusesIncludeSub())
            QVERIFY(bus->isUnusable() || !bus->nets().isEmpty());
    }
    QVERIFY(readable > 0); // bytes of names are as good as any others
    QVERIFY(readable < bytes.size() - headBytes);
}

void TestNetlistArchive::forgedTruncationsAreNotRead()
{
    const QByteArray bytes = archive(smallResult());
    QVERIFY(readBack(forged(bytes)));
    for (int i = headBytes; i < bytes.size(); ++i)
        QVERIFY2(!readBack(forged(bytes.left(i))), qPrintable(QString::number(i)));
    QVERIFY(!readBack(forged(bytes + '\0')));
}

using TableChange = std::function<void(ModuleTable &)>;
Q_DECLARE_METATYPE(TableChange)

void TestNetlistArchive::forgedTablesAreNotRead_data()
{
    QTest::addColumn<TableChange>("change");
    const auto add = [](const char *name, const TableChange &change) { QTest::newRow(name) << change; };
    add("no module", [](ModuleTable &table) { table.modules.clear(); });
    add("top outside", [](ModuleTable &table) { table.top = 3; });
    add("top far outside", [](ModuleTable &table) { table.top = 0xffffffff; });
    add("child outside", [](ModuleTable &table) { table.modules[1].children[0].module = 3; });
    add("child far outside", [](ModuleTable &table) { table.modules[1].children[0].module = 0xffffffff; });
    add("module inside itself", [](ModuleTable &table) { table.modules[1].children[0].module = 1; });
    add("modules inside each other", [](ModuleTable &table) { table.modules[2].children.push_back({"u", 0}); });
}

void TestNetlistArchive::forgedTablesAreNotRead()
{
    QFETCH(TableChange, change);
    ReadResult result = smallResult();
    QVERIFY(readBack(archive(result)));
    change(*result.table);
    QVERIFY(!readBack(archive(result)));
}

void TestNetlistArchive::forgedBusIsCapped()
{
    ReadResult result = smallResult();
    QByteArray bytes = archive(result);
    ByteWriter range;
    range.putNumber(3);
    range.putNumber(quint32(-4));
    ByteWriter extreme;
    extreme.putNumber(quint32(std::numeric_limits<qint32>::max()));
    extreme.putNumber(quint32(std::numeric_limits<qint32>::min()));
    QCOMPARE(bytes.count(range.bytes()), 1);
    const auto read = readBack(forged(bytes.replace(range.bytes(), extreme.bytes())));
    QVERIFY(read && read->table);
    QCOMPARE(read->table->modules[0].bus(0).form, BusDef::Capped);
    QCOMPARE(read->table->modules[0].bitCount(), 8u);
}

QTEST_GUILESS_MAIN(TestNetlistArchive)
#include "tst_netlistarchive.moc"

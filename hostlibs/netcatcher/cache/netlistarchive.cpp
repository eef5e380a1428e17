// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "netlistarchive.h"

#include "archivebytes.h"
#include "readmanifest.h"

#include <QCryptographicHash>

namespace NETCATCHER {

/// Ends in the version of what follows.
static const char magic[] = "RtlVakIns netlist 1\n";
constexpr int magicBytes = int(sizeof magic) - 1;
constexpr int checksumBytes = 32;

constexpr quint8 formMask = 3;
constexpr quint8 unusableFlag = 4;

static QByteArray checksum(const QByteArray &body)
{
    return QCryptographicHash::hash(body, QCryptographicHash::Sha256);
}

static void putModule(const ModuleDef &module, ByteWriter &out)
{
    out.putText(module.name);
    out.putByte(module.blackBox ? 1 : 0);
    out.putNumber(quint32(module.children.size()));
    for (const ModuleDef::Child &child : module.children) {
        out.putNumber(child.module);
        out.putBytes(child.name);
    }
    out.putNumber(module.singleCount());
    for (quint32 i = 0; i < module.singleCount(); ++i) {
        out.putByte(module.isSingleUnusable(i) ? unusableFlag : 0);
        out.putBytes(module.singleText(i));
    }
    out.putNumber(module.busCount());
    for (quint32 i = 0; i < module.busCount(); ++i) {
        const BusDef &bus = module.bus(i);
        out.putByte(quint8(bus.form | (bus.unusable ? unusableFlag : 0)));
        out.putNumber(quint32(bus.left));
        out.putNumber(quint32(bus.right));
        out.putBytes(module.busText(i));
    }
}

static void putTable(const ModuleTable &table, ByteWriter &out)
{
    out.putNumber(table.top);
    out.putNumber(quint32(table.modules.size()));
    for (const ModuleDef &module : table.modules)
        putModule(module, out);
}

/// The module takes its nets as an expansion would add them, so that none can break what it relies on.
static void takeBus(ByteReader &in, ModuleDef *module)
{
    const quint8 flags = in.takeByte();
    const auto left = qint32(in.takeNumber());
    const auto right = qint32(in.takeNumber());
    const QByteArray name = in.takeBytes();
    switch (flags & formMask) {
    case BusDef::Vector:
        module->addBus(name, left, right, flags & unusableFlag);
        break;
    case BusDef::Capped:
    case BusDef::Memory:
        module->addWhole(name, BusDef::Form(flags & formMask), left, right);
        break;
    default:
        in.fail();
    }
}

static ModuleDef takeModule(ByteReader &in, quint32 moduleCount)
{
    ModuleDef module;
    module.name = in.takeText();
    module.blackBox = in.takeByte() != 0;
    const quint32 childCount = in.takeCount(2 * sizeof(quint32));
    module.children.reserve(childCount);
    for (quint32 i = 0; i < childCount && in.isGood(); ++i) {
        const quint32 index = in.takeNumber();
        if (index >= moduleCount)
            in.fail();
        module.children.push_back({in.takeBytes(), index});
    }
    const quint32 singleCount = in.takeCount(1 + sizeof(quint32));
    for (quint32 i = 0; i < singleCount && in.isGood(); ++i) {
        const bool isUnusable = in.takeByte() & unusableFlag;
        module.addSingle(in.takeBytes(), isUnusable);
    }
    const quint32 busCount = in.takeCount(1 + 3 * sizeof(quint32));
    for (quint32 i = 0; i < busCount && in.isGood(); ++i)
        takeBus(in, &module);
    module.squeeze();
    return module;
}

static ModuleTable takeTable(ByteReader &in)
{
    ModuleTable table;
    table.top = in.takeNumber();
    const quint32 count = in.takeCount(1 + 4 * sizeof(quint32));
    for (quint32 i = 0; i < count && in.isGood(); ++i)
        table.modules.push_back(takeModule(in, count));
    if (table.top >= count || !in.isGood() || instanceCounts(table).empty())
        in.fail();
    return table;
}

QByteArray writeArchive(const QByteArray &key, const ReadManifest &manifest, const ReadResult &result, qint64 maxBytes)
{
    ByteWriter body(maxBytes - magicBytes - checksumBytes);
    body.putBytes(key);
    manifest.write(body);
    body.putTexts(result.tops);
    body.putTexts(result.modules);
    body.putTexts(result.messages);
    body.putByte(result.table ? 1 : 0);
    if (result.table)
        putTable(*result.table, body);
    if (body.isFull())
        return {};
    return magic + checksum(body.bytes()) + body.bytes();
}

std::optional<ReadResult> readArchive(const QByteArray &bytes, const QByteArray &key, ReadManifest *manifest)
{
    constexpr int headBytes = magicBytes + checksumBytes;
    if (!bytes.startsWith(magic) || bytes.size() < headBytes)
        return {};
    const auto body = QByteArray::fromRawData(bytes.constData() + headBytes, bytes.size() - headBytes); // can be large
    if (bytes.mid(magicBytes, checksumBytes) != checksum(body))
        return {};
    ByteReader in(body);
    if (in.takeBytes() != key)
        return {};
    manifest->read(in);
    ReadResult result;
    result.tops = in.takeTexts();
    result.modules = in.takeTexts();
    result.messages = in.takeTexts();
    if (in.takeByte() != 0)
        result.table = takeTable(in);
    if (!in.isGood() || !in.isAtEnd())
        return {};
    return result;
}

} // namespace NETCATCHER

// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

// Takes any bytes for the body of a cache entry, behind a checksum that is right, and asks what is read for everything.

#include "hostlibs/netcatcher/cache/netlistarchive.h"
#include "hostlibs/netcatcher/cache/readmanifest.h"
#include "hostlibs/netcatcher/store/netstore.h"

#include <QCryptographicHash>

#include <cstddef>
#include <cstdint>

using namespace NETCATCHER;

static const QByteArray head = QByteArrayLiteral("RtlVakIns netlist 1\n");
/// A design with more instances would only keep the fuzzer busy.
constexpr quint64 fewInstances = 10000;

static void askForEverything(ReadResult result)
{
    if (!result.table || instanceCounts(*result.table)[result.table->top] > fewInstances)
        return;
    QString error;
    auto data = std::make_unique<RtlNetlist::Data>();
    data->store = NetStore::build(std::move(*result.table), &error);
    if (!data->store)
        return;
    const RtlNetlist netlist(std::move(data));
    for (const RtlNet *net : netlist.topHierarchy()->singleNetsIncludeSub())
        netlist.findNet(net->fullPathName());
    for (const RtlNetBus *bus : netlist.topHierarchy()->netbusesIncludeSub())
        netlist.findNet(bus->fullBusName());
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *bytes, std::size_t size)
{
    const QByteArray key(64, 'a');
    QByteArray body(4, '\0');
    body[0] = char(key.size());
    body += key + QByteArray(reinterpret_cast<const char *>(bytes), int(size));
    ReadManifest manifest;
    const auto result =
        readArchive(head + QCryptographicHash::hash(body, QCryptographicHash::Sha256) + body, key, &manifest);
    if (result)
        askForEverything(*result);
    return 0;
}

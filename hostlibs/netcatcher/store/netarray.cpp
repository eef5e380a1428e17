// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "netarray.h"

#include <new>

#include <sys/mman.h>

namespace NETCATCHER {

static_assert(sizeof(RtlNet) == 8 && sizeof(RtlNetBus) == 8, "a million nets are affordable because a handle is small");

ZeroPages::~ZeroPages()
{
    if (m_data)
        munmap(m_data, m_size);
}

bool ZeroPages::reserve(std::size_t size)
{
    if (size == 0)
        return true;
    void *pages = mmap(nullptr, size, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
    if (pages == MAP_FAILED)
        return false;
    m_data = static_cast<std::byte *>(pages);
    m_size = size;
    return true;
}

bool NetArray::reserve(quint64 singles, quint64 bits, quint64 buses)
{
    m_singleCount = singles;
    return m_nets.reserve((singles + bits) * sizeof(RtlNet)) && m_buses.reserve(buses * sizeof(RtlNetBus));
}

RtlNet *NetArray::netAt(quint64 index) const
{
    return reinterpret_cast<RtlNet *>(m_nets.data() + index * sizeof(RtlNet));
}

RtlNet *NetArray::makeSingle(quint64 index, quint64 handle)
{
    auto *net = new (m_nets.data() + index * sizeof(RtlNet)) RtlNet;
    net->handle = handle;
    return net;
}

RtlNet *NetArray::bit(quint64 index, quint64 handle)
{
    RtlNet *existing = netAt(m_singleCount + index);
    return existing->handle != 0 ? existing : makeSingle(m_singleCount + index, handle);
}

RtlNetBus *NetArray::makeBus(quint64 index, quint64 handle)
{
    auto *bus = new (m_buses.data() + index * sizeof(RtlNetBus)) RtlNetBus;
    bus->handle = handle;
    return bus;
}

RtlNet *NetArray::single(quint64 index) const
{
    return netAt(index);
}

RtlNetBus *NetArray::bus(quint64 index) const
{
    return reinterpret_cast<RtlNetBus *>(m_buses.data() + index * sizeof(RtlNetBus));
}

bool NetArray::holds(const void *address) const
{
    const auto *byte = static_cast<const std::byte *>(address);
    return (byte >= m_nets.data() && byte < m_nets.data() + m_nets.size()) ||
           (byte >= m_buses.data() && byte < m_buses.data() + m_buses.size());
}

} // namespace NETCATCHER

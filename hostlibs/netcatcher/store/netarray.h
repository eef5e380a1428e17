// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <netcatcher/rtlnetlist.h>

#include <cstddef>

namespace NETCATCHER {

/// A block of address space that reads as zeros; pages take memory only once they are written.
class ZeroPages
{
public:
    ZeroPages() = default;
    ~ZeroPages();
    ZeroPages(const ZeroPages &) = delete;
    ZeroPages &operator=(const ZeroPages &) = delete;

    /// Reserves `size` bytes; false when the system refuses.
    bool reserve(std::size_t size);
    std::byte *data() const { return m_data; }
    std::size_t size() const { return m_size; }

private:
    std::byte *m_data = nullptr;
    std::size_t m_size = 0;
};

/// The handle objects of one netlist, each kind in one contiguous block. Single nets come first, then the bits of all
/// buses; a bit is made when it is first asked for.
class NetArray
{
public:
    /// Reserves room; false when the system refuses.
    bool reserve(quint64 singles, quint64 bits, quint64 buses);

    RtlNet *makeSingle(quint64 index, quint64 handle);
    /// The bit at `index`, made with `handle` unless it exists already; a bit's handle is never 0.
    RtlNet *bit(quint64 index, quint64 handle);
    RtlNetBus *makeBus(quint64 index, quint64 handle);

    RtlNet *single(quint64 index) const;
    RtlNetBus *bus(quint64 index) const;

    bool holds(const void *address) const;

private:
    RtlNet *netAt(quint64 index) const;

    ZeroPages m_nets;
    ZeroPages m_buses;
    quint64 m_singleCount = 0;
};

} // namespace NETCATCHER

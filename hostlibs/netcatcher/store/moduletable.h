// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <netcatcher/rtlnetlist.h>

#include <QByteArray>
#include <QString>

#include <optional>
#include <string_view>
#include <vector>

namespace NETCATCHER {

/// A bus as its module declares it.
struct BusDef
{
    /// How the name of the whole bus is made.
    enum Form : quint8 {
        Vector, ///< base name and range; the bits exist
        Capped, ///< base name and range, too wide to be taken apart
        Memory, ///< the name holds all dimensions; there are no bits
    };

    quint32 firstBit = 0; ///< position among the module's bits
    quint32 nameEnd = 0;  ///< end of its name in the module's name arena
    qint32 left = 0;
    qint32 right = 0;
    Form form = Vector;
    bool unusable = false;

    /// The number of its bits that exist; 0 unless it is a Vector.
    quint32 bitCount() const;
    /// The declared index of the bit at `position`, counted from the left end.
    qint32 indexAt(quint32 position) const;
};

/// The nets, buses and instances that one module declares: everything that its instances have in common, stored once.
/// Names are local to the module and lie in one block of UTF-8.
class ModuleDef
{
public:
    /// An instance of another module of the same table.
    struct Child
    {
        QByteArray name;
        quint32 module = 0; ///< index in the table
    };

    QString name; ///< as its author wrote it
    bool blackBox = false;
    std::vector<Child> children; ///< in the order of the source

    void addSingle(const QByteArray &netName, bool unusable);
    void addBus(const QByteArray &baseName, qint32 left, qint32 right, bool unusable);
    /// Adds a bus that is listed whole and never taken apart, as memories are.
    void addWhole(const QByteArray &wholeName, BusDef::Form form, qint32 left = 0, qint32 right = 0);

    quint32 singleCount() const { return quint32(singleEnds.size()); }
    quint32 busCount() const { return quint32(buses.size()); }
    quint32 bitCount() const { return bits; }

    /// Names without their ranges, in the module's own memory.
    QByteArray singleText(quint32 index) const;
    QByteArray busText(quint32 index) const;

    QString singleName(quint32 index) const;
    bool isSingleUnusable(quint32 index) const;
    /// The bus's name with its range: `pc[31:0]`.
    QString busName(quint32 index) const;
    QString bitName(quint32 bit) const;
    const BusDef &bus(quint32 index) const { return buses[index]; }
    /// The bus that owns the module's bit number `bit`.
    quint32 busOfBit(quint32 bit) const;

    /// The single net named `netName`, if there is one. The first call sorts an index of the names.
    std::optional<quint32> findSingle(const QByteArray &netName) const;
    /// The bit named `bitName`, written exactly as bitName() writes it.
    std::optional<quint32> findBit(const QByteArray &bitName) const;

    /// What one instance of the module contributes.
    NetCounts counts() const;

    /// Gives back what the containers hold beyond their content.
    void squeeze();

private:
    // The same as singleText() and busText(), without an object for each.
    std::string_view singleView(quint32 index) const;
    std::string_view busView(quint32 index) const;

    QByteArray singleArena;
    QByteArray busArena;
    std::vector<quint32> singleEnds; ///< end in the arena, shifted by one; the lowest bit marks the unusable
    std::vector<BusDef> buses;
    quint32 bits = 0;
    mutable std::vector<quint32> singleOrder; ///< indices sorted by name, made by the first search
    mutable std::vector<quint32> busOrder;
};

/// The modules of a design, and where its hierarchy begins. Any engine's reader can fill it.
struct ModuleTable
{
    std::vector<ModuleDef> modules;
    quint32 top = 0;
};

/// The number of instances that each module brings, itself included; saturates above maxInstances instead of
/// overflowing. Empty when a module holds itself, which no elaborated design does but a damaged one might say.
std::vector<quint64> instanceCounts(const ModuleTable &table);

constexpr quint64 maxInstances = 100u * 1000 * 1000;

/// The widest bus that is taken apart into bits.
constexpr quint32 maxBusBits = 1u << 20;

} // namespace NETCATCHER

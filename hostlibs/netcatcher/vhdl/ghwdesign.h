// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QByteArray>
#include <QVector>

#include <vector>

namespace NETCATCHER {

/// The range of a scalar type or of one index: `7 downto 0`. Enumerations count by position, physical types in their
/// primary unit.
struct GhwRange
{
    qint64 left = 0;
    qint64 right = 0;
    bool isDescending = false;

    /// How many values there are; 0 for a null range (`0 to -1`). Capped at the largest qint64.
    qint64 length() const;
};

/// One index of an array.
struct GhwDimension
{
    GhwRange range;
    int indexType = -1; ///< what indexTextOf() needs: an array can be indexed by an enumeration
};

/// A field of a record.
struct GhwField
{
    QByteArray name;
    int type = -1;
};

/// One entry of the type table. What a signal's type leads to always has bounds: where the source gives them only with
/// the object (`signal a : rows(0 to 1)(7 downto 0)`), the reader has made the element's own entry.
struct GhwType
{
    enum Kind : quint8 {
        Enumeration,
        Integer,
        Physical,
        Real,
        Array,
        Record,
        Unbounded, ///< an array or record that still lacks bounds; no signal has this type
    };
    enum WellKnown : quint8 { NotKnown, Boolean, Bit, StdUlogic };

    Kind kind = Unbounded;
    WellKnown wellKnown = NotKnown;   ///< of a subtype as of its base: std_logic is StdUlogic, too
    QByteArray name;                  ///< as declared; of an anonymous subtype the base's
    QVector<QByteArray> literals;     ///< Enumeration: all of the base type, even where a subtype takes only some
    GhwRange range;                   ///< Enumeration, Integer and Physical
    QVector<GhwDimension> dimensions; ///< Array: at least one, the leftmost first
    int element = -1;                 ///< Array: a type before this one
    QVector<GhwField> fields;         ///< Record: of types before this one
    qint64 leaves = 0;                ///< scalars in an object of this type, at most 2147483647

    /// Whether one net holds it: bit, boolean, std_ulogic and what is derived of them, and an enumeration of at most
    /// two literals.
    bool isBit() const;
    bool isScalar() const { return kind <= Real; }
    /// The bits that a scalar takes: 1 for isBit(), else as many as number an enumeration's literals or hold an
    /// integer's range (two's complement when it has negative values); at least 1. 0 for physical types, reals and
    /// composites.
    int encodedBits() const;
};

/// Leaves whose numbers follow each other.
struct GhwRun
{
    quint32 first = 0;
    quint32 count = 0;
};

/// A signal or port. Its leaves are its scalars in the order of the source, records by field and arrays from the left,
/// the rightmost index counting fastest. Signals that share a leaf's number are one there: so are ports connected.
struct GhwSignal
{
    enum Kind : quint8 { Internal, In, Out, Inout, Buffer, Linkage };

    QByteArray name;
    Kind kind = Internal;
    int type = -1;
    quint32 firstRun = 0; ///< in GhwDesign::runs
    quint32 runCount = 0; ///< 0 for a null range
};

/// A package, an instance or what else has names of its own.
struct GhwScope
{
    enum Kind : quint8 {
        Root, ///< only the first: what holds the packages and the design's top
        Design,
        Block,
        IfGenerate, ///< the alternative's own label is not told; a case generate is not in the file at all
        ForGenerate,
        Instance, ///< of an entity or a component; the top, too. A component without an entity has nothing in it
        Package,
        Process,
    };

    Kind kind = Root;
    QByteArray name;  ///< lower case but for extended identifiers, which keep their backslashes
    QByteArray index; ///< ForGenerate: the parameter's value: `0`, `-1`, `idle`, `'a'`
    int parent = -1;  ///< always less than the scope's own place
    std::vector<int> children;
    std::vector<GhwSignal> signalList;
};

/// What a GHW file says about a design. Names are Latin-1.
struct GhwDesign
{
    std::vector<GhwScope> scopes; ///< in file order, the first is the root
    std::vector<GhwType> types;   ///< each refers to earlier ones only; nested at most 64 deep
    std::vector<GhwRun> runs;
    quint32 leafCount = 0; ///< leaves are numbered from 1 to this

    /// The numbers of a signal's leaves, in order.
    std::vector<quint32> leavesOf(const GhwSignal &signal) const;
    /// A value as the source writes it: a literal for an enumeration, else the number.
    QByteArray indexTextOf(int type, qint64 value) const;
};

} // namespace NETCATCHER

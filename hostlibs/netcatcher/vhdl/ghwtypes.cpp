// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "ghwtypes.h"

#include "ghwcursor.h"

#include <limits>

namespace NETCATCHER {

/// What an entry of the file's table is.
enum TypeCode : quint8 {
    TwoLiterals = 22,
    ManyLiterals = 23,
    Integer32 = 25,
    Integer64 = 26,
    Float64 = 27,
    Physical32 = 28,
    Physical64 = 29,
    ArrayType = 31,
    RecordType = 32,
    ScalarSubtype = 34,
    ArraySubtype = 35,
    UnboundedArraySubtype = 37,
    RecordSubtype = 38,
    UnboundedRecordSubtype = 39,
};

/// Far above any design that the engine gets through; entries are larger than the bytes that a forged file spends on
/// them.
static constexpr size_t maxTypes = 1 << 20;
static constexpr qint64 maxCopiedFields = 1 << 22;
/// Whoever follows a type may recurse.
static constexpr int maxDepth = 64;
/// A signal with more leaves than a file has bytes is refused, so that more need not be told apart.
static constexpr qint64 maxLeaves = std::numeric_limits<qint32>::max();
/// A mark in the kind of a range.
static constexpr quint8 descendingMark = 0x80;

GhwTypes::GhwTypes(GhwCursor &in, const QVector<QByteArray> &strings, GhwDesign &design)
    : m_in(in)
    , m_strings(strings)
    , m_design(design)
{
}

bool GhwTypes::readTypes()
{
    m_in.expect(QByteArray(4, '\0'));
    const quint32 count = m_in.takeWord();
    m_in.expectEntries(count);
    for (quint32 i = 0; i != count && m_in.isGood(); ++i) {
        if (readType())
            m_fileTypes.push_back(lastType());
    }
    return m_in.expect(QByteArray(1, '\0'));
}

bool GhwTypes::readType()
{
    const quint8 code = m_in.takeByte();
    switch (code) {
    case TwoLiterals:
    case ManyLiterals:
        return readEnumeration(code);
    case Integer32:
    case Integer64:
    case Float64:
    case Physical32:
    case Physical64:
        return readNumeric(code);
    case ArrayType:
        return readArray();
    case RecordType:
        return readRecord();
    case ScalarSubtype:
        return readScalarSubtype();
    case ArraySubtype:
    case RecordSubtype:
        return readBoundedSubtype(code == ArraySubtype);
    case UnboundedArraySubtype:
    case UnboundedRecordSubtype:
        return readUnboundedSubtype(code == UnboundedArraySubtype);
    default:
        return m_in.fail(QStringLiteral("no type is of kind %1").arg(code));
    }
}

bool GhwTypes::readEnumeration(quint8 code)
{
    GhwType type;
    type.kind = GhwType::Enumeration;
    type.name = takeName();
    const quint32 count = m_in.takeNumber();
    if (!count || !m_in.expectEntries(count))
        return m_in.fail(QStringLiteral("an enumeration has no literals"));
    for (quint32 i = 0; i != count && m_in.isGood(); ++i)
        type.literals.append(takeName());
    type.range.right = type.literals.size() - 1;
    type.leaves = 1;
    return append(type, {code, -1, 0});
}

bool GhwTypes::readNumeric(quint8 code)
{
    GhwType type;
    type.name = takeName();
    type.leaves = 1;
    const bool isShort = code == Integer32 || code == Physical32;
    type.range.left = isShort ? std::numeric_limits<qint32>::min() : std::numeric_limits<qint64>::min();
    type.range.right = isShort ? std::numeric_limits<qint32>::max() : std::numeric_limits<qint64>::max();
    if (code == Integer32 || code == Integer64) {
        type.kind = GhwType::Integer;
    } else if (code == Float64) {
        type.kind = GhwType::Real;
        type.range = {};
    } else {
        type.kind = GhwType::Physical;
        skipUnits();
    }
    return append(type, {code, -1, 0});
}

void GhwTypes::skipUnits()
{
    const quint32 count = m_in.takeNumber();
    for (quint32 i = 0; i != count && m_in.isGood(); ++i) {
        takeName();
        m_in.takeSigned();
    }
}

bool GhwTypes::readArray()
{
    GhwType type;
    type.name = takeName();
    type.element = takeType();
    const quint32 count = m_in.takeNumber();
    if (!count || !m_in.expectEntries(count))
        return m_in.fail(QStringLiteral("an array has no index"));
    for (quint32 i = 0; i != count && m_in.isGood(); ++i)
        type.dimensions.append({{}, takeType()});
    return appendComposite(type);
}

bool GhwTypes::readRecord()
{
    GhwType type;
    type.name = takeName();
    const quint32 count = m_in.takeNumber();
    if (!count || !m_in.expectEntries(count))
        return m_in.fail(QStringLiteral("a record has no fields"));
    type.kind = GhwType::Record;
    for (quint32 i = 0; i != count && m_in.isGood(); ++i) {
        const QByteArray name = takeName();
        type.fields.append({name, takeType()});
        if (m_in.isGood() && typeAt(type.fields.last().type).kind == GhwType::Unbounded)
            type.kind = GhwType::Unbounded;
    }
    return appendComposite(type);
}

bool GhwTypes::readScalarSubtype()
{
    const QByteArray name = takeName();
    const int base = takeType();
    if (!m_in.isGood())
        return false;
    GhwType type = typeAt(base);
    if (!type.isScalar())
        return m_in.fail(QStringLiteral("a scalar is derived of a composite"));
    if (!name.isEmpty())
        type.name = name;
    const Note note = noteAt(base);
    if (note.code == Float64)
        m_in.skip(1 + 2 * int(sizeof(double)));
    else
        type.range = takeRange(base);
    return append(type, note);
}

bool GhwTypes::readBoundedSubtype(bool isArray)
{
    const QByteArray name = takeName();
    const int base = takeComposite(isArray);
    if (!m_in.isGood())
        return false;
    if (typeAt(base).kind != GhwType::Unbounded)
        append(typeAt(base), noteAt(base));
    else
        withBounds(base);
    if (m_in.isGood() && !name.isEmpty())
        typeAt(lastType()).name = name;
    return m_in.isGood();
}

bool GhwTypes::readUnboundedSubtype(bool isArray)
{
    const QByteArray name = takeName();
    const int base = takeComposite(isArray);
    if (!m_in.isGood())
        return false;
    GhwType type = typeAt(base);
    if (!name.isEmpty())
        type.name = name;
    return append(type, noteAt(base));
}

int GhwTypes::takeComposite(bool isArray)
{
    const int type = takeType();
    if (m_in.isGood()) {
        const GhwType &base = typeAt(type);
        // An array type of the source has no bounds: `array (0 to 3) of bit` makes an unnamed one and a subtype of it.
        const bool fits = isArray ? base.kind == GhwType::Unbounded && base.fields.isEmpty() : !base.fields.isEmpty();
        if (!fits)
            m_in.fail(QStringLiteral("a subtype is of another kind than its base"));
    }
    return type;
}

int GhwTypes::withBounds(int type)
{
    GhwType bounded = typeAt(type);
    if (bounded.kind != GhwType::Unbounded)
        return type;
    if (bounded.fields.isEmpty())
        boundArray(&bounded);
    else
        boundRecord(&bounded);
    return m_in.isGood() && appendComposite(bounded) ? lastType() : type;
}

void GhwTypes::boundArray(GhwType *array)
{
    for (GhwDimension &dimension : array->dimensions)
        dimension.range = takeRange(dimension.indexType);
    array->element = withBounds(array->element);
    array->kind = GhwType::Array;
}

void GhwTypes::boundRecord(GhwType *record)
{
    m_copiedFields += record->fields.size();
    if (m_copiedFields > maxCopiedFields) {
        m_in.fail(QStringLiteral("there are too many records"));
        return;
    }
    for (GhwField &field : record->fields) {
        if (m_in.isGood())
            field.type = withBounds(field.type);
    }
    record->kind = GhwType::Record;
}

GhwRange GhwTypes::takeRange(int type)
{
    const quint8 code = m_in.takeByte();
    if (m_in.isGood() && (code & ~descendingMark) != noteAt(type).code)
        m_in.fail(QStringLiteral("a range is of another kind than its type"));
    GhwRange range;
    range.isDescending = code & descendingMark;
    range.left = takeValue(type);
    range.right = takeValue(type);
    return range;
}

qint64 GhwTypes::takeValue(int type)
{
    if (!m_in.isGood())
        return 0;
    switch (noteAt(type).code) {
    case TwoLiterals:
    case ManyLiterals: {
        const qint64 value = m_in.takeByte();
        return value < typeAt(type).literals.size() ? value : m_in.fail(QStringLiteral("an enumeration ends before"));
    }
    case Integer32:
    case Integer64:
    case Physical32:
    case Physical64:
        return m_in.takeSigned();
    default:
        return m_in.fail(QStringLiteral("an index has another type than a discrete one"));
    }
}

bool GhwTypes::appendComposite(GhwType type)
{
    if (!m_in.isGood())
        return false;
    const auto multiplied = [](qint64 a, qint64 b) { return a && b > maxLeaves / a ? maxLeaves : a * b; };
    int depth = 0;
    type.leaves = 0;
    if (type.fields.isEmpty()) {
        depth = noteAt(type.element).depth;
        type.leaves = type.kind == GhwType::Array ? typeAt(type.element).leaves : 0;
        for (const GhwDimension &dimension : qAsConst(type.dimensions))
            type.leaves = multiplied(type.leaves, dimension.range.length());
    }
    for (const GhwField &field : qAsConst(type.fields)) {
        depth = qMax(depth, noteAt(field.type).depth);
        type.leaves = qMin(maxLeaves, type.leaves + typeAt(field.type).leaves);
    }
    return append(type, {0, -1, depth + 1});
}

bool GhwTypes::append(GhwType type, Note note)
{
    if (!m_in.isGood())
        return false;
    if (m_notes.size() == maxTypes)
        return m_in.fail(QStringLiteral("there are too many types"));
    if (note.depth > maxDepth)
        return m_in.fail(QStringLiteral("types nest too deep"));
    if (note.base < 0)
        note.base = int(m_notes.size());
    m_notes.push_back(note);
    m_design.types.push_back(std::move(type));
    return true;
}

bool GhwTypes::readWellKnown()
{
    m_in.expect(QByteArray(4, '\0'));
    while (const quint8 code = m_in.takeByte()) {
        if (!readWellKnownType(code))
            return false;
    }
    for (size_t i = 0; i != m_notes.size(); ++i)
        m_design.types[i].wellKnown = typeAt(m_notes[i].base).wellKnown;
    return m_in.isGood();
}

bool GhwTypes::readWellKnownType(quint8 code)
{
    const int type = takeType();
    if (!m_in.isGood())
        return false;
    if (typeAt(type).kind != GhwType::Enumeration)
        return m_in.fail(QStringLiteral("a well-known type is none of literals"));
    if (code <= GhwType::StdUlogic)
        typeAt(type).wellKnown = GhwType::WellKnown(code);
    return true;
}

QByteArray GhwTypes::takeName()
{
    const quint32 number = m_in.takeNumber();
    if (number < quint32(m_strings.size()))
        return m_strings[int(number)];
    m_in.fail(QStringLiteral("there is no name %1").arg(number));
    return {};
}

int GhwTypes::takeType()
{
    const quint32 number = m_in.takeNumber();
    if (number > 0 && number <= m_fileTypes.size())
        return m_fileTypes[number - 1];
    m_in.fail(QStringLiteral("there is no type %1 yet").arg(number));
    return 0;
}

} // namespace NETCATCHER

// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "vhdltypes.h"

#include "vhdllexer.h"
#include "vhdlscan.h"

#include <limits>

namespace NETCATCHER {

/// One signal gives at most this many entries.
constexpr int maxEntriesPerSignal = 1 << 16;
/// Deeper nesting of types than any design has; guards against a cycle in a damaged type table.
constexpr int maxTypeDepth = 64;
/// Arrays of this size are made into memories where that is possible; smaller ones are pipelines, lanes and the like.
constexpr qint64 leastMemory = 16;

VhdlTypes::VhdlTypes(const GhwDesign &design, const VhdlScan &scan, ModuleDef &target)
    : m_design(design)
    , m_scan(scan)
    , m_module(target)
{
}

const GhwType *VhdlTypes::typeOf(int id) const
{
    return id >= 0 && id < int(m_design.types.size()) ? &m_design.types[std::size_t(id)] : nullptr;
}

void VhdlTypes::add(const QByteArray &name, int type, bool unusable)
{
    m_budget = maxEntriesPerSignal;
    expand(name, type, unusable, 0);
    if (m_budget < 0)
        m_capped.append(name);
}

void VhdlTypes::expand(const QByteArray &name, int typeId, bool unusable, int depth)
{
    const GhwType *type = typeOf(typeId);
    if (!type || depth > maxTypeDepth || --m_budget < 0)
        return;
    switch (type->kind) {
    case GhwType::Enumeration:
    case GhwType::Integer:
        if (type->isBit())
            m_module.addSingle(name, unusable);
        else if (type->encodedBits() > 0)
            addVector(name, type->encodedBits() - 1, 0, unusable);
        break;
    case GhwType::Array:
        expandArray(name, *type, unusable, depth);
        break;
    case GhwType::Record:
        for (const GhwField &field : type->fields) {
            const QByteArray spelled = m_scan.fieldName(vhdlKey(type->name), vhdlKey(field.name));
            expand(name + '.' + vhdlDisplayName(spelled), field.type, unusable, depth + 1);
        }
        break;
    case GhwType::Physical:
    case GhwType::Real:
    case GhwType::Unbounded:
        break;
    }
}

/// Strings are for people, not for hardware.
bool VhdlTypes::isText(const GhwType &type) const
{
    const GhwType *element = typeOf(type.element);
    return element && element->kind == GhwType::Enumeration && element->name == "character";
}

bool VhdlTypes::isMemory(const GhwType &type) const
{
    qint64 elements = 1;
    for (const GhwDimension &dimension : type.dimensions) {
        if (dimension.range.length() >= leastMemory)
            return true;
        elements *= dimension.range.length();
    }
    return elements >= leastMemory;
}

void VhdlTypes::expandArray(const QByteArray &name, const GhwType &type, bool unusable, int depth)
{
    const GhwType *element = typeOf(type.element);
    if (!element || type.dimensions.empty() || isText(type))
        return;
    for (const GhwDimension &dimension : type.dimensions) {
        if (dimension.range.length() == 0)
            return;
    }
    if (element->isBit() && type.dimensions.size() == 1) {
        addVector(name, type.dimensions[0].range.left, type.dimensions[0].range.right, unusable);
        return;
    }
    if (isMemory(type))
        m_module.addWhole(name + dimensions(type), BusDef::Memory);
    else
        expandDimension(name, type, 0, unusable, depth);
}

/// Each value of one index; the bits of the last dimension of an array of bits make a bus.
void VhdlTypes::expandDimension(const QByteArray &name, const GhwType &type, int dimension, bool unusable, int depth)
{
    const GhwRange range = type.dimensions[dimension].range;
    const bool isLast = dimension + 1 == type.dimensions.size();
    if (isLast && m_design.types[std::size_t(type.element)].isBit()) {
        addVector(name, range.left, range.right, unusable);
        return;
    }
    const int step = range.isDescending ? -1 : 1;
    qint64 value = range.left;
    for (qint64 i = range.length(); i > 0 && m_budget >= 0; --i, value += step) {
        const QByteArray index = indexText(type.dimensions[dimension], value);
        const QByteArray element = name + '[' + index + ']';
        if (isLast)
            expand(element, type.element, unusable, depth + 1);
        else
            expandDimension(element, type, dimension + 1, unusable, depth + 1);
    }
}

void VhdlTypes::addVector(const QByteArray &name, qint64 left, qint64 right, bool unusable)
{
    using Limits = std::numeric_limits<qint32>;
    if (left < Limits::min() || left > Limits::max() || right < Limits::min() || right > Limits::max())
        return;
    m_module.addBus(name, qint32(left), qint32(right), unusable);
    if (m_module.bus(m_module.busCount() - 1).form == BusDef::Capped)
        m_capped.append(name);
}

/// Arrays can be indexed by enumerations.
QByteArray VhdlTypes::indexText(const GhwDimension &dimension, qint64 value) const
{
    return vhdlDisplayName(m_scan.literalName(m_design.indexTextOf(dimension.indexType, value)));
}

/// All ranges of a memory in the order in which they are written behind its name to reach one bit.
QByteArray VhdlTypes::dimensions(const GhwType &type) const
{
    QByteArray text;
    const GhwType *each = &type;
    for (int depth = 0; each && each->kind == GhwType::Array && depth < maxTypeDepth; ++depth) {
        for (const GhwDimension &dimension : each->dimensions)
            text += '[' + indexText(dimension, dimension.range.left) + ':' +
                    indexText(dimension, dimension.range.right) + ']';
        each = typeOf(each->element);
    }
    return text;
}

} // namespace NETCATCHER

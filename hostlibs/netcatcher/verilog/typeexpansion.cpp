// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "typeexpansion.h"

namespace NETCATCHER {

/// One variable gives at most this many entries.
constexpr int maxEntriesPerVariable = 1 << 16;
/// Deeper nesting of types than any language front end accepts; guards against a cycle in a damaged type table.
constexpr int maxTypeDepth = 64;

TypeExpansion::TypeExpansion(const QHash<int, RawType> &typeTable, ModuleDef &target)
    : m_types(typeTable)
    , m_module(target)
{
}

/// The type behind aliases; null for one that the table does not hold.
const RawType *TypeExpansion::resolve(int type) const
{
    for (int depth = 0; depth < maxTypeDepth; ++depth) {
        const auto found = m_types.constFind(type);
        if (found == m_types.constEnd())
            return nullptr;
        if (found->kind != RawType::Alias)
            return &*found;
        type = found->element;
    }
    return nullptr;
}

void TypeExpansion::add(const QByteArray &name, int type, bool unusable)
{
    m_budget = maxEntriesPerVariable;
    expand(name, type, unusable, 0);
    if (m_budget < 0)
        m_capped.append(name);
}

void TypeExpansion::expand(const QByteArray &name, int typeId, bool unusable, int depth)
{
    const RawType *type = resolve(typeId);
    if (!type || depth > maxTypeDepth || --m_budget < 0)
        return;
    switch (type->kind) {
    case RawType::Scalar:
        m_module.addSingle(name, unusable);
        break;
    case RawType::Vector:
        addVector(name, type->left, type->right, unusable);
        break;
    case RawType::PackedArray:
        expandPacked(name, *type, unusable, depth);
        break;
    case RawType::UnpackedArray:
        m_module.addWhole(name + dimensions(type), BusDef::Memory);
        break;
    case RawType::Struct:
        for (const RawType::Member &member : type->members)
            expand(name + '.' + member.name, member.type, unusable, depth + 1);
        break;
    case RawType::Handle:
        m_module.addSingle(name, true);
        break;
    case RawType::Alias:
    case RawType::NotANet:
        break;
    }
}

void TypeExpansion::expandPacked(const QByteArray &name, const RawType &type, bool unusable, int depth)
{
    const RawType *element = resolve(type.element);
    if (element && element->kind == RawType::Scalar) {
        addVector(name, type.left, type.right, unusable);
        return;
    }
    const int step = type.left <= type.right ? 1 : -1;
    for (int i = type.left; m_budget >= 0; i += step) {
        expand(name + '[' + QByteArray::number(i) + ']', type.element, unusable, depth + 1);
        if (i == type.right)
            break;
    }
}

void TypeExpansion::addVector(const QByteArray &name, int left, int right, bool unusable)
{
    m_module.addBus(name, left, right, unusable);
    if (m_module.bus(m_module.busCount() - 1).form == BusDef::Capped)
        m_capped.append(name);
}

/// All ranges of an array in the order in which they are written behind a name to reach one bit.
QByteArray TypeExpansion::dimensions(const RawType *type) const
{
    QByteArray text;
    for (int depth = 0; type && depth < maxTypeDepth; ++depth) {
        const bool isArray = type->kind == RawType::UnpackedArray || type->kind == RawType::PackedArray;
        if (!isArray && type->kind != RawType::Vector)
            break;
        text += '[' + QByteArray::number(type->left) + ':' + QByteArray::number(type->right) + ']';
        type = isArray ? resolve(type->element) : nullptr;
    }
    return text;
}

} // namespace NETCATCHER

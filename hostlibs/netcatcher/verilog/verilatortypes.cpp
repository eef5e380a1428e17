// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "verilatortypes.h"

#include <QXmlStreamAttributes>

namespace NETCATCHER {

VerilatorTypes::VerilatorTypes(QHash<int, RawType> &table)
    : m_table(table)
{
}

static RawType::Kind basicKind(const QStringRef &name, bool hasRange)
{
    for (const char *other : {"string", "event", "real", "realtime", "shortreal", "double"}) {
        if (name == QLatin1String(other))
            return RawType::NotANet;
    }
    if (name == QLatin1String("chandle"))
        return RawType::Handle;
    return hasRange ? RawType::Vector : RawType::Scalar;
}

static RawType::Kind kindOf(Tag tag, const QXmlStreamAttributes &attributes)
{
    switch (tag) {
    case Tag::BasicType:
        return basicKind(attributes.value(QLatin1String("name")), attributes.hasAttribute(QLatin1String("left")));
    case Tag::AliasType:
    case Tag::MemberType:
        return RawType::Alias;
    case Tag::PackedArrayType:
        return RawType::PackedArray;
    case Tag::UnpackedArrayType:
        return RawType::UnpackedArray;
    case Tag::StructType:
        return RawType::Struct;
    case Tag::HandleType:
        return RawType::Handle;
    default:
        return RawType::NotANet;
    }
}

void VerilatorTypes::add(Tag tag, Tag parent, const QXmlStreamAttributes &attributes)
{
    const auto number = [&attributes](const char *name) { return attributes.value(QLatin1String(name)).toInt(); };
    if (tag == Tag::MemberType && parent == Tag::StructType) {
        m_table[m_last].members.push_back({attributes.value(QLatin1String("name")).toUtf8(), number("sub_dtype_id")});
        return;
    }
    RawType type;
    type.kind = kindOf(tag, attributes);
    type.left = number("left");
    type.right = number("right");
    type.element = number("sub_dtype_id");
    m_last = number("id");
    m_table.insert(m_last, type);
}

void VerilatorTypes::setBound(int position, int value)
{
    RawType &type = m_table[m_last];
    (position == 0 ? type.left : type.right) = value;
}

} // namespace NETCATCHER

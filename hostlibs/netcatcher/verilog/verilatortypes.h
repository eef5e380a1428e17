// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "rawdesign.h"
#include "verilatortags.h"

class QXmlStreamAttributes;

namespace NETCATCHER {

/// Collects the type table of Verilator's XML, element by element.
class VerilatorTypes
{
public:
    explicit VerilatorTypes(QHash<int, RawType> &table);

    /// Takes an element of the table; `parent` is the element that it stands in.
    void add(Tag tag, Tag parent, const QXmlStreamAttributes &attributes);
    /// Sets the left (`position` 0) or right bound of the array that was added last.
    void setBound(int position, int value);

private:
    QHash<int, RawType> &m_table;
    int m_last = 0;
};

} // namespace NETCATCHER

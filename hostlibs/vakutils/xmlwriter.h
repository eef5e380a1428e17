// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "xmltext.h"

#include <VakUtils/signalitem.h>

#include <QByteArray>

namespace VAK {

/// Writes an indented document, an element a line.
class XmlWriter
{
public:
    XmlWriter();

    void open(const QString &name, const XmlText::Attributes &attributes);
    /// Writes what is foreign in the open element, after its known children.
    void foreignElements(const QString &xml);
    void close();
    QByteArray toUtf8() const;

private:
    void beginChild();

    XmlText m_text;
    QList<bool> m_hasChildren; ///< of each open element
};

} // namespace VAK

// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "xmlwriter.h"

namespace VAK {

static constexpr int indentStep = 2;

XmlWriter::XmlWriter()
{
    m_text.append(QStringLiteral("<?xml version=\"1.0\" encoding=\"UTF-8\"?>"));
}

void XmlWriter::beginChild()
{
    if (!m_hasChildren.isEmpty())
        m_hasChildren.last() = true;
    m_text.breakLine(m_hasChildren.size() * indentStep);
}

void XmlWriter::open(const QString &name, const XmlText::Attributes &attributes)
{
    beginChild();
    m_text.open(name, attributes);
    m_hasChildren.append(false);
}

void XmlWriter::foreignElements(const QString &xml)
{
    if (xml.isEmpty())
        return;
    const QStringList elements = splitElements(xml);
    for (const QString &element : elements) {
        beginChild();
        m_text.append(element);
    }
}

void XmlWriter::close()
{
    if (m_hasChildren.takeLast())
        m_text.breakLine(m_hasChildren.size() * indentStep);
    m_text.close();
}

QByteArray XmlWriter::toUtf8() const
{
    return (m_text.toString() + QLatin1Char('\n')).toUtf8();
}

} // namespace VAK

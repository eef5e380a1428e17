// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "xmlelement.h"

#include "xmlcursor.h"

#include <limits>

namespace VAK {

XmlElement::XmlElement(XmlCursor *cursor, const QString &name, int line, int column,
                       const QList<QPair<QString, QString>> &attributes)
    : m_cursor(cursor)
    , m_name(name)
    , m_line(line)
    , m_column(column)
    , m_attributes(attributes)
    , m_read(attributes.size(), false)
{
}

QString XmlElement::tag() const
{
    return QStringLiteral("<%1>").arg(m_name);
}

bool XmlElement::has(const QString &attribute) const
{
    for (const auto &known : m_attributes) {
        if (known.first == attribute)
            return true;
    }
    return false;
}

QString XmlElement::text(const QString &attribute)
{
    for (int i = 0; i < m_attributes.size(); ++i) {
        if (m_attributes.at(i).first == attribute) {
            m_read[i] = true;
            return m_attributes.at(i).second;
        }
    }
    m_cursor->failStructure(m_line, m_column, tag(), QStringLiteral("the attribute \"%1\" in it").arg(attribute));
    return {};
}

int XmlElement::number(const QString &attribute, int least, int most)
{
    const QString value = text(attribute);
    bool ok = false;
    const int number = value.toInt(&ok);
    const bool plain = ok && QString::number(number) == value; // no blanks, signs or leading zeros
    if (plain && number >= least && number <= most)
        return number;
    const QString expected = most == std::numeric_limits<int>::max()
                                 ? QStringLiteral("a whole number from %1").arg(least)
                                 : QStringLiteral("a whole number from %1 to %2").arg(least).arg(most);
    failValue(attribute, value, expected);
    return least;
}

bool XmlElement::flag(const QString &attribute)
{
    return choice(attribute, {QStringLiteral("false"), QStringLiteral("true")}) == 1;
}

int XmlElement::choice(const QString &attribute, const QStringList &words)
{
    const QString value = text(attribute);
    const int index = words.indexOf(value);
    if (index >= 0)
        return index;
    const QStringList others = words.mid(0, words.size() - 1);
    failValue(attribute, value,
              QStringLiteral("\"%1\" or \"%2\"").arg(others.join(QStringLiteral("\", \"")), words.last()));
    return 0;
}

QList<QPair<QString, QString>> XmlElement::unread() const
{
    QList<QPair<QString, QString>> rest;
    for (int i = 0; i < m_attributes.size(); ++i) {
        if (!m_read.at(i))
            rest.append(m_attributes.at(i));
    }
    return rest;
}

void XmlElement::failValue(const QString &attribute, const QString &value, const QString &expected) const
{
    m_cursor->failValue(m_line, m_column, QStringLiteral("%1=\"%2\"").arg(attribute, shortened(value)), expected);
}

} // namespace VAK

// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "xmltext.h"

#include "xmlcursor.h"

#include <algorithm>

namespace VAK {

static bool isXmlCharacter(const QString &text, int i)
{
    const QChar character = text.at(i);
    if (character.isHighSurrogate())
        return i + 1 < text.size() && text.at(i + 1).isLowSurrogate();
    if (character.isLowSurrogate())
        return i > 0 && text.at(i - 1).isHighSurrogate();
    const ushort code = character.unicode();
    return code >= 0x20 ? code < 0xFFFE : code == '\t' || code == '\n' || code == '\r';
}

/// Most names need no second look.
static bool isPlain(const QString &text)
{
    return std::all_of(text.cbegin(), text.cend(), [](QChar character) {
        const ushort code = character.unicode();
        return code >= ' ' && code < 0x7F && code != '&' && code != '<' && code != '>' && code != '"';
    });
}

/// `inAttribute`: blanks other than the space are written as references there, since a reader turns them into spaces.
static QString escaped(const QString &text, bool inAttribute)
{
    if (isPlain(text))
        return text;
    QString result;
    result.reserve(text.size() + 8);
    for (int i = 0; i < text.size(); ++i) {
        const QChar character = text.at(i);
        const ushort code = character.unicode();
        if (code == '&')
            result += QLatin1String("&amp;");
        else if (code == '<')
            result += QLatin1String("&lt;");
        else if (code == '>')
            result += QLatin1String("&gt;");
        else if (code == '"' && inAttribute)
            result += QLatin1String("&quot;");
        else if (code == '\r' || (inAttribute && (code == '\n' || code == '\t')))
            result += QStringLiteral("&#%1;").arg(code);
        else
            result += isXmlCharacter(text, i) ? character : QChar(QChar::ReplacementCharacter);
    }
    return result;
}

void XmlText::endStartTag()
{
    if (m_inStartTag)
        m_text += QLatin1Char('>');
    m_inStartTag = false;
}

void XmlText::open(const QString &name, const Attributes &attributes)
{
    endStartTag();
    m_text += QLatin1Char('<') + name;
    for (const auto &attribute : attributes)
        m_text += QLatin1Char(' ') + attribute.first + QLatin1String("=\"") + escaped(attribute.second, true) +
                  QLatin1Char('"');
    m_open.append(name);
    m_inStartTag = true;
}

void XmlText::characters(const QString &text)
{
    endStartTag();
    m_text += escaped(text, false);
}

void XmlText::breakLine(int indent)
{
    endStartTag();
    m_text += QLatin1Char('\n') + QString(indent, QLatin1Char(' '));
}

void XmlText::close()
{
    const QString name = m_open.takeLast();
    if (m_inStartTag)
        m_text += QLatin1String("/>");
    else
        m_text += QLatin1String("</") + name + QLatin1Char('>');
    m_inStartTag = false;
}

void XmlText::append(const QString &xml)
{
    endStartTag();
    m_text += xml;
}

QStringList splitElements(const QString &xml)
{
    XmlCursor cursor(QByteArrayLiteral("<x>") + xml.toUtf8() + QByteArrayLiteral("</x>"), Checks::Structure);
    QStringList elements;
    if (const auto root = cursor.root()) {
        while (const auto child = cursor.nextChild(*root))
            elements.append(cursor.takeForeign(*child));
    }
    cursor.finish();
    return cursor.failed() ? QStringList() : elements;
}

} // namespace VAK

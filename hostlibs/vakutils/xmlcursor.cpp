// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "xmlcursor.h"

#include "filewords.h"
#include "xmltext.h"

#include <QTextCodec>

#include <cctype>

namespace VAK {

/// Where `data` is no UTF-8: the parser itself would name the place up to which it has read the file.
static FileError encodingError(const QByteArray &data)
{
    static QTextCodec *const utf8 = QTextCodec::codecForName("UTF-8");
    FileError error;
    QTextCodec::ConverterState whole;
    utf8->toUnicode(data.constData(), data.size(), &whole);
    if (whole.invalidChars == 0 && whole.remainingChars == 0)
        return error;
    const QList<QByteArray> lines = data.split('\n');
    for (const QByteArray &line : lines) {
        ++error.line;
        QTextCodec::ConverterState state;
        const QString text = utf8->toUnicode(line.constData(), line.size(), &state);
        if (state.invalidChars > 0 || state.remainingChars > 0) {
            const int broken = text.indexOf(QChar::ReplacementCharacter);
            error.column = (broken < 0 ? text.size() : broken) + 1;
            break;
        }
    }
    error.message = QStringLiteral("found bytes that are no UTF-8, expected UTF-8");
    return error;
}

XmlCursor::XmlCursor(const QByteArray &data, Checks checks)
    : m_data(data)
    , m_xml(data)
    , m_checks(checks)
    , m_error(encodingError(data))
{
    m_xml.setNamespaceProcessing(false); // prefixes of foreign content stay as they are
}

QXmlStreamReader::TokenType XmlCursor::advance()
{
    m_line = int(m_xml.lineNumber());
    m_column = int(m_xml.columnNumber()) + 1;
    if (m_xml.tokenType() == QXmlStreamReader::Characters)
        --m_column; // text ends when the parser has taken the next '<'
    const QXmlStreamReader::TokenType token = m_xml.readNext();
    if (token == QXmlStreamReader::StartElement && ++m_depth > FileWords::MaxDepth) {
        failStructure(m_line, m_column, QStringLiteral("an element at depth %1").arg(m_depth),
                      QStringLiteral("at most %1").arg(FileWords::MaxDepth));
        return QXmlStreamReader::Invalid;
    }
    if (token == QXmlStreamReader::EndElement)
        --m_depth;
    return token;
}

/// The parser passes over the blanks before the root without a token, so that its place is not the last token's end.
void XmlCursor::skipBlanks()
{
    int offset = 0;
    for (int line = 1; line < m_line && offset >= 0; ++line)
        offset = m_data.indexOf('\n', offset) + 1;
    offset += QString::fromUtf8(m_data.mid(offset)).left(m_column - 1).toUtf8().size();
    for (; offset < m_data.size() && std::isspace(uchar(m_data.at(offset))); ++offset) {
        ++m_column;
        if (m_data.at(offset) == '\n') {
            ++m_line;
            m_column = 1;
        }
    }
}

std::optional<XmlElement> XmlCursor::root()
{
    while (!failed()) {
        switch (advance()) {
        case QXmlStreamReader::StartElement:
            skipBlanks();
            return current();
        case QXmlStreamReader::StartDocument: {
            const QString encoding = m_xml.documentEncoding().toString();
            if (!encoding.isEmpty() && encoding.compare(QLatin1String("utf-8"), Qt::CaseInsensitive) != 0) {
                failStructure(1, 1, QStringLiteral("the encoding %1").arg(shortened(encoding)),
                              QStringLiteral("UTF-8"));
            }
            break;
        }
        case QXmlStreamReader::Comment:
        case QXmlStreamReader::ProcessingInstruction:
            break;
        default:
            refuseToken();
        }
    }
    return std::nullopt;
}

std::optional<XmlElement> XmlCursor::nextChild(const XmlElement &parent)
{
    while (!failed()) {
        switch (advance()) {
        case QXmlStreamReader::StartElement:
            return current();
        case QXmlStreamReader::EndElement:
            return std::nullopt;
        case QXmlStreamReader::Characters:
            if (!m_xml.isWhitespace())
                refuseText(parent);
            break;
        case QXmlStreamReader::Comment:
        case QXmlStreamReader::ProcessingInstruction:
            break;
        default:
            refuseToken();
        }
    }
    return std::nullopt;
}

QString XmlCursor::takeForeign(const XmlElement &element)
{
    XmlText text;
    text.open(element.name(), element.unread());
    for (int depth = 1; depth > 0 && !failed();) {
        switch (advance()) {
        case QXmlStreamReader::StartElement:
            text.open(m_xml.qualifiedName().toString(), current().unread());
            ++depth;
            break;
        case QXmlStreamReader::EndElement:
            text.close();
            --depth;
            break;
        case QXmlStreamReader::Characters:
            text.characters(m_xml.text().toString());
            break;
        case QXmlStreamReader::Comment:
        case QXmlStreamReader::ProcessingInstruction:
            break;
        default:
            refuseToken();
        }
    }
    return text.toString();
}

ForeignXml XmlCursor::takeRest(const XmlElement &element)
{
    ForeignXml rest;
    rest.attributes = element.unread();
    while (const auto child = nextChild(element))
        rest.elements += takeForeign(*child);
    return rest;
}

void XmlCursor::finish()
{
    while (!failed() && !m_xml.atEnd())
        advance();
    if (!failed() && m_xml.hasError())
        refuseToken();
}

XmlElement XmlCursor::current()
{
    QList<QPair<QString, QString>> attributes;
    for (const QXmlStreamAttribute &attribute : m_xml.attributes())
        attributes.append({attribute.qualifiedName().toString(), attribute.value().toString()});
    return XmlElement(this, m_xml.qualifiedName().toString(), m_line, m_column, attributes);
}

void XmlCursor::refuseToken()
{
    if (failed())
        return;
    if (m_xml.hasError()) {
        m_error = {int(m_xml.lineNumber()), int(m_xml.columnNumber()) + 1, m_xml.errorString()};
        return;
    }
    const bool isDtd = m_xml.tokenType() == QXmlStreamReader::DTD;
    failStructure(m_line, m_column, isDtd ? QStringLiteral("a document type declaration") : m_xml.tokenString(),
                  QStringLiteral("an element"));
}

void XmlCursor::refuseText(const XmlElement &parent)
{
    failStructure(m_line, m_column, QStringLiteral("the text \"%1\"").arg(shortened(m_xml.text().toString().trimmed())),
                  QStringLiteral("an element or the end of %1").arg(parent.tag()));
}

void XmlCursor::failStructure(int line, int column, const QString &found, const QString &expected)
{
    if (!failed())
        m_error = {line, column, QStringLiteral("found %1, expected %2").arg(found, expected)};
}

void XmlCursor::failValue(int line, int column, const QString &found, const QString &expected)
{
    if (checksValues())
        failStructure(line, column, found, expected);
}

QString shortened(const QString &text)
{
    static constexpr int most = 60;
    QString line = text;
    for (QChar &character : line) {
        if (character.category() == QChar::Other_Control)
            character = QLatin1Char(' ');
    }
    return line.size() <= most ? line : line.left(most - 3) + QStringLiteral("...");
}

} // namespace VAK

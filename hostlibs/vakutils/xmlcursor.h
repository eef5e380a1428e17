// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "fileerror.h"
#include "xmlelement.h"

#include <VakUtils/signalitem.h>

#include <QByteArray>
#include <QXmlStreamReader>

#include <optional>

namespace VAK {

/// Reads untrusted XML forward, element by element, and keeps the first error with its place. After an error everything
/// answers "no more". Refuses what a configuration never holds: document types, entities, text, deep nesting, other
/// encodings than UTF-8.
class XmlCursor
{
public:
    XmlCursor(const QByteArray &data, Checks checks);

    /// The start tag of the root.
    std::optional<XmlElement> root();
    /// The next child of `parent`, whose former child must have been read to its end; nothing at the end of `parent`.
    std::optional<XmlElement> nextChild(const XmlElement &parent);
    /// Reads what is left of `element` as XML text.
    QString takeForeign(const XmlElement &element);
    /// Everything of `element` that was not asked for; for elements without known children.
    ForeignXml takeRest(const XmlElement &element);
    /// Reads on to the end of the document, after the end of the root.
    void finish();

    bool checksValues() const { return m_checks == Checks::StructureAndValues; }
    bool failed() const { return m_error.isSet(); }
    FileError error() const { return m_error; }
    void failStructure(int line, int column, const QString &found, const QString &expected);
    /// Does nothing while only the structure is checked.
    void failValue(int line, int column, const QString &found, const QString &expected);

private:
    QXmlStreamReader::TokenType advance();
    void refuseToken();
    void refuseText(const XmlElement &parent);
    XmlElement current();
    void skipBlanks();

    QByteArray m_data;
    QXmlStreamReader m_xml;
    Checks m_checks;
    FileError m_error;
    int m_depth = 0;
    int m_line = 1; ///< where the current token begins
    int m_column = 1;
};

/// At most 60 characters of `text` without line breaks, for a message.
QString shortened(const QString &text);

} // namespace VAK

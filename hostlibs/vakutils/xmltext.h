// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QList>
#include <QPair>
#include <QString>
#include <QStringList>

namespace VAK {

/// XML text, built piece by piece: always the same for the same pieces, and well-formed whatever the strings hold
/// (characters that XML cannot express become U+FFFD).
class XmlText
{
public:
    using Attributes = QList<QPair<QString, QString>>;

    void open(const QString &name, const Attributes &attributes);
    void characters(const QString &text);
    /// Line breaks and blanks for people; takes no part in the content.
    void breakLine(int indent);
    void close();
    void append(const QString &xml);
    QString toString() const { return m_text; }

private:
    void endStartTag();

    QString m_text;
    QStringList m_open;
    bool m_inStartTag = false;
};

/// The single elements of foreign XML text, as takeForeign() gives it; empty when the text is not well-formed.
QStringList splitElements(const QString &xml);

} // namespace VAK

// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QList>
#include <QPair>
#include <QString>
#include <QStringList>
#include <QVector>

namespace VAK {

class XmlCursor;

/// The start tag of an element. Its attributes are read one by one; what nobody read is foreign. A missing attribute or
/// a wrong value fails the cursor and gives a value that is harmless.
class XmlElement
{
public:
    XmlElement(XmlCursor *cursor, const QString &name, int line, int column,
               const QList<QPair<QString, QString>> &attributes);

    QString name() const { return m_name; }
    int line() const { return m_line; }
    int column() const { return m_column; }
    /// `<name>`, for messages.
    QString tag() const;

    bool has(const QString &attribute) const;
    QString text(const QString &attribute);
    int number(const QString &attribute, int least, int most);
    bool flag(const QString &attribute);
    /// The position of the attribute's value among `words`.
    int choice(const QString &attribute, const QStringList &words);
    /// The attributes that were not asked for, in file order.
    QList<QPair<QString, QString>> unread() const;

    void failValue(const QString &attribute, const QString &value, const QString &expected) const;

private:
    XmlCursor *m_cursor;
    QString m_name;
    int m_line;
    int m_column;
    QList<QPair<QString, QString>> m_attributes;
    QVector<bool> m_read;
};

} // namespace VAK

// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "hostlibs/ovte/jsonlines.h"

#include <QJsonDocument>
#include <QJsonObject>

namespace TE {

namespace {

/// Walks over a JSON text that was parsed before and is therefore known to be well-formed.
class Walker
{
public:
    explicit Walker(const QByteArray &text)
        : m_text(text)
    {
    }

    /// Steps to the value named `step` inside the value at the current position.
    bool enter(const QString &step)
    {
        skipBlanks();
        const char kind = current();
        if (kind != '{' && kind != '[')
            return false;
        ++m_at;
        for (int index = 0; skipBlanks(), !isAtEnd() && current() != '}' && current() != ']'; ++index) {
            const QString name = kind == '{' ? takeName() : QString::number(index);
            skipBlanks();
            if (name == step)
                return true;
            skipValue();
            skipBlanks();
            if (current() == ',')
                ++m_at;
        }
        return false;
    }

    void skipBlanks()
    {
        while (!isAtEnd() && QByteArray(" \t\r\n").contains(current()))
            ++m_at;
    }

    int position() const { return m_at; }

private:
    bool isAtEnd() const { return m_at >= m_text.size(); }
    char current() const { return isAtEnd() ? '\0' : m_text.at(m_at); }

    QString takeName()
    {
        const int begin = m_at;
        skipString();
        const QByteArray quoted = m_text.mid(begin, m_at - begin);
        skipBlanks();
        ++m_at; // the colon
        return QJsonDocument::fromJson("{\"name\":" + quoted + '}').object().value("name").toString();
    }

    void skipString()
    {
        for (++m_at; !isAtEnd() && current() != '"'; ++m_at) {
            if (current() == '\\')
                ++m_at;
        }
        ++m_at;
    }

    void skipValue()
    {
        int depth = 0;
        do {
            const char c = current();
            if (c == '"')
                skipString();
            else
                ++m_at;
            depth += c == '{' || c == '[' ? 1 : 0;
            depth -= c == '}' || c == ']' ? 1 : 0;
        } while (!isAtEnd() && (depth > 0 || !QByteArray(",}]").contains(current())));
    }

    const QByteArray &m_text;
    int m_at = 0;
};

} // namespace

int lineOfOffset(const QByteArray &text, int offset)
{
    return text.left(offset).count('\n') + 1;
}

int lineOfJsonValue(const QByteArray &json, const QStringList &path)
{
    Walker walker(json);
    walker.skipBlanks();
    int position = walker.position();
    for (const QString &step : path) {
        if (!walker.enter(step))
            break;
        position = walker.position();
    }
    return lineOfOffset(json, position);
}

} // namespace TE

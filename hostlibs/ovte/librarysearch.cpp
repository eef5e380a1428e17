// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "hostlibs/ovte/librarysearch.h"

#include <QFile>
#include <QHash>
#include <QSet>

namespace TE {

namespace {

struct Words
{
    QSet<QByteArray> named;
    QSet<QByteArray> declared; ///< modules, primitives, packages and interfaces
};

/// Reads the words of HDL text, leaving out comments and strings.
class WordScanner
{
public:
    explicit WordScanner(const QByteArray &text)
        : m_text(text)
    {
    }

    QByteArray next()
    {
        while (m_at < m_text.size()) {
            const char c = m_text.at(m_at);
            if (isWordChar(c))
                return takeWord();
            if (c == '/' && peek() == '/')
                skipPast("\n");
            else if (c == '/' && peek() == '*')
                skipPast("*/");
            else if (c == '"')
                skipString();
            else
                ++m_at;
        }
        return {};
    }

private:
    static bool isWordChar(char c)
    {
        return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_' || c == '$';
    }

    char peek() const { return m_at + 1 < m_text.size() ? m_text.at(m_at + 1) : '\0'; }

    void skipPast(const char *end)
    {
        const int found = m_text.indexOf(end, m_at + 2);
        m_at = found < 0 ? m_text.size() : found + int(qstrlen(end));
    }

    void skipString()
    {
        for (++m_at; m_at < m_text.size() && m_text.at(m_at) != '"' && m_text.at(m_at) != '\n'; ++m_at) {
            if (m_text.at(m_at) == '\\')
                ++m_at;
        }
        ++m_at;
    }

    QByteArray takeWord()
    {
        const int begin = m_at;
        while (m_at < m_text.size() && isWordChar(m_text.at(m_at)))
            ++m_at;
        return m_text.mid(begin, m_at - begin);
    }

    QByteArray m_text;
    int m_at = 0;
};

} // namespace

static Words wordsOf(const QString &path)
{
    static const QSet<QByteArray> declaring = {"module", "macromodule", "primitive", "package", "interface", "program"};
    static const QSet<QByteArray> lifetimes = {"static", "automatic"};
    Words words;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return words;
    const QByteArray text = file.readAll();
    WordScanner scanner(text);
    bool isDeclaration = false;
    for (QByteArray word = scanner.next(); !word.isEmpty(); word = scanner.next()) {
        if (isDeclaration && lifetimes.contains(word))
            continue;
        if (isDeclaration)
            words.declared.insert(word);
        isDeclaration = declaring.contains(word);
        words.named.insert(word);
    }
    return words;
}

/// What is still looked for: the words named so far, and those that are declared already.
static bool isNeeded(const Words &design, const Words &candidate)
{
    for (const QByteArray &module : candidate.declared) {
        if (design.named.contains(module) && !design.declared.contains(module))
            return true;
    }
    return false;
}

QStringList neededLibraryFiles(const QStringList &sources, const QStringList &candidates)
{
    Words design;
    const auto add = [&design](const Words &words) {
        design.named += words.named;
        design.declared += words.declared;
    };
    for (const QString &source : sources)
        add(wordsOf(source));
    QList<Words> words;
    for (const QString &candidate : candidates)
        words.append(wordsOf(candidate));
    QVector<bool> taken(candidates.size(), false);
    for (int i = 0; i < candidates.size(); ++i) {
        if (taken.at(i) || !isNeeded(design, words.at(i)))
            continue;
        taken[i] = true;
        add(words.at(i));
        i = -1; // what this file names may be in a candidate passed over before
    }
    QStringList result;
    for (int i = 0; i < candidates.size(); ++i) {
        if (taken.at(i))
            result.append(candidates.at(i));
    }
    return result;
}

} // namespace TE

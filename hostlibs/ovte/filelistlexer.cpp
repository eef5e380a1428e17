// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "hostlibs/ovte/filelistlexer.h"

#include <QRegularExpression>

namespace TE {

namespace {

class Lexer
{
public:
    Lexer(const QString &text, QList<FileListWord> *words)
        : m_text(text)
        , m_words(words)
    {
    }

    bool run()
    {
        while (m_error.isEmpty() && skipToWord())
            takeWord();
        return m_error.isEmpty();
    }

    QString error() const { return m_error; }
    int errorLine() const { return m_errorLine; }

private:
    bool isAtEnd() const { return m_at >= m_text.size(); }
    QChar current() const { return m_text.at(m_at); }
    bool startsWith(const char *token) const { return m_text.midRef(m_at).startsWith(QLatin1String(token)); }

    void step()
    {
        if (current() == '\n')
            ++m_line;
        ++m_at;
    }

    void fail(int line, const QString &what)
    {
        m_errorLine = line;
        m_error = what;
    }

    void skipLine()
    {
        while (!isAtEnd() && current() != '\n')
            step();
    }

    void skipComment()
    {
        const int begin = m_line;
        const int end = m_text.indexOf("*/", m_at + 2);
        if (end < 0)
            fail(begin, "the comment that begins here has no end; add */.");
        while (m_at < (end < 0 ? m_text.size() : end + 2))
            step();
    }

    /// True when a word begins at the position.
    bool skipToWord()
    {
        while (!isAtEnd()) {
            if (current().isSpace())
                step();
            else if (current() == '#' || startsWith("//"))
                skipLine();
            else if (startsWith("/*"))
                skipComment();
            else
                return true;
        }
        return false;
    }

    void takeWord()
    {
        FileListWord word;
        word.line = m_line;
        bool quoted = false;
        while (!isAtEnd() && (quoted || !current().isSpace()) && m_error.isEmpty()) {
            if (current() == '"') {
                quoted = !quoted;
                step();
            } else if (current() == '\\' && m_at + 1 < m_text.size()) {
                takeEscaped(&word.text);
            } else if (current() == '$') {
                takeVariable(&word.text);
            } else {
                word.text += current();
                step();
            }
        }
        if (quoted)
            fail(word.line, "the quote that begins here has no end; add \".");
        m_words->append(word);
    }

    void takeEscaped(QString *text)
    {
        step();
        if (current() != '\n')
            text->append(current());
        step();
    }

    void takeVariable(QString *text)
    {
        static const QRegularExpression pattern(R"(\G\$(?:\{(\w+)\}|\((\w+)\)|([A-Za-z_]\w*)))");
        const QRegularExpressionMatch match = pattern.match(m_text, m_at);
        if (!match.hasMatch()) {
            text->append(current());
            step();
            return;
        }
        const QString name = match.captured(match.lastCapturedIndex());
        if (!qEnvironmentVariableIsSet(name.toLocal8Bit())) {
            fail(m_line, QString("the environment variable %1 is not set; set it before starting the program, or "
                                 "write the path out.")
                             .arg(name));
        }
        text->append(qEnvironmentVariable(name.toLocal8Bit()));
        m_at = match.capturedEnd();
    }

    const QString &m_text;
    QList<FileListWord> *m_words;
    int m_at = 0;
    int m_line = 1;
    int m_errorLine = 0;
    QString m_error;
};

} // namespace

bool splitFileList(const QString &text, QList<FileListWord> *words, int *errorLine, QString *error)
{
    Lexer lexer(text, words);
    if (lexer.run())
        return true;
    *errorLine = lexer.errorLine();
    *error = lexer.error();
    return false;
}

} // namespace TE

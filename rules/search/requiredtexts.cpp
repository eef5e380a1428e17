// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "rules/search/requiredtexts.h"

#include <cstring>
#include <optional>

namespace RTLVAK::private_impl {

/// Whether `c` is one of `characters`, which are ASCII.
static bool isOneOf(QChar c, const char *characters)
{
    return c.unicode() != 0 && c.unicode() < 0x80 && std::strchr(characters, c.unicode());
}

static bool isAsciiLetterOrDigit(QChar c)
{
    return c.unicode() < 0x80 && c.isLetterOrNumber();
}

/// Means itself in both syntaxes.
static bool isLiteral(QChar c)
{
    return isAsciiLetterOrDigit(c) || isOneOf(c, "_/:-,<>=!@#%&~\"';` ");
}

/// Goes through a pattern once and collects what stands in it literally. Stops for good at the first thing that it does
/// not know.
class PatternReader
{
public:
    explicit PatternReader(const QString &text)
        : pattern(text)
    {
    }

    QStringList readWildcard()
    {
        return read([this] { return readWildcardAtom(); });
    }

    QStringList readRegExp()
    {
        return read([this] { return readRegExpAtom(); });
    }

private:
    template <typename ReadAtom>
    QStringList read(ReadAtom readAtom)
    {
        while (place < pattern.size()) {
            if (!readAtom())
                return {};
        }
        endRun();
        return texts;
    }

    QChar next() const { return place < pattern.size() ? pattern.at(place) : QChar(); }

    bool addLiteral(QChar c, int length)
    {
        run.append(c);
        place += length;
        return true;
    }

    bool addUnknown(int length)
    {
        endRun();
        place += length;
        return true;
    }

    void endRun()
    {
        if (!run.isEmpty())
            texts.append(run);
        run.clear();
    }

    bool readWildcardAtom()
    {
        const QChar c = next();
        if (isOneOf(c, "*?"))
            return addUnknown(1);
        if (c == QLatin1Char('\\'))
            return escapes("*?[]") && addLiteral(pattern.at(place + 1), 2);
        if (c == QLatin1Char('['))
            return skipWildcardSet();
        return (isLiteral(c) || isOneOf(c, ".$()+^{|}")) && addLiteral(c, 1);
    }

    bool escapes(const char *characters) const
    {
        return place + 1 < pattern.size() && isOneOf(pattern.at(place + 1), characters);
    }

    /// Only sets without brackets and backslashes inside: with them the toolkit's translation has its own ideas.
    bool skipWildcardSet()
    {
        const int end = pattern.indexOf(QLatin1Char(']'), place);
        const QString content = pattern.mid(place + 1, end - place - 1);
        if (end < 0 || content.isEmpty() || content == QLatin1String("^") || content.contains(QLatin1Char('[')) ||
            content.contains(QLatin1Char('\\')))
            return false;
        return addUnknown(end + 1 - place);
    }

    bool readRegExpAtom()
    {
        const std::optional<QChar> literal = readRegExpElement();
        if (!literal)
            return false;
        // What a quantifier follows belongs to it alone, not to the text before.
        if (!isOneOf(next(), "?*+{")) {
            if (!literal->isNull())
                run.append(*literal);
            else
                endRun();
            return true;
        }
        const bool isOnceAtLeast = next() == QLatin1Char('+');
        if (isOnceAtLeast && !literal->isNull())
            run.append(*literal);
        endRun();
        return skipQuantifier();
    }

    /// Reads one element, without its quantifier: the character that it stands for, or a null one when it is not
    /// exactly one character; nothing when it is not understood.
    std::optional<QChar> readRegExpElement()
    {
        const QChar c = next();
        if (isOneOf(c, ".^$")) {
            ++place;
            return QChar();
        }
        if (c == QLatin1Char('\\'))
            return readEscape();
        if (c == QLatin1Char('['))
            return skipClass() ? std::optional<QChar>(QChar()) : std::nullopt;
        if (c == QLatin1Char('('))
            return skipGroup() ? std::optional<QChar>(QChar()) : std::nullopt;
        if (!isLiteral(c))
            return std::nullopt;
        ++place;
        return c;
    }

    std::optional<QChar> readEscape()
    {
        if (escapes("bBdDsSwW")) {
            place += 2;
            return QChar();
        }
        if (!escapes("!\"#$%&'()*+,-./:;<=>?@[\\]^_`{|}~"))
            return std::nullopt;
        place += 2;
        return pattern.at(place - 1);
    }

    bool skipQuantifier()
    {
        const int begin = place;
        ++place;
        if (pattern.at(begin) == QLatin1Char('{')) {
            while (next().isDigit() || next() == QLatin1Char(','))
                ++place;
            if (next() != QLatin1Char('}'))
                return false;
            ++place;
        }
        return !isOneOf(next(), "?*+{");
    }

    /// The first character of a class belongs to it even if it is a closing bracket.
    bool skipClass()
    {
        ++place;
        if (next() == QLatin1Char('^'))
            ++place;
        do
            place += next() == QLatin1Char('\\') ? 2 : 1;
        while (place < pattern.size() && next() != QLatin1Char(']'));
        ++place;
        return place <= pattern.size();
    }

    /// Nothing inside of a group is used: it may hold alternatives, or be what must not follow.
    bool skipGroup()
    {
        int depth = 0;
        do {
            const QChar c = next();
            if (c == QLatin1Char('[')) {
                if (!skipClass())
                    return false;
                continue;
            }
            depth += c == QLatin1Char('(') ? 1 : c == QLatin1Char(')') ? -1 : 0;
            place += c == QLatin1Char('\\') ? 2 : 1;
        } while (depth > 0 && place < pattern.size());
        return depth == 0 && place <= pattern.size();
    }

    const QString &pattern;
    int place = 0;
    QString run;
    QStringList texts;
};

QStringList requiredTexts(const QString &pattern, QRegExp::PatternSyntax syntax)
{
    PatternReader reader(pattern);
    switch (syntax) {
    case QRegExp::WildcardUnix:
        return reader.readWildcard();
    case QRegExp::RegExp:
        return reader.readRegExp();
    default:
        return {};
    }
}

} // namespace RTLVAK::private_impl

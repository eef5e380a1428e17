// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "vhdllexer.h"

#include <QSet>

#include <algorithm>

namespace NETCATCHER {

/// The reserved words that decide what stands around them, and those that a character literal can follow.
static const QSet<QByteArray> &keywords()
{
    static const QSet<QByteArray> words{
        "abs",          "access",     "after",      "alias",     "all",       "and",
        "architecture", "array",      "assert",     "attribute", "begin",     "block",
        "body",         "buffer",     "bus",        "case",      "component", "configuration",
        "constant",     "disconnect", "downto",     "else",      "elsif",     "end",
        "entity",       "exit",       "file",       "for",       "function",  "generate",
        "generic",      "group",      "guarded",    "if",        "impure",    "in",
        "inertial",     "inout",      "is",         "label",     "library",   "linkage",
        "literal",      "loop",       "map",        "mod",       "nand",      "new",
        "next",         "nor",        "not",        "null",      "of",        "on",
        "open",         "or",         "others",     "out",       "package",   "port",
        "postponed",    "procedure",  "process",    "pure",      "range",     "record",
        "register",     "reject",     "rem",        "report",    "return",    "rol",
        "ror",          "select",     "severity",   "shared",    "signal",    "sla",
        "sll",          "sra",        "srl",        "subtype",   "then",      "to",
        "transport",    "type",       "unaffected", "units",     "until",     "use",
        "variable",     "wait",       "when",       "while",     "with",      "xnor",
        "xor",
    };
    return words;
}

static unsigned char lowered(unsigned char c)
{
    // The language's characters are Latin-1: upper case letters lie 32 below their lower case.
    const bool isUpper = (c >= 'A' && c <= 'Z') || (c >= 0xc0 && c <= 0xde && c != 0xd7);
    return isUpper ? static_cast<unsigned char>(c + 0x20) : c;
}

static bool isLetter(unsigned char c)
{
    return (lowered(c) >= 'a' && lowered(c) <= 'z') || (c >= 0xc0 && c != 0xd7 && c != 0xf7);
}

static bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

static bool isWordPart(char c)
{
    return isLetter(static_cast<unsigned char>(c)) || isDigit(c) || c == '_';
}

QByteArray vhdlKey(const QByteArray &name)
{
    if (name.startsWith('\\'))
        return name;
    QByteArray key = name;
    for (char &c : key)
        c = char(lowered(static_cast<unsigned char>(c)));
    return key;
}

QByteArray vhdlDisplayName(const QByteArray &name)
{
    QByteArray plain = name;
    if (name.size() > 2 && name.startsWith('\\') && name.endsWith('\\'))
        plain = name.mid(1, name.size() - 2).replace("\\\\", "\\");
    if (std::all_of(plain.begin(), plain.end(), [](char c) { return static_cast<unsigned char>(c) < 0x80; }))
        return plain;
    return QString::fromLatin1(plain).toUtf8();
}

namespace {

class Lexer
{
public:
    explicit Lexer(const QByteArray &source)
        : text(source)
    {
    }

    std::vector<VhdlToken> run();

private:
    char at(int offset) const { return pos + offset < text.size() ? text[pos + offset] : '\0'; }
    bool skipComment();
    void addToken();
    int wordLength() const;
    int numberLength() const;
    int delimitedLength(char delimiter, int offset) const;
    int symbolLength() const;
    bool isCharacterLiteral() const;
    void add(VhdlToken::Kind kind, int length);

    const QByteArray &text;
    int pos = 0;
    std::vector<VhdlToken> tokens;
};

std::vector<VhdlToken> Lexer::run()
{
    while (pos < text.size()) {
        const auto c = static_cast<unsigned char>(at(0));
        if (c <= ' ' || c == 0xa0)
            ++pos;
        else if (!skipComment())
            addToken();
    }
    return std::move(tokens);
}

bool Lexer::skipComment()
{
    const bool isLine = at(0) == '-' && at(1) == '-';
    if (!isLine && !(at(0) == '/' && at(1) == '*'))
        return false;
    const int end = text.indexOf(isLine ? "\n" : "*/", pos + 2);
    pos = end < 0 ? text.size() : end + (isLine ? 1 : 2);
    return true;
}

void Lexer::add(VhdlToken::Kind kind, int length)
{
    tokens.push_back({kind, pos, length});
    pos += length;
}

void Lexer::addToken()
{
    const char c = at(0);
    if (isLetter(static_cast<unsigned char>(c))) {
        const int length = wordLength();
        const bool isBitString = length <= 2 && at(length) == '"';
        if (isBitString)
            add(VhdlToken::Literal, delimitedLength('"', length));
        else
            add(keywords().contains(vhdlKey(text.mid(pos, length))) ? VhdlToken::Keyword : VhdlToken::Identifier,
                length);
    } else if (c == '\\') {
        add(VhdlToken::Identifier, delimitedLength('\\', 0));
    } else if (isDigit(c)) {
        add(VhdlToken::Literal, numberLength());
    } else if (c == '"') {
        add(VhdlToken::Literal, delimitedLength('"', 0));
    } else if (isCharacterLiteral()) {
        add(VhdlToken::Literal, 3);
    } else {
        add(VhdlToken::Symbol, symbolLength());
    }
}

int Lexer::wordLength() const
{
    int length = 1;
    while (isWordPart(at(length)))
        ++length;
    return length;
}

/// Decimal, based (`16#FF#e1`), with an exponent, or the length before a bit string (`12x"fff"`).
int Lexer::numberLength() const
{
    int length = 1;
    while (isWordPart(at(length)) || at(length) == '#' || (at(length) == '.' && isWordPart(at(length + 1))) ||
           ((at(length) == '+' || at(length) == '-') && (at(length - 1) | 0x20) == 'e' && isDigit(at(length + 1))))
        ++length;
    return at(length) == '"' ? delimitedLength('"', length) : length;
}

/// The length up to the delimiter that closes what opens `offset` characters from here; two of them stand for one. Ends
/// with the line at the latest.
int Lexer::delimitedLength(char delimiter, int offset) const
{
    int length = offset + 1;
    while (pos + length < text.size() && at(length) != '\n') {
        ++length;
        if (at(length - 1) != delimiter)
            continue;
        if (at(length) != delimiter)
            break;
        ++length;
    }
    return length;
}

int Lexer::symbolLength() const
{
    static const char *const compounds[] = {"=>", "<=", ":=", "<<", ">>"};
    for (const char *compound : compounds) {
        if (at(0) == compound[0] && at(1) == compound[1])
            return 2;
    }
    return 1;
}

/// An apostrophe behind a name or a parenthesis begins an attribute or a qualified expression instead.
bool Lexer::isCharacterLiteral() const
{
    if (at(0) != '\'' || at(2) != '\'' || pos + 2 >= text.size())
        return false;
    if (tokens.empty())
        return true;
    const VhdlToken &last = tokens.back();
    const char lastChar = text[last.begin];
    if (last.kind == VhdlToken::Symbol)
        return lastChar != ')' && lastChar != ']';
    return last.kind == VhdlToken::Keyword;
}

} // namespace

std::vector<VhdlToken> lexVhdl(const QByteArray &text)
{
    return Lexer(text).run();
}

} // namespace NETCATCHER

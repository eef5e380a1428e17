// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "hdllexer.h"

#include <QSet>

#include <cctype>

namespace NETCATCHER {

/// The reserved words that can stand where a module's or instance's name could.
static const QSet<QByteArray> &keywords()
{
    static const QSet<QByteArray> words{
        "module",       "macromodule", "endmodule",    "package",    "endpackage", "interface", "endinterface",
        "program",      "primitive",   "endprimitive", "class",      "endclass",   "function",  "endfunction",
        "task",         "endtask",     "begin",        "end",        "if",         "else",      "for",
        "while",        "repeat",      "forever",      "case",       "casez",      "casex",     "endcase",
        "generate",     "endgenerate", "genvar",       "import",     "export",     "extern",    "virtual",
        "automatic",    "static",      "bind",         "assign",     "always",     "always_ff", "always_comb",
        "always_latch", "initial",     "final",        "wire",       "reg",        "logic",     "bit",
        "byte",         "int",         "integer",      "shortint",   "longint",    "time",      "real",
        "realtime",     "shortreal",   "string",       "event",      "chandle",    "void",      "tri",
        "tri0",         "tri1",        "triand",       "trior",      "trireg",     "wand",      "wor",
        "uwire",        "supply0",     "supply1",      "signed",     "unsigned",   "input",     "output",
        "inout",        "ref",         "parameter",    "localparam", "specparam",  "typedef",   "enum",
        "struct",       "union",       "packed",       "type",       "var",        "const",     "defparam",
        "and",          "or",          "nand",         "nor",        "xor",        "xnor",      "not",
        "buf",          "bufif0",      "bufif1",       "notif0",     "notif1",     "pullup",    "pulldown",
        "tran",         "tranif0",     "tranif1",      "nmos",       "pmos",       "cmos",      "assert",
        "assume",       "cover",       "property",     "sequence",   "return",     "posedge",   "negedge",
        "unique",       "unique0",     "priority",     "modport",    "disable",    "wait",      "inside",
    };
    return words;
}

static bool isWordStart(char c)
{
    return std::isalpha(static_cast<unsigned char>(c)) || c == '_';
}

static bool isWordPart(char c)
{
    return std::isalnum(static_cast<unsigned char>(c)) || c == '_' || c == '$';
}

HdlLexer::HdlLexer(const QByteArray &source)
    : m_source(source)
{
}

char HdlLexer::at(int offset) const
{
    return m_pos + offset < m_source.size() ? m_source[m_pos + offset] : '\0';
}

void HdlLexer::skipBlank()
{
    const auto skipPast = [this](const char *end) {
        const int found = m_source.indexOf(end, m_pos + 2);
        m_pos = found < 0 ? m_source.size() : found + int(qstrlen(end));
    };
    while (m_pos < m_source.size()) {
        const char c = at(0);
        if (std::isspace(static_cast<unsigned char>(c)))
            ++m_pos;
        else if (c == '/' && at(1) == '/')
            skipPast("\n");
        else if (c == '/' && at(1) == '*')
            skipPast("*/");
        else if (c == '(' && at(1) == '*' && at(2) != ')')
            skipPast("*)");
        else
            return;
    }
}

HdlToken HdlLexer::next()
{
    skipBlank();
    if (m_pos >= m_source.size())
        return {};
    const char c = at(0);
    if (isWordStart(c))
        return word();
    if (c == '\\')
        return escaped();
    if (c == '"')
        return string();
    if (c == '`' && isWordStart(at(1))) {
        ++m_pos;
        return {HdlToken::Directive, word().text};
    }
    if (std::isdigit(static_cast<unsigned char>(c)) || c == '$' || (c == '\'' && isWordPart(at(1)))) {
        // A number, system name or the digits after a base: none of them is a name, and none may look like one.
        do
            ++m_pos;
        while (isWordPart(at(0)));
        return {HdlToken::Symbol, QByteArrayLiteral("0")};
    }
    const int length = c == ':' && at(1) == ':' ? 2 : 1;
    m_pos += length;
    return {HdlToken::Symbol, m_source.mid(m_pos - length, length)};
}

HdlToken HdlLexer::word()
{
    const int begin = m_pos;
    while (isWordPart(at(0)))
        ++m_pos;
    const QByteArray text = m_source.mid(begin, m_pos - begin);
    return {keywords().contains(text) ? HdlToken::Keyword : HdlToken::Identifier, text};
}

HdlToken HdlLexer::escaped()
{
    const int begin = ++m_pos;
    while (m_pos < m_source.size() && !std::isspace(static_cast<unsigned char>(at(0))))
        ++m_pos;
    return {HdlToken::Identifier, m_source.mid(begin, m_pos - begin)};
}

HdlToken HdlLexer::string()
{
    const int begin = ++m_pos;
    while (m_pos < m_source.size() && at(0) != '"' && at(0) != '\n')
        m_pos += at(0) == '\\' ? 2 : 1;
    m_pos = qMin(m_pos, m_source.size());
    const QByteArray text = m_source.mid(begin, m_pos - begin);
    ++m_pos;
    return {HdlToken::Text, text};
}

QByteArray HdlLexer::restOfLine()
{
    const int begin = m_pos;
    while (m_pos < m_source.size() && at(0) != '\n')
        m_pos += at(0) == '\\' ? 2 : 1;
    m_pos = qMin(m_pos, m_source.size());
    return m_source.mid(begin, m_pos - begin);
}

} // namespace NETCATCHER

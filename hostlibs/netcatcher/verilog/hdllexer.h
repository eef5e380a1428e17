// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QByteArray>

namespace NETCATCHER {

/// One token of Verilog text.
struct HdlToken
{
    enum Kind {
        End,
        Identifier, ///< escaped ones without backslash
        Keyword,    ///< a reserved word of Verilog or SystemVerilog that matters to the scan
        Directive,  ///< `define and the like, without the backtick
        Text,       ///< a string literal, without its quotes
        Symbol,     ///< one character, or `::`
    };

    Kind kind = End;
    QByteArray text;

    bool is(const char *symbol) const { return (kind == Symbol || kind == Keyword) && text == symbol; }
};

/// Splits Verilog text into tokens, roughly: numbers and operators are taken character by character, comments and
/// attributes are skipped. Never fails, whatever the bytes are.
class HdlLexer
{
public:
    explicit HdlLexer(const QByteArray &source);

    HdlToken next();
    /// Skips to the end of the line and answers what was skipped; a backslash at the end continues the line.
    QByteArray restOfLine();

private:
    void skipBlank();
    HdlToken word();
    HdlToken escaped();
    HdlToken string();
    char at(int offset) const;

    QByteArray m_source;
    int m_pos = 0;
};

} // namespace NETCATCHER

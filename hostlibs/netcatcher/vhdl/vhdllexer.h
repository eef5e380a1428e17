// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QByteArray>

#include <vector>

namespace NETCATCHER {

/// One token of VHDL text, as a place in it.
struct VhdlToken
{
    enum Kind : unsigned char {
        Identifier, ///< extended ones with their backslashes
        Keyword,    ///< a reserved word, however it is spelled
        Literal,    ///< a number, character, string or bit string
        Symbol,     ///< one character, or one of `=>` `<=` `:=` `<<` `>>`
    };

    Kind kind = Symbol;
    int begin = 0;
    int length = 0;
};

/// Splits VHDL text into tokens; comments are left out. Never fails, whatever the bytes are.
std::vector<VhdlToken> lexVhdl(const QByteArray &text);

/// What names are compared by: lower case, but for extended identifiers, which are taken as they are.
QByteArray vhdlKey(const QByteArray &name);

/// A name as users see it: without the backslashes of an extended identifier, in UTF-8.
QByteArray vhdlDisplayName(const QByteArray &name);

} // namespace NETCATCHER

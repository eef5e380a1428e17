// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "vhdllexer.h"
#include "vhdlscan.h"

namespace NETCATCHER {

/// Goes through the tokens of one text and adds what they declare to a scan.
class VhdlScanner
{
public:
    VhdlScanner(const QByteArray &text, VhdlScan &result);

    /// False when there are no tokens.
    bool run();

private:
    QByteArray word(int index) const;
    QByteArray key(int index) const { return vhdlKey(word(index)); }
    bool isSymbol(int index, const char *symbol) const;
    bool isKeyword(int index, const char *keyword) const;
    bool isIdentifier(int index) const;
    bool isUnitStart() const;

    void identifier(bool isAtStart);
    void symbol();
    void keyword();
    bool unit(const QByteArray &word);
    void externalName();
    void literals();
    void component();
    void usedUnit();
    void endOf();
    void openScope();
    void flush();
    void declare();
    void endGenerics();
    void label(int index);
    int endOfName(int index) const;

    const QByteArray &m_text;
    const std::vector<VhdlToken> m_tokens;
    VhdlScan &m_scan;
    int m_pos = 0;
    VhdlPlace m_place;
    int m_depth = 0;              ///< of parentheses
    int m_portDepth = 0;          ///< of the list of ports; 0 outside of one
    bool m_isStart = true;        ///< the next token begins a statement
    bool m_isSignal = false;      ///< this declaration is one of signals
    int m_genericDepth = 0;       ///< of the list of generics of an entity; 0 outside of one
    QList<QByteArray> m_generics; ///< of a declaration of generics that had no default so far
    QByteArray m_record;          ///< key of the record type whose fields come
    QByteArray m_label;           ///< key of the label of this statement
    std::vector<int> m_names;     ///< a list of names whose meaning is not known yet
    bool m_namesAtStart = false;
};

} // namespace NETCATCHER

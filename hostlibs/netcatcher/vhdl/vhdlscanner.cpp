// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "vhdlscanner.h"

namespace NETCATCHER {

VhdlScanner::VhdlScanner(const QByteArray &text, VhdlScan &result)
    : m_text(text)
    , m_tokens(lexVhdl(text))
    , m_scan(result)
{
}

QByteArray VhdlScanner::word(int index) const
{
    if (index < 0 || index >= int(m_tokens.size()))
        return {};
    const VhdlToken &token = m_tokens[std::size_t(index)];
    return m_text.mid(token.begin, token.length);
}

bool VhdlScanner::isSymbol(int index, const char *symbol) const
{
    if (index < 0 || index >= int(m_tokens.size()))
        return false;
    const VhdlToken &token = m_tokens[std::size_t(index)];
    return token.kind == VhdlToken::Symbol && token.length == int(qstrlen(symbol)) &&
           qstrncmp(m_text.constData() + token.begin, symbol, uint(token.length)) == 0;
}

bool VhdlScanner::isKeyword(int index, const char *keyword) const
{
    if (index < 0 || index >= int(m_tokens.size()))
        return false;
    const VhdlToken &token = m_tokens[std::size_t(index)];
    return token.kind == VhdlToken::Keyword && token.length == int(qstrlen(keyword)) &&
           qstrnicmp(m_text.constData() + token.begin, keyword, uint(token.length)) == 0;
}

bool VhdlScanner::isIdentifier(int index) const
{
    return index >= 0 && index < int(m_tokens.size()) && m_tokens[std::size_t(index)].kind == VhdlToken::Identifier;
}

bool VhdlScanner::run()
{
    for (; m_pos < int(m_tokens.size()); ++m_pos) {
        const bool isAtStart = m_isStart;
        m_isStart = false;
        switch (m_tokens[std::size_t(m_pos)].kind) {
        case VhdlToken::Identifier:
            identifier(isAtStart);
            break;
        case VhdlToken::Symbol:
            symbol();
            break;
        case VhdlToken::Keyword:
            flush();
            keyword();
            break;
        case VhdlToken::Literal:
            flush();
            break;
        }
    }
    return !m_tokens.empty();
}

void VhdlScanner::identifier(bool isAtStart)
{
    if (!isSymbol(m_pos - 1, ",")) {
        flush();
        m_namesAtStart = isAtStart;
    }
    m_names.push_back(m_pos);
}

/// The names were no declaration, so they are uses.
void VhdlScanner::flush()
{
    if (!m_place.architecture.isEmpty()) {
        const QByteArray place = m_place.entity + '\n' + m_place.architecture + '\n';
        for (int name : m_names)
            m_scan.m_used.insert(place + key(name));
    }
    m_names.clear();
}

void VhdlScanner::symbol()
{
    if (isSymbol(m_pos, ":")) {
        declare();
        return;
    }
    if (isSymbol(m_pos, ",") && isIdentifier(m_pos - 1))
        return;
    flush();
    endGenerics();
    if (isSymbol(m_pos, "("))
        ++m_depth;
    else if (isSymbol(m_pos, ")"))
        m_depth = qMax(0, m_depth - 1);
    else if (isSymbol(m_pos, "<<"))
        externalName();
    m_isStart = m_depth == 0 && (isSymbol(m_pos, ";") || isSymbol(m_pos, "=>"));
    if (m_depth < m_portDepth)
        m_portDepth = 0;
    if (m_depth == 0 && isSymbol(m_pos, ";")) {
        m_isSignal = false;
        m_label.clear();
    }
}

/// A declaration of generics ends with a semicolon or the list, unless it has a default.
void VhdlScanner::endGenerics()
{
    const bool isEnd = m_depth == m_genericDepth && (isSymbol(m_pos, ";") || isSymbol(m_pos, ")"));
    if (isEnd && !m_generics.isEmpty())
        m_scan.m_openGenerics[m_place.entity] += m_generics;
    if (isEnd || isSymbol(m_pos, ":="))
        m_generics.clear();
    if (isEnd && isSymbol(m_pos, ")"))
        m_genericDepth = 0;
}

/// `<<signal .top.u_core.valid : std_logic>>`
void VhdlScanner::externalName()
{
    for (++m_pos; m_pos < int(m_tokens.size()) && !isSymbol(m_pos, ">>") && !isSymbol(m_pos, ";"); ++m_pos) {
        if (isIdentifier(m_pos) && isSymbol(m_pos + 1, ":"))
            m_scan.m_usedRemotely.insert(key(m_pos));
    }
}

void VhdlScanner::declare()
{
    const bool isPort = m_portDepth > 0 && m_depth == m_portDepth;
    const bool isPlain = m_depth == 0 && m_names.size() == 1 && m_namesAtStart;
    for (int name : m_names) {
        if (!m_record.isEmpty())
            m_scan.m_fields.insert(m_record + '\n' + key(name), word(name));
        else if ((isPort || (m_isSignal && m_depth == 0)) && !m_place.entity.isEmpty())
            m_scan.m_signals.insert(m_place.text() + '\n' + key(name), word(name));
        else if (m_genericDepth > 0 && m_depth == m_genericDepth)
            m_generics.append(word(name));
        else if (isPlain && !m_place.architecture.isEmpty())
            label(name);
    }
    m_names.clear();
}

/// Behind the name of a unit, as `work.core.leaf`: the first token that is no part of it.
int VhdlScanner::endOfName(int index) const
{
    while (isIdentifier(index) && isSymbol(index + 1, ".") && isIdentifier(index + 2))
        index += 2;
    return isIdentifier(index) ? index + 1 : index;
}

/// What a label stands before: an instance names its unit and connects it; all else is another statement.
void VhdlScanner::label(int index)
{
    m_label = key(index);
    const QByteArray place = m_place.text() + '\n' + m_label;
    m_scan.m_labels.insert(place, word(index));
    const int first = index + 2; // behind the colon
    const bool isPlain = isIdentifier(first);
    const bool isNamed =
        isKeyword(first, "entity") || isKeyword(first, "component") || isKeyword(first, "configuration");
    if (!isPlain && !isNamed)
        return;
    int end = endOfName(isPlain ? first : first + 1);
    const int name = end - 1;
    if (isNamed && isSymbol(end, "(") && isSymbol(end + 2, ")"))
        end += 3;
    const bool hasGenerics = isKeyword(end, "generic");
    const bool isInstance = isNamed || hasGenerics || isKeyword(end, "port") || isSymbol(end, ";");
    if (!isInstance || !isIdentifier(name))
        return;
    m_scan.m_instances.insert(place, {word(name), hasGenerics});
    m_scan.m_instantiated[m_place.entity].insert(key(name));
    if (hasGenerics)
        m_scan.m_withGenerics.insert(key(name));
}

/// A statement or unit begins behind these words.
static bool opensStatements(const QByteArray &word)
{
    static const QSet<QByteArray> words{"begin", "is",       "then",    "else",  "loop",
                                        "block", "generate", "process", "record"};
    return words.contains(word);
}

void VhdlScanner::keyword()
{
    const QByteArray name = key(m_pos);
    m_isStart = opensStatements(name);
    if (name == "end")
        endOf();
    else if (unit(name))
        m_isStart = true;
    else if (name == "component" && !isSymbol(m_pos - 1, ":"))
        component();
    else if (name == "entity" || name == "configuration")
        usedUnit();
    else if (name == "signal" && m_depth == 0)
        m_isSignal = true;
    else if (name == "port" && !isKeyword(m_pos + 1, "map"))
        m_portDepth = m_depth + 1;
    else if (name == "generic" && m_place.architecture.isEmpty() && !m_place.entity.isEmpty())
        m_genericDepth = m_depth + 1;
    else if (name == "record" && isKeyword(m_pos - 1, "is") && isKeyword(m_pos - 3, "type"))
        m_record = key(m_pos - 2);
    else if (name == "file" && isIdentifier(m_pos + 1))
        m_scan.m_usesFiles = true;
    else if (name == "type" && isKeyword(m_pos + 2, "is") && isSymbol(m_pos + 3, "("))
        literals();
    else if (name == "generate" || name == "block")
        openScope();
}

/// Whether a unit can begin here: only other units and what is before all stand outside of units.
bool VhdlScanner::isUnitStart() const
{
    return m_depth == 0 && (m_pos == 0 || isSymbol(m_pos - 1, ";"));
}

bool VhdlScanner::unit(const QByteArray &word)
{
    if (!isUnitStart() || !isIdentifier(m_pos + 1))
        return false;
    const bool isOf = isKeyword(m_pos + 2, "of") && isIdentifier(m_pos + 3) && isKeyword(m_pos + 4, "is");
    if (word == "entity" && isKeyword(m_pos + 2, "is")) {
        m_place = {key(m_pos + 1), {}, {}};
        if (!m_scan.m_entityNames.contains(m_place.entity)) {
            m_scan.m_entities.append(this->word(m_pos + 1));
            m_scan.m_entityNames.insert(m_place.entity, this->word(m_pos + 1));
        }
        m_pos += 2;
    } else if (word == "architecture" && isOf) {
        m_place = {key(m_pos + 3), key(m_pos + 1), {}};
        m_scan.m_architectures.insert(m_place.entity, m_place.architecture);
        m_scan.m_scanned.insert(m_place.entity + '\n' + m_place.architecture);
        m_pos += 4;
    } else if (word == "configuration" && isOf) {
        m_scan.m_configurations.insert(key(m_pos + 1), key(m_pos + 3));
        m_place = VhdlPlace();
        m_place.entity = key(m_pos + 3);
        m_pos += 4;
    } else if (word == "package" && m_place.architecture.isEmpty()) {
        m_place = VhdlPlace(); // what it declares is not the entity's that a bare `end;` closed before
    } else {
        return false;
    }
    m_isSignal = false;
    m_portDepth = 0;
    m_record.clear();
    return true;
}

/// `type state is (Idle, Run)`
void VhdlScanner::literals()
{
    for (m_pos += 3; m_pos + 1 < int(m_tokens.size()) && !isSymbol(m_pos + 1, ";"); ++m_pos) {
        if (isIdentifier(m_pos) && !m_scan.m_literals.contains(key(m_pos)))
            m_scan.m_literals.insert(key(m_pos), word(m_pos));
    }
}

/// Skips a component's declaration; its ports are not the entity's.
void VhdlScanner::component()
{
    if (!isIdentifier(m_pos + 1))
        return;
    const QByteArray name = word(m_pos + 1);
    if (!m_scan.m_componentNames.contains(vhdlKey(name)))
        m_scan.m_componentNames.insert(vhdlKey(name), name);
    while (m_pos + 1 < int(m_tokens.size()) && !isKeyword(m_pos, "end"))
        ++m_pos;
    while (m_pos + 1 < int(m_tokens.size()) && !isSymbol(m_pos, ";"))
        ++m_pos;
    m_isStart = true;
}

/// `use entity work.leaf` in a configuration; instances are seen at their labels.
void VhdlScanner::usedUnit()
{
    const int end = endOfName(m_pos + 1);
    if (isKeyword(m_pos - 1, "use") && isIdentifier(end - 1) && !m_place.entity.isEmpty())
        m_scan.m_instantiated[m_place.entity].insert(key(end - 1));
}

void VhdlScanner::endOf()
{
    if ((isKeyword(m_pos + 1, "generate") || isKeyword(m_pos + 1, "block")) && !m_place.scopes.isEmpty())
        m_place.scopes.removeLast();
    else if (isKeyword(m_pos + 1, "record"))
        m_record.clear();
    const QByteArray &own = m_place.architecture.isEmpty() ? m_place.entity : m_place.architecture;
    if (isKeyword(m_pos + 1, "architecture") || isKeyword(m_pos + 1, "entity") ||
        (isIdentifier(m_pos + 1) && key(m_pos + 1) == own))
        m_place = VhdlPlace();
    // What is named behind it was said before.
    while (m_pos + 1 < int(m_tokens.size()) && !isSymbol(m_pos + 1, ";"))
        ++m_pos;
}

/// The alternatives of an if or case generate statement share its label.
void VhdlScanner::openScope()
{
    if (!m_label.isEmpty())
        m_place.scopes.append(m_label);
    m_label.clear();
}

} // namespace NETCATCHER

// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "hdlscan.h"

namespace NETCATCHER {

constexpr std::size_t maxIncludeDepth = 64;
/// Of one source. Files that include each other twice each would keep the scan busy for ages.
constexpr int maxIncludes = 4096;
constexpr qint64 maxIncludedBytes = 64 << 20;

void ModuleUsage::unite(const ModuleUsage &other)
{
    pins.unite(other.pins);
    parameters.unite(other.parameters);
    positionalPins = qMax(positionalPins, other.positionalPins);
    positionalParameters = qMax(positionalParameters, other.positionalParameters);
    hasWildcard = hasWildcard || other.hasWildcard;
}

HdlScanner::HdlScanner(const QStringList &defines, OpenInclude openInclude)
    : m_macros{"SYNTHESIS"}
    , m_openInclude(std::move(openInclude))
{
    for (const QString &define : defines)
        m_macros.insert(define.section(QLatin1Char('='), 0, 0).toUtf8());
}

HdlScan HdlScanner::scan(const HdlText &source)
{
    m_result = HdlScan();
    m_includes = 0;
    m_includedBytes = 0;
    m_putBack.clear();
    m_texts.clear();
    m_texts.push_back({HdlLexer(source.text), source.origin});
    for (HdlToken token = take(); token.kind != HdlToken::End; token = take()) {
        if (token.kind == HdlToken::Keyword)
            keyword(token.text);
        else if (token.kind == HdlToken::Identifier)
            identifier(token.text);
    }
    return m_result;
}

/// The next token after directives; notes the packages that are named on the way.
HdlToken HdlScanner::take()
{
    HdlToken token;
    if (!m_putBack.empty()) {
        token = m_putBack.back();
        m_putBack.pop_back();
    } else {
        for (token = raw(); token.kind == HdlToken::Directive; token = raw())
            directive(token.text);
    }
    if (token.is("::") && !m_lastWord.isEmpty())
        m_result.usedPackages.insert(m_lastWord);
    m_lastWord = token.kind == HdlToken::Identifier ? token.text : QByteArray();
    return token;
}

HdlToken HdlScanner::raw()
{
    while (!m_texts.empty()) {
        const HdlToken token = m_texts.back().lexer.next();
        if (token.kind != HdlToken::End)
            return token;
        m_texts.pop_back();
    }
    return {};
}

void HdlScanner::putBack(const HdlToken &token)
{
    m_putBack.push_back(token);
}

void HdlScanner::directive(const QByteArray &name)
{
    static const QSet<QByteArray> wholeLine{"timescale", "default_nettype", "line",
                                            "pragma",    "begin_keywords",  "unconnected_drive"};
    if (m_texts.empty())
        return;
    HdlLexer &lexer = m_texts.back().lexer;
    if (name == "define") {
        m_macros.insert(lexer.next().text);
        genvarsOfMacro(lexer.restOfLine());
    } else if (name == "undef") {
        m_macros.remove(lexer.next().text);
    } else if (name == "ifdef" || name == "ifndef") {
        conditional(m_macros.contains(lexer.next().text) == (name == "ifdef"));
    } else if (name == "else" || name == "elsif") {
        skipBranch(false); // the branch before was taken
    } else if (name == "include") {
        include();
    } else if (wholeLine.contains(name)) {
        lexer.restOfLine();
    }
}

void HdlScanner::conditional(bool holds)
{
    if (!holds)
        skipBranch(true);
}

/// Skips to the end of a conditional, or to a branch of it that holds when `stopAtElse` is set.
void HdlScanner::skipBranch(bool stopAtElse)
{
    HdlLexer &lexer = m_texts.back().lexer;
    int depth = 0;
    for (HdlToken token = lexer.next(); token.kind != HdlToken::End; token = lexer.next()) {
        if (token.kind != HdlToken::Directive)
            continue;
        if (token.text == "ifdef" || token.text == "ifndef") {
            ++depth;
        } else if (token.text == "endif") {
            if (depth-- == 0)
                return;
        } else if (depth == 0 && stopAtElse) {
            if (token.text == "else" || (token.text == "elsif" && m_macros.contains(lexer.next().text)))
                return;
        }
        if (token.text == "define")
            lexer.restOfLine();
    }
}

void HdlScanner::include()
{
    const HdlToken name = m_texts.back().lexer.next();
    if (name.kind != HdlToken::Text || m_texts.size() > maxIncludeDepth || m_includes >= maxIncludes ||
        m_includedBytes > maxIncludedBytes)
        return;
    const std::optional<HdlText> found = m_openInclude(name.text, m_texts.back().origin);
    if (!found)
        return;
    ++m_includes;
    m_includedBytes += found->text.size();
    m_texts.push_back({HdlLexer(found->text), found->origin});
}

void HdlScanner::keyword(const QByteArray &word)
{
    if (word == "genvar") {
        genvars();
    } else if (word == "defparam") {
        defparams();
    } else if (word == "module" || word == "macromodule" || word == "program" || word == "package") {
        HdlToken name = take();
        if (name.is("automatic") || name.is("static"))
            name = take();
        if (name.kind != HdlToken::Identifier)
            putBack(name);
        else if (word == "package")
            m_result.packages.insert(name.text);
        else
            addModule(name.text);
    }
}

void HdlScanner::addModule(const QByteArray &name)
{
    m_result.modules.append(name);
    m_result.genvars[name];
}

void HdlScanner::genvars()
{
    HdlToken token;
    do {
        token = take();
        if (token.kind != HdlToken::Identifier)
            break;
        m_result.genvars[m_result.modules.isEmpty() ? QByteArray() : m_result.modules.constLast()].insert(token.text);
        token = take();
    } while (token.is(","));
    putBack(token);
}

/// Macros are not expanded; which modules their genvars are in is not known.
void HdlScanner::genvarsOfMacro(const QByteArray &text)
{
    HdlLexer lexer(text);
    for (HdlToken token = lexer.next(); token.kind != HdlToken::End; token = lexer.next()) {
        if (token.is("genvar"))
            m_result.genvars[QByteArray()].insert(lexer.next().text);
    }
}

/// `defparam u_a.u_b.DEPTH = 4, ...;`: the word before each equals sign.
void HdlScanner::defparams()
{
    QByteArray last;
    for (HdlToken token = take(); token.kind != HdlToken::End && !token.is(";"); token = take()) {
        if (token.is("=") && !last.isEmpty())
            m_result.defparams.insert(last);
        last = token.kind == HdlToken::Identifier ? token.text : QByteArray();
    }
}

/// Reads `module #(...) name [..] (...), name (...);` when that is what follows.
void HdlScanner::identifier(const QByteArray &name)
{
    ModuleUsage usage;
    bool isAnyParameter = false; // the language has no `.*` for parameters
    HdlToken token = take();
    if (token.is("#")) {
        token = take();
        if (token.is("(") && !connections(usage.parameters, usage.positionalParameters, isAnyParameter))
            return;
        token = take();
    }
    bool isInstance = false;
    while (token.kind == HdlToken::Identifier && instance(token.text, usage)) {
        isInstance = true;
        token = take();
        if (!token.is(","))
            break;
        token = take();
    }
    putBack(token);
    if (!isInstance)
        return;
    if (!m_result.modules.isEmpty() && m_result.modules.constLast() == name)
        m_result.recursive.insert(name);
    m_result.usages[name].unite(usage);
}

/// Reads the ranges and connections of an instance, whose name was read.
bool HdlScanner::instance(const QByteArray &name, ModuleUsage &usage)
{
    HdlToken token = take();
    int dimensions = 0;
    for (; token.is("["); ++dimensions) {
        do
            token = take();
        while (token.kind != HdlToken::End && !token.is("]") && !token.is(";"));
        if (!token.is("]"))
            break;
        token = take();
    }
    if (!token.is("(")) {
        putBack(token);
        return false;
    }
    if (dimensions > 1)
        m_result.flattened.append(name);
    return connections(usage.pins, usage.positionalPins, usage.hasWildcard);
}

/// Reads a list of connections after its opening parenthesis. False when the text is something else.
bool HdlScanner::connections(QSet<QByteArray> &names, int &positional, bool &hasWildcard)
{
    int position = 0;
    HdlToken token = take();
    while (!token.is(")")) {
        const bool isNamed = token.is(".");
        if (isNamed) {
            token = take();
            hasWildcard = hasWildcard || token.is("*");
            if (token.kind == HdlToken::Identifier || token.kind == HdlToken::Keyword)
                names.insert(token.text);
            token = take();
        } else {
            ++position;
        }
        token = skipItem(token);
        if (!token.is(",")) {
            if (!token.is(")"))
                return false;
            break;
        }
        token = take();
        if (token.is(")") && !isNamed)
            ++position; // `(a, )` leaves the second one out
    }
    positional = qMax(positional, position);
    return true;
}

/// Skips to the comma or parenthesis that ends an item of a list, beginning with `token`, and answers it.
HdlToken HdlScanner::skipItem(HdlToken token)
{
    int depth = 0;
    for (; token.kind != HdlToken::End && !token.is(";"); token = take()) {
        if (depth == 0 && (token.is(",") || token.is(")")))
            return token;
        if (token.is("(") || token.is("[") || token.is("{"))
            ++depth;
        else if (token.is(")") || token.is("]") || token.is("}"))
            --depth;
    }
    return token;
}

} // namespace NETCATCHER

// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "workbench/hdlhighlighter.h"

#include "hostlibs/ovte/project.h"

namespace Workbench {

/// The state of a block that ends inside a comment.
constexpr int InsideComment = 1;

static QSet<QString> wordSet(const char *words)
{
    const QStringList list = QString::fromLatin1(words).split(' ');
    return {list.cbegin(), list.cend()};
}

static QSet<QString> verilogKeywords()
{
    static const char words[] =
        "always always_comb always_ff always_latch and assert assign automatic begin bit buf byte case casex casez "
        "class "
        "const constraint cover default defparam disable do edge else end endcase endclass endfunction endgenerate "
        "endinterface endmodule endpackage endprimitive endprogram endproperty endspecify endtable endtask enum event "
        "export extends extern final for force foreach forever fork function generate genvar if import initial inout "
        "input inside int integer interface join localparam logic longint macromodule modport module nand negedge new "
        "nor not null or output package packed parameter posedge primitive priority program property pullup pulldown "
        "real reg release repeat return shortint signed specify static string struct supply0 supply1 task this time "
        "timeprecision timeunit tri tri0 tri1 typedef union unique unsigned var virtual void wait wand while wire with "
        "wor xnor xor";
    return wordSet(words);
}

static QSet<QString> vhdlKeywords()
{
    static const char words[] =
        "abs access after alias all and architecture array assert attribute begin block body buffer bus case component "
        "configuration constant disconnect downto else elsif end entity exit file for function generate generic group "
        "guarded if impure in inertial inout is label library linkage literal loop map mod nand new next nor not null "
        "of on open or others out package port postponed procedure process protected pure range record register reject "
        "rem report return rol ror select severity shared signal sla sll sra srl subtype then to transport type "
        "unaffected units until use variable wait when while with xnor xor";
    return wordSet(words);
}

/// What a token is; the numbers are those of the groups in the patterns.
enum TokenKind { LineComment = 1, OpenComment, Text, Directive, Number, Word };

static QTextCharFormat formatOf(TokenKind kind)
{
    static const QHash<int, QRgb> colours = {{LineComment, 0x5f7a5f}, {OpenComment, 0x5f7a5f}, {Text, 0xa04a12},
                                             {Directive, 0x7a3e9d},   {Number, 0x0b7285},      {Word, 0x1a4f9c}};
    QTextCharFormat format;
    format.setForeground(QColor(colours.value(kind)));
    if (kind == Word)
        format.setFontWeight(QFont::DemiBold);
    return format;
}

Language languageOfPath(const QString &path)
{
    switch (TE::fileTypeOfPath(path)) {
    case TE::VerilogFile:
    case TE::SystemVerilogFile:
    case TE::HdlIncludeFile:
    case TE::GateNetlistFile:
        return Language::Verilog;
    case TE::VhdlFile:
        return Language::Vhdl;
    default:
        return Language::None;
    }
}

HdlHighlighter::HdlHighlighter(QTextDocument *document, Language language)
    : QSyntaxHighlighter(document)
    , m_language(language)
{
    if (language == Language::Vhdl) {
        m_tokens.setPattern(R"((--.*)|(/\*)|("[^"]*"?|'.')|(`\w+)|(\b\d[\w#.]*)|([A-Za-z]\w*))");
        m_keywords = vhdlKeywords();
    } else if (language == Language::Verilog) {
        m_tokens.setPattern(R"((//.*)|(/\*)|("(?:[^"\\]|\\.)*"?)|(`\w+|\$\w+))"
                            R"(|((?:\b\d[\d_]*)?\s?'[sS]?[bodhBODH]\s?[\w?]+|\b\d[\w.]*)|([A-Za-z_]\w*))");
        m_keywords = verilogKeywords();
    }
}

/// Colours a comment from `begin` on whose end is looked for from `from` on; answers where the text goes on.
int HdlHighlighter::highlightComment(const QString &text, int begin, int from)
{
    const int end = text.indexOf("*/", from);
    const int next = end < 0 ? text.size() : end + 2;
    setFormat(begin, next - begin, formatOf(OpenComment));
    setCurrentBlockState(end < 0 ? InsideComment : 0);
    return next;
}

void HdlHighlighter::highlightBlock(const QString &text)
{
    setCurrentBlockState(0);
    if (m_keywords.isEmpty())
        return;
    int at = previousBlockState() == InsideComment ? highlightComment(text, 0, 0) : 0;
    for (auto match = m_tokens.match(text, at); match.hasMatch(); match = m_tokens.match(text, at)) {
        const auto kind = TokenKind(match.lastCapturedIndex());
        at = match.capturedEnd();
        if (kind == OpenComment)
            at = highlightComment(text, match.capturedStart(), at);
        else if (kind != Word || isKeyword(match.captured()))
            setFormat(match.capturedStart(), match.capturedLength(), formatOf(kind));
    }
}

bool HdlHighlighter::isKeyword(const QString &word) const
{
    return m_keywords.contains(m_language == Language::Vhdl ? word.toLower() : word);
}

} // namespace Workbench

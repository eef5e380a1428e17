// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QRegularExpression>
#include <QSet>
#include <QSyntaxHighlighter>

namespace Workbench {

enum class Language { None, Verilog, Vhdl };

/// The language that the suffix of `path` stands for.
Language languageOfPath(const QString &path);

/// Colours keywords, comments, texts, numbers and directives.
class HdlHighlighter : public QSyntaxHighlighter
{
    Q_OBJECT

public:
    HdlHighlighter(QTextDocument *document, Language language);

protected:
    void highlightBlock(const QString &text) override;

private:
    int highlightComment(const QString &text, int begin, int from);
    bool isKeyword(const QString &word) const;

    Language m_language;
    QRegularExpression m_tokens;
    QSet<QString> m_keywords;
};

} // namespace Workbench

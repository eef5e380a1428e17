// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "workbench/codeeditor.h"

#include <QFontDatabase>
#include <QPainter>
#include <QTextBlock>

#include <algorithm>

namespace Workbench {

constexpr int MarginPadding = 6;
constexpr int TabWidth = 4;

class CodeEditor::LineNumbers : public QWidget
{
public:
    explicit LineNumbers(CodeEditor *editor)
        : QWidget(editor)
        , m_editor(editor)
    {
    }

    QSize sizeHint() const override { return {m_editor->marginWidth(), 0}; }

protected:
    void paintEvent(QPaintEvent *event) override { m_editor->paintMargin(event); }

private:
    CodeEditor *m_editor;
};

/// The system's font for code; where the platform names none of fixed width, the usual one.
static QFont fixedFont()
{
    QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    if (!QFontInfo(font).fixedPitch())
        font.setFamily("monospace");
    return font;
}

CodeEditor::CodeEditor(QWidget *parent)
    : QPlainTextEdit(parent)
    , m_margin(new LineNumbers(this))
{
    setFont(fixedFont());
    setLineWrapMode(QPlainTextEdit::NoWrap);
    setTabStopDistance(TabWidth * fontMetrics().horizontalAdvance(' '));
    setFrameShape(QFrame::NoFrame);
    connect(this, &QPlainTextEdit::blockCountChanged, this, &CodeEditor::updateMargin);
    connect(this, &QPlainTextEdit::updateRequest, this, &CodeEditor::onUpdateRequest);
    connect(this, &QPlainTextEdit::cursorPositionChanged, this, &CodeEditor::markCurrentLine);
    updateMargin();
    markCurrentLine();
}

void CodeEditor::goToLine(int line)
{
    const QTextBlock block = document()->findBlockByNumber(std::clamp(line, 1, blockCount()) - 1);
    setTextCursor(QTextCursor(block));
    centerCursor();
}

int CodeEditor::currentLine() const
{
    return textCursor().blockNumber() + 1;
}

int CodeEditor::marginWidth() const
{
    const int digits = std::max(3, QString::number(blockCount()).size());
    return 2 * MarginPadding + digits * fontMetrics().horizontalAdvance('9');
}

void CodeEditor::updateMargin()
{
    setViewportMargins(marginWidth(), 0, 0, 0);
}

void CodeEditor::onUpdateRequest(const QRect &rect, int dy)
{
    if (dy != 0)
        m_margin->scroll(0, dy);
    else
        m_margin->update(0, rect.y(), m_margin->width(), rect.height());
}

void CodeEditor::resizeEvent(QResizeEvent *event)
{
    QPlainTextEdit::resizeEvent(event);
    const QRect area = contentsRect();
    m_margin->setGeometry(area.left(), area.top(), marginWidth(), area.height());
}

void CodeEditor::markCurrentLine()
{
    QTextEdit::ExtraSelection line;
    line.format.setBackground(QColor(0xee, 0xf4, 0xfa));
    line.format.setProperty(QTextFormat::FullWidthSelection, true);
    line.cursor = textCursor();
    line.cursor.clearSelection();
    setExtraSelections({line});
    m_margin->update();
}

void CodeEditor::paintMargin(QPaintEvent *event)
{
    QPainter painter(m_margin);
    painter.fillRect(event->rect(), palette().color(QPalette::Window));
    painter.setFont(font());
    const int current = textCursor().blockNumber();
    QTextBlock block = firstVisibleBlock();
    qreal top = blockBoundingGeometry(block).translated(contentOffset()).top();
    while (block.isValid() && top <= event->rect().bottom()) {
        const qreal height = blockBoundingRect(block).height();
        const bool isCurrent = block.blockNumber() == current;
        painter.setPen(palette().color(isCurrent ? QPalette::Active : QPalette::Disabled, QPalette::Text));
        painter.drawText(QRectF(0, top, m_margin->width() - MarginPadding, fontMetrics().height()), Qt::AlignRight,
                         QString::number(block.blockNumber() + 1));
        top += height;
        block = block.next();
    }
}

} // namespace Workbench

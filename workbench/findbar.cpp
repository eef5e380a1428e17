// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "workbench/findbar.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTextBlock>
#include <QToolButton>

namespace Workbench {

static QToolButton *textButton(const QString &text, QWidget *parent)
{
    auto *button = new QToolButton(parent);
    button->setText(text);
    button->setAutoRaise(true);
    return button;
}

FindBar::FindBar(QPlainTextEdit *editor)
    : m_editor(editor)
    , m_pattern(new QLineEdit(this))
    , m_matchCase(new QCheckBox(tr("Match &case"), this))
    , m_result(new QLabel(this))
{
    auto *next = textButton(tr("Next"), this);
    auto *previous = textButton(tr("Previous"), this);
    auto *close = textButton(QString(QChar(0x2715)), this);
    close->setToolTip(tr("Close (Escape)"));
    m_pattern->setObjectName("findPattern");
    m_pattern->setPlaceholderText(tr("Find"));
    m_result->setObjectName("findResult");
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(6, 3, 6, 3);
    layout->addWidget(m_pattern, 2);
    for (QWidget *widget :
         {static_cast<QWidget *>(previous), static_cast<QWidget *>(next), static_cast<QWidget *>(m_matchCase)})
        layout->addWidget(widget);
    layout->addWidget(m_result, 1);
    layout->addWidget(close);
    connect(m_pattern, &QLineEdit::textEdited, this, &FindBar::findWhileTyping);
    connect(m_pattern, &QLineEdit::returnPressed, this, &FindBar::findNext);
    connect(m_matchCase, &QCheckBox::toggled, this, &FindBar::findWhileTyping);
    connect(next, &QToolButton::clicked, this, &FindBar::findNext);
    connect(previous, &QToolButton::clicked, this, &FindBar::findPrevious);
    connect(close, &QToolButton::clicked, this, &FindBar::finish);
    setFocusProxy(m_pattern);
    hide();
}

void FindBar::start()
{
    const QString selected = m_editor->textCursor().selectedText();
    if (!selected.isEmpty() && !selected.contains(QChar::ParagraphSeparator))
        m_pattern->setText(selected);
    m_result->clear();
    show();
    m_pattern->selectAll();
    m_pattern->setFocus();
}

void FindBar::findNext()
{
    find({});
}

void FindBar::findPrevious()
{
    find(QTextDocument::FindBackward);
}

void FindBar::findWhileTyping()
{
    QTextCursor cursor = m_editor->textCursor();
    cursor.setPosition(cursor.selectionStart());
    m_editor->setTextCursor(cursor);
    find({});
}

void FindBar::find(QTextDocument::FindFlags direction)
{
    if (m_pattern->text().isEmpty()) {
        m_result->clear();
        return;
    }
    QTextDocument::FindFlags flags = direction;
    flags.setFlag(QTextDocument::FindCaseSensitively, m_matchCase->isChecked());
    m_result->clear();
    if (m_editor->find(m_pattern->text(), flags))
        return;
    const QTextCursor before = m_editor->textCursor();
    m_editor->moveCursor(direction.testFlag(QTextDocument::FindBackward) ? QTextCursor::End : QTextCursor::Start);
    if (m_editor->find(m_pattern->text(), flags)) {
        m_result->setText(tr("Started over"));
        return;
    }
    m_editor->setTextCursor(before);
    m_result->setText(tr("Not found"));
}

void FindBar::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape)
        finish();
    else
        QWidget::keyPressEvent(event);
}

void FindBar::finish()
{
    hide();
    m_editor->setFocus();
}

} // namespace Workbench

// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QTextDocument>
#include <QWidget>

class QCheckBox;
class QLabel;
class QLineEdit;
class QPlainTextEdit;

namespace Workbench {

/// The line below a text in which a person types what to find.
class FindBar : public QWidget
{
    Q_OBJECT

public:
    explicit FindBar(QPlainTextEdit *editor);

    /// Shows the bar with the selected text, if any, to be typed over.
    void start();
    /// Finds the next place, or the one before; starts over at the other end.
    void findNext();
    void findPrevious();

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    void find(QTextDocument::FindFlags direction);
    void findWhileTyping();
    void finish();

    QPlainTextEdit *m_editor;
    QLineEdit *m_pattern;
    QCheckBox *m_matchCase;
    QLabel *m_result;
};

} // namespace Workbench

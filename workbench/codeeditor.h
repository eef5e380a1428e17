// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QPlainTextEdit>

namespace Workbench {

/// A plain text editor with line numbers and the current line marked.
class CodeEditor : public QPlainTextEdit
{
    Q_OBJECT

public:
    explicit CodeEditor(QWidget *parent = nullptr);

    /// Puts the cursor on line `line`, from 1, and shows it.
    void goToLine(int line);
    int currentLine() const;

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    class LineNumbers;
    int marginWidth() const;
    void updateMargin();
    void onUpdateRequest(const QRect &rect, int dy);
    void markCurrentLine();
    void paintMargin(QPaintEvent *event);

    LineNumbers *m_margin;
};

} // namespace Workbench

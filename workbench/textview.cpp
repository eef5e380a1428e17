// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "workbench/textview.h"

#include "workbench/codeeditor.h"
#include "workbench/findbar.h"
#include "workbench/hdlhighlighter.h"

#include <QCloseEvent>
#include <QDir>
#include <QFileInfo>
#include <QMessageBox>
#include <QPointer>
#include <QScrollBar>
#include <QVBoxLayout>

namespace Workbench {

TextView::TextView(QWidget *parent)
    : Core::IView(parent)
    , m_editor(new CodeEditor(this))
    , m_findBar(new FindBar(m_editor))
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_editor);
    layout->addWidget(m_findBar);
    setFocusProxy(m_editor);
    connect(m_editor, &QPlainTextEdit::modificationChanged, this, &TextView::updateTitles);
    connect(m_editor, &QPlainTextEdit::modificationChanged, this, &TextView::modificationStatusChanged);
}

bool TextView::open(const QString &path, QString *error)
{
    if (!readTextFile(path, &m_format, error))
        return false;
    m_path = path;
    setWindowFilePath(path);
    new HdlHighlighter(m_editor->document(), languageOfPath(path));
    m_editor->setPlainText(m_format.text);
    m_editor->setReadOnly(!QFileInfo(path).isWritable());
    updateTitles();
    return true;
}

bool TextView::isModified() const
{
    return m_editor->document()->isModified();
}

void TextView::updateTitles()
{
    const QString name = QFileInfo(m_path).fileName();
    const QString mark = m_editor->isReadOnly() ? tr(" (read-only)") : QString(isModified() ? " *" : "");
    setWindowTitle(name + mark);
    setShortTitle(name + mark);
}

/// Whether the file on disk is still the one that was read, or may be written over.
bool TextView::mayOverwrite()
{
    TextFile onDisk;
    QString unused;
    if (!QFileInfo::exists(m_path) || (readTextFile(m_path, &onDisk, &unused) && onDisk.text == m_format.text))
        return true;
    const auto answer = QMessageBox::question(
        this, tr("Save"),
        tr("Another program has changed \"%1\" since it was opened here.\nWrite over its changes?")
            .arg(QDir::toNativeSeparators(m_path)),
        QMessageBox::Save | QMessageBox::Cancel, QMessageBox::Cancel);
    return answer == QMessageBox::Save;
}

/// A text that its file's encoding cannot spell any more is saved as UTF-8, if that is wanted.
bool TextView::askForUtf8()
{
    TextFile file = m_format;
    file.text = m_editor->toPlainText();
    if (canEncode(file))
        return true;
    const auto answer = QMessageBox::question(
        this, tr("Save"), tr("The text has characters that the file's encoding (Latin-1) lacks.\nSave it as UTF-8?"),
        QMessageBox::Save | QMessageBox::Cancel);
    if (answer == QMessageBox::Save)
        m_format.encoding = TextFile::Encoding::Utf8;
    return answer == QMessageBox::Save;
}

bool TextView::save()
{
    if (!mayOverwrite() || !askForUtf8())
        return false;
    TextFile file = m_format;
    file.text = m_editor->toPlainText();
    QString error;
    if (!writeTextFile(m_path, file, &error)) {
        QMessageBox::critical(this, tr("Error"), error);
        return false;
    }
    m_format = file;
    m_editor->document()->setModified(false);
    emit saved(m_path);
    return true;
}

void TextView::reloadIfChanged()
{
    TextFile onDisk;
    QString unused;
    if (isModified() || !readTextFile(m_path, &onDisk, &unused) || onDisk.text == m_format.text)
        return;
    m_format = onDisk;
    const int line = m_editor->currentLine();
    const int scrolled = m_editor->verticalScrollBar()->value();
    m_editor->setPlainText(m_format.text);
    m_editor->goToLine(line);
    m_editor->verticalScrollBar()->setValue(scrolled);
}

void TextView::onActivated()
{
    reloadIfChanged();
}

void TextView::closeEvent(QCloseEvent *event)
{
    if (!isModified()) {
        event->accept();
        return;
    }
    const QPointer<TextView> self(this);
    const auto answer =
        QMessageBox::question(this, tr("Save"), tr("Save changes to \"%1\" ?").arg(QDir::toNativeSeparators(m_path)),
                              QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, QMessageBox::Save);
    const bool closes = answer == QMessageBox::Discard || (answer == QMessageBox::Save && !self.isNull() && save());
    event->setAccepted(closes);
}

} // namespace Workbench

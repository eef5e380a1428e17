// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "workbench/textfile.h"

#include <IdeCore/iview.h>

namespace Workbench {

class CodeEditor;
class FindBar;

/// Shows and edits a source or any other text file.
class TextView : public Core::IView
{
    Q_OBJECT

public:
    explicit TextView(QWidget *parent = nullptr);

    /// Absolute and clean.
    QString file() const { return m_path; }
    bool open(const QString &path, QString *error);
    /// Writes the file; reports its own failures.
    bool save();
    bool isModified() const;
    CodeEditor *editor() const { return m_editor; }
    FindBar *findBar() const { return m_findBar; }
    /// Takes over what another program wrote, unless there is unsaved work here.
    void reloadIfChanged();

    void onActivated() override;

signals:
    void modificationStatusChanged(bool modified);
    /// The file was written by this view.
    void saved(const QString &path);

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    void updateTitles();
    bool mayOverwrite();
    bool askForUtf8();

    QString m_path;
    TextFile m_format; ///< how the file was stored; its text is the one last read or written
    CodeEditor *m_editor;
    FindBar *m_findBar;
};

} // namespace Workbench

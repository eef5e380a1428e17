// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QDialog>

class QComboBox;
class QLabel;
class QPlainTextEdit;
class QPushButton;

namespace Workbench {

/// The options of the open project: top module, include paths, defines, language standard, synthesis tool. They change
/// when the dialog is accepted.
class ConfigurationDialog : public QDialog
{
    Q_OBJECT

public:
    explicit ConfigurationDialog(QWidget *parent = nullptr);

    void accept() override;

signals:
    /// What the netlist library had to say while it looked for modules.
    void messages(const QStringList &lines);

private:
    void load();
    void findModules();
    void addIncludeFolder();
    void check();

    QComboBox *m_top;
    QPushButton *m_find;
    QLabel *m_found;
    QPlainTextEdit *m_includePaths;
    QPlainTextEdit *m_defines;
    QComboBox *m_standard;
    QComboBox *m_tool;
    QLabel *m_problem;
    QPushButton *m_ok;
};

/// The first of `defines` that is no NAME or NAME=VALUE; empty when all are.
QString firstWrongDefine(const QStringList &defines);

} // namespace Workbench

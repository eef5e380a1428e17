// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QWidget>

class QListWidget;
class QListWidgetItem;

namespace Workbench {

enum class Severity { Info, Warning, Error };

/// The list of what the program has to say. A message that begins with FILE:LINE: leads to that place.
class MessagesPanel : public QWidget
{
    Q_OBJECT

public:
    explicit MessagesPanel(QWidget *parent = nullptr);

    void add(Severity severity, const QString &text);
    /// Adds each line; the netlist library's lines begin with their severity.
    void addLines(const QStringList &lines);
    void clear();
    QStringList texts() const;

signals:
    /// A person asks for the place that a message names. The path is as the message spells it.
    void placeRequested(const QString &path, int line);

private:
    void onActivated(const QListWidgetItem *item);
    void onMenuRequested(const QPoint &position);

    QListWidget *m_list;
};

/// Takes "FILE:LINE" at the beginning of a message apart, after an optional "ERROR: " or "WARNING: ".
bool placeInMessage(const QString &message, QString *path, int *line);

} // namespace Workbench

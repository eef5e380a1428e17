// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QWidget>

class QAction;
class QLabel;
class QVBoxLayout;

namespace Workbench {

class RecentFiles;

/// What the window shows while nothing is open: the three steps to an analyzer, each with what does it, and the files
/// opened last.
class WelcomePage : public QWidget
{
    Q_OBJECT

public:
    /// A step: its text and the actions that do it.
    struct Step
    {
        QString title;
        QString hint;
        QList<QAction *> actions;
    };

    WelcomePage(const QList<Step> &steps, const RecentFiles &recent, QWidget *parent = nullptr);

signals:
    void openRequested(const QString &path);

private:
    QWidget *stepWidget(int number, const Step &step);
    void updateRecent();

    const RecentFiles &m_recent;
    QLabel *m_recentLabel;
};

} // namespace Workbench

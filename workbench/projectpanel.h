// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QHash>
#include <QWidget>

class QStackedLayout;
class QTreeWidget;
class QTreeWidgetItem;

namespace Workbench {

/// The tree of the project's files, by what they are; a check box says whether a file is enabled.
class ProjectPanel : public QWidget
{
    Q_OBJECT

public:
    explicit ProjectPanel(QWidget *parent = nullptr);

    QStringList selectedFiles() const;

signals:
    void openRequested(const QString &path);
    void addFilesRequested();

private:
    void rebuild();
    QTreeWidgetItem *groupItem(const QString &title);
    void onItemChanged(QTreeWidgetItem *item);
    void onItemActivated(const QTreeWidgetItem *item);
    void onMenuRequested(const QPoint &position);
    void removeSelected();
    void enableSelected(bool enabled);
    void setTypeOfSelected(int type);
    void askForLibrary();

    QTreeWidget *m_tree;
    QStackedLayout *m_pages;
    QHash<QString, bool> m_expanded; ///< by the title of the group
};

} // namespace Workbench

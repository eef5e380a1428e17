// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <hostglobal.h>

#include <QList>
#include <QWidget>

#include <memory>

namespace Core {

class IView;
class ViewContainer;

/// The tab area in which the host's main window shows its views. While one exists, ViewManager::showView() puts views
/// into it, each in a container of its own; without one every container is a window.
class HOST_EXPORT ViewArea : public QWidget
{
    Q_OBJECT

public:
    explicit ViewArea(QWidget *parent = nullptr);
    /// Closes the views that are left without asking; viewClosed() is still emitted for each.
    ~ViewArea() override;

    /// The area that views are shown in: the youngest one alive, or null.
    static ViewArea *current();

    /// The open views in the order of their tabs.
    QList<Core::IView *> views() const;
    Core::IView *activeView() const;
    /// What is shown while no view is open. The area takes ownership.
    void setEmptyPage(QWidget *page);
    /// Shows a container as a new tab and makes it current. The area takes ownership.
    void insert(Core::ViewContainer *container);
    /// Makes the tab of `container` the current one.
    void activate(Core::ViewContainer *container);
    /// Asks every view first and closes them only when none refuses: after one refusal all of them stay open.
    bool closeAll();
    /// Makes the tab `step` places to the right (negative: left) the current one, past the ends too.
    void activateNeighbour(int step);

signals:
    /// A view was opened or closed.
    void viewsChanged();
    /// The window title of `view` or its short title changed.
    void viewTitleChanged(Core::IView *view);

private:
    void remove(ViewContainer *container);
    void updateTab(ViewContainer *container);
    void closeTabs(int kept);
    void onTabMenuRequested(const QPoint &position);
    void onCurrentChanged();
    ViewContainer *containerAt(int index) const;

    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace Core

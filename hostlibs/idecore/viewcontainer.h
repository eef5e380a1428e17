// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QPointer>
#include <QWidget>

namespace Core {

class IView;

/// Holds one view. A plug-in closes its view by closing this parent of it, so closing the container means closing the
/// view: it asks the view, honours a refusal, tells the world while the view is alive, and is deleted later.
class ViewContainer : public QWidget
{
    Q_OBJECT

public:
    explicit ViewContainer(Core::IView *content);
    ~ViewContainer() override;

    Core::IView *view() const;
    /// Whether it was closed for good and waits for its deletion.
    bool isClosed() const;
    /// Asks the view without closing it for good. A view that agrees is hidden: close(), or take it back with stay().
    bool askView();
    void stay();

    /// The container that shows `view`; null when it is not shown.
    static ViewContainer *of(const Core::IView *view);

signals:
    /// Emitted once, after ViewManager::viewClosed(); the container is deleted later.
    void closed();

protected:
    void closeEvent(QCloseEvent *event) override;
    void childEvent(QChildEvent *event) override;

private:
    void closeForGood();

    enum class State { Open, Asking, Agreed, Closed };
    QPointer<Core::IView> m_view;
    State m_state = State::Open;
};

} // namespace Core

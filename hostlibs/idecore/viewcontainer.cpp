// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "hostlibs/idecore/viewcontainer.h"

#include <IdeCore/iview.h>
#include <IdeCore/viewmanager.h>

#include <QCloseEvent>
#include <QVBoxLayout>

namespace Core {

ViewContainer::ViewContainer(IView *content)
    : m_view(content)
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(content);
    content->show();
}

ViewContainer::~ViewContainer()
{
    closeForGood();
}

IView *ViewContainer::view() const
{
    return m_view;
}

bool ViewContainer::isClosed() const
{
    return m_state == State::Closed;
}

ViewContainer *ViewContainer::of(const IView *view)
{
    return view == nullptr ? nullptr : qobject_cast<ViewContainer *>(view->parentWidget());
}

bool ViewContainer::askView()
{
    if (m_state == State::Agreed || m_state == State::Closed)
        return true;
    if (m_state == State::Asking)
        return false;
    m_state = State::Asking;
    const QPointer<ViewContainer> self(this);
    const bool agreed = m_view.isNull() || m_view->close();
    if (self.isNull() || m_state == State::Closed)
        return true;
    m_state = agreed ? State::Agreed : State::Open;
    return agreed;
}

void ViewContainer::stay()
{
    if (m_state != State::Agreed)
        return;
    m_state = State::Open;
    if (!m_view.isNull())
        m_view->show();
}

void ViewContainer::closeEvent(QCloseEvent *event)
{
    const QPointer<ViewContainer> self(this);
    const bool agreed = askView();
    event->setAccepted(agreed);
    if (agreed && !self.isNull())
        closeForGood();
}

void ViewContainer::childEvent(QChildEvent *event)
{
    QWidget::childEvent(event);
    // A view that somebody deletes takes its tab along. QObject::destroyed comes too early for that: the view would
    // still be hidden with the tab, half destroyed.
    if (event->removed() && m_view.isNull())
        closeForGood();
}

void ViewContainer::closeForGood()
{
    if (m_state == State::Closed)
        return;
    m_state = State::Closed;
    // When a view was deleted by somebody else the pointer is null already and only the tab is left to remove.
    const QPointer<ViewContainer> self(this);
    if (!m_view.isNull())
        emit ViewManager::instance()->viewClosed(m_view);
    if (!self.isNull())
        emit closed();
    if (!self.isNull())
        deleteLater();
}

} // namespace Core

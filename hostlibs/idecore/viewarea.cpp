// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "hostlibs/idecore/viewarea.h"

#include "hostlibs/idecore/activeview.h"
#include "hostlibs/idecore/viewcontainer.h"

#include <IdeCore/iview.h>
#include <IdeCore/viewmanager.h>

#include <QMenu>
#include <QPointer>
#include <QSignalBlocker>
#include <QStackedLayout>
#include <QTabBar>
#include <QTabWidget>

namespace Core {

struct ViewArea::Private
{
    QStackedLayout *pages = nullptr;
    QTabWidget *tabs = nullptr;
    QWidget *emptyPage = nullptr;
};

static QList<ViewArea *> &areas()
{
    static QList<ViewArea *> theAreas;
    return theAreas;
}

/// A tab shows the short title, or the window title until one is set; an ampersand is not a shortcut there.
static QString tabText(const IView *view)
{
    QString text = view->shortTitle().isEmpty() ? view->windowTitle() : view->shortTitle();
    return text.replace('&', "&&");
}

ViewArea::ViewArea(QWidget *parent)
    : QWidget(parent)
    , d(std::make_unique<Private>())
{
    d->emptyPage = new QWidget(this);
    d->tabs = new QTabWidget(this);
    d->tabs->setDocumentMode(true);
    d->tabs->setTabsClosable(true);
    d->tabs->setMovable(true);
    d->tabs->setElideMode(Qt::ElideMiddle);
    d->tabs->tabBar()->setContextMenuPolicy(Qt::CustomContextMenu);
    d->pages = new QStackedLayout(this);
    d->pages->addWidget(d->emptyPage);
    d->pages->addWidget(d->tabs);
    connect(d->tabs, &QTabWidget::currentChanged, this, &ViewArea::onCurrentChanged);
    connect(d->tabs, &QTabWidget::tabCloseRequested, this, [this](int index) { containerAt(index)->close(); });
    connect(d->tabs->tabBar(), &QWidget::customContextMenuRequested, this, &ViewArea::onTabMenuRequested);
    areas().append(this);
}

ViewArea::~ViewArea()
{
    areas().removeOne(this);
    const QSignalBlocker quiet(d->tabs);
    while (d->tabs->count() > 0) {
        disconnect(d->tabs->widget(0), nullptr, this, nullptr);
        delete d->tabs->widget(0);
    }
    setActiveView(nullptr);
}

ViewArea *ViewArea::current()
{
    return areas().isEmpty() ? nullptr : areas().last();
}

ViewContainer *ViewArea::containerAt(int index) const
{
    return static_cast<ViewContainer *>(d->tabs->widget(index));
}

QList<IView *> ViewArea::views() const
{
    QList<IView *> result;
    for (int i = 0; i < d->tabs->count(); ++i)
        result.append(containerAt(i)->view());
    return result;
}

IView *ViewArea::activeView() const
{
    const auto *container = containerAt(d->tabs->currentIndex());
    return container == nullptr ? nullptr : container->view();
}

void ViewArea::setEmptyPage(QWidget *page)
{
    d->pages->insertWidget(0, page);
    delete d->emptyPage;
    d->emptyPage = page;
    if (d->tabs->count() == 0)
        d->pages->setCurrentWidget(page);
}

void ViewArea::insert(ViewContainer *container)
{
    IView *const view = container->view();
    connect(container, &ViewContainer::closed, this, [this, container] { remove(container); });
    connect(view, &IView::shortTitleChanged, container, [this, container] { updateTab(container); });
    connect(view, &QWidget::windowTitleChanged, container, [this, container] { updateTab(container); });
    d->tabs->addTab(container, view->windowIcon(), tabText(view));
    d->pages->setCurrentWidget(d->tabs);
    updateTab(container);
    activate(container);
    emit viewsChanged();
}

void ViewArea::activate(ViewContainer *container)
{
    d->tabs->setCurrentWidget(container);
    container->view()->setFocus();
}

void ViewArea::remove(ViewContainer *container)
{
    d->tabs->removeTab(d->tabs->indexOf(container));
    if (d->tabs->count() == 0)
        d->pages->setCurrentWidget(d->emptyPage);
    onCurrentChanged();
    emit viewsChanged();
}

void ViewArea::updateTab(ViewContainer *container)
{
    const int index = d->tabs->indexOf(container);
    if (index < 0 || container->view() == nullptr)
        return;
    d->tabs->setTabText(index, tabText(container->view()));
    const QString path = container->view()->windowFilePath();
    d->tabs->setTabToolTip(index, path.isEmpty() ? container->view()->windowTitle() : path);
    emit viewTitleChanged(container->view());
}

bool ViewArea::closeAll()
{
    QList<QPointer<ViewContainer>> asked;
    for (int i = 0; i < d->tabs->count(); ++i)
        asked.append(containerAt(i));
    bool agreed = true;
    for (const auto &container : qAsConst(asked)) {
        if (container.isNull() || container->view() == nullptr)
            continue;
        d->tabs->setCurrentWidget(container);
        agreed = container->askView();
        if (!agreed)
            break;
    }
    for (const auto &container : qAsConst(asked)) {
        if (!container.isNull())
            agreed ? static_cast<void>(container->close()) : container->stay();
    }
    return agreed;
}

void ViewArea::activateNeighbour(int step)
{
    const int count = d->tabs->count();
    if (count > 0)
        d->tabs->setCurrentIndex(((d->tabs->currentIndex() + step) % count + count) % count);
}

void ViewArea::closeTabs(int kept)
{
    QList<QPointer<ViewContainer>> others;
    for (int i = 0; i < d->tabs->count(); ++i) {
        if (i != kept)
            others.append(containerAt(i));
    }
    for (const auto &container : qAsConst(others)) {
        if (!container.isNull() && !container->close())
            return;
    }
}

void ViewArea::onTabMenuRequested(const QPoint &position)
{
    const int index = d->tabs->tabBar()->tabAt(position);
    if (index < 0)
        return;
    QMenu menu(this);
    const QAction *close = menu.addAction(tr("Close"));
    const QAction *closeOthers = menu.addAction(tr("Close Others"));
    const QAction *closeEvery = menu.addAction(tr("Close All"));
    const QAction *chosen = menu.exec(d->tabs->tabBar()->mapToGlobal(position));
    if (chosen == close)
        containerAt(index)->close();
    else if (chosen == closeOthers)
        closeTabs(index);
    else if (chosen == closeEvery)
        closeAll();
}

void ViewArea::onCurrentChanged()
{
    setActiveView(activeView());
}

} // namespace Core

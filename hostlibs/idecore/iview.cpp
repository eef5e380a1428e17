// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include <IdeCore/iview.h>

namespace Core {

struct IView::Private
{
    QString shortTitle;
};

IView::IView(QWidget *parent)
    : QWidget(parent)
    , d(std::make_unique<Private>())
{
}

IView::~IView() = default;

void IView::onActivated() {}

void IView::onDeactivated() {}

QString IView::shortTitle() const
{
    return d->shortTitle;
}

void IView::setShortTitle(const QString &title)
{
    if (d->shortTitle == title)
        return;
    d->shortTitle = title;
    emit shortTitleChanged(title);
}

} // namespace Core

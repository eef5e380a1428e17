// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <hostglobal.h>

#include <QWidget>

#include <memory>

namespace Core {

/// A document view that the view manager shows in a container of its own.
///
/// The window title is the document's name; the short title is what the tab shows. A view that has unsaved work asks in
/// its closeEvent() and ignores the event to stay open.
class HOST_EXPORT IView : public QWidget
{
    Q_OBJECT

public:
    explicit IView(QWidget *parent = nullptr);
    ~IView() override;

    /// Called by the view manager after this view became the active one. The default does nothing.
    virtual void onActivated();
    /// Called by the view manager after this view ceased to be the active one. The default does nothing.
    virtual void onDeactivated();

    /// The text of the view's tab; empty until set, the tab then shows the window title.
    QString shortTitle() const;
    void setShortTitle(const QString &title);

signals:
    /// Emitted when setShortTitle() really changed the text.
    void shortTitleChanged(const QString &title);

private:
    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace Core

// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "workbench/textviewmanager.h"

#include "workbench/actionids.h"
#include "workbench/codeeditor.h"
#include "workbench/findbar.h"
#include "workbench/textview.h"

#include <IdeCore/actionmanager.h>
#include <IdeCore/viewmanager.h>

#include <QAction>
#include <QInputDialog>

#include <algorithm>

namespace Workbench {

constexpr char TextContext[] = "Workbench.TextView.Context";

static void askForLine(TextView &view)
{
    const QPointer<TextView> alive(&view);
    const int lines = view.editor()->blockCount();
    bool ok = false;
    const int line = QInputDialog::getInt(&view, TextViewManager::tr("Go to Line"),
                                          TextViewManager::tr("Line (1 to %1):").arg(lines),
                                          view.editor()->currentLine(), 1, lines, 1, &ok);
    if (ok && !alive.isNull())
        view.editor()->goToLine(line);
}

TextViewManager::TextViewManager(QObject *parent)
    : QObject(parent)
    , m_save(addAction(ActionId::Save, tr("&Save"), [](TextView &view) { view.save(); }))
{
    m_save->setEnabled(false);
    addAction(ActionId::Find, tr("&Find..."), [](TextView &view) { view.findBar()->start(); });
    addAction(ActionId::FindNext, tr("Find &Next"), [](TextView &view) { view.findBar()->findNext(); });
    addAction(ActionId::FindPrevious, tr("Find &Previous"), [](TextView &view) { view.findBar()->findPrevious(); });
    addAction(ActionId::GoToLine, tr("&Go to Line..."), askForLine);
    auto *manager = Core::ViewManager::instance();
    connect(manager, &Core::ViewManager::viewActiveted, this, &TextViewManager::onViewActivated);
    connect(manager, &Core::ViewManager::viewClosed, this, &TextViewManager::onViewClosed);
}

QAction *TextViewManager::addAction(const char *id, const QString &text, const std::function<void(TextView &)> &act)
{
    auto *action = new QAction(text, this);
    connect(action, &QAction::triggered, this, [this, act] {
        if (!m_current.isNull())
            act(*m_current);
    });
    Core::ActionManager::registerAction(action, id, TextContext);
    return action;
}

TextView *TextViewManager::viewOf(const QString &path) const
{
    const auto found =
        std::find_if(m_views.cbegin(), m_views.cend(), [&](const TextView *view) { return view->file() == path; });
    return found == m_views.cend() ? nullptr : *found;
}

bool TextViewManager::open(const QString &path, int line, QString *error)
{
    TextView *view = viewOf(path);
    if (view == nullptr) {
        auto fresh = std::make_unique<TextView>();
        if (!fresh->open(path, error))
            return false;
        view = fresh.release();
        m_views.append(view);
        connect(view, &TextView::modificationStatusChanged, this, &TextViewManager::updateSave);
        connect(view, &QWidget::windowTitleChanged, this, &TextViewManager::updateSave);
        connect(view, &TextView::saved, this, &TextViewManager::fileSaved);
        connect(view, &QObject::destroyed, this, [this, view] { m_views.removeAll(view); });
        Core::ViewManager::registerContext(view, TextContext, true);
    }
    Core::ViewManager::showView(view);
    if (line > 0)
        view->editor()->goToLine(line);
    return true;
}

void TextViewManager::onViewActivated(Core::IView *view)
{
    m_current = qobject_cast<TextView *>(view);
    updateSave();
}

void TextViewManager::onViewClosed(Core::IView *view)
{
    m_views.removeAll(qobject_cast<TextView *>(view));
    if (m_current == view)
        m_current.clear();
    updateSave();
}

void TextViewManager::updateSave()
{
    m_save->setEnabled(!m_current.isNull() && m_current->isModified());
    if (m_current.isNull())
        return;
    m_save->setText(QString("&Save \"%1\"").arg(m_current->windowTitle()));
    m_save->setToolTip(QString("Save \"%1\"").arg(m_current->windowTitle()));
}

} // namespace Workbench

// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "plugin/vakviewmanager.h"

#include "plugin/vakinserterview.h"

#include "views/vakliteinserterview.h"
#include "views/vakstandardinserterview.h"

#include <Device/devicearg.h>
#include <IdeCore/actionmanager.h>
#include <IdeCore/viewmanager.h>
#include <VakUtils/vakfile.h>

#include <QAction>
#include <QDebug>
#include <QDir>
#include <QFileInfo>
#include <QMessageBox>
#include <QPointer>

#include <memory>

namespace RTLVAK {

namespace private_impl {

/// What the manager knows. Lies outside it, so that the object itself carries nothing.
struct ViewManagerRecord
{
    QAction *saveAction = nullptr;
    VakInserterView *currentView = nullptr; ///< kept when another kind of view becomes active; see hasCurrent
    QList<VakInserterView *> views;
    bool hasCurrent = false; ///< whether the active view of the host is currentView
};

} // namespace private_impl

// Made when the module is loaded, before the host asks for the plug-in, and in this order: the manager uses the record.
// On the heap, because they end with the plug-in and not with the program. Neither holds a widget: there may be no
// application yet.
private_impl::ViewManagerRecord *VakViewManager::record = new private_impl::ViewManagerRecord;
VakViewManager *VakViewManager::manager = new VakViewManager;

static QString contextId()
{
    return QStringLiteral("RTLVAK.VakViewManager.Context");
}

static void showError(const QString &text)
{
    // On the heap: the host may delete the parent, and the box with it, while the box is open.
    const QPointer<QMessageBox> box = new QMessageBox(QMessageBox::Critical, QStringLiteral("Error"), text,
                                                      QMessageBox::Ok, Core::ViewManager::dialogParent());
    box->setTextFormat(Qt::PlainText); // a path may look like markup
    box->exec();
    delete box;
}

static VakInserterView *findView(const QList<VakInserterView *> &views, const QString &path)
{
    const QString wanted = QFileInfo(path).absoluteFilePath();
    for (VakInserterView *view : views) {
        if (QFileInfo(view->file()).absoluteFilePath() == wanted)
            return view;
    }
    return nullptr;
}

static bool showOpenView(const QList<VakInserterView *> &views, const QString &path)
{
    VakInserterView *view = findView(views, path);
    if (view)
        Core::ViewManager::showView(view);
    return view;
}

/// The view that edits files of the mode that `path` names; null, after the user was told, when there is none.
static std::unique_ptr<VakInserterView> createView(const QString &path)
{
    switch (VAK::vakModeFromVakConfigFile(path)) {
    case VAK::VakMode::Standard:
        return std::make_unique<VakStandardInserterView>();
    case VAK::VakMode::Lite:
        return std::make_unique<VakLiteInserterView>();
    case VAK::VakMode::Invalid:
        break;
    }
    showError(QStringLiteral("Can not open %1:\nInvalid VAK file.").arg(QDir::toNativeSeparators(path)));
    return nullptr;
}

VakViewManager::VakViewManager() = default;
VakViewManager::~VakViewManager() = default;

VakViewManager *VakViewManager::instance()
{
    return manager;
}

void VakViewManager::initialize()
{
    record->saveAction = new QAction(this);
    Core::ActionManager::registerAction(record->saveAction, QStringLiteral("Core.Action.Save"), contextId());
    record->saveAction->setEnabled(false);
    connect(record->saveAction, &QAction::triggered, this, &VakViewManager::onActSave);
    connect(Core::ViewManager::instance(), &Core::ViewManager::viewActiveted, this,
            &VakViewManager::onCurrentViewChanged);
    connect(Core::ViewManager::instance(), &Core::ViewManager::viewClosed, this, &VakViewManager::onInserterViewClosed);
}

void VakViewManager::deinit()
{
    delete record;
    delete this; // the pointers stay as they are: nothing may use the manager from here on
}

bool VakViewManager::openInserterView(const QString &path, const DEV::DeviceArg &device)
{
    if (showOpenView(record->views, path))
        return true;
    std::unique_ptr<VakInserterView> view = createView(path);
    if (!view)
        return false;
    QString errorString;
    if (!view->open(path, QString(), &errorString)) {
        if (!errorString.isEmpty()) // else the view itself has told the user
            showError(errorString);
        return false;
    }
    if (showOpenView(record->views, path)) // another opening overtook this one while the netlist was read
        return true;
    qDebug() << "create vakins inserter: " << view.get();
    view->setDevice(device.device());
    manager->adopt(view.release());
    return true;
}

/// Hands the view over to the host.
void VakViewManager::adopt(VakInserterView *view)
{
    record->views.append(view);
    connect(view, &VakInserterView::modificationStatusChanged, this, &VakViewManager::onInserterViewModified);
    Core::ViewManager::registerContext(view, contextId(), true);
    Core::ViewManager::showView(view);
}

bool VakViewManager::closeInserterView(const QString &path)
{
    VakInserterView *view = findView(record->views, path);
    if (!view)
        return false;
    Core::ViewManager::closeView(view);
    return true;
}

QList<VakInserterView *> VakViewManager::vakViews()
{
    return record->views;
}

void VakViewManager::refreshSaveAction()
{
    if (!record->hasCurrent) {
        record->saveAction->setEnabled(false);
        return;
    }
    const QString title = record->currentView->windowTitle();
    record->saveAction->setText(QStringLiteral("&Save \"%1\"").arg(title));
    record->saveAction->setToolTip(QStringLiteral("Save \"%1\"").arg(title));
    record->saveAction->setEnabled(record->currentView->isModified());
}

void VakViewManager::onCurrentViewChanged(Core::IView *view)
{
    auto *inserterView = qobject_cast<VakInserterView *>(view);
    if (!inserterView) {
        record->hasCurrent = false; // currentView deliberately keeps the view that was active before
        record->saveAction->setEnabled(false);
        return;
    }
    record->currentView = inserterView;
    record->hasCurrent = true;
    refreshSaveAction();
}

void VakViewManager::onInserterViewClosed(Core::IView *view)
{
    auto *inserterView = qobject_cast<VakInserterView *>(view);
    if (!inserterView)
        return;
    record->views.removeAll(inserterView);
    if (inserterView == record->currentView) {
        record->currentView = nullptr;
        record->hasCurrent = false;
    }
    refreshSaveAction();
}

void VakViewManager::onInserterViewModified(bool modified)
{
    Q_UNUSED(modified) // whether Save is enabled always comes from the view
    auto *inserterView = qobject_cast<VakInserterView *>(sender());
    if (inserterView && inserterView == record->currentView)
        refreshSaveAction();
}

void VakViewManager::onActSave()
{
    if (record->currentView && record->currentView->isModified())
        record->currentView->save(); // reports its own failures
}

} // namespace RTLVAK

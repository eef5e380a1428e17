// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "plugin/vakinsexport.h"

#include <QList>
#include <QObject>

namespace Core {
class IView;
}

namespace DEV {
class DeviceArg;
}

namespace RTLVAK {

namespace private_impl {
struct ViewManagerRecord;
}

class VakInserterPlugin;
class VakInserterView;

/// Opens analyzer configuration files in editor views, keeps the list of open views and owns the Save action that the
/// host shows for the active one. There is one, from the moment the module is loaded until deinit(); nobody may use it
/// afterwards.
class VAKINS_EXPORT VakViewManager : public QObject
{
    Q_OBJECT

public:
    static VakViewManager *instance();

    /// Shows the view of the file at `path`, opening it first where that is needed; the mode in the file decides which
    /// view edits it. A view that is open already keeps its device. Tells the user and returns false when the file
    /// cannot be opened.
    static bool openInserterView(const QString &path, const DEV::DeviceArg &device);
    /// Asks the host to close the view of the file at `path`. Returns whether there is one, not whether it closed: it
    /// may ask the user and stay.
    static bool closeInserterView(const QString &path);

    /// Every open view, in the order of opening. The host owns them.
    QList<VakInserterView *> vakViews();

private slots:
    void onCurrentViewChanged(Core::IView *view);
    void onInserterViewClosed(Core::IView *view);
    void onInserterViewModified(bool modified);
    void onActSave();

private:
    friend class VakInserterPlugin;

    VakViewManager();
    ~VakViewManager() override;

    void initialize();
    void deinit();

    void adopt(VakInserterView *view);
    void refreshSaveAction();

    static private_impl::ViewManagerRecord *record;
    static VakViewManager *manager;
};

} // namespace RTLVAK

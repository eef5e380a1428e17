// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "views/coredocument.h"

#include "capture/aooptionwidget.h"

#include <VakUtils/aocore.h>

#include <QList>
#include <QObject>

#include <functional>

class QAction;
class QModelIndex;
class QPoint;
class QTreeWidgetItem;

namespace RTLVAK {

class VakStandardInserterView;

namespace private_impl {

/// The state of a Standard view, and what its document does in its own way.
class VakStandardInserterViewPrivate : public QObject,
                                       public CoreDocument<VakStandardInserterViewPrivate, VAK::AoCore, AoOptionWidget>
{
    Q_OBJECT

public:
    explicit VakStandardInserterViewPrivate(VakStandardInserterView *view);
    ~VakStandardInserterViewPrivate() override;

    void addChangedBanner();

    void addItem(int number);
    void removeItem(int number);
    void showCore(int number);
    void showClickedCore(const QModelIndex &index);
    void showCoreMenu(const QPoint &pos);

    VakStandardInserterView *q;
    QString filePath;
    QList<VAK::AoCore *> cores;
    NETCATCHER::RtlNetlist *netlist = nullptr;
    std::unique_ptr<SearchIndex> searchIndex; ///< of the netlist of the pages; goes before that
    QList<AoOptionWidget *> widgets;          ///< one page for each core, in the same order
    QAction *addAction;
    QAction *removeAction;
    bool modified = false;
    std::function<void(bool)> notifyModified;
    QFileSystemWatcher *watcher;
    bool fileChangePending = false;
    bool netlistReadRunning = false;

protected:
    QWidget *bannerContainer() const override;
    bool &rtlReloadFlag() override;
    bool isReadable() const override;
    QList<VAK::AoCore *> readFile(bool *ok, QString *errorString) const override;
    AoOptionWidget *createPage(VAK::AoCore *core) override;
    void putPage(AoOptionWidget *page) override;
    void takePage(AoOptionWidget *page) override;
    void showFirstCore() override { showCore(0); }
    bool validate(QString *errors) const override;
    QString validationText() const override;
    bool write(const QString &fileName) const override;
    void connectFileBanner(const ReloadBanner *banner) const override;
    void connectDesignBanner(const ReloadBanner *banner) const override;

private:
    void showCoreOfKey(QTreeWidgetItem *item);
};

} // namespace private_impl
} // namespace RTLVAK

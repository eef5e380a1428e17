// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "views/inserterdocument.h"

#include <QList>
#include <QObject>

#include <functional>

class QAction;
class QModelIndex;
class QPoint;
class QTreeWidgetItem;

namespace VAK {
class AoCore;
}

namespace RTLVAK {

class AoOptionWidget;
class VakStandardInserterView;

namespace private_impl {

/// The state of a Standard view, and what its document does in its own way.
class VakStandardInserterViewPrivate : public QObject, public InserterDocument
{
    Q_OBJECT

public:
    explicit VakStandardInserterViewPrivate(VakStandardInserterView *view);
    ~VakStandardInserterViewPrivate() override;

    void addChangedBanner();
    void deletePages();

    void addItem(int number);
    void removeItem(int number);
    void showCore(int number);
    void showClickedCore(const QModelIndex &index);
    void showCoreMenu(const QPoint &pos);

    VakStandardInserterView *q;
    QString filePath;
    QList<VAK::AoCore *> cores;
    NETCATCHER::RtlNetlist *netlist = nullptr;
    QList<AoOptionWidget *> widgets; ///< one page for each core, in the same order
    QAction *addAction;
    QAction *removeAction;
    bool modified = false;
    std::function<void(bool)> notifyModified;
    QFileSystemWatcher *watcher;
    bool fileChangePending = false;
    bool netlistReadRunning = false;

protected:
    VakInserterView *view() const override;
    QWidget *bannerContainer() const override;
    QFileSystemWatcher *fileWatcher() const override { return watcher; }
    NETCATCHER::RtlNetlist *currentNetlist() const override { return netlist; }
    QString &path() override { return filePath; }
    bool &modifiedFlag() override { return modified; }
    bool &fileChangeFlag() override { return fileChangePending; }
    bool &rtlReloadFlag() override;
    bool &netlistReadFlag() override { return netlistReadRunning; }
    void notify(bool isModified) override { notifyModified(isModified); }

    bool isReadable() const override;
    bool readCores(QString *errorString) override;
    void showFirstCore() override { showCore(0); }
    void applyPages() override;
    bool validate(QString *errors) const override;
    QString validationText() const override;
    void setModuleName(const QString &name) override;
    bool write(const QString &fileName) const override;
    void setNetlist(std::unique_ptr<NETCATCHER::RtlNetlist> newNetlist) override;
    void connectFileBanner(const ReloadBanner *banner) const override;
    void connectDesignBanner(const ReloadBanner *banner) const override;

private:
    void addCore(int number);
    void addPage(VAK::AoCore *core);
    void removeCore(int row);
    void dropCores();
    void showCoreOfKey(QTreeWidgetItem *item);
};

} // namespace private_impl
} // namespace RTLVAK

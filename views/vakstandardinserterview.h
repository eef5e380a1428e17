// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "plugin/vakinserterview.h"
#include "plugin/vakinsexport.h"

#include <QUtility/ieventhandler.h>

class QModelIndex;
class QPoint;

namespace RTLVAK {

class AoOptionWidget;

namespace private_impl {
class VakStandardInserterViewPrivate;
}
namespace Ui {
class VakStandardInserterView;
}

/// The editor of a Standard-mode configuration file: its list of analyzer cores, and one page for each core.
class VAKINS_EXPORT VakStandardInserterView : public VakInserterView, public QUtil::IEventHandler
{
    Q_OBJECT

public:
    explicit VakStandardInserterView(QWidget *parent = nullptr);
    ~VakStandardInserterView() override;

    QString file() const override;
    bool open(const QString &fileName, const QString &extra, QString *errorString) override;
    bool save() override;
    bool isModified() const override;

    /// Stores the flag and emits modificationStatusChanged(), also when nothing changed; the titles stay.
    void setModified(bool on);
    /// Adds the page of a core and its item in the list of cores; answers the new number of pages.
    int addAoOptionWidget(AoOptionWidget *page);
    /// Takes the page out, and its item. The page lives on, and stays in the private lists.
    void removeAoOptionWidget(AoOptionWidget *page);
    /// Shows the page of the core with this number; nothing happens when there is none.
    void changeAoWidget(int number);

    void handleIEvent(const QUtil::IEvent *event) override;

public slots:
    void onModified();
    void on_treeWidget_customContextMenuRequested(const QPoint &pos);
    void on_treeWidget_doubleClicked(const QModelIndex &index);
    void on_treeWidget_clicked(const QModelIndex &index);
    void onOKBtn();
    void onFileChange();
    /// Asks what to do about the file, which was changed or removed on disk.
    void checkForReload();
    void onBannerReload();
    void onBannerCancel();
    void onBannerKeep();
    void onBannerClose();
    /// Follows (leaves) the host's events about the design.
    void subscribeEvent();
    void unsubscribeEvent();
    /// Reads the netlist of the project's design anew; true when one is held afterwards, else the user was told why
    /// not.
    bool readRtlNetlist();
    void onRtlReload();
    void onReloadCancel();

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    friend class private_impl::VakStandardInserterViewPrivate;

    QWidget *senderBanner() const;

    Ui::VakStandardInserterView *ui;
    private_impl::VakStandardInserterViewPrivate *d;
    bool rtlReloadPending = false;
};

} // namespace RTLVAK

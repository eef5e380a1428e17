// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "plugin/vakinserterview.h"
#include "plugin/vakinsexport.h"

#include <QUtility/ieventhandler.h>

namespace RTLVAK {

namespace private_impl {
class VakLiteInserterViewPrivate;
}
namespace Ui {
class VakLiteInserterView;
}

/// The editor of a Lite-mode configuration file: a combo box of its analyzer cores, and one page for each core.
class VAKINS_EXPORT VakLiteInserterView : public VakInserterView, public QUtil::IEventHandler
{
    Q_OBJECT

public:
    explicit VakLiteInserterView(QWidget *parent = nullptr);
    ~VakLiteInserterView() override;

    QString file() const override;
    bool open(const QString &fileName, const QString &extra, QString *errorString) override;
    bool save() override;
    bool isModified() const override;

    /// Stores the flag and emits modificationStatusChanged(), also when nothing changed; the titles stay.
    void setModified(bool on);

    void handleIEvent(const QUtil::IEvent *event) override;

public slots:
    void onModified();
    void onAddCore();
    void onRemoveCore();
    void onCoreChosen(int number);
    void onFileChanged();
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
    friend class private_impl::VakLiteInserterViewPrivate;

    QWidget *senderBanner() const;

    Ui::VakLiteInserterView *ui;
    private_impl::VakLiteInserterViewPrivate *d;
    bool rtlReloadPending = false;
};

} // namespace RTLVAK

// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "views/coredocument.h"

#include "capture/liteaooptionwidget.h"

#include <VakUtils/aocorelite.h>

#include <QObject>

#include <functional>

namespace RTLVAK {

class VakLiteInserterView;

namespace private_impl {

/// The state of a Lite view, and what its document does in its own way.
class VakLiteInserterViewPrivate : public QObject,
                                   public CoreDocument<VakLiteInserterViewPrivate, VAK::AOCore_Lite, LiteAoOptionWidget>
{
    Q_OBJECT

public:
    explicit VakLiteInserterViewPrivate(VakLiteInserterView *view);
    ~VakLiteInserterViewPrivate() override;

    /// Makes the core current in the combo box and shows its page.
    void showCore(int number);
    /// Shows the page of a core, as chosen in the combo box.
    void showPage(int number);

    VakLiteInserterView *q;
    QString filePath;
    QList<VAK::AOCore_Lite *> cores;
    NETCATCHER::RtlNetlist *netlist = nullptr;
    std::unique_ptr<SearchIndex> searchIndex; ///< of the netlist of the pages; goes before that
    QList<LiteAoOptionWidget *> widgets;      ///< one page for each core, in the same order
    bool modified = false;
    std::function<void(bool)> notifyModified;
    QFileSystemWatcher *watcher;
    bool fileChangePending = false;
    bool netlistReadRunning = false;

protected:
    QWidget *bannerContainer() const override;
    bool &rtlReloadFlag() override;
    bool isReadable() const override;
    QList<VAK::AOCore_Lite *> readFile(bool *ok, QString *errorString) const override;
    LiteAoOptionWidget *createPage(VAK::AOCore_Lite *core) override;
    void putPage(LiteAoOptionWidget *page) override;
    void takePage(LiteAoOptionWidget *page) override;
    void coreAdded(int number) override { showCore(number); }
    void showFirstCore() override { showCore(0); }
    bool validate(QString *errors) const override;
    QString validationText() const override;
    bool write(const QString &fileName) const override;
    void setNetlist(std::unique_ptr<NETCATCHER::RtlNetlist> newNetlist) override;
    void connectFileBanner(const ReloadBanner *banner) const override;
    void connectDesignBanner(const ReloadBanner *banner) const override;

private:
    /// The netlist that the pages still point to while the view holds none.
    std::unique_ptr<NETCATCHER::RtlNetlist> formerNetlist;
};

} // namespace private_impl
} // namespace RTLVAK

// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QString>

#include <memory>

class QFileSystemWatcher;
class QWidget;

namespace NETCATCHER {
class RtlNetlist;
}
namespace QUtil {
class IEvent;
class IEventHandler;
} // namespace QUtil

namespace RTLVAK {

class ReloadBanner;
class VakInserterView;

namespace private_impl {

/// The life of an analyzer configuration file in an editor view: what is the same whatever kind of core the file holds.
///
/// It holds no data. The private object of a view derives from it, lets it at the state and supplies what differs.
/// Every sequence that shows a box or reads the netlist runs an event loop in which the view, and the document with it,
/// can die; a QPointer tells, and nothing is touched afterwards.
class InserterDocument
{
public:
    InserterDocument() = default;
    virtual ~InserterDocument();
    InserterDocument(const InserterDocument &) = delete;
    InserterDocument &operator=(const InserterDocument &) = delete;

    /// Gives the container of banners its layout, and hides it.
    static void setUpBannerContainer(QWidget *container);
    static void subscribeEvent(QUtil::IEventHandler *handler);
    static void unsubscribeEvent(QUtil::IEventHandler *handler);

    bool open(const QString &fileName, QString *errorString);
    /// Saves on the user's command.
    bool save();
    /// Asks about unsaved work. False when the view is to stay open, or is gone already.
    bool mayClose();
    /// Marks the document as edited.
    void markModified();
    /// Stores the flag and says so, whatever it was; leaves the titles alone.
    void setModified(bool on);
    bool readRtlNetlist();

    void onFileChange();
    void checkForReload();
    void handleIEvent(const QUtil::IEvent &event);

    // The answers of banners. The banner is null when the slot was not called by one.
    void onBannerReload(QWidget *banner);
    void onBannerCancel(QWidget *banner);
    void onBannerKeep(QWidget *banner);
    void onBannerClose(QWidget *banner);
    void onRtlReload(QWidget *banner);
    void onReloadCancel(QWidget *banner);

protected:
    // The state.
    virtual VakInserterView *view() const = 0;
    virtual QWidget *bannerContainer() const = 0;
    virtual QFileSystemWatcher *fileWatcher() const = 0;
    virtual NETCATCHER::RtlNetlist *currentNetlist() const = 0;
    virtual QString &path() = 0;
    virtual bool &modifiedFlag() = 0;
    virtual bool &fileChangeFlag() = 0;
    virtual bool &rtlReloadFlag() = 0;
    /// Set while a read of the netlist runs.
    virtual bool &netlistReadFlag() = 0;
    virtual void notify(bool isModified) = 0;

    // What differs.
    /// Whether the file at path() is one that the view can read, values apart.
    virtual bool isReadable() const = 0;
    /// Reads the file at path(). On success replaces cores and pages by those of the file, adding a core when it holds
    /// none; on failure changes nothing.
    virtual bool readCores(QString *errorString) = 0;
    virtual void showFirstCore() = 0;
    virtual void applyPages() = 0;
    virtual bool validate(QString *errors) const = 0;
    /// The text of the box that shows the errors of validate().
    virtual QString validationText() const = 0;
    virtual void setModuleName(const QString &name) = 0;
    virtual bool write(const QString &fileName) const = 0;
    /// Replaces the netlist, by none too, and hands it to the pages.
    virtual void setNetlist(std::unique_ptr<NETCATCHER::RtlNetlist> netlist) = 0;
    /// Connects the answers of a banner about the file (about the design) to the slots of the view.
    virtual void connectFileBanner(const ReloadBanner *banner) const = 0;
    virtual void connectDesignBanner(const ReloadBanner *banner) const = 0;

private:
    QString fileTitle();
    QString nativePath();
    void watchFile();
    void unwatchFile();
    bool saveFile();
    bool writeFile();
    bool reloadVakFile();
    void designFileChanged();
    void topModuleChanged();
    void showDesignBanner(const QString &text);
    void showBanner(ReloadBanner *banner);
    void removeBanner(QWidget *banner);
    void clearModified();
    void keepUnsavedWork();
    void closeContainer();
};

} // namespace private_impl
} // namespace RTLVAK

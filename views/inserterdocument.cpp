// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "views/inserterdocument.h"

#include "views/rtlnetlistsource.h"

#include "plugin/vakinserterview.h"
#include "rules/backupname.h"
#include "rules/designevents.h"
#include "rules/netcounts.h"
#include "widgets/messagebox.h"
#include "widgets/reloadbanner.h"

#include <OVTE/designmanager.h>
#include <OVTE/taskengine.h>
#include <QUtility/eventmanager.h>
#include <QUtility/ievent.h>
#include <QUtility/messageevent.h>
#include <netcatcher/rtlnetlist.h>

#include <QDebug>
#include <QDir>
#include <QFileInfo>
#include <QFileSystemWatcher>
#include <QHBoxLayout>
#include <QPointer>
#include <QTimer>

namespace RTLVAK::private_impl {

/// The time in which a burst of change notifications of the file becomes one question.
static constexpr int FileChangeDelayMs = 500;

static TE::DesignManager *design()
{
    return TE::TaskEngine::instance()->designManager();
}

/// Adds a line to the host's messages.
static void tellHost(const char *severity, const QString &text)
{
    QUtil::EventManager::instance()->publish(
        QUtil::IEvent(QUtil::MessageEvent::Type,
                      {{QUtil::MessageEvent::Severity, QLatin1String(severity)}, {QUtil::MessageEvent::Text, text}}));
}

static void showValidationErrors(QWidget *view, const QString &text, const QString &errors)
{
    auto *box = new QMessageBox(QMessageBox::Critical, QStringLiteral("Error"), text, QMessageBox::Ok, view);
    box->setDetailedText(errors);
    box->setDefaultButton(QMessageBox::Ok);
    box->setEscapeButton(QMessageBox::Ok);
    runBox(box);
}

InserterDocument::~InserterDocument() = default;

void InserterDocument::setUpBannerContainer(QWidget *container)
{
    auto *layout = new QHBoxLayout(container);
    layout->setSpacing(0);
    layout->setContentsMargins(0, 0, 0, 0);
    container->hide();
}

void InserterDocument::subscribeEvent(QUtil::IEventHandler *handler)
{
    for (const QString &type : designEventTypes())
        QUtil::EventManager::instance()->subscribe(handler, type);
}

void InserterDocument::unsubscribeEvent(QUtil::IEventHandler *handler)
{
    for (const QString &type : designEventTypes())
        QUtil::EventManager::instance()->unsubscribe(handler, type);
}

bool InserterDocument::open(const QString &fileName, QString *errorString)
{
    qDebug(" This is open file to Ao");
    unwatchFile();
    path() = fileName;
    watchFile();
    if (!isReadable()) {
        if (errorString)
            *errorString = QStringLiteral("%1 open file failed.").arg(fileName);
        return false;
    }
    if (!readCores(errorString))
        return false;
    if (!modifiedFlag()) // a file without cores has got one, and with it the title of an edited document
        view()->setWindowTitle(fileTitle());
    showFirstCore();
    return readRtlNetlist();
}

bool InserterDocument::save()
{
    const QString tool = design()->getOptionValue(QLatin1String(TE::OptionName::SynthesizeTool)).toString();
    if (tool == QLatin1String("Synplify")) {
        showBox(
            view(), QMessageBox::Critical, QStringLiteral("Error"),
            QStringLiteral("For RTL Design, VAK is only available for OrvaneSynthesis. Please change Synthesis Tool "
                           "to OrvaneSynthesis in Configurations."));
        return false;
    }
    return saveFile();
}

bool InserterDocument::saveFile()
{
    qDebug("save vak");
    applyPages();
    QString errors;
    if (!validate(&errors)) {
        showValidationErrors(view(), validationText(), errors);
        return false;
    }
    if (!writeFile()) {
        showBox(view(), QMessageBox::Critical, QStringLiteral("Error"),
                QStringLiteral("Can not save to %1").arg(nativePath()));
        return false;
    }
    clearModified();
    view()->setWindowTitle(fileTitle());
    view()->setShortTitle(fileTitle());
    return true;
}

bool InserterDocument::writeFile()
{
    unwatchFile(); // else our own write would be taken for a change from outside
    if (const NETCATCHER::RtlNetlist *netlist = currentNetlist())
        setModuleName(netlist->topHierarchy()->name());
    const bool written = write(path());
    watchFile();
    return written;
}

bool InserterDocument::mayClose()
{
    if (!modifiedFlag())
        return true;
    const QMessageBox::StandardButton answer =
        showBox(view(), QMessageBox::Question, VakInserterView::tr("Save"),
                VakInserterView::tr("Save changes to \"%1\" ?").arg(nativePath()),
                QMessageBox::Ok | QMessageBox::Discard | QMessageBox::Cancel, QMessageBox::Ok);
    if (answer == QMessageBox::Ok)
        return saveFile();                 // deliberately without the question about the synthesis tool
    return answer == QMessageBox::Discard; // anything else, the death of the view included, closes nothing
}

void InserterDocument::markModified()
{
    if (modifiedFlag())
        return;
    modifiedFlag() = true;
    notify(true);
    const QString title = fileTitle() + QStringLiteral(" *");
    view()->setWindowTitle(title);
    view()->setShortTitle(title);
}

void InserterDocument::setModified(bool on)
{
    modifiedFlag() = on;
    emit view()->modificationStatusChanged(on);
}

void InserterDocument::clearModified()
{
    if (!modifiedFlag())
        return;
    modifiedFlag() = false;
    notify(false);
}

bool InserterDocument::readRtlNetlist()
{
    if (netlistReadFlag())
        return false;
    const QPointer<QWidget> guard(view());
    netlistReadFlag() = true;
    setNetlist(nullptr);
    std::unique_ptr<NETCATCHER::RtlNetlist> netlist = acquireRtlNetlist(view());
    if (!guard)
        return false;
    netlistReadFlag() = false;
    if (!netlist)
        return false;
    const QString counts = countsLine(netlist->topHierarchy()->name(), netlist->counts());
    setNetlist(std::move(netlist));
    tellHost(QUtil::MessageEvent::Info, counts);
    return !guard.isNull();
}

void InserterDocument::onFileChange()
{
    if (fileChangeFlag())
        return;
    fileChangeFlag() = true;
    QTimer::singleShot(FileChangeDelayMs, view(), [this] { checkForReload(); });
}

void InserterDocument::checkForReload()
{
    const bool exists = QFileInfo::exists(path());
    if (exists)
        watchFile(); // a file that was replaced, or removed and made again, is no longer watched
    auto *banner = new ReloadBanner(exists ? ReloadBanner::Changed : ReloadBanner::Removed, path(), bannerContainer());
    connectFileBanner(banner);
    showBanner(banner);
}

bool InserterDocument::reloadVakFile()
{
    if (!isReadable() || !readCores(nullptr))
        return false;
    showFirstCore();
    return true; // the modified flag stays as it is, deliberately
}

void InserterDocument::onBannerReload(QWidget *banner)
{
    if (reloadVakFile()) {
        unwatchFile();
        watchFile();
        removeBanner(banner);
        fileChangeFlag() = false;
        return;
    }
    const QPointer<QWidget> guard(view());
    const QPointer<QWidget> bannerGuard(banner);
    showBox(view(), QMessageBox::Warning, QStringLiteral("Reload Vak"), QStringLiteral("Invalid VAK file."));
    if (guard)
        onBannerClose(bannerGuard);
}

void InserterDocument::onBannerCancel(QWidget *banner)
{
    removeBanner(banner);
    fileChangeFlag() = false;
    rtlReloadFlag() = false;
}

void InserterDocument::onBannerKeep(QWidget *banner)
{
    if (QFileInfo::exists(path()))
        watchFile(); // it came back while the question stood
    removeBanner(banner);
    fileChangeFlag() = false;
}

void InserterDocument::onBannerClose(QWidget *banner)
{
    removeBanner(banner);
    fileChangeFlag() = false;
    clearModified();
    closeContainer();
}

void InserterDocument::handleIEvent(const QUtil::IEvent &event)
{
    if (rtlReloadFlag())
        return;
    const DesignPrompt prompt = promptFor(event, [](const QString &file) { return design()->getFileInfo(file); });
    if (prompt == DesignPrompt::DesignFiles)
        designFileChanged();
    else if (prompt == DesignPrompt::TopModule)
        topModuleChanged();
}

void InserterDocument::designFileChanged()
{
    showDesignBanner(QStringLiteral("Design files changed. Do you want to reload?"));
}

void InserterDocument::topModuleChanged()
{
    showDesignBanner(QStringLiteral("Top module changed. Do you want to reload?"));
}

void InserterDocument::onRtlReload(QWidget *banner)
{
    if (netlistReadFlag())
        return;
    const QPointer<QWidget> guard(view());
    removeBanner(banner);
    const bool read = readRtlNetlist();
    if (!guard)
        return;
    if (read) {
        rtlReloadFlag() = false;
        return;
    }
    keepUnsavedWork();
    clearModified();
    closeContainer();
}

void InserterDocument::onReloadCancel(QWidget *banner)
{
    removeBanner(banner);
    rtlReloadFlag() = false;
}

void InserterDocument::showDesignBanner(const QString &text)
{
    rtlReloadFlag() = true;
    auto *banner = new ReloadBanner(ReloadBanner::Changed, QString(), bannerContainer());
    connectDesignBanner(banner);
    showBanner(banner);
    banner->setText(text);
}

void InserterDocument::showBanner(ReloadBanner *banner)
{
    bannerContainer()->layout()->addWidget(banner);
    bannerContainer()->show();
}

void InserterDocument::removeBanner(QWidget *banner)
{
    if (!banner)
        return;
    banner->hide();
    bannerContainer()->layout()->removeWidget(banner);
    banner->deleteLater(); // its button is still about to return from the click
}

/// Writes what the view is about to lose beside its file, where the host finds it when the file is opened again.
void InserterDocument::keepUnsavedWork()
{
    if (!modifiedFlag())
        return;
    applyPages();
    const QString copy = freeBackupName(path(), QStringLiteral("recovered"));
    if (write(copy))
        tellHost(QUtil::MessageEvent::Warning,
                 QStringLiteral("Unsaved work on %1 is kept in %2").arg(nativePath(), QDir::toNativeSeparators(copy)));
    else
        tellHost(QUtil::MessageEvent::Error, QStringLiteral("Can not keep the unsaved work on %1").arg(nativePath()));
}

void InserterDocument::closeContainer()
{
    QWidget *container = view()->parentWidget();
    if (!container)
        return;
    container->setAttribute(Qt::WA_DeleteOnClose);
    container->close();
}

QString InserterDocument::fileTitle()
{
    return QFileInfo(path()).fileName();
}

QString InserterDocument::nativePath()
{
    return QDir::toNativeSeparators(path());
}

void InserterDocument::watchFile()
{
    if (!path().isEmpty())
        fileWatcher()->addPath(path());
}

void InserterDocument::unwatchFile()
{
    if (!path().isEmpty())
        fileWatcher()->removePath(path());
}

} // namespace RTLVAK::private_impl

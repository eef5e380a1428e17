// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "workbench/documents.h"

#include "workbench/filedialogs.h"
#include "workbench/pluginhost.h"
#include "workbench/recoveredwork.h"
#include "workbench/textview.h"
#include "workbench/textviewmanager.h"

#include "hostlibs/idecore/viewarea.h"
#include "hostlibs/ovte/projectengine.h"
#include "plugin/vakinserterview.h"
#include "plugin/vakviewmanager.h"

#include <Device/devicearg.h>
#include <IdeCore/viewmanager.h>

#include <QDir>
#include <QFileInfo>
#include <QMessageBox>
#include <QPushButton>

#include <algorithm>

namespace Workbench {

/// The folders above a file in which its project is looked for.
constexpr int HighestFolders = 4;
constexpr char AnalyzerPlugin[] = "VakInserterPlugin";

static TE::ProjectEngine &engine()
{
    return *TE::ProjectEngine::instance();
}

static QString absoluteCleanPath(const QString &path)
{
    return QDir::cleanPath(QFileInfo(path).absoluteFilePath());
}

QString projectFileNear(const QString &path)
{
    QDir folder = QFileInfo(path).absoluteDir();
    for (int i = 0; i < HighestFolders; ++i) {
        const QStringList names = folder.entryList({"*.vakproj"}, QDir::Files);
        if (!names.isEmpty())
            return names.size() == 1 ? folder.absoluteFilePath(names.first()) : QString();
        if (!folder.cdUp())
            break;
    }
    return {};
}

static bool isShown(const QString &analyzerPath)
{
    const QList<RTLVAK::VakInserterView *> views = RTLVAK::VakViewManager::instance()->vakViews();
    return std::any_of(views.cbegin(), views.cend(), [&analyzerPath](const RTLVAK::VakInserterView *view) {
        return absoluteCleanPath(view->file()) == analyzerPath;
    });
}

Documents::Documents(const PluginHost &plugins, QObject *parent)
    : QObject(parent)
    , m_plugins(plugins)
    , m_texts(new TextViewManager(this))
{
    connect(m_texts, &TextViewManager::fileSaved, &engine(), &TE::ProjectEngine::checkFile);
    connect(&engine(), &TE::ProjectEngine::fileModified, this, [this](const QString &path) {
        if (TextView *view = m_texts->viewOf(path))
            view->reloadIfChanged();
    });
}

bool Documents::fail(const QString &text)
{
    emit message(Severity::Error, text);
    QMessageBox box(QMessageBox::Critical, tr("Error"), text, QMessageBox::Ok, Core::ViewManager::dialogParent());
    box.setTextFormat(Qt::PlainText);
    box.exec();
    return false;
}

bool Documents::open(const QString &path)
{
    const QString suffix = QFileInfo(path).suffix().toLower();
    if (suffix == "vakproj")
        return openProject(path);
    if (suffix == "f")
        return openFileList(path);
    return suffix == "rvk" ? openAnalyzer(path) : openText(path);
}

bool Documents::openProject(const QString &path)
{
    auto *area = Core::ViewArea::current();
    if (area != nullptr && !area->closeAll())
        return false;
    QString error;
    if (!engine().openProject(path, &error))
        return fail(error);
    emit message(Severity::Info, tr("Opened project %1").arg(QDir::toNativeSeparators(engine().projectFile())));
    emit opened(engine().projectFile());
    return true;
}

bool Documents::openFileList(const QString &path)
{
    auto *area = Core::ViewArea::current();
    if (area != nullptr && !area->closeAll())
        return false;
    QString error;
    QStringList notes;
    if (!engine().openFileList(path, &notes, &error))
        return fail(error);
    for (const QString &note : qAsConst(notes))
        emit message(Severity::Warning, note);
    emit message(Severity::Info, tr("Opened file list %1 with %n file(s)", nullptr, engine().project().files.size())
                                     .arg(QDir::toNativeSeparators(absoluteCleanPath(path))));
    emit opened(absoluteCleanPath(path));
    return true;
}

/// The editor needs the design that the file observes.
bool Documents::provideProject(const QString &analyzerPath)
{
    if (engine().isOpen())
        return true;
    const QString near = projectFileNear(analyzerPath);
    if (!near.isEmpty())
        return openProject(near);
    QMessageBox box(QMessageBox::Question, tr("Project"),
                    tr("\"%1\" configures an analyzer for a design.\nOpen the project of that design first.")
                        .arg(QDir::toNativeSeparators(analyzerPath)),
                    QMessageBox::Open | QMessageBox::Cancel, Core::ViewManager::dialogParent());
    box.setTextFormat(Qt::PlainText);
    if (box.exec() != QMessageBox::Open)
        return false;
    const QString project = askForFile(Core::ViewManager::dialogParent(), tr("Open Project"),
                                       QFileInfo(analyzerPath).absolutePath(), FileFilter::projects());
    return !project.isEmpty() && openProject(project);
}

bool Documents::openAnalyzer(const QString &path)
{
    const QString absolute = absoluteCleanPath(path);
    if (!m_plugins.has(AnalyzerPlugin))
        return fail(tr("Can not open %1:\nThe analyzer editor was not loaded; Help > About Plug-ins says why.")
                        .arg(QDir::toNativeSeparators(absolute)));
    if (!QFileInfo(absolute).isFile())
        return fail(tr("Can not open %1:\nThere is no such file.").arg(QDir::toNativeSeparators(absolute)));
    if (!provideProject(absolute))
        return false;
    QString error;
    if (!isShown(absolute) && !settleRecoveredWork(absolute, Core::ViewManager::dialogParent(), &error))
        return fail(error);
    const TE::DeviceInfo device = engine().project().device;
    if (!RTLVAK::VakViewManager::openInserterView(absolute, DEV::DeviceArg(device.name, device.package)))
        return false;
    emit opened(absolute);
    return true;
}

bool Documents::openText(const QString &path, int line)
{
    const QString absolute = absoluteCleanPath(path);
    QString error;
    if (!m_texts->open(absolute, line, &error))
        return fail(error);
    return true;
}

bool Documents::createAnalyzer(const QString &path, VAK::VakMode mode)
{
    const QString absolute = absoluteCleanPath(path);
    const bool written = mode == VAK::VakMode::Lite ? VAK::writeVAKConfigToXml_Lite({}, absolute)
                                                    : VAK::writeVAKConfigToXml({}, absolute);
    if (!written)
        return fail(tr("Can not save to %1").arg(QDir::toNativeSeparators(absolute)));
    engine().addFile(absolute, TE::AnalyzerConfigFile);
    return openAnalyzer(absolute);
}

void Documents::openPlace(const QString &path, int line)
{
    const QString absolute = QDir(engine().workingDir()).absoluteFilePath(QDir::fromNativeSeparators(path));
    if (QFileInfo(absolute).isFile())
        openText(absolute, line);
}

} // namespace Workbench

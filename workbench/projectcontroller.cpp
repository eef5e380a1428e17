// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "workbench/projectcontroller.h"

#include "workbench/configurationdialog.h"
#include "workbench/devicedialog.h"
#include "workbench/documents.h"
#include "workbench/filedialogs.h"

#include "hostlibs/idecore/viewarea.h"
#include "hostlibs/ovte/projectengine.h"

#include <IdeCore/viewmanager.h>

#include <QDir>
#include <QFileInfo>
#include <QMessageBox>

namespace Workbench {

static TE::ProjectEngine &engine()
{
    return *TE::ProjectEngine::instance();
}

static QWidget *dialogParent()
{
    return Core::ViewManager::dialogParent();
}

static void showError(const QString &text)
{
    QMessageBox box(QMessageBox::Critical, ProjectController::tr("Error"), text, QMessageBox::Ok, dialogParent());
    box.setTextFormat(Qt::PlainText);
    box.exec();
}

ProjectController::ProjectController(Documents &documents, QObject *parent)
    : QObject(parent)
    , m_documents(documents)
{
    // One save for all changes of one action of the person.
    m_saveSoon.setSingleShot(true);
    const auto saveSoon = [this] { m_saveSoon.start(0); };
    connect(&engine(), &TE::ProjectEngine::filesChanged, this, saveSoon);
    connect(&engine(), &TE::ProjectEngine::optionChanged, this, saveSoon);
    connect(&engine(), &TE::ProjectEngine::deviceChanged, this, saveSoon);
    connect(&m_saveSoon, &QTimer::timeout, this, [this] { save(); });
    engine().setWatching(true);
}

ProjectController::~ProjectController()
{
    engine().setWatching(false);
}

QString ProjectController::folder() const
{
    return engine().isOpen() ? engine().workingDir() : QDir::homePath();
}

/// Whether what another program wrote into the project file may be replaced. If it is wanted instead, it is opened.
bool ProjectController::mayOverwrite()
{
    if (!engine().isChangedOutside())
        return true;
    QMessageBox box(QMessageBox::Question, tr("Project"),
                    tr("Another program has changed \"%1\" since it was opened here.")
                        .arg(QDir::toNativeSeparators(engine().projectFile())),
                    QMessageBox::Save | QMessageBox::Discard, dialogParent());
    box.setTextFormat(Qt::PlainText);
    box.setInformativeText(tr("Save writes the project as it is here over those changes.\n"
                              "Discard gives up what was changed here and opens the file anew."));
    box.setEscapeButton(QMessageBox::Save);
    if (box.exec() == QMessageBox::Save)
        return true;
    m_documents.openProject(engine().projectFile());
    return false;
}

bool ProjectController::save()
{
    QString error;
    if (!engine().isModified() || !mayOverwrite() || engine().saveProject(&error))
        return true;
    emit message(Severity::Error, error);
    return false;
}

bool ProjectController::saveBeforeQuit()
{
    m_saveSoon.stop();
    if (engine().isModified() && engine().projectFile().isEmpty())
        return askForProjectFile();
    if (save())
        return true;
    return QMessageBox::question(
               dialogParent(), tr("Project"),
               tr("The project could not be saved; the messages say why.\nGo on and lose the changes?"),
               QMessageBox::Discard | QMessageBox::Cancel, QMessageBox::Cancel) == QMessageBox::Discard;
}

/// A project that came from a file list has no file of its own, and loses its changes without one.
bool ProjectController::askForProjectFile()
{
    const auto answer =
        QMessageBox::question(dialogParent(), tr("Project"),
                              tr("The design was opened from a file list and has been changed.\nSave it as a project?"),
                              QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, QMessageBox::Save);
    if (answer == QMessageBox::Save)
        saveProjectAs();
    return answer == QMessageBox::Discard || (answer == QMessageBox::Save && !engine().isModified());
}

void ProjectController::saveProjectAs()
{
    const QString own = engine().projectFile();
    const QString name = own.isEmpty() ? QString("project") : QFileInfo(own).completeBaseName() + "-copy";
    const QString proposal = QDir(folder()).filePath(name + ".vakproj");
    const QString path =
        askForNewFile(dialogParent(), tr("Save Project As"), proposal, FileFilter::projects(), "vakproj");
    QString error;
    if (path.isEmpty())
        return;
    if (!engine().saveProjectAs(path, &error)) {
        emit message(Severity::Error, error);
        showError(error);
    }
}

void ProjectController::newProject()
{
    const QString path = askForNewFile(dialogParent(), tr("New Project"), QDir(folder()).filePath("project.vakproj"),
                                       FileFilter::projects(), "vakproj");
    if (path.isEmpty() || !closeProject())
        return;
    QString error;
    if (!engine().createProject(path, &error)) {
        showError(error);
        return;
    }
    m_documents.openProject(path);
}

void ProjectController::openProject()
{
    const QString path = askForFile(dialogParent(), tr("Open Project"), folder(), FileFilter::projects());
    if (!path.isEmpty())
        m_documents.openProject(path);
}

void ProjectController::importFileList()
{
    const QString list = askForFile(dialogParent(), tr("Import File List"), folder(), FileFilter::fileLists());
    if (list.isEmpty())
        return;
    if (!engine().isOpen()) {
        const QFileInfo info(list);
        const QString proposal = info.absoluteDir().filePath(info.completeBaseName() + ".vakproj");
        const QString path =
            askForNewFile(dialogParent(), tr("New Project"), proposal, FileFilter::projects(), "vakproj");
        QString error;
        if (path.isEmpty())
            return;
        if (!engine().createProject(path, &error)) {
            showError(error);
            return;
        }
        m_documents.openProject(path);
    }
    const int before = engine().project().files.size();
    QStringList notes;
    QString error;
    if (!engine().importFileList(list, &notes, &error)) {
        emit message(Severity::Error, error);
        showError(error);
        return;
    }
    for (const QString &note : qAsConst(notes))
        emit message(Severity::Warning, note);
    emit message(Severity::Info, tr("Added %n file(s) from %1", nullptr, engine().project().files.size() - before)
                                     .arg(QDir::toNativeSeparators(list)));
}

void ProjectController::addFiles()
{
    for (const QString &path : askForFiles(dialogParent(), tr("Add Files"), folder(), FileFilter::sources())) {
        if (!engine().addFile(path))
            emit message(Severity::Info, tr("%1 is in the project already").arg(QDir::toNativeSeparators(path)));
    }
}

void ProjectController::configure()
{
    ConfigurationDialog dialog(dialogParent());
    connect(&dialog, &ConfigurationDialog::messages, this, &ProjectController::messages);
    dialog.exec();
}

void ProjectController::chooseDevice()
{
    DeviceDialog dialog(engine().project().device, dialogParent());
    if (dialog.exec() == QDialog::Accepted)
        engine().setDevice(dialog.device());
}

bool ProjectController::closeProject()
{
    auto *area = Core::ViewArea::current();
    if ((area != nullptr && !area->closeAll()) || !saveBeforeQuit())
        return false;
    engine().closeProject();
    return true;
}

} // namespace Workbench

// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "workbench/messagespanel.h"

#include <QObject>
#include <QTimer>

namespace Workbench {

class Documents;

/// What a person can do with the project: make it, fill it, set its options and device. A project is saved by itself
/// soon after every change.
class ProjectController : public QObject
{
    Q_OBJECT

public:
    explicit ProjectController(Documents &documents, QObject *parent = nullptr);
    ~ProjectController() override;

    void newProject();
    void openProject();
    void importFileList();
    void addFiles();
    void configure();
    void chooseDevice();
    /// Closes the views and then the project; false when a view refused.
    bool closeProject();
    void saveProjectAs();
    /// Saves what is not saved yet. False when it could not be saved and the person does not want to go on.
    bool saveBeforeQuit();

signals:
    void message(Workbench::Severity severity, const QString &text);
    void messages(const QStringList &lines);

private:
    bool save();
    bool mayOverwrite();
    bool askForProjectFile();
    QString folder() const;

    Documents &m_documents;
    QTimer m_saveSoon;
};

} // namespace Workbench

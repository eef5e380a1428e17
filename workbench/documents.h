// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "workbench/messagespanel.h"

#include <VakUtils/vakfile.h>

#include <QObject>

namespace Workbench {

class PluginHost;
class TextViewManager;

/// Opens whatever a person names: projects, file lists, analyzer files, sources. Failures are shown in a box and told
/// by the result.
class Documents : public QObject
{
    Q_OBJECT

public:
    explicit Documents(const PluginHost &plugins, QObject *parent = nullptr);

    /// Opens `path` by what its suffix says.
    bool open(const QString &path);
    bool openProject(const QString &path);
    /// Opens a file list as a project without a file of its own.
    bool openFileList(const QString &path);
    bool openAnalyzer(const QString &path);
    bool openText(const QString &path, int line = 0);
    /// Makes an analyzer file without cores, adds it to the project and opens it.
    bool createAnalyzer(const QString &path, VAK::VakMode mode);
    /// Opens what a message names; a relative path starts at the project's folder.
    void openPlace(const QString &path, int line);

signals:
    void opened(const QString &path);
    void message(Workbench::Severity severity, const QString &text);

private:
    bool fail(const QString &text);
    bool provideProject(const QString &analyzerPath);

    const PluginHost &m_plugins;
    TextViewManager *m_texts;
};

/// The only project file in the folder of `path` or in the nearest folder above that has one; empty when there is none
/// or more than one.
QString projectFileNear(const QString &path);

} // namespace Workbench

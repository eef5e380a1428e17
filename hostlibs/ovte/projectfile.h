// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "hostlibs/ovte/project.h"

#include <hostglobal.h>

#include <QByteArray>

namespace TE {

/// Reads a project file (docs/project-file.md). On failure the result is false, `*project` is as it was and `*error`
/// names file and line, what was found and what was expected.
HOST_EXPORT bool readProjectFile(const QString &path, TE::Project *project, QString *error);

/// The contents of a project file that lies in `folder`: the same project always gives the same bytes, one file a line.
HOST_EXPORT QByteArray projectFileContents(const TE::Project &project, const QString &folder);

/// Writes a temporary beside `path` and renames it over `path`; on failure the old file is as it was. A file that
/// already has this contents is not touched.
HOST_EXPORT bool writeProjectFile(const TE::Project &project, const QString &path, QString *error);

} // namespace TE

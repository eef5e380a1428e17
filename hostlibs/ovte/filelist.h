// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <OVTE/designtypes.h>

#include <hostglobal.h>

#include <QList>
#include <QStringList>

namespace TE {

/// What a Verilog file list names. Paths are absolute and clean.
struct HOST_EXPORT FileList
{
    QList<DesignFile> files; ///< in the order of the list, each once; the files of libraries that are needed come last
    QStringList includePaths;
    QStringList defines;
    QString topModule;
    QStringList notes; ///< what was left out, each with file and line
};

/// Reads a file list as Verilog tools take it with -f: source files, +incdir+, +define+, +libext+, -y, -v, -f, -F, -I,
/// -D, -sv and --top; comments (//, #, /* */), quotes, backslashes and environment variables ($N, ${N}, $(N)). Relative
/// paths start at the folder of the list that was opened, or else at that of the list that names them (with -F always
/// there). Of the libraries (-y, -v) those files are taken that declare a module that the design names. On failure the
/// result is false and `*error` names file and line and what to do.
HOST_EXPORT bool readFileList(const QString &path, TE::FileList *list, QString *error);

} // namespace TE

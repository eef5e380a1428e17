// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <OVTE/designtypes.h>

#include <hostglobal.h>

#include <QHash>
#include <QJsonObject>
#include <QList>
#include <QStringList>

namespace TE {

/// What a project consists of, independent of where it is stored. Paths of files are absolute and clean.
struct HOST_EXPORT Project
{
    QString topModule;        ///< empty when not set
    QStringList includePaths; ///< as the user wrote them; relative ones are relative to the project's folder
    QStringList defines;      ///< NAME or NAME=VALUE
    QString verilogStandard;  ///< one of verilogStandards()
    QString synthesisTool;    ///< one of synthesisTools()
    DeviceInfo device;
    QList<DesignFile> files; ///< in project order
    QJsonObject foreign;     ///< what the project file holds beside this, kept for the tool that wrote it
    QHash<QString, QJsonObject> foreignOfFiles; ///< the same for single files, by path

    Project();
};

/// The IEEE numbers of the language standards, oldest first.
HOST_EXPORT QStringList verilogStandards();
/// The standard as people call it: "SystemVerilog 2017" for "1800-2017".
HOST_EXPORT QString verilogStandardTitle(const QString &standard);
HOST_EXPORT QString defaultVerilogStandard();
/// The synthesis tools that the project offers, the default one first.
HOST_EXPORT QStringList synthesisTools();

/// The FileType code that the suffix of `path` suggests.
HOST_EXPORT int fileTypeOfPath(const QString &path);
/// The name of a FileType code in project files; empty for an unknown code.
HOST_EXPORT QString fileTypeName(int type);
/// The name of a FileType code for people: "Verilog", "Timing".
HOST_EXPORT QString fileTypeTitle(int type);
/// The FileType code of a name in project files; -1 for an unknown name.
HOST_EXPORT int fileTypeFromName(const QString &name);
/// Every FileType code, in the order in which a person chooses one.
HOST_EXPORT QList<int> fileTypes();
/// Whether files of this type feed the netlist: Verilog, SystemVerilog and VHDL.
HOST_EXPORT bool isDesignSource(int type);

} // namespace TE

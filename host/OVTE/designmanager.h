// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <OVTE/designtypes.h>

#include <hostglobal.h>

#include <QMap>
#include <QString>
#include <QVariant>

namespace TE {

/// Names of the project's options.
namespace OptionName {
constexpr char TopModule[] = "TopModule";              ///< QString, empty when not set
constexpr char IncludePath[] = "IncludePath";          ///< QStringList, relative entries are relative to workingDir()
constexpr char Defines[] = "Defines";                  ///< QStringList, NAME or NAME=VALUE
constexpr char SynthesizeTool[] = "Synthesize_tool";   ///< QString, "OrvaneSynthesis" or "Synplify"
constexpr char VerilogStandard[] = "Verilog_Standard"; ///< QString, one of the standards that the project offers
} // namespace OptionName

/// Keys of the source information.
namespace SourceKey {
constexpr char Top[] = "Top";                   ///< QString, the top module set by the user, empty when not set
constexpr char Files[] = "Files";               ///< QVariantList of QVariantMap with the three keys below
constexpr char Path[] = "Path";                 ///< QString, absolute
constexpr char Type[] = "Type";                 ///< int, a FileType code (2, 3 or 4)
constexpr char Library[] = "Library";           ///< QString
constexpr char IncludePath[] = "IncludePath";   ///< QStringList, absolute
constexpr char Defines[] = "Defines";           ///< QStringList
constexpr char Standard[] = "Verilog_Standard"; ///< QString
} // namespace SourceKey

/// The open project: its files, options and device. With no project open it answers with no files and defaults.
class HOST_EXPORT DesignManager
{
public:
    virtual ~DesignManager();

    /// The value of option `name`; an invalid variant for an unknown name.
    virtual QVariant getOptionValue(const QString &name) const = 0;
    /// What the netlist library needs: the keys of SourceKey, with the enabled design sources in project order.
    virtual QMap<QString, QVariant> getSourceFileInfo() const = 0;
    /// The record of the file at `path`; type 0 and not enabled when the project has no such file.
    virtual DesignFile getFileInfo(const QString &path) const = 0;
    /// The project's folder, absolute; empty with no project.
    virtual QString workingDir() const = 0;
    virtual DeviceInfo currentDevice() const = 0;
};

} // namespace TE

// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <hostglobal.h>

#include <QString>

namespace TE {

/// What a file of the project is. The numbers are the codes that events and file records carry.
enum FileType : int {
    OtherFile = 0,
    GateNetlistFile = 1,
    VerilogFile = 2,
    SystemVerilogFile = 3,
    VhdlFile = 4,
    TimingConstraintFile = 5,
    PhysicalConstraintFile = 6,
    AnalyzerConfigFile = 7,
    HdlIncludeFile = 8,
    MemoryContentFile = 9,
};

/// One file of the project.
struct HOST_EXPORT DesignFile
{
    QString path;         ///< absolute and clean
    int type = OtherFile; ///< a FileType code
    bool enabled = false; ///< disabled files take no part in the design
    QString library;      ///< VHDL library; empty for the default one
};

/// The project's current device.
struct HOST_EXPORT DeviceInfo
{
    QString name;    ///< as the catalogue spells it; empty for none
    QString package; ///< empty for any
};

} // namespace TE

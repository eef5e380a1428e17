// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "hostlibs/ovte/project.h"

#include <QFileInfo>

#include <algorithm>
#include <iterator>

namespace TE {

namespace {

struct TypeEntry
{
    int type;
    const char *name;
    const char *title;
    const char *suffixes; ///< separated by blanks
};

struct StandardEntry
{
    const char *standard;
    const char *title;
};

} // namespace

static const TypeEntry typeTable[] = {
    {VerilogFile, "verilog", "Verilog", "v vl vlg verilog"},
    {SystemVerilogFile, "systemverilog", "SystemVerilog", "sv"},
    {VhdlFile, "vhdl", "VHDL", "vhd vhdl"},
    {HdlIncludeFile, "include", "Include", "vh svh vinc inc"},
    {MemoryContentFile, "memory", "Memory", "mem hex mif dat"},
    {AnalyzerConfigFile, "analyzer", "Analyzer", "rvk"},
    {TimingConstraintFile, "timing", "Timing", "sdc"},
    {PhysicalConstraintFile, "physical", "Physical", "pcf lpf"},
    {GateNetlistFile, "netlist", "Netlist", "vg vm edf edif blif"},
    {OtherFile, "other", "Other", ""},
};

static const StandardEntry standardTable[] = {
    {"1364-1995", "Verilog 1995"},       {"1364-2001", "Verilog 2001"},       {"1364-2005", "Verilog 2005"},
    {"1800-2005", "SystemVerilog 2005"}, {"1800-2009", "SystemVerilog 2009"}, {"1800-2012", "SystemVerilog 2012"},
    {"1800-2017", "SystemVerilog 2017"},
};

static const TypeEntry *entryOf(int type)
{
    const auto *found = std::find_if(std::begin(typeTable), std::end(typeTable),
                                     [type](const TypeEntry &entry) { return entry.type == type; });
    return found == std::end(typeTable) ? nullptr : found;
}

Project::Project()
    : verilogStandard(defaultVerilogStandard())
    , synthesisTool(synthesisTools().constFirst())
{
}

QStringList verilogStandards()
{
    QStringList result;
    for (const StandardEntry &entry : standardTable)
        result.append(entry.standard);
    return result;
}

QString verilogStandardTitle(const QString &standard)
{
    const auto *found =
        std::find_if(std::begin(standardTable), std::end(standardTable),
                     [&](const StandardEntry &entry) { return standard == QLatin1String(entry.standard); });
    return found == std::end(standardTable) ? standard : QString::fromLatin1(found->title);
}

QString defaultVerilogStandard()
{
    return verilogStandards().constLast();
}

QStringList synthesisTools()
{
    return {"OrvaneSynthesis", "Synplify"};
}

int fileTypeOfPath(const QString &path)
{
    const QString suffix = QFileInfo(path).suffix().toLower();
    if (suffix.isEmpty())
        return OtherFile;
    for (const TypeEntry &entry : typeTable) {
        if (QString::fromLatin1(entry.suffixes).split(' ').contains(suffix))
            return entry.type;
    }
    return OtherFile;
}

QString fileTypeName(int type)
{
    const TypeEntry *entry = entryOf(type);
    return entry == nullptr ? QString() : QString::fromLatin1(entry->name);
}

QString fileTypeTitle(int type)
{
    const TypeEntry *entry = entryOf(type);
    return entry == nullptr ? QString() : QString::fromLatin1(entry->title);
}

int fileTypeFromName(const QString &name)
{
    for (const TypeEntry &entry : typeTable) {
        if (name == QLatin1String(entry.name))
            return entry.type;
    }
    return -1;
}

QList<int> fileTypes()
{
    QList<int> result;
    for (const TypeEntry &entry : typeTable)
        result.append(entry.type);
    return result;
}

bool isDesignSource(int type)
{
    return type == VerilogFile || type == SystemVerilogFile || type == VhdlFile;
}

} // namespace TE

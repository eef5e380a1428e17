// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QStringView>

namespace NETCATCHER {

/// The elements of Verilator's XML that are told apart; every other element is Other.
enum class Tag : unsigned char {
    Other,
    // structure
    Document,
    File,
    Cells,
    Cell,
    Module,
    Interface,
    Package,
    Class,
    TypeTable,
    Begin,
    Variable,
    Instance,
    Port,
    Range,
    Constant,
    // bodies
    Function,
    Initial,
    Always,
    Assignment,
    ContinuousAssignment,
    Pull,
    Call,
    VariableReference,
    PathReference,
    Select,
    Conditional,
    Joining,
    TristateGate,
    // types
    BasicType,
    AliasType,
    PackedArrayType,
    UnpackedArrayType,
    StructType,
    MemberType,
    HandleType,
};

Tag verilatorTag(QStringView name);

} // namespace NETCATCHER

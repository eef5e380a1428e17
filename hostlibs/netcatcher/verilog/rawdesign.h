// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QByteArray>
#include <QHash>
#include <QSet>
#include <QVector>

#include <vector>

namespace NETCATCHER {

/// What drives and reads a variable, as far as the bodies tell.
enum Use : quint8 {
    UseRead = 1,
    UseDriven = 2,
    UseDrivenConstant = 4, ///< by an expression that names no variable
    UseTristate = 8,       ///< by an expression that can be high impedance
    UseUnknown = UseRead | UseDriven,
};

/// A variable as the engine lists it, before its type is known.
struct RawVariable
{
    enum Role : quint8 { Internal, Input, Output, Inout };

    QByteArray name;     ///< with its generate scopes: `g_lane[1].sum`
    int scopeLength = 0; ///< how much of the name are generate scopes
    int type = 0;
    Role role = Internal;
    bool isInteger = false; ///< declared as integer, which genvars look like, too
    quint8 uses = 0;
};

/// An instance, or an array of instances.
struct RawInstance
{
    QByteArray name; ///< with its generate scopes
    QByteArray module;
    bool isArray = false;
    int left = 0;
    int right = 0;
    std::vector<int> inputs; ///< variables connected to input ports; all drive when the module is a black box
};

/// A module, interface or clone of one with its own parameters.
struct RawModule
{
    QByteArray key;  ///< the name that instances use: `leaf__W8`
    QByteArray name; ///< the name in the source: `leaf`
    QByteArray file; ///< as the engine was given it
    int line = 0;
    bool isInterface = false;
    std::vector<RawVariable> variables;
    std::vector<RawInstance> instances;
};

/// One entry of the type table.
struct RawType
{
    enum Kind : quint8 { Scalar, Vector, PackedArray, UnpackedArray, Struct, Alias, Handle, NotANet };

    struct Member
    {
        QByteArray name;
        int type = 0;
    };

    Kind kind = NotANet;
    int left = 0;
    int right = 0;
    int element = 0;
    std::vector<Member> members;
};

/// What an engine says about a design, still per module and with types apart.
struct RawDesign
{
    std::vector<RawModule> modules;
    QHash<int, RawType> types;
    QVector<QByteArray> roots; ///< keys of modules that nothing instantiates
    QVector<QByteArray> files; ///< all that were read, as the engine names them
    QSet<QByteArray> remotely; ///< last names of what is referred to by a path, wherever that leads
};

} // namespace NETCATCHER

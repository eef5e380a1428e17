// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <netcatcher/rtlnetlist.h>

#include <QString>

#include <memory>

class QCommandLineParser;

/// The options by which commands that need a netlist describe the design.
namespace NetDesignOptions {
void addTo(QCommandLineParser &parser);
} // namespace NetDesignOptions

/// Reads the design that the positional arguments name: one project, one file list, or source files. Prints the
/// engine's messages on standard error. Null, with `error` set, when there is no netlist.
std::unique_ptr<NETCATCHER::RtlNetlist> readNetlist(const QCommandLineParser &parser, QString *error);

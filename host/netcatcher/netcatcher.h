// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <netcatcher/rtlnetlist.h>

#include <hostglobal.h>

#include <QMap>
#include <QStringList>
#include <QVariant>

class QWidget;

namespace NETCATCHER {

/// Parses the design that `sourceInfo` describes (TE::SourceKey) and appends to the three lists: the modules that can
/// be the top, every module found (none when "Top" names none of them), and the parser's messages. A message about an
/// error begins with "ERROR" and names file and line where known. Shows a progress dialog over `parent` while the
/// engine works.
HOST_EXPORT void catchRtlModules(QStringList &tops, QStringList &modules, QStringList &messages,
                                 QMap<QString, QVariant> &sourceInfo, QWidget *parent);

/// Builds the netlist of the design last given to catchRtlModules(), from the engine run made there. `*out` receives a
/// netlist that the caller owns, or null after the library has said why in a box of its own. `paths` is not used.
HOST_EXPORT void catchRtlNetsWithProgressDialog(RtlNetlist **out, QStringList &paths, QWidget *parent);

} // namespace NETCATCHER

// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "plugin/vakinsexport.h"

#include <QMap>
#include <QStringList>
#include <QVariant>

#include <memory>

class QWidget;

namespace NETCATCHER {
class RtlNetlist;
}

namespace RTLVAK::private_impl {

/// Obtains the netlist of the project's design. Null when the design has none that an analyzer can be inserted into;
/// the user has then been told why, in a box over `view`. Runs event loops: `view` may be gone afterwards, which gives
/// null.
VAKINS_EXPORT std::unique_ptr<NETCATCHER::RtlNetlist> acquireRtlNetlist(QWidget *view);

/// The netlist that the library builds of the design last given to getRtlModules(); null when it could build none.
std::unique_ptr<NETCATCHER::RtlNetlist> updateRtlNetlist();

/// Has the library parse the design of `info`.
void getRtlModules(QMap<QString, QVariant> &info, QStringList &tops, QStringList &modules, QStringList &messages);

/// The project's include paths, absolute and clean. The netlist library takes them from the source information instead.
VAKINS_EXPORT QStringList includePaths();

} // namespace RTLVAK::private_impl

// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QStringList>

#include <functional>

namespace QUtil {
class IEvent;
}
namespace TE {
struct DesignFile;
}

namespace RTLVAK {

/// What an editor asks its user after an event of the host.
enum class DesignPrompt { None, DesignFiles, TopModule };

/// Answers the project's record of the file at a path.
using FileLookup = std::function<TE::DesignFile(const QString &path)>;

/// The types of the events that can make a netlist stale, in the order in which editors subscribe to them.
QStringList designEventTypes();

/// Whether files with this type code are sources that feed the netlist.
bool isNetlistSource(int fileType);

/// The prompt that `event` asks for. `fileInfo` is asked only for events that do not carry the file's record
/// themselves.
DesignPrompt promptFor(const QUtil::IEvent &event, const FileLookup &fileInfo);

} // namespace RTLVAK

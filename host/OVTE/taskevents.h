// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

/// Types and value names of the events that the task engine publishes.
namespace TE {

namespace EventType {
constexpr char FileAdd[] = "TE.File.Add";                    ///< values: file
constexpr char FileRemove[] = "TE.File.Remove";              ///< values: file, type, enable
constexpr char FileChangeEnable[] = "TE.File.Change.Enable"; ///< values: file, type, enable
constexpr char FileChangeType[] = "TE.File.Change.Type";     ///< values: file, type, previous
constexpr char FileModified[] = "TE.File.Modified";          ///< values: file
constexpr char OptionChange[] = "TE.Option.Change";          ///< values: option
constexpr char DeviceChange[] = "TE.Device.Change";          ///< no values
} // namespace EventType

namespace EventKey {
constexpr char File[] = "file";         ///< absolute path, QString
constexpr char Type[] = "type";         ///< a FileType code, int
constexpr char Previous[] = "previous"; ///< the FileType code before the change, int
constexpr char Enable[] = "enable";     ///< whether the file is (or was) enabled, bool
constexpr char Option[] = "option";     ///< an option's name, QString
} // namespace EventKey

} // namespace TE

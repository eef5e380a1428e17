// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

/// The event by which anyone adds a line to the messages that the host shows.
namespace QUtil {
namespace MessageEvent {
constexpr char Type[] = "QUtil.Message"; ///< values: severity, text
constexpr char Severity[] = "severity";  ///< QString, one of the three below
constexpr char Text[] = "text";          ///< QString, one line of plain text
constexpr char Info[] = "info";
constexpr char Warning[] = "warning";
constexpr char Error[] = "error";
} // namespace MessageEvent
} // namespace QUtil

// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

/// The ids under which views register what the commands of the menus do for them.
namespace Workbench {
namespace ActionId {

constexpr char Save[] = "Core.Action.Save";
constexpr char Find[] = "Core.Action.Find";
constexpr char FindNext[] = "Core.Action.FindNext";
constexpr char FindPrevious[] = "Core.Action.FindPrevious";
constexpr char GoToLine[] = "Core.Action.GoToLine";

} // namespace ActionId
} // namespace Workbench

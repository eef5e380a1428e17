// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

namespace Core {

class IView;

/// Makes `view` (or null) the active one: tells the view that was active, tells `view`, emits
/// ViewManager::viewActiveted(). Nothing happens when it is active already.
void setActiveView(Core::IView *view);
Core::IView *activeView();

} // namespace Core

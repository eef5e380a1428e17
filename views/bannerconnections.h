// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "widgets/reloadbanner.h"

namespace RTLVAK::private_impl {

/// Connects the answers of a banner about the file on disk to the slots of `view`. Which of them the banner can give
/// depends on its kind.
template <class View>
void connectFileBanner(const ReloadBanner *banner, const View *view)
{
    QObject::connect(banner, &ReloadBanner::reload, view, &View::onBannerReload);
    QObject::connect(banner, &ReloadBanner::cancel, view, &View::onBannerCancel);
    QObject::connect(banner, &ReloadBanner::keepIt, view, &View::onBannerKeep);
    QObject::connect(banner, &ReloadBanner::closeIt, view, &View::onBannerClose);
}

/// Connects the answers of a banner about the project's design to the slots of `view`.
template <class View>
void connectDesignBanner(const ReloadBanner *banner, const View *view)
{
    QObject::connect(banner, &ReloadBanner::reload, view, &View::onRtlReload);
    QObject::connect(banner, &ReloadBanner::cancel, view, &View::onReloadCancel);
}

} // namespace RTLVAK::private_impl

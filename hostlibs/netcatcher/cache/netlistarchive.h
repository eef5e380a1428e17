// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "hostlibs/netcatcher/readresult.h"

#include <QByteArray>

#include <optional>

namespace NETCATCHER {

class ReadManifest;

/// The bytes of a cache entry: `manifest` and `result`, under the name `key`, behind a checksum. None when these would
/// be more than `maxBytes`.
QByteArray writeArchive(const QByteArray &key, const ReadManifest &manifest, const ReadResult &result, qint64 maxBytes);

/// Takes an entry apart; nothing when it is no entry of that name, is damaged or has another version. The bytes may be
/// anything, also forged: what is answered is safe to work with.
std::optional<ReadResult> readArchive(const QByteArray &bytes, const QByteArray &key, ReadManifest *manifest);

} // namespace NETCATCHER

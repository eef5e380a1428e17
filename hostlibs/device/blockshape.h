// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <hostglobal.h>

#include <QString>
#include <QVector>

namespace DEV {

/// One way in which a block RAM can be configured: `depth` words of `width` bits.
struct BlockShape
{
    int depth = 0;
    int width = 0;
};

/// The shapes of a named kind of block: "18k", "18k-no36" (without 512x36), "9k" and "4k"; empty for any other name.
HOST_EXPORT QVector<BlockShape> blockShapes(const QString &kind);

/// Blocks that `depth` words of `width` bits take: the minimum over `shapes` of ceil(depth/d) * ceil(width/w), since a
/// synthesis tool builds a memory from equal blocks side by side and on top of each other. 0 when a side is 0 or less
/// or there are no shapes; computed in 64 bits and saturated to int.
HOST_EXPORT int blocksRequired(const QVector<BlockShape> &shapes, qint64 width, qint64 depth);

} // namespace DEV

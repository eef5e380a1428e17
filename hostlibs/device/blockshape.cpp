// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "blockshape.h"

#include <QHash>

#include <algorithm>
#include <limits>

namespace DEV {

QVector<BlockShape> blockShapes(const QString &kind)
{
    using Shapes = QVector<BlockShape>;
    static const QHash<QString, Shapes> kinds = {
        {QStringLiteral("18k"), {{16384, 1}, {8192, 2}, {4096, 4}, {2048, 9}, {1024, 18}, {512, 36}}},
        {QStringLiteral("18k-no36"), {{16384, 1}, {8192, 2}, {4096, 4}, {2048, 9}, {1024, 18}}},
        {QStringLiteral("9k"), {{8192, 1}, {4096, 2}, {2048, 4}, {1024, 9}, {512, 18}, {256, 36}}},
        {QStringLiteral("4k"), {{4096, 1}, {2048, 2}, {1024, 4}, {512, 8}, {256, 16}}},
    };
    return kinds.value(kind);
}

static qint64 ceilDiv(qint64 dividend, int divisor)
{
    return (dividend + divisor - 1) / divisor;
}

int blocksRequired(const QVector<BlockShape> &shapes, qint64 width, qint64 depth)
{
    if (width <= 0 || depth <= 0 || shapes.isEmpty())
        return 0;
    qint64 fewest = std::numeric_limits<qint64>::max();
    for (const BlockShape &shape : shapes)
        fewest = std::min(fewest, ceilDiv(depth, shape.depth) * ceilDiv(width, shape.width));
    return int(std::min<qint64>(fewest, std::numeric_limits<int>::max()));
}

} // namespace DEV

// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "packageorder.h"

#include <algorithm>

namespace NETCATCHER {

/// The files that declare what file number `file` uses, in their own order.
static QVector<int> prerequisites(const HdlScan &scan, const QHash<QByteArray, int> &declaredIn, int file)
{
    QVector<int> result;
    for (const QByteArray &package : scan.usedPackages) {
        const int declaring = declaredIn.value(package, file);
        if (declaring != file)
            result.append(declaring);
    }
    std::sort(result.begin(), result.end());
    return result;
}

static void place(int file, const QVector<QVector<int>> &needed, QVector<bool> &visited, QVector<int> &order)
{
    if (visited[file])
        return;
    visited[file] = true;
    for (int before : needed[file])
        place(before, needed, visited, order);
    order.append(file);
}

QVector<int> packageOrder(const QVector<HdlScan> &scans)
{
    QHash<QByteArray, int> declaredIn;
    for (int i = 0; i < scans.size(); ++i) {
        for (const QByteArray &package : scans[i].packages)
            declaredIn.insert(package, declaredIn.value(package, i));
    }
    QVector<QVector<int>> needed;
    for (int i = 0; i < scans.size(); ++i)
        needed.append(prerequisites(scans[i], declaredIn, i));
    QVector<int> order;
    QVector<bool> visited(scans.size(), false);
    for (int i = 0; i < scans.size(); ++i)
        place(i, needed, visited, order);
    return order;
}

} // namespace NETCATCHER

// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QDebug>
#include <QList>

class QWidget;

namespace RTLVAK::private_impl {

/// Whether a file with `count` cores may have one more; tells the user when not.
bool roomForCore(QWidget *view, int count);

/// Whether core `row` of `count` is to be removed: refuses to remove the only one, ignores rows without a core, and
/// asks. False also when `view` died meanwhile.
bool removalConfirmed(QWidget *view, int count, int row);

/// Makes the number of each core its position.
template <class Core>
void renumber(const QList<Core *> &cores)
{
    for (int i = 0; i < cores.size(); ++i)
        cores.at(i)->setIndex(i);
}

/// Writes the number of each core to the debug log.
template <class Core>
void logNumbers(const QList<Core *> &cores)
{
    for (const Core *core : cores)
        qDebug() << core->index();
}

} // namespace RTLVAK::private_impl

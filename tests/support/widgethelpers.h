// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QAbstractItemView>
#include <QStringList>
#include <QWidget>

class QTreeWidget;
class QTreeWidgetItem;

namespace support {

/// The descendant of `root` that is a T and has the object name `name`. There must be one: a test cannot go on without.
template <typename T>
T &child(const QObject &root, const char *name)
{
    T *found = root.findChild<T *>(QLatin1String(name));
    if (!found)
        qFatal("%s has no %s named \"%s\"", root.metaObject()->className(), T::staticMetaObject.className(), name);
    return *found;
}

/// Clicks the button `name` below `root` with the mouse; the test fails when it is disabled.
void clickButton(const QWidget &root, const char *name);

/// Clicks (double clicks) the middle of a cell with the left mouse button, scrolling to it first.
void clickItem(QTreeWidget &tree, QTreeWidgetItem *item, int column = 0,
               Qt::KeyboardModifiers modifiers = Qt::NoModifier);
void doubleClickItem(QTreeWidget &tree, QTreeWidgetItem *item, int column = 0);
/// Asks for the context menu of a cell, as a right click does; of the empty area when `item` is null.
void contextMenuOn(QTreeWidget &tree, QTreeWidgetItem *item, int column = 0);

/// The column texts of the top rows, and of every row with its depth shown by two blanks each.
QStringList topTexts(const QTreeWidget &tree, int column = 0);
QStringList allTexts(const QTreeWidget &tree, int column = 0);

/// The entries of a combo box, or of any flat model.
QStringList modelTexts(const QAbstractItemModel &model);

/// Runs deleteLater() requests, including those made outside an event loop.
void runDeferredDeletes();

/// Signatures of the signals and slots that the class itself declares, in declared order.
QStringList ownSlots(const QMetaObject &metaObject);
QStringList ownSignals(const QMetaObject &metaObject);
/// Signatures of everything that the class itself declares: signals, slots, invokables.
QStringList ownMethods(const QMetaObject &metaObject);

} // namespace support

// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "support/widgethelpers.h"

#include <QAbstractButton>
#include <QContextMenuEvent>
#include <QCoreApplication>
#include <QMetaMethod>
#include <QTest>
#include <QTreeWidget>

namespace support {

void clickButton(const QWidget &root, const char *name)
{
    auto &button = child<QAbstractButton>(root, name);
    if (!button.isEnabled())
        QTest::qFail(qPrintable(QStringLiteral("the button \"%1\" is disabled").arg(QLatin1String(name))), __FILE__,
                     __LINE__);
    QTest::mouseClick(&button, Qt::LeftButton);
}

static QPoint middleOf(QTreeWidget &tree, QTreeWidgetItem *item, int column)
{
    tree.scrollToItem(item);
    const QModelIndex row = tree.indexAt(tree.visualItemRect(item).center());
    return tree.visualRect(row.sibling(row.row(), column)).center();
}

void clickItem(QTreeWidget &tree, QTreeWidgetItem *item, int column, Qt::KeyboardModifiers modifiers)
{
    QTest::mouseClick(tree.viewport(), Qt::LeftButton, modifiers, middleOf(tree, item, column));
}

void doubleClickItem(QTreeWidget &tree, QTreeWidgetItem *item, int column)
{
    const QPoint position = middleOf(tree, item, column);
    QTest::mouseClick(tree.viewport(), Qt::LeftButton, Qt::NoModifier, position);
    QTest::mouseDClick(tree.viewport(), Qt::LeftButton, Qt::NoModifier, position);
}

void contextMenuOn(QTreeWidget &tree, QTreeWidgetItem *item, int column)
{
    const QRect area = tree.viewport()->rect();
    const QPoint position = item ? middleOf(tree, item, column) : area.bottomRight() - QPoint(2, 2);
    QContextMenuEvent event(QContextMenuEvent::Mouse, position, tree.viewport()->mapToGlobal(position));
    QCoreApplication::sendEvent(tree.viewport(), &event);
}

QStringList topTexts(const QTreeWidget &tree, int column)
{
    QStringList texts;
    for (int row = 0; row < tree.topLevelItemCount(); ++row)
        texts.append(tree.topLevelItem(row)->text(column));
    return texts;
}

static void appendTexts(const QTreeWidgetItem *item, int column, const QString &indent, QStringList *texts)
{
    texts->append(indent + item->text(column));
    for (int row = 0; row < item->childCount(); ++row)
        appendTexts(item->child(row), column, indent + QStringLiteral("  "), texts);
}

QStringList allTexts(const QTreeWidget &tree, int column)
{
    QStringList texts;
    for (int row = 0; row < tree.topLevelItemCount(); ++row)
        appendTexts(tree.topLevelItem(row), column, QString(), &texts);
    return texts;
}

QStringList modelTexts(const QAbstractItemModel &model)
{
    QStringList texts;
    for (int row = 0; row < model.rowCount(); ++row)
        texts.append(model.index(row, 0).data().toString());
    return texts;
}

void runDeferredDeletes()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

template <typename Predicate>
static QStringList signatures(const QMetaObject &metaObject, Predicate wanted)
{
    QStringList list;
    for (int index = metaObject.methodOffset(); index < metaObject.methodCount(); ++index) {
        if (wanted(metaObject.method(index).methodType()))
            list.append(QString::fromLatin1(metaObject.method(index).methodSignature()));
    }
    return list;
}

QStringList ownSlots(const QMetaObject &metaObject)
{
    return signatures(metaObject, [](QMetaMethod::MethodType type) { return type == QMetaMethod::Slot; });
}

QStringList ownSignals(const QMetaObject &metaObject)
{
    return signatures(metaObject, [](QMetaMethod::MethodType type) { return type == QMetaMethod::Signal; });
}

QStringList ownMethods(const QMetaObject &metaObject)
{
    return signatures(metaObject, [](QMetaMethod::MethodType) { return true; });
}

} // namespace support

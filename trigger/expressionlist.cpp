// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "trigger/expressionlist.h"

#include "rules/triggerusage.h"

#include <QCoreApplication>
#include <QListWidget>

namespace RTLVAK::private_impl {

static void setInForce(QListWidgetItem *row, bool inForce)
{
    row->setForeground(inForce ? Qt::black : Qt::gray);
    row->setToolTip(inForce ? QString()
                            : QCoreApplication::translate("RTLVAK::TriggerOptionWidget",
                                                          "M10 to M15 are not available in Dynamic mode"));
}

void appendExpression(QListWidget *list, const QString &expression)
{
    auto *row = new QListWidgetItem(expression, list);
    setInForce(row, true);
}

void markExpressions(QListWidget *list, bool dynamic)
{
    for (int i = 0; i < list->count(); ++i) {
        QListWidgetItem *row = list->item(i);
        setInForce(row, !dynamic || !isOutOfForceWhenDynamic(row->text()));
    }
}

QStringList expressionsInForce(const QListWidget *list)
{
    QStringList texts;
    for (int i = 0; i < list->count(); ++i) {
        if (list->item(i)->foreground().color() != QColor(Qt::gray))
            texts.append(list->item(i)->text());
    }
    return texts;
}

} // namespace RTLVAK::private_impl

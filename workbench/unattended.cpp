// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "workbench/unattended.h"

#include <QApplication>
#include <QEvent>
#include <QMessageBox>

#include <iostream>

namespace Workbench {

Unattended::Unattended(QObject *parent)
    : QObject(parent)
{
    qApp->installEventFilter(this);
}

bool Unattended::eventFilter(QObject *watched, QEvent *event)
{
    auto *box = event->type() == QEvent::Show ? qobject_cast<QMessageBox *>(watched) : nullptr;
    if (box != nullptr) {
        std::cerr << box->windowTitle().toStdString() << ": " << box->text().toStdString() << '\n';
        if (!box->detailedText().isEmpty())
            std::cerr << box->detailedText().toStdString() << '\n';
        QMetaObject::invokeMethod(box, &QDialog::reject, Qt::QueuedConnection);
    }
    return QObject::eventFilter(watched, event);
}

} // namespace Workbench

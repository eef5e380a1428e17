// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "workbench/unattended.h"

#include <QApplication>
#include <QEvent>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QTextEdit>

#include <iostream>

namespace Workbench {

Unattended::Unattended(QObject *parent)
    : QObject(parent)
{
    qApp->installEventFilter(this);
}

static QStringList textsOf(const QDialog &dialog)
{
    if (const auto *box = qobject_cast<const QMessageBox *>(&dialog))
        return {box->text(), box->detailedText()};
    QStringList texts;
    for (const auto *edit : dialog.findChildren<QPlainTextEdit *>())
        texts.append(edit->toPlainText());
    for (const auto *edit : dialog.findChildren<QTextEdit *>())
        texts.append(edit->toPlainText());
    return texts;
}

bool Unattended::eventFilter(QObject *watched, QEvent *event)
{
    auto *dialog = event->type() == QEvent::Show ? qobject_cast<QDialog *>(watched) : nullptr;
    // One that only shows progress goes away by itself.
    if (dialog != nullptr && dialog->findChild<QProgressBar *>() == nullptr) {
        std::cerr << dialog->windowTitle().toStdString() << ": ";
        for (const QString &text : textsOf(*dialog)) {
            if (!text.isEmpty())
                std::cerr << text.toStdString() << '\n';
        }
        QMetaObject::invokeMethod(dialog, &QDialog::reject, Qt::QueuedConnection);
    }
    return QObject::eventFilter(watched, event);
}

} // namespace Workbench

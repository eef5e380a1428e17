// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "widgets/messagebox.h"

#include <QPointer>

namespace RTLVAK::private_impl {

QMessageBox::StandardButton runBox(QMessageBox *box)
{
    const QPointer<QMessageBox> guard(box);
    box->setTextFormat(Qt::PlainText); // paths and messages may hold "<"
    box->exec();
    if (!guard)
        return QMessageBox::NoButton;
    const QMessageBox::StandardButton answer = box->standardButton(box->clickedButton());
    delete box;
    return answer;
}

QMessageBox::StandardButton showBox(QWidget *parent, QMessageBox::Icon icon, const QString &title, const QString &text,
                                    QMessageBox::StandardButtons buttons, QMessageBox::StandardButton defaultButton)
{
    // Not one of the toolkit's static functions: they keep the box on the stack, where a dying parent would delete it.
    auto *box = new QMessageBox(icon, title, text, buttons, parent);
    if (defaultButton != QMessageBox::NoButton)
        box->setDefaultButton(defaultButton);
    return runBox(box);
}

} // namespace RTLVAK::private_impl

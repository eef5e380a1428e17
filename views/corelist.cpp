// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "views/corelist.h"

#include "widgets/messagebox.h"

#include <VakUtils/aocore.h>

namespace RTLVAK::private_impl {

bool roomForCore(QWidget *view, int count)
{
    if (count < VAK::MaxCores)
        return true;
    showBox(view, QMessageBox::Warning, QStringLiteral("Warning"), QStringLiteral("Support 16 AOs at most."));
    return false;
}

bool removalConfirmed(QWidget *view, int count, int row)
{
    if (count == 1) {
        showBox(view, QMessageBox::Warning, QStringLiteral("Warning"),
                QStringLiteral("The only Ao can not be removed."));
        return false;
    }
    if (row < 0 || row >= count)
        return false;
    return showBox(view, QMessageBox::Question, QStringLiteral("Confirm"),
                   QStringLiteral("Do you want to remove AO %1 ?").arg(row), QMessageBox::Ok | QMessageBox::Cancel,
                   QMessageBox::Ok) == QMessageBox::Ok;
}

} // namespace RTLVAK::private_impl

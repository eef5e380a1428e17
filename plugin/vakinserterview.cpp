// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "plugin/vakinserterview.h"

namespace RTLVAK {

VakInserterView::VakInserterView(QWidget *parent)
    : Core::IView(parent)
{
}

VakInserterView::~VakInserterView() = default;

QString VakInserterView::device() const
{
    return target.device;
}

void VakInserterView::setDevice(const QString &name)
{
    target.device = name;
}

} // namespace RTLVAK

// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QObject>

namespace Workbench {

/// For runs that nobody watches: prints what boxes and dialogs say and declines them, so that none waits for an answer.
class Unattended : public QObject
{
    Q_OBJECT

public:
    explicit Unattended(QObject *parent = nullptr);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
};

} // namespace Workbench

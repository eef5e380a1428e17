// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "workbench/messagespanel.h"

#include <QUtility/ieventhandler.h>

#include <QObject>

namespace Workbench {

/// Passes on the lines that others publish for the host's messages.
class HostMessages : public QObject, public QUtil::IEventHandler
{
    Q_OBJECT

public:
    explicit HostMessages(QObject *parent = nullptr);

    void handleIEvent(const QUtil::IEvent *event) override;

signals:
    void message(Workbench::Severity severity, const QString &text);
};

} // namespace Workbench

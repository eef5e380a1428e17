// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <OVTE/taskevents.h>
#include <QUtility/ievent.h>
#include <QUtility/ieventhandler.h>

#include <QStringList>
#include <QVariant>

/// Writes down every event of the task engine: "TE.File.Remove file=a.v type=2 enable=true", paths without folders.
class EventLog : public QUtil::IEventHandler
{
public:
    EventLog()
    {
        using namespace TE::EventType;
        for (const char *type :
             {FileAdd, FileRemove, FileChangeEnable, FileChangeType, FileModified, OptionChange, DeviceChange})
            subscribe(type);
    }

    void handleIEvent(const QUtil::IEvent *event) override
    {
        using namespace TE::EventKey;
        QString line = event->type();
        for (const char *key : {File, Type, Previous, Enable, Option}) {
            const QVariant value = event->get(key);
            if (value.isValid())
                line += QString(" %1=%2").arg(key, value.toString().section('/', -1));
        }
        lines.append(line);
    }

    QStringList take()
    {
        const QStringList result = lines;
        lines.clear();
        return result;
    }

    QStringList lines;
};

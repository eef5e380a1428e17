// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "receivers.h"

#include <QObject>

namespace support {

static QStringList dumpedLines;

static void collect(QtMsgType, const QMessageLogContext &, const QString &text)
{
    dumpedLines += text.split(QLatin1Char('\n'));
}

static QStringList dump(QObject &object)
{
    dumpedLines.clear();
    const QtMessageHandler before = qInstallMessageHandler(collect);
    object.dumpObjectInfo();
    qInstallMessageHandler(before);
    return dumpedLines;
}

QStringList receiversOf(QObject &sender, const QString &signal)
{
    QStringList receivers;
    bool within = false;
    for (const QString &line : dump(sender)) {
        const QString text = line.trimmed();
        if (text.startsWith(QLatin1String("signal:")))
            within = text == QLatin1String("signal: ") + signal;
        else if (text.startsWith(QLatin1String("SIGNALS IN")))
            break;
        else if (within && !text.isEmpty())
            receivers.append(text);
    }
    return receivers;
}

} // namespace support

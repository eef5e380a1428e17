// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include <QUtility/ievent.h>

namespace QUtil {

IEvent::IEvent(const QString &type, const QMap<QString, QVariant> &values)
    : eventType(type)
    , eventValues(values)
{
}

IEvent::~IEvent() = default;

QString IEvent::type() const
{
    return eventType;
}

QVariant IEvent::get(const QString &key) const
{
    return eventValues.value(key);
}

void IEvent::set(const QString &key, const QVariant &value)
{
    eventValues.insert(key, value);
}

} // namespace QUtil

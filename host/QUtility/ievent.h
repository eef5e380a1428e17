// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <hostglobal.h>

#include <QMap>
#include <QString>
#include <QVariant>

namespace QUtil {

/// An event of the host: a type and named values. Anyone may build one and publish it.
class HOST_EXPORT IEvent
{
public:
    explicit IEvent(const QString &type, const QMap<QString, QVariant> &values = {});
    virtual ~IEvent();

    QString type() const;
    /// The value named `key`; an invalid variant when the event carries none.
    QVariant get(const QString &key) const;
    void set(const QString &key, const QVariant &value);

private:
    QString eventType;
    QMap<QString, QVariant> eventValues;
};

} // namespace QUtil

// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "vhdlscan.h"

#include "vhdlscanner.h"

namespace NETCATCHER {

/// No name holds a line break.
static QByteArray joined(const QByteArray &a, const QByteArray &b)
{
    return a + '\n' + b;
}

QByteArray VhdlPlace::text() const
{
    QByteArray result = joined(entity, architecture);
    for (const QByteArray &scope : scopes)
        result += '\n' + scope;
    return result;
}

bool VhdlScan::add(const QByteArray &text)
{
    return VhdlScanner(text, *this).run();
}

QVector<QByteArray> VhdlScan::roots() const
{
    QSet<QByteArray> used;
    for (auto it = m_instantiated.cbegin(); it != m_instantiated.cend(); ++it) {
        for (const QByteArray &key : *it) {
            const QByteArray entity = entityBehind(key);
            if (entity != it.key())
                used.insert(entity);
        }
    }
    QVector<QByteArray> result;
    for (const QByteArray &name : m_entities) {
        if (!used.contains(vhdlKey(name)))
            result.append(name);
    }
    return result;
}

QSet<QByteArray> VhdlScan::instantiated() const
{
    QSet<QByteArray> result;
    for (const QSet<QByteArray> &keys : m_instantiated) {
        for (const QByteArray &key : keys)
            result.insert(entityBehind(key));
    }
    return result;
}

QByteArray VhdlScan::signalName(VhdlPlace place, const QByteArray &key) const
{
    for (;;) {
        const auto found = m_signals.constFind(joined(place.text(), key));
        if (found != m_signals.constEnd())
            return *found;
        if (!place.scopes.isEmpty())
            place.scopes.removeLast();
        else if (!place.architecture.isEmpty())
            place.architecture.clear();
        else
            return key;
    }
}

QByteArray VhdlScan::labelName(const VhdlPlace &place, const QByteArray &key) const
{
    return m_labels.value(joined(place.text(), key), key);
}

QByteArray VhdlScan::fieldName(const QByteArray &typeKey, const QByteArray &key) const
{
    return m_fields.value(joined(typeKey, key), key);
}

const VhdlInstance *VhdlScan::instance(const VhdlPlace &place, const QByteArray &key) const
{
    const auto found = m_instances.constFind(joined(place.text(), key));
    return found == m_instances.constEnd() ? nullptr : &*found;
}

bool VhdlScan::isUsed(const VhdlPlace &place, const QByteArray &key) const
{
    const QByteArray architecture = joined(place.entity, place.architecture);
    return !m_scanned.contains(architecture) || m_used.contains(joined(architecture, key)) ||
           m_usedRemotely.contains(key);
}

} // namespace NETCATCHER

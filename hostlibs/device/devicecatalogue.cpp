// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "devicecatalogue.h"

#include "devicejson.h"

#include <QDir>
#include <QFile>
#include <QLoggingCategory>
#include <QStandardPaths>

#include <algorithm>

Q_LOGGING_CATEGORY(catalogueLog, "rtlvak.device")

/// The resource lies in a static library; outside a namespace, as the macro demands.
static void loadBuiltInResource()
{
    Q_INIT_RESOURCE(devices);
}

namespace DEV {

const DeviceCatalogue &DeviceCatalogue::instance()
{
    static const DeviceCatalogue catalogue = [] {
        DeviceCatalogue all = builtIn();
        all.addUserFiles();
        return all;
    }();
    return catalogue;
}

DeviceCatalogue DeviceCatalogue::builtIn()
{
    loadBuiltInResource();
    DeviceCatalogue catalogue;
    QString error;
    if (!catalogue.addFile(QStringLiteral(":/device/devices.json"), &error))
        qCCritical(catalogueLog).noquote() << error;
    return catalogue;
}

void DeviceCatalogue::addUserFiles()
{
    QStringList folders = QStandardPaths::locateAll(
        QStandardPaths::GenericDataLocation, QStringLiteral("rtlvakins/devices"), QStandardPaths::LocateDirectory);
    std::reverse(folders.begin(), folders.end()); // the user's own folder comes first there and must win here
    for (const QString &folder : qAsConst(folders)) {
        const QStringList names = QDir(folder).entryList({QStringLiteral("*.json")}, QDir::Files, QDir::Name);
        for (const QString &name : names) {
            QString error;
            if (addFile(QDir(folder).filePath(name), &error))
                continue;
            m_messages.append(error);
            qCWarning(catalogueLog).noquote() << error;
        }
    }
}

bool DeviceCatalogue::addJson(const QByteArray &json, QString *error)
{
    QList<Device> added;
    if (!devicesFromJson(json, &added, error))
        return false;
    for (const Device &device : qAsConst(added)) {
        const auto same = std::find_if(m_devices.begin(), m_devices.end(),
                                       [&device](const Device &known) { return known.name == device.name; });
        if (same == m_devices.end())
            m_devices.append(device);
        else
            *same = device;
    }
    return true;
}

bool DeviceCatalogue::addFile(const QString &path, QString *error)
{
    QFile file(path);
    QString reason;
    const bool added = file.open(QIODevice::ReadOnly) ? addJson(file.readAll(), &reason) : false;
    if (!added && error)
        *error = QStringLiteral("%1: %2").arg(path, reason.isEmpty() ? file.errorString() : reason);
    return added;
}

QList<Device> DeviceCatalogue::devices() const
{
    return m_devices;
}

const Device *DeviceCatalogue::find(const QString &name, const QString &package) const
{
    const auto found = std::find_if(m_devices.cbegin(), m_devices.cend(),
                                    [&name](const Device &device) { return device.name == name; });
    if (found == m_devices.cend())
        return nullptr;
    const bool anyPackage = package.isEmpty() || found->packages.isEmpty();
    return anyPackage || found->packages.contains(package) ? &*found : nullptr;
}

QStringList DeviceCatalogue::messages() const
{
    return m_messages;
}

} // namespace DEV

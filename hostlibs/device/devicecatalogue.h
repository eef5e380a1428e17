// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "blockshape.h"

#include <hostglobal.h>

#include <QList>
#include <QStringList>

namespace DEV {

/// What the catalogue knows about a device.
struct Device
{
    QString name;
    QString family;
    QStringList packages;
    int blockRams = 0;
    int shadowRamCells = 0; ///< cells of 16 words of 4 bits; 0 when the device has none
    int registers = 0;
    QVector<BlockShape> blockShapes;
};

/// The devices that can be chosen, with their capacities: the built-in ones, then those of the user's files. A later
/// device replaces an earlier one of the same name, at its place. Names are compared exactly.
class HOST_EXPORT DeviceCatalogue
{
public:
    /// An empty catalogue.
    DeviceCatalogue() = default;

    /// The built-in devices and the files `*.json` in the folders `rtlvakins/devices` of the platform's data locations
    /// (~/.local/share first). Read once, when first asked for. A file that cannot be used is left out and named in
    /// messages().
    static const DeviceCatalogue &instance();
    /// The built-in devices alone.
    static DeviceCatalogue builtIn();

    /// Adds the devices of a JSON text: {"devices": [{"name", "family", "packages": [..], "blockRams",
    /// "shadowRamCells", "registers", "blockShapes": "18k" or [[depth, width], ..]}, ..]}. All or none of them: on
    /// failure the result is false and `*error` says what is wrong.
    bool addJson(const QByteArray &json, QString *error);
    /// The same from a file; `*error` begins with the path.
    bool addFile(const QString &path, QString *error);

    /// In the order of the files.
    QList<Device> devices() const;
    /// The device of that name; null when there is none, or when it has packages and `package` is neither empty nor one
    /// of them. Valid until the catalogue changes.
    const Device *find(const QString &name, const QString &package = {}) const;
    /// One line for each user file that was left out.
    QStringList messages() const;

private:
    void addUserFiles();

    QList<Device> m_devices;
    QStringList m_messages;
};

} // namespace DEV

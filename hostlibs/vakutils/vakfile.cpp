// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include <VakUtils/vakfile.h>

#include "configfile.h"
#include "corereader.h"
#include "corewriter.h"

#include <VakUtils/aocore.h>
#include <VakUtils/aocorelite.h>

namespace VAK {

VakMode vakModeFromVakConfigFile(const QString &path)
{
    FileError error;
    const QByteArray data = loadFile(path, &error);
    return error.isSet() ? VakMode::Invalid : modeOf(data);
}

template <class Core>
static bool isWhole(const QString &path, QList<Core *> (*read)(const QByteArray &, Checks, FileError *))
{
    FileError error;
    const QByteArray data = loadFile(path, &error);
    if (!error.isSet())
        qDeleteAll(read(data, Checks::Structure, &error));
    return !error.isSet();
}

bool checkVAKStandardFile(const QString &path)
{
    return isWhole<AoCore>(path, readStandardCores);
}

bool checkVAKLiteFile(const QString &path)
{
    return isWhole<AOCore_Lite>(path, readLiteCores);
}

template <class Core>
static QList<Core *> readReporting(const QString &path, bool *ok, QString *message,
                                   QList<Core *> (*read)(const QString &, FileError *))
{
    FileError error;
    const QList<Core *> cores = read(path, &error);
    if (ok)
        *ok = !error.isSet();
    if (message && error.isSet())
        *message = error.text();
    return cores;
}

QList<AoCore *> readVAKConfigFromXml(const QString &path, bool *ok, QString *error)
{
    return readReporting<AoCore>(path, ok, error, readStandardFile);
}

QList<AOCore_Lite *> readVAKConfigFromXml_Lite(const QString &path, bool *ok, QString *error)
{
    return readReporting<AOCore_Lite>(path, ok, error, readLiteFile);
}

bool writeVAKConfigToXml(const QList<AoCore *> &cores, const QString &path)
{
    return replaceFile(path, standardFile(cores));
}

bool writeVAKConfigToXml_Lite(const QList<AOCore_Lite *> &cores, const QString &path)
{
    return replaceFile(path, liteFile(cores));
}

} // namespace VAK

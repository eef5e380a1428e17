// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "command.h"
#include "commands.h"

#include "hostlibs/device/devicecatalogue.h"

#include <QCommandLineParser>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTextStream>

static QJsonObject deviceObject(const DEV::Device &device)
{
    QJsonArray shapes;
    for (const DEV::BlockShape &shape : device.blockShapes)
        shapes.append(QJsonArray{shape.depth, shape.width});
    return {{QStringLiteral("name"), device.name},
            {QStringLiteral("family"), device.family},
            {QStringLiteral("packages"), QJsonArray::fromStringList(device.packages)},
            {QStringLiteral("blockRams"), device.blockRams},
            {QStringLiteral("shadowRamCells"), device.shadowRamCells},
            {QStringLiteral("registers"), device.registers},
            {QStringLiteral("blockShapes"), shapes}};
}

static void printJson(const QList<DEV::Device> &devices)
{
    QJsonArray list;
    for (const DEV::Device &device : devices)
        list.append(deviceObject(device));
    const QJsonObject root{{QStringLiteral("devices"), list}};
    standardOutput() << QString::fromUtf8(QJsonDocument(root).toJson()) << Qt::flush;
}

static void printTable(const QList<DEV::Device> &devices)
{
    const auto row = [](const QString &name, const QString &family, const QString &bsram, const QString &ssram,
                        const QString &registers) {
        standardOutput() << name.leftJustified(16) << family.leftJustified(18) << bsram.rightJustified(8)
                         << ssram.rightJustified(8) << registers.rightJustified(10) << '\n';
    };
    row(QStringLiteral("NAME"), QStringLiteral("FAMILY"), QStringLiteral("BSRAM"), QStringLiteral("SSRAM"),
        QStringLiteral("REG"));
    for (const DEV::Device &device : devices) {
        row(device.name, device.family, QString::number(device.blockRams), QString::number(device.shadowRamCells),
            QString::number(device.registers));
    }
    standardOutput().flush();
}

int runDevices(const QStringList &arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Lists the devices that the catalogue holds, with their block RAMs (BSRAM), shadow RAM cells "
                       "(SSRAM) and registers (REG)."));
    const QCommandLineOption json(QStringLiteral("json"), QStringLiteral("Print JSON."));
    parser.addOption(json);
    const int status = parseArguments(&parser, QStringLiteral("devices"), {}, arguments);
    if (status >= 0)
        return status;
    if (!parser.positionalArguments().isEmpty())
        return usageError(QStringLiteral("devices"), QStringLiteral("takes no file."));
    const QList<DEV::Device> devices = DEV::DeviceCatalogue::instance().devices();
    parser.isSet(json) ? printJson(devices) : printTable(devices);
    return Success;
}

// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "devicejson.h"

#include "devicecatalogue.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <cmath>
#include <optional>

namespace DEV {

static constexpr int MaxFigure = 100000000;

/// Collects the first error of one text.
class DeviceReader
{
public:
    std::optional<QList<Device>> read(const QByteArray &json);
    QString error() const { return m_error; }

private:
    Device readDevice(const QJsonObject &object);
    int figure(const QJsonObject &object, const QString &key);
    QStringList texts(const QJsonObject &object, const QString &key);
    QVector<BlockShape> shapes(const QJsonValue &value);
    BlockShape shape(const QJsonArray &pair);
    void fail(const QString &message);

    QString m_where;
    QString m_error;
};

void DeviceReader::fail(const QString &message)
{
    if (m_error.isEmpty())
        m_error = m_where.isEmpty() ? message : QStringLiteral("%1: %2").arg(m_where, message);
}

static bool isWholeNumber(const QJsonValue &value, int least)
{
    const double number = value.toDouble(-1);
    return value.isDouble() && number >= least && number <= MaxFigure && std::floor(number) >= number;
}

int DeviceReader::figure(const QJsonObject &object, const QString &key)
{
    const QJsonValue value = object.value(key);
    if (!isWholeNumber(value, 0))
        fail(QStringLiteral("\"%1\" must be a whole number from 0 to %2").arg(key).arg(MaxFigure));
    return value.toInt();
}

QStringList DeviceReader::texts(const QJsonObject &object, const QString &key)
{
    QStringList list;
    const QJsonValue value = object.value(key);
    if (!value.isUndefined() && !value.isArray())
        fail(QStringLiteral("\"%1\" must be a list of texts").arg(key));
    for (const QJsonValue &text : value.toArray()) {
        if (!text.isString())
            fail(QStringLiteral("\"%1\" must be a list of texts").arg(key));
        list.append(text.toString());
    }
    return list;
}

BlockShape DeviceReader::shape(const QJsonArray &pair)
{
    const bool valid = pair.size() == 2 && isWholeNumber(pair.at(0), 1) && isWholeNumber(pair.at(1), 1);
    if (!valid)
        fail(QStringLiteral("\"blockShapes\": each shape is [depth, width], both 1 or more"));
    return {pair.at(0).toInt(), pair.at(1).toInt()};
}

QVector<BlockShape> DeviceReader::shapes(const QJsonValue &value)
{
    QVector<BlockShape> list;
    if (value.isString())
        list = blockShapes(value.toString());
    for (const QJsonValue &pair : value.toArray())
        list.append(shape(pair.toArray()));
    if (list.isEmpty())
        fail(QStringLiteral(
            "\"blockShapes\" must be \"18k\", \"18k-no36\", \"9k\", \"4k\" or a list of [depth, width]"));
    return list;
}

Device DeviceReader::readDevice(const QJsonObject &object)
{
    Device device;
    device.name = object.value(QLatin1String("name")).toString();
    m_where = device.name;
    if (device.name.trimmed().isEmpty())
        fail(QStringLiteral("a device has no \"name\""));
    device.family = object.value(QLatin1String("family")).toString();
    device.packages = texts(object, QStringLiteral("packages"));
    device.blockRams = figure(object, QStringLiteral("blockRams"));
    device.shadowRamCells = figure(object, QStringLiteral("shadowRamCells"));
    device.registers = figure(object, QStringLiteral("registers"));
    device.blockShapes = shapes(object.value(QLatin1String("blockShapes")));
    return device;
}

std::optional<QList<Device>> DeviceReader::read(const QByteArray &json)
{
    QJsonParseError parseError;
    const QJsonDocument document = QJsonDocument::fromJson(json, &parseError);
    const QJsonValue list = document.object().value(QLatin1String("devices"));
    if (parseError.error != QJsonParseError::NoError)
        fail(QStringLiteral("byte %1: %2").arg(parseError.offset).arg(parseError.errorString()));
    else if (!list.isArray())
        fail(QStringLiteral("expected an object with a list \"devices\""));
    QList<Device> devices;
    for (const QJsonValue &value : list.toArray())
        devices.append(readDevice(value.toObject()));
    if (!m_error.isEmpty())
        return std::nullopt;
    return devices;
}

bool devicesFromJson(const QByteArray &json, QList<Device> *devices, QString *error)
{
    DeviceReader reader;
    const std::optional<QList<Device>> read = reader.read(json);
    if (read)
        *devices = *read;
    else if (error)
        *error = reader.error();
    return read.has_value();
}

} // namespace DEV

// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QLatin1String>
#include <QStringList>

/// The words and limits of the configuration file, shared by its reader and its writer.
namespace VAK {
namespace FileWords {

template <int Size>
constexpr QLatin1String latin1(const char (&text)[Size])
{
    return QLatin1String(text, Size - 1);
}

constexpr QLatin1String Root = latin1("vak");
constexpr QLatin1String Core = latin1("core");
constexpr QLatin1String Clock = latin1("clock");
constexpr QLatin1String Trigger = latin1("trigger");
constexpr QLatin1String Port = latin1("port");
constexpr QLatin1String Unit = latin1("unit");
constexpr QLatin1String Expression = latin1("expression");
constexpr QLatin1String Capture = latin1("capture");
constexpr QLatin1String Net = latin1("net");
constexpr QLatin1String Bus = latin1("bus");
constexpr QLatin1String Group = latin1("group");
constexpr QLatin1String Bit = latin1("bit");

constexpr QLatin1String Standard = latin1("standard");
constexpr QLatin1String Lite = latin1("lite");
constexpr QLatin1String NoPort = latin1("none");

/// In the order of SampleEdge, TriggerMode, Implementation and CounterMode.
inline QStringList edges()
{
    return {QStringLiteral("rising"), QStringLiteral("falling")};
}
inline QStringList triggerModes()
{
    return {QStringLiteral("static"), QStringLiteral("dynamic")};
}
inline QStringList implementations()
{
    return {QStringLiteral("BSRAM"), QStringLiteral("REG"), QStringLiteral("SSRAM")};
}
inline QStringList counterModes()
{
    return {QStringLiteral("off"), QStringLiteral("total"), QStringLiteral("consecutive")};
}

inline QString flagText(bool flag)
{
    return flag ? QStringLiteral("true") : QStringLiteral("false");
}

/// The name of bit `index` of `base`.
inline QString bitName(const QString &base, int index)
{
    return QStringLiteral("%1[%2]").arg(base, QString::number(index));
}

constexpr int Version = 1;
constexpr int MaxFileBytes = 64 * 1024 * 1024;
constexpr int MaxDepth = 64;
constexpr int MaxMembers = 256 * 1024;       ///< of one bus or group
constexpr int MaxInputsInFile = 1024 * 1024; ///< of all signals together, so that short lines cannot fill the memory

} // namespace FileWords
} // namespace VAK

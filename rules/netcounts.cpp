// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "rules/netcounts.h"

#include <QLocale>

namespace RTLVAK {

static QString grouped(quint64 number)
{
    return QLocale(QLocale::English).toString(number);
}

static QString counted(quint64 number, const char *one, const char *several)
{
    return grouped(number) + QLatin1Char(' ') + QLatin1String(number == 1 ? one : several);
}

QString countsLine(const QString &top, const NETCATCHER::NetCounts &counts)
{
    return QStringLiteral("%1: %2 to choose from (%3 single, %4), %5")
        .arg(top, counted(counts.rows(), "net", "nets"), grouped(counts.singleNets),
             counted(counts.buses, "bus", "buses"), counted(counts.bits, "bit", "bits"));
}

} // namespace RTLVAK

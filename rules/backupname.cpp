// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "rules/backupname.h"

#include <QFileInfo>

namespace RTLVAK {

static QString backupName(const QString &file, const QString &suffix, int number)
{
    const QString name = file + QLatin1Char('.') + suffix;
    return number == 1 ? name : name + QString::number(number);
}

static int firstFreeNumber(const QString &file, const QString &suffix)
{
    int number = 1;
    while (QFileInfo::exists(backupName(file, suffix, number)))
        ++number;
    return number;
}

QString freeBackupName(const QString &file, const QString &suffix)
{
    return backupName(file, suffix, firstFreeNumber(file, suffix));
}

QString latestBackup(const QString &file, const QString &suffix)
{
    const int number = firstFreeNumber(file, suffix) - 1;
    return number == 0 ? QString() : backupName(file, suffix, number);
}

} // namespace RTLVAK

// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <hostglobal.h>

#include <QMap>
#include <QString>
#include <QStringList>
#include <QVariant>

/// Control of the task engine's double: the project that it pretends to have open.
namespace fakes {

/// Back to no files, no options, no working folder and no device, with nothing asked.
HOST_EXPORT void resetDesign();

HOST_EXPORT void setOption(const QString &name, const QVariant &value);
HOST_EXPORT void setWorkingDir(const QString &path);
HOST_EXPORT void setCurrentDevice(const QString &name, const QString &package = {});

/// What getFileInfo() answers for `path`; type 0 and not enabled for paths that were never set.
HOST_EXPORT void setFileInfo(const QString &path, int type, bool enabled, const QString &library = {});

/// The source information, whole or built from parts.
HOST_EXPORT void setSourceFileInfo(const QMap<QString, QVariant> &info);
HOST_EXPORT void setTop(const QString &module);
HOST_EXPORT void addSource(const QString &path, int type = 2, const QString &library = {});

/// What was asked since the reset, in order.
HOST_EXPORT QStringList optionsAsked();
HOST_EXPORT QStringList fileInfosAsked();
HOST_EXPORT int sourceFileInfoCalls();
HOST_EXPORT int currentDeviceCalls();

} // namespace fakes

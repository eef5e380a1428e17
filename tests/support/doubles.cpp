// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "support/doubles.h"

#include <IdeCore/viewmanager.h>
#include <OVTE/taskengine.h>
#include <QUtility/eventmanager.h>
#include <netcatcher/netcatcher.h>

#include <QFileInfo>
#include <QStringList>

#include <dlfcn.h>

namespace support {

template <typename Function>
static const void *addressOf(Function *function)
{
    return reinterpret_cast<const void *>(function);
}

QString libraryOf(const void *address)
{
    Dl_info info;
    if (!dladdr(address, &info))
        return {};
    return QFileInfo(QString::fromLocal8Bit(info.dli_fname)).canonicalFilePath();
}

QString missingDoubles()
{
    const QPair<QString, const void *> probes[] = {
        {QStringLiteral("libIdeCore.so"), addressOf(&Core::ViewManager::showView)},
        {QStringLiteral("libOVTE.so"), addressOf(&TE::TaskEngine::instance)},
        {QStringLiteral("libQUtility.so"), addressOf(&QUtil::EventManager::instance)},
        {QStringLiteral("libnetcatcher.so"), addressOf(&NETCATCHER::catchRtlModules)},
    };
    const QString folder = QFileInfo(QStringLiteral(VAK_FAKE_LIBRARIES)).canonicalFilePath();
    QStringList missing;
    for (const auto &[name, address] : probes) {
        const QString found = libraryOf(address);
        if (found != folder + QLatin1Char('/') + name)
            missing.append(QStringLiteral("%1 is %2").arg(name, found));
    }
    return missing.join(QLatin1Char('\n'));
}

} // namespace support

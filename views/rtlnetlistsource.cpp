// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "views/rtlnetlistsource.h"

#include "widgets/messagebox.h"
#include "widgets/messagedlg.h"

#include <OVTE/designmanager.h>
#include <OVTE/taskengine.h>
#include <netcatcher/netcatcher.h>

#include <QDir>
#include <QPointer>

#include <algorithm>
#include <optional>

namespace RTLVAK::private_impl {

namespace {

/// Why a design is refused, as the box says it.
struct Refusal
{
    QString title;
    QString text;
};

} // namespace

static QStringList sourcePaths(const QMap<QString, QVariant> &info)
{
    QStringList paths;
    const QVariantList files = info.value(QLatin1String(TE::SourceKey::Files)).toList();
    for (const QVariant &file : files)
        paths += file.toMap().value(QLatin1String(TE::SourceKey::Path)).toString();
    paths.removeAll(QString());
    return paths;
}

static bool containErrors(const QStringList &messages)
{
    return std::any_of(messages.cbegin(), messages.cend(),
                       [](const QString &message) { return message.startsWith(QLatin1String("ERROR")); });
}

static void showMessages(QWidget *view, const QStringList &messages)
{
    const QPointer<MessageDlg> dialog(new MessageDlg(view));
    dialog->setWindowTitle(QStringLiteral("Design files contain some errors."));
    dialog->setMessages(messages);
    dialog->exec();
    delete dialog;
}

static std::optional<Refusal> refusalOfModules(const QString &top, const QStringList &tops, const QStringList &modules)
{
    // The title has no full stop, unlike that of the messages; this is deliberate.
    const Refusal noModule{QStringLiteral("Design files contain some errors"),
                           QStringLiteral("Get no module from design.")};
    if (modules.isEmpty() && !top.isEmpty())
        return Refusal{QStringLiteral("Invalid Top Module"),
                       QStringLiteral("No module named \"%1\", please reset top module.").arg(top)};
    if (modules.isEmpty())
        return noModule;
    if (tops.size() == 1)
        return std::nullopt;
    if (top.isEmpty())
        return Refusal{QStringLiteral("Multiple Top Module"), QStringLiteral("Multiple top, please set top module.")};
    return noModule;
}

static std::optional<Refusal> refusalOfNetlist(const QString &top, const NETCATCHER::RtlNetlist &netlist)
{
    const QString received = netlist.topHierarchy()->name();
    if (!top.isEmpty() && received != top)
        return Refusal{
            QStringLiteral("Error"),
            QStringLiteral("Get module \"%1\" failed, just received default module \"%2\".").arg(top, received)};
    if (netlist.jtagUsed())
        return Refusal{QStringLiteral("Error"), QStringLiteral("OV_JTAG used in design conflicts with RVK.")};
    return std::nullopt;
}

static std::nullptr_t refuse(QWidget *view, const Refusal &refusal)
{
    showBox(view, QMessageBox::Critical, refusal.title, refusal.text);
    return nullptr;
}

std::unique_ptr<NETCATCHER::RtlNetlist> acquireRtlNetlist(QWidget *view)
{
    const QPointer<QWidget> guard(view);
    QMap<QString, QVariant> info = TE::TaskEngine::instance()->designManager()->getSourceFileInfo();
    const QString top = info.value(QLatin1String(TE::SourceKey::Top)).toString();
    if (sourcePaths(info).isEmpty())
        return refuse(view, {QStringLiteral("Error"), QStringLiteral("Design files are not exist.")});

    QStringList tops, modules, messages;
    getRtlModules(info, tops, modules, messages);
    if (!guard)
        return nullptr;
    if (containErrors(messages)) {
        showMessages(view, messages);
        return nullptr;
    }
    if (const std::optional<Refusal> refusal = refusalOfModules(top, tops, modules))
        return refuse(view, *refusal);

    std::unique_ptr<NETCATCHER::RtlNetlist> netlist = updateRtlNetlist();
    if (!guard || !netlist)
        return nullptr;
    if (const std::optional<Refusal> refusal = refusalOfNetlist(top, *netlist))
        return refuse(view, *refusal);
    return netlist;
}

std::unique_ptr<NETCATCHER::RtlNetlist> updateRtlNetlist()
{
    NETCATCHER::RtlNetlist *netlist = nullptr;
    QStringList paths;
    NETCATCHER::catchRtlNetsWithProgressDialog(&netlist, paths, nullptr);
    return std::unique_ptr<NETCATCHER::RtlNetlist>(netlist);
}

void getRtlModules(QMap<QString, QVariant> &info, QStringList &tops, QStringList &modules, QStringList &messages)
{
    NETCATCHER::catchRtlModules(tops, modules, messages, info, nullptr);
}

QStringList includePaths()
{
    const TE::DesignManager *design = TE::TaskEngine::instance()->designManager();
    QStringList paths = design->getOptionValue(QLatin1String(TE::OptionName::IncludePath)).toStringList();
    for (QString &path : paths) {
        if (QDir::isRelativePath(path))
            path.prepend(design->workingDir() + QLatin1Char('/'));
        path = QDir::cleanPath(path);
    }
    return paths;
}

} // namespace RTLVAK::private_impl

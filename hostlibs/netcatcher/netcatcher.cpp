// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include <netcatcher/netcatcher.h>

#include "netlistbuilder.h"
#include "netlistprogressdialog.h"

#include <QMessageBox>

namespace NETCATCHER {

/// The engine run that both calls share. Its result is dropped once a netlist was made of it, its sources are kept.
static std::unique_ptr<NetlistBuilder> &lastBuilder()
{
    static std::unique_ptr<NetlistBuilder> builder;
    return builder;
}

static std::unique_ptr<NetlistBuilder> analysed(const DesignSources &sources, NetlistProgressDialog &dialog)
{
    auto builder = std::make_unique<NetlistBuilder>(sources);
    builder->setProgress([&dialog](const BuildProgress &progress) { dialog.report(progress); });
    builder->analyse();
    return builder;
}

void catchRtlModules(QStringList &tops, QStringList &modules, QStringList &messages,
                     QMap<QString, QVariant> &sourceInfo, QWidget *parent)
{
    NetlistProgressDialog dialog(parent);
    lastBuilder() = analysed(DesignSources::fromSourceInfo(sourceInfo), dialog);
    lastBuilder()->setProgress([](const BuildProgress &) {});
    tops += lastBuilder()->tops();
    modules += lastBuilder()->modules();
    messages += lastBuilder()->messages();
}

static std::unique_ptr<RtlNetlist> buildNetlist(QString *error, QWidget *parent)
{
    if (!lastBuilder()) {
        *error = QStringLiteral("No design was read.");
        return nullptr;
    }
    NetlistProgressDialog dialog(parent);
    std::unique_ptr<NetlistBuilder> builder = std::move(lastBuilder());
    if (!builder->isAnalysed())
        builder = analysed(builder->sources(), dialog);
    builder->setProgress([&dialog](const BuildProgress &progress) { dialog.report(progress); });
    std::unique_ptr<RtlNetlist> netlist = builder->build(error);
    lastBuilder() = std::make_unique<NetlistBuilder>(builder->sources());
    return netlist;
}

void catchRtlNetsWithProgressDialog(RtlNetlist **out, QStringList &paths, QWidget *parent)
{
    Q_UNUSED(paths)
    QString error;
    *out = buildNetlist(&error, parent).release();
    if (!*out)
        QMessageBox::critical(parent, QStringLiteral("Error"), error, QMessageBox::Ok);
}

} // namespace NETCATCHER

// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include <netcatcher/netcatcher.h>

#include "netlistbuilder.h"
#include "netlistprogressdialog.h"

#include <QMessageBox>
#include <QPointer>

namespace NETCATCHER {

namespace {

/// The progress dialog of one call. It is on the heap, since its parent may go while events are processed.
class Display
{
public:
    explicit Display(QWidget *parent)
        : m_dialog(new NetlistProgressDialog(parent))
    {
    }
    ~Display() { delete m_dialog; }
    Display(const Display &) = delete;
    Display &operator=(const Display &) = delete;

    ProgressFunction reporter() const
    {
        return [dialog = m_dialog](const BuildProgress &progress) {
            if (dialog)
                dialog->report(progress);
        };
    }

private:
    QPointer<NetlistProgressDialog> m_dialog;
};

} // namespace

/// The engine run that both calls share. Its result is dropped once a netlist was made of it; the sources are kept.
static std::unique_ptr<NetlistBuilder> &lastBuilder()
{
    static std::unique_ptr<NetlistBuilder> builder;
    return builder;
}

void catchRtlModules(QStringList &tops, QStringList &modules, QStringList &messages,
                     QMap<QString, QVariant> &sourceInfo, QWidget *parent)
{
    auto builder = std::make_unique<NetlistBuilder>(DesignSources::fromSourceInfo(sourceInfo));
    {
        const Display display(parent);
        builder->analyse(display.reporter());
    }
    tops += builder->tops();
    modules += builder->modules();
    messages += builder->messages();
    lastBuilder() = std::move(builder);
}

static std::unique_ptr<RtlNetlist> buildNetlist(QString *error, QWidget *parent)
{
    if (!lastBuilder()) {
        *error = QStringLiteral("No design was read.");
        return nullptr;
    }
    const Display display(parent);
    const std::unique_ptr<NetlistBuilder> builder = std::move(lastBuilder());
    lastBuilder() = std::make_unique<NetlistBuilder>(builder->sources());
    if (!builder->isAnalysed())
        builder->analyse(display.reporter());
    return builder->build(error, display.reporter());
}

void catchRtlNetsWithProgressDialog(RtlNetlist **out, QStringList &paths, QWidget *parent)
{
    Q_UNUSED(paths)
    QString error;
    const QPointer<QWidget> guard(parent);
    *out = buildNetlist(&error, parent).release();
    if (!*out)
        QMessageBox::critical(guard, QStringLiteral("Error"), error, QMessageBox::Ok);
}

} // namespace NETCATCHER

// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "netlistprogressdialog.h"

#include <QCoreApplication>
#include <QLabel>
#include <QLocale>
#include <QProgressBar>
#include <QVBoxLayout>

namespace NETCATCHER {

constexpr int repaintMs = 40;
constexpr int barSteps = 1000;

NetlistProgressDialog::NetlistProgressDialog(QWidget *parent)
    : QDialog(parent, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint)
    , m_stage(new QLabel(this))
    , m_elapsed(new QLabel(this))
    , m_bar(new QProgressBar(this))
{
    setWindowTitle(QStringLiteral("Reading the RTL netlist"));
    setWindowModality(Qt::ApplicationModal);
    m_stage->setObjectName(QStringLiteral("labelStage"));
    m_elapsed->setObjectName(QStringLiteral("labelElapsed"));
    m_bar->setObjectName(QStringLiteral("progressBar"));
    m_bar->setTextVisible(false);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_stage);
    layout->addWidget(m_bar);
    layout->addWidget(m_elapsed);
    setMinimumWidth(360);
    m_timer.start();
    m_sinceRepaint.start();
}

void NetlistProgressDialog::reject() {}

static QString stageText(const BuildProgress &progress)
{
    switch (progress.stage) {
    case BuildProgress::ReadingSources:
        return QStringLiteral("Reading the source files");
    case BuildProgress::RunningEngine:
        return QStringLiteral("Elaborating the design");
    case BuildProgress::ReadingResult:
        return QStringLiteral("Reading the elaborated design");
    case BuildProgress::BuildingNetlist:
        return QStringLiteral("Building the netlist");
    }
    return {};
}

void NetlistProgressDialog::showStage(const BuildProgress &progress)
{
    QString text = stageText(progress);
    if (progress.totalBytes > 0) {
        const QLocale locale;
        text += QStringLiteral(": %1 of %2")
                    .arg(locale.formattedDataSize(progress.doneBytes), locale.formattedDataSize(progress.totalBytes));
        m_bar->setRange(0, barSteps);
        m_bar->setValue(int(progress.doneBytes * barSteps / progress.totalBytes));
    } else {
        m_bar->setRange(0, 0);
    }
    m_stage->setText(text);
    m_elapsed->setText(QStringLiteral("%1 s").arg(m_timer.elapsed() / 1000));
}

void NetlistProgressDialog::report(const BuildProgress &progress)
{
    if (progress.stage == m_shownStage && !m_sinceRepaint.hasExpired(repaintMs))
        return;
    m_shownStage = progress.stage;
    m_sinceRepaint.restart();
    showStage(progress);
    if (!isVisible())
        show();
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

} // namespace NETCATCHER

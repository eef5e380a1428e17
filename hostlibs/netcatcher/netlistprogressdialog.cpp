// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "netlistprogressdialog.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QLabel>
#include <QLocale>
#include <QProgressBar>

#include <limits>

namespace NETCATCHER {

constexpr int repaintMs = 40;
constexpr int barSteps = 1000;

NetlistProgressDialog::NetlistProgressDialog(QWidget *parent)
    : QProgressDialog(parent, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint)
    , m_text(new QLabel(this))
    , m_bar(new QProgressBar(this))
{
    setWindowTitle(QStringLiteral("Reading the RTL netlist"));
    setWindowModality(Qt::ApplicationModal);
    setCancelButton(nullptr);
    setMinimumDuration(std::numeric_limits<int>::max()); // shown by report(), not by a timer
    m_text->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    m_bar->setTextVisible(false);
    setLabel(m_text);
    setBar(m_bar);
    setMinimumWidth(380);
    m_timer.start();
    m_sinceRepaint.start();
}

void NetlistProgressDialog::reject() {}

void NetlistProgressDialog::closeEvent(QCloseEvent *event)
{
    event->ignore();
}

static QString stageText(BuildProgress::Stage stage)
{
    switch (stage) {
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
    QString text = stageText(progress.stage);
    if (progress.totalBytes > 0) {
        const QLocale locale;
        text += QStringLiteral(", %1 of %2")
                    .arg(locale.formattedDataSize(progress.doneBytes), locale.formattedDataSize(progress.totalBytes));
        m_bar->setRange(0, barSteps);
        m_bar->setValue(int(progress.doneBytes * barSteps / progress.totalBytes));
    } else {
        m_bar->setRange(0, 0);
    }
    m_text->setText(QStringLiteral("%1\nElapsed: %2 s").arg(text).arg(m_timer.elapsed() / 1000));
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

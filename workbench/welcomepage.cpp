// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "workbench/welcomepage.h"

#include "workbench/recentfiles.h"

#include <QAction>
#include <QDir>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QToolButton>
#include <QUrl>
#include <QVBoxLayout>

namespace Workbench {

constexpr int PageWidth = 640;
constexpr int MostRecentShown = 5;

WelcomePage::WelcomePage(const QList<Step> &steps, const RecentFiles &recent, QWidget *parent)
    : QWidget(parent)
    , m_recent(recent)
    , m_recentLabel(new QLabel(this))
{
    setObjectName("welcomePage");
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::Base);
    auto *column = new QWidget(this);
    column->setMaximumWidth(PageWidth);
    auto *layout = new QVBoxLayout(column);
    layout->setSpacing(18);
    layout->addStretch(2);
    auto *title = new QLabel(tr("<span style='font-size:20pt'>Watch signals inside your FPGA</span>"), column);
    auto *subtitle = new QLabel(tr("Choose the nets of your design that an embedded logic analyzer captures, and what "
                                   "triggers it."),
                                column);
    subtitle->setWordWrap(true);
    layout->addWidget(title);
    layout->addWidget(subtitle);
    for (int i = 0; i < steps.size(); ++i)
        layout->addWidget(stepWidget(i + 1, steps.at(i)));
    m_recentLabel->setObjectName("recentLinks");
    layout->addWidget(m_recentLabel);
    layout->addStretch(3);
    auto *centring = new QHBoxLayout(this);
    centring->addStretch(1);
    centring->addWidget(column, 100);
    centring->addStretch(1);
    connect(m_recentLabel, &QLabel::linkActivated, this,
            [this](const QString &link) { emit openRequested(QUrl(link).toLocalFile()); });
    connect(&m_recent, &RecentFiles::changed, this, &WelcomePage::updateRecent);
    updateRecent();
}

QWidget *WelcomePage::stepWidget(int number, const Step &step)
{
    auto *widget = new QWidget(this);
    auto *badge = new QLabel(QString::number(number), widget);
    badge->setFixedSize(32, 32);
    badge->setAlignment(Qt::AlignCenter);
    badge->setStyleSheet("background: #1f6fb2; color: white; border-radius: 16px; font-weight: bold;");
    auto *text = new QLabel(QString("<b>%1</b><br>%2").arg(step.title, step.hint), widget);
    text->setWordWrap(true);
    auto *buttons = new QHBoxLayout;
    for (QAction *action : step.actions) {
        auto *button = new QToolButton(widget);
        button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
        button->setDefaultAction(action);
        buttons->addWidget(button);
    }
    buttons->addStretch(1);
    auto *right = new QVBoxLayout;
    right->addWidget(text);
    right->addLayout(buttons);
    auto *layout = new QHBoxLayout(widget);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(14);
    layout->addWidget(badge, 0, Qt::AlignTop);
    layout->addLayout(right, 1);
    return widget;
}

void WelcomePage::updateRecent()
{
    QStringList links;
    for (const QString &path : m_recent.paths().mid(0, MostRecentShown)) {
        links.append(QString("<a href='%1'>%2</a> <span style='color:#8a939d'>%3</span>")
                         .arg(QUrl::fromLocalFile(path).toString(QUrl::FullyEncoded).toHtmlEscaped(),
                              QFileInfo(path).fileName().toHtmlEscaped(),
                              QDir::toNativeSeparators(QFileInfo(path).absolutePath()).toHtmlEscaped()));
    }
    m_recentLabel->setVisible(!links.isEmpty());
    m_recentLabel->setText(tr("<b>Opened last</b><br>%1").arg(links.join("<br>")));
}

} // namespace Workbench

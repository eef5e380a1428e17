// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "workbench/messagespanel.h"

#include <QApplication>
#include <QClipboard>
#include <QListWidget>
#include <QMenu>
#include <QRegularExpression>
#include <QVBoxLayout>

namespace Workbench {

/// More would slow the list down and help nobody.
constexpr int MostMessages = 5000;

static const char *iconOf(Severity severity)
{
    switch (severity) {
    case Severity::Error:
        return ":/workbench/image/error.png";
    case Severity::Warning:
        return ":/workbench/image/warning.png";
    case Severity::Info:
        break;
    }
    return ":/workbench/image/info.png";
}

static Severity severityOfLine(const QString &line)
{
    if (line.startsWith("ERROR"))
        return Severity::Error;
    return line.startsWith("WARNING") ? Severity::Warning : Severity::Info;
}

bool placeInMessage(const QString &message, QString *path, int *line)
{
    static const QRegularExpression pattern(R"(^(?:(?:ERROR|WARNING|NOTE): )?(.+?):(\d+)(?::\d+)?: )");
    const QRegularExpressionMatch match = pattern.match(message);
    if (!match.hasMatch())
        return false;
    *path = match.captured(1);
    *line = match.captured(2).toInt();
    return true;
}

MessagesPanel::MessagesPanel(QWidget *parent)
    : QWidget(parent)
    , m_list(new QListWidget(this))
{
    m_list->setObjectName("messagesList");
    m_list->setFrameShape(QFrame::NoFrame);
    m_list->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_list->setWordWrap(true);
    m_list->setContextMenuPolicy(Qt::CustomContextMenu);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_list);
    connect(m_list, &QListWidget::itemActivated, this, &MessagesPanel::onActivated);
    connect(m_list, &QWidget::customContextMenuRequested, this, &MessagesPanel::onMenuRequested);
}

void MessagesPanel::add(Severity severity, const QString &text)
{
    if (m_list->count() >= MostMessages)
        delete m_list->takeItem(0);
    auto *item = new QListWidgetItem(QIcon(iconOf(severity)), text, m_list);
    QString path;
    int line = 0;
    if (placeInMessage(text, &path, &line))
        item->setToolTip(tr("Double-click to go to line %1 of %2").arg(line).arg(path));
    m_list->scrollToItem(item);
}

void MessagesPanel::addLines(const QStringList &lines)
{
    for (const QString &line : lines)
        add(severityOfLine(line), line);
}

void MessagesPanel::clear()
{
    m_list->clear();
}

QStringList MessagesPanel::texts() const
{
    QStringList result;
    for (int i = 0; i < m_list->count(); ++i)
        result.append(m_list->item(i)->text());
    return result;
}

void MessagesPanel::onActivated(const QListWidgetItem *item)
{
    QString path;
    int line = 0;
    if (placeInMessage(item->text(), &path, &line))
        emit placeRequested(path, line);
}

void MessagesPanel::onMenuRequested(const QPoint &position)
{
    QMenu menu(this);
    const QAction *copy = menu.addAction(tr("Copy"));
    const QAction *clearAll = menu.addAction(tr("Clear"));
    const QAction *chosen = menu.exec(m_list->viewport()->mapToGlobal(position));
    if (chosen == clearAll)
        clear();
    if (chosen != copy)
        return;
    QStringList lines;
    for (const QListWidgetItem *item : m_list->selectedItems())
        lines.append(item->text());
    QApplication::clipboard()->setText(lines.join('\n'));
}

} // namespace Workbench

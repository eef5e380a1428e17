// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "workbench/projectpanel.h"

#include "hostlibs/ovte/projectengine.h"

#include <QAction>
#include <QDir>
#include <QFileInfo>
#include <QHeaderView>
#include <QInputDialog>
#include <QLabel>
#include <QMenu>
#include <QSignalBlocker>
#include <QStackedLayout>
#include <QTreeWidget>

namespace Workbench {

enum Column { NameColumn, TypeColumn, ColumnCount };
constexpr int SmallestWidth = 200;
constexpr int PathRole = Qt::UserRole;

static TE::ProjectEngine &engine()
{
    return *TE::ProjectEngine::instance();
}

static QString groupTitle(int type)
{
    switch (type) {
    case TE::VerilogFile:
    case TE::SystemVerilogFile:
    case TE::VhdlFile:
    case TE::HdlIncludeFile:
        return ProjectPanel::tr("Design");
    case TE::AnalyzerConfigFile:
        return ProjectPanel::tr("Analyzers");
    case TE::TimingConstraintFile:
    case TE::PhysicalConstraintFile:
        return ProjectPanel::tr("Constraints");
    default:
        return ProjectPanel::tr("Other files");
    }
}

static const char *iconOf(int type)
{
    switch (type) {
    case TE::VerilogFile:
    case TE::SystemVerilogFile:
    case TE::VhdlFile:
        return ":/workbench/image/hdl.png";
    case TE::HdlIncludeFile:
        return ":/workbench/image/include.png";
    case TE::AnalyzerConfigFile:
        return ":/workbench/image/analyzer.png";
    case TE::TimingConstraintFile:
    case TE::PhysicalConstraintFile:
        return ":/workbench/image/constraint.png";
    case TE::MemoryContentFile:
        return ":/workbench/image/memory.png";
    case TE::GateNetlistFile:
        return ":/workbench/image/netlist.png";
    default:
        return ":/workbench/image/file.png";
    }
}

static QTreeWidgetItem *fileItem(const TE::DesignFile &file)
{
    auto *item = new QTreeWidgetItem;
    const QString shown = QDir(engine().workingDir()).relativeFilePath(file.path);
    const bool exists = QFileInfo::exists(file.path);
    item->setData(NameColumn, PathRole, file.path);
    item->setText(NameColumn, shown);
    item->setIcon(NameColumn, QIcon(iconOf(file.type)));
    item->setCheckState(NameColumn, file.enabled ? Qt::Checked : Qt::Unchecked);
    item->setText(TypeColumn, TE::fileTypeTitle(file.type));
    QString tip = QDir::toNativeSeparators(file.path);
    if (!file.library.isEmpty())
        tip += '\n' + ProjectPanel::tr("Library: %1").arg(file.library);
    if (!exists)
        tip += '\n' + ProjectPanel::tr("This file does not exist.");
    item->setToolTip(NameColumn, tip);
    for (int column = 0; column < ColumnCount; ++column) {
        if (!exists)
            item->setForeground(column, Qt::red);
        else if (!file.enabled)
            item->setForeground(column, Qt::gray);
    }
    return item;
}

ProjectPanel::ProjectPanel(QWidget *parent)
    : QWidget(parent)
    , m_tree(new QTreeWidget(this))
    , m_pages(new QStackedLayout(this))
{
    setMinimumWidth(SmallestWidth);
    m_tree->setObjectName("projectTree");
    m_tree->setFrameShape(QFrame::NoFrame);
    m_tree->setColumnCount(ColumnCount);
    m_tree->setHeaderLabels({tr("File"), tr("Type")});
    m_tree->header()->setStretchLastSection(false);
    m_tree->header()->setSectionResizeMode(NameColumn, QHeaderView::Stretch);
    m_tree->header()->setSectionResizeMode(TypeColumn, QHeaderView::ResizeToContents);
    m_tree->setTextElideMode(Qt::ElideLeft);
    m_tree->setUniformRowHeights(true);
    m_tree->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_tree->setContextMenuPolicy(Qt::CustomContextMenu);
    auto *removeAction = new QAction(tr("Remove from Project"), m_tree);
    removeAction->setShortcut(QKeySequence::Delete);
    removeAction->setShortcutContext(Qt::WidgetShortcut);
    m_tree->addAction(removeAction);
    auto *hint = new QLabel(tr("No project is open."), this);
    hint->setAlignment(Qt::AlignCenter);
    hint->setForegroundRole(QPalette::PlaceholderText);
    hint->setBackgroundRole(QPalette::Base);
    hint->setAutoFillBackground(true);
    m_pages->addWidget(hint);
    m_pages->addWidget(m_tree);
    connect(removeAction, &QAction::triggered, this, &ProjectPanel::removeSelected);
    connect(m_tree, &QTreeWidget::itemChanged, this, &ProjectPanel::onItemChanged);
    connect(m_tree, &QTreeWidget::itemActivated, this, &ProjectPanel::onItemActivated);
    connect(m_tree, &QWidget::customContextMenuRequested, this, &ProjectPanel::onMenuRequested);
    // Queued: the tree is not rebuilt under the signal of the row that a person has just clicked.
    connect(&engine(), &TE::ProjectEngine::filesChanged, this, &ProjectPanel::rebuild, Qt::QueuedConnection);
    connect(&engine(), &TE::ProjectEngine::projectChanged, this, &ProjectPanel::rebuild, Qt::QueuedConnection);
    connect(&engine(), &TE::ProjectEngine::fileModified, this, &ProjectPanel::rebuild, Qt::QueuedConnection);
    rebuild();
}

QTreeWidgetItem *ProjectPanel::groupItem(const QString &title)
{
    for (int i = 0; i < m_tree->topLevelItemCount(); ++i) {
        if (m_tree->topLevelItem(i)->text(NameColumn) == title)
            return m_tree->topLevelItem(i);
    }
    auto *item = new QTreeWidgetItem(m_tree, {title});
    QFont font = item->font(NameColumn);
    font.setBold(true);
    item->setFont(NameColumn, font);
    item->setFlags(Qt::ItemIsEnabled);
    return item;
}

void ProjectPanel::rebuild()
{
    const QSignalBlocker quiet(m_tree);
    const QStringList selected = selectedFiles();
    for (int i = 0; i < m_tree->topLevelItemCount(); ++i)
        m_expanded.insert(m_tree->topLevelItem(i)->text(NameColumn), m_tree->topLevelItem(i)->isExpanded());
    m_tree->clear();
    const auto &files = engine().project().files;
    // The groups come in a fixed order, the files in that of the project.
    for (const QString &title : {tr("Design"), tr("Analyzers"), tr("Constraints"), tr("Other files")}) {
        for (const TE::DesignFile &file : files) {
            if (groupTitle(file.type) != title)
                continue;
            QTreeWidgetItem *item = fileItem(file);
            groupItem(title)->addChild(item);
            item->setSelected(selected.contains(file.path));
        }
    }
    for (int i = 0; i < m_tree->topLevelItemCount(); ++i) {
        QTreeWidgetItem *group = m_tree->topLevelItem(i);
        group->setExpanded(m_expanded.value(group->text(NameColumn), true));
        group->setFirstColumnSpanned(true);
    }
    m_pages->setCurrentIndex(engine().isOpen() ? 1 : 0);
}

QStringList ProjectPanel::selectedFiles() const
{
    QStringList paths;
    for (const QTreeWidgetItem *item : m_tree->selectedItems()) {
        const QString path = item->data(NameColumn, PathRole).toString();
        if (!path.isEmpty())
            paths.append(path);
    }
    return paths;
}

void ProjectPanel::onItemChanged(QTreeWidgetItem *item)
{
    const QString path = item->data(NameColumn, PathRole).toString();
    if (!path.isEmpty())
        engine().setFileEnabled(path, item->checkState(NameColumn) == Qt::Checked);
}

void ProjectPanel::onItemActivated(const QTreeWidgetItem *item)
{
    const QString path = item->data(NameColumn, PathRole).toString();
    if (!path.isEmpty())
        emit openRequested(path);
}

void ProjectPanel::onMenuRequested(const QPoint &position)
{
    QMenu menu(this);
    const QStringList paths = selectedFiles();
    if (!paths.isEmpty()) {
        const TE::DesignFile first = engine().file(paths.first());
        menu.addAction(tr("Open"), this, [=] { emit openRequested(paths.first()); });
        menu.addAction(first.enabled ? tr("Disable") : tr("Enable"), this, [=] { enableSelected(!first.enabled); });
        QMenu *types = menu.addMenu(tr("Type"));
        for (const int type : TE::fileTypes()) {
            QAction *action = types->addAction(TE::fileTypeTitle(type), this, [=] { setTypeOfSelected(type); });
            action->setCheckable(true);
            action->setChecked(type == first.type);
        }
        if (first.type == TE::VhdlFile)
            menu.addAction(tr("Library..."), this, &ProjectPanel::askForLibrary);
        menu.addAction(tr("Remove from Project"), this, &ProjectPanel::removeSelected);
        menu.addSeparator();
    }
    QAction *add = menu.addAction(tr("Add Files..."), this, &ProjectPanel::addFilesRequested);
    add->setEnabled(engine().isOpen());
    menu.exec(m_tree->viewport()->mapToGlobal(position));
}

void ProjectPanel::removeSelected()
{
    for (const QString &path : selectedFiles())
        engine().removeFile(path);
}

void ProjectPanel::enableSelected(bool enabled)
{
    for (const QString &path : selectedFiles())
        engine().setFileEnabled(path, enabled);
}

void ProjectPanel::setTypeOfSelected(int type)
{
    for (const QString &path : selectedFiles())
        engine().setFileType(path, type);
}

void ProjectPanel::askForLibrary()
{
    const QStringList paths = selectedFiles();
    bool ok = false;
    const QString library = QInputDialog::getText(this, tr("Library"), tr("VHDL library (empty for \"work\"):"),
                                                  QLineEdit::Normal, engine().file(paths.first()).library, &ok);
    if (!ok)
        return;
    for (const QString &path : paths)
        engine().setFileLibrary(path, library.trimmed());
}

} // namespace Workbench

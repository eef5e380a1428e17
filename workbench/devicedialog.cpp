// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "workbench/devicedialog.h"

#include "hostlibs/device/devicecatalogue.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace Workbench {

enum Column { NameColumn, FamilyColumn, BlockColumn, ShadowColumn, RegisterColumn, ColumnCount };

namespace {

/// Sorts figures as figures.
class DeviceItem : public QTreeWidgetItem
{
public:
    explicit DeviceItem(const DEV::Device &device)
        : QTreeWidgetItem({device.name, device.family})
    {
        setFigure(BlockColumn, device.blockRams);
        setFigure(ShadowColumn, device.shadowRamCells);
        setFigure(RegisterColumn, device.registers);
    }

    bool operator<(const QTreeWidgetItem &other) const override
    {
        const int column = treeWidget()->sortColumn();
        if (column < BlockColumn)
            return text(column).localeAwareCompare(other.text(column)) < 0;
        return data(column, Qt::UserRole).toInt() < other.data(column, Qt::UserRole).toInt();
    }

private:
    void setFigure(int column, int value)
    {
        setText(column, QLocale(QLocale::English).toString(value));
        setData(column, Qt::UserRole, value);
        setTextAlignment(column, int(Qt::AlignRight | Qt::AlignVCenter));
    }
};

} // namespace

static QString figure(int value, const QString &unit)
{
    return value == 0 ? DeviceDialog::tr("no %1").arg(unit)
                      : QString("%1 %2").arg(QLocale(QLocale::English).toString(value), unit);
}

QString deviceSummary(const TE::DeviceInfo &device)
{
    if (device.name.isEmpty())
        return DeviceDialog::tr("No device chosen");
    const DEV::Device *found = DEV::DeviceCatalogue::instance().find(device.name);
    if (found == nullptr)
        return DeviceDialog::tr("%1 (not in the device catalogue)").arg(device.name);
    return QString("%1: %2, %3, %4")
        .arg(device.name, figure(found->blockRams, DeviceDialog::tr("block RAMs")),
             figure(found->shadowRamCells, DeviceDialog::tr("shadow RAM cells")),
             figure(found->registers, DeviceDialog::tr("registers")));
}

DeviceDialog::DeviceDialog(const TE::DeviceInfo &current, QWidget *parent)
    : QDialog(parent)
    , m_filter(new QLineEdit(this))
    , m_tree(new QTreeWidget(this))
    , m_package(new QComboBox(this))
    , m_summary(new QLabel(this))
{
    setWindowTitle(tr("Device"));
    m_filter->setObjectName("deviceFilter");
    m_filter->setPlaceholderText(tr("Search name or family"));
    m_tree->setObjectName("deviceTree");
    m_tree->setRootIsDecorated(false);
    m_tree->setUniformRowHeights(true);
    m_tree->setAlternatingRowColors(true);
    m_tree->setHeaderLabels({tr("Device"), tr("Family"), tr("Block RAMs"), tr("Shadow RAM cells"), tr("Registers")});
    m_tree->header()->setStretchLastSection(false);
    m_package->setObjectName("devicePackage");
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    m_ok = buttons->button(QDialogButtonBox::Ok);
    auto *form = new QFormLayout;
    form->addRow(tr("&Package:"), m_package);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_filter);
    layout->addWidget(m_tree, 1);
    layout->addWidget(m_summary);
    layout->addLayout(form);
    layout->addWidget(buttons);
    connect(m_filter, &QLineEdit::textChanged, this, &DeviceDialog::filter);
    connect(m_tree, &QTreeWidget::currentItemChanged, this, &DeviceDialog::onDeviceChanged);
    connect(m_tree, &QTreeWidget::itemActivated, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    fill(current);
    resize(720, 540);
    m_filter->setFocus();
}

void DeviceDialog::fill(const TE::DeviceInfo &current)
{
    QTreeWidgetItem *chosen = nullptr;
    for (const DEV::Device &device : DEV::DeviceCatalogue::instance().devices()) {
        auto *item = new DeviceItem(device);
        m_tree->addTopLevelItem(item);
        if (device.name == current.name)
            chosen = item;
    }
    // In the catalogue's order until a person clicks a column's title.
    m_tree->header()->setSortIndicator(-1, Qt::AscendingOrder);
    m_tree->setSortingEnabled(true);
    for (int column = 0; column < ColumnCount; ++column)
        m_tree->resizeColumnToContents(column);
    m_tree->setCurrentItem(chosen);
    onDeviceChanged();
    m_package->setCurrentText(current.package.isEmpty() ? tr("Any") : current.package);
    if (chosen != nullptr)
        m_tree->scrollToItem(chosen, QAbstractItemView::PositionAtCenter);
}

void DeviceDialog::filter(const QString &text)
{
    const QString wanted = text.trimmed();
    for (int i = 0; i < m_tree->topLevelItemCount(); ++i) {
        QTreeWidgetItem *item = m_tree->topLevelItem(i);
        const bool matches = item->text(NameColumn).contains(wanted, Qt::CaseInsensitive) ||
                             item->text(FamilyColumn).contains(wanted, Qt::CaseInsensitive);
        item->setHidden(!matches);
    }
}

void DeviceDialog::onDeviceChanged()
{
    const QString name = m_tree->currentItem() == nullptr ? QString() : m_tree->currentItem()->text(NameColumn);
    m_package->clear();
    m_package->addItem(tr("Any"), QString());
    if (const DEV::Device *found = DEV::DeviceCatalogue::instance().find(name)) {
        for (const QString &package : found->packages)
            m_package->addItem(package, package);
    }
    TE::DeviceInfo chosen;
    chosen.name = name;
    m_summary->setText(deviceSummary(chosen));
    m_ok->setEnabled(!name.isEmpty());
}

TE::DeviceInfo DeviceDialog::device() const
{
    TE::DeviceInfo result;
    if (m_tree->currentItem() != nullptr)
        result.name = m_tree->currentItem()->text(NameColumn);
    result.package = m_package->currentData().toString();
    return result;
}

} // namespace Workbench

// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "plugin/vakinsexport.h"

#include <netcatcher/rtlnetlist.h>

#include <QMetaType>
#include <QTreeWidget>

namespace RTLVAK {

/// The row of one hierarchy node, which also is its data in Qt::UserRole.
class VAKINS_EXPORT RtlTreeItem : public QTreeWidgetItem
{
public:
    static constexpr int ItemType = QTreeWidgetItem::UserType + 3;

    /// Builds the rows of everything below the node too, in the netlist's order.
    explicit RtlTreeItem(NETCATCHER::Hierachy *node);

    NETCATCHER::Hierachy *hierarchy() const;
    QVariant data(int column, int role) const override;

private:
    NETCATCHER::Hierachy *node; ///< borrowed
};

/// The instances of a design as a tree.
class VAKINS_EXPORT RtlNetlistTreeView : public QTreeWidget
{
    Q_OBJECT

public:
    explicit RtlNetlistTreeView(QWidget *parent = nullptr);

    /// Replaces the content; the top node is open. The netlist is borrowed; null gives an empty view.
    void setRtlNetlist(NETCATCHER::RtlNetlist *rtlNetlist);
    NETCATCHER::RtlNetlist *rtlNetlist() const;

private:
    NETCATCHER::RtlNetlist *netlist = nullptr; ///< borrowed
};

} // namespace RTLVAK

Q_DECLARE_METATYPE(NETCATCHER::Hierachy *)

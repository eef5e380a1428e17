// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "signals/vaksignalselectdialog.h"

#include "fakes/fakenetlist.h"
#include "support/widgethelpers.h"

#include <netcatcher/rtlnetlist.h>

#include <QAbstractItemModelTester>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTreeWidget>
#include <QtTest>

#include <memory>

/// top: clk, rst, unusable vdd, data[3:0] with unusable data[3], unusable mem[1:0]; u1[alu]: cnt, sum[1:0];
/// u1/u_add[adder]: carry, cnt_en; u2[fifo]: nothing.
inline fakes::Instance design()
{
    fakes::Instance top("top");
    top.net("clk").net("rst").net("vdd", fakes::Unusable);
    top.bus("data", 3, 0, fakes::Usable, {3}).bus("mem", 1, 0, fakes::Unusable);
    fakes::Instance &alu = top.child("u1", "alu");
    alu.net("cnt").bus("sum", 1, 0);
    alu.child("u_add", "adder").net("carry").net("cnt_en");
    top.child("u2", "fifo");
    return top;
}

/// The dialog with its widgets at hand.
struct DialogFixture
{
    explicit DialogFixture(bool withNetlist = true)
        : netlist(withNetlist ? fakes::makeNetlist(design()) : nullptr)
        , dialog(netlist.get())
    {
    }

    QStringList search(const QString &pattern)
    {
        name.setText(pattern);
        dialog.on_pushButtonSearch_clicked();
        return support::topTexts(results);
    }

    void advanced(bool includeSub, bool hierarchyView)
    {
        advancedFilter.setChecked(true);
        support::child<QCheckBox>(dialog, "checkBoxIncludeSubentries").setChecked(includeSub);
        support::child<QCheckBox>(dialog, "checkBoxHierarchyView").setChecked(hierarchyView);
    }

    /// Chooses a row of the drop-down with the mouse; the row is found by its text.
    void choose(const QString &row)
    {
        dialog.show();
        searchIn.showPopup();
        auto *view = qobject_cast<QTreeWidget *>(searchIn.view());
        QTreeWidgetItem *item = view->findItems(row, Qt::MatchExactly | Qt::MatchRecursive).value(0);
        [&] { QVERIFY2(item, qPrintable(row)); }();
        QTest::mouseMove(view->viewport(), view->visualItemRect(item).center());
        QTest::mouseClick(view->viewport(), Qt::LeftButton, Qt::NoModifier, view->visualItemRect(item).center());
        [&] { QTRY_VERIFY(!view->isVisible()); }();
    }

    void select(const QStringList &texts)
    {
        results.clearSelection();
        for (const QString &text : texts) {
            const auto found = results.findItems(text, Qt::MatchExactly | Qt::MatchRecursive);
            for (QTreeWidgetItem *item : found)
                item->setSelected(true);
        }
    }

    QStringList chosenTexts() const { return support::topTexts(chosen); }

    std::unique_ptr<NETCATCHER::RtlNetlist> netlist;
    RTLVAK::VakSignalSelectDialog dialog;
    QLineEdit &name = support::child<QLineEdit>(dialog, "lineEditName");
    QPushButton &searchButton = support::child<QPushButton>(dialog, "pushButtonSearch");
    QTreeWidget &results = support::child<QTreeWidget>(dialog, "treeWidget");
    QTreeWidget &chosen = support::child<QTreeWidget>(dialog, "treeWidgetAddSignal");
    QComboBox &searchIn = support::child<QComboBox>(dialog, "comboBoxSearchIn");
    QCheckBox &advancedFilter = support::child<QCheckBox>(dialog, "checkBoxAdvancedFilter");
    QLabel &resultLabel = support::child<QLabel>(dialog, "labelResults");
    QLabel &chosenLabel = support::child<QLabel>(dialog, "labelChosen");
    QAbstractItemModelTester resultTester{results.model()};
    QAbstractItemModelTester chosenTester{chosen.model()};
};

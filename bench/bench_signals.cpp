// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "signals/signalrow.h"
#include "signals/signaltreewidget.h"
#include "signals/treerows.h"

#include <QApplication>
#include <QElapsedTimer>

#include <cstdio>
#include <functional>

using namespace RTLVAK;

static QList<VAK::SignalItem> nets(int count)
{
    QList<VAK::SignalItem> records;
    records.reserve(count);
    for (int i = 0; i < count; ++i) {
        VAK::SignalItem record;
        record.name = QStringLiteral("u_core/ex_stage/g_lane[%1].u_add/net_%2[%3]").arg(i % 16).arg(i / 64).arg(i % 64);
        records.append(record);
    }
    return records;
}

static double milliseconds(const std::function<void()> &work)
{
    QElapsedTimer timer;
    timer.start();
    work();
    return double(timer.nsecsElapsed()) / 1e6;
}

static void report(const char *what, double plainMs, double oursMs)
{
    std::printf("%-44s %10.1f ms %10.1f ms %8.1f x\n", what, plainMs, oursMs, plainMs / oursMs);
}

static void report(const char *what, double ms)
{
    std::printf("%-44s %13s %10.1f ms\n", what, "", ms);
}

/// What a row costs without the row class: every text and the record stored in each item.
static void addPlainRows(QTreeWidget &tree, const QList<VAK::SignalItem> &records)
{
    for (const VAK::SignalItem &record : records) {
        auto *row = new QTreeWidgetItem;
        row->setText(0, record.name);
        row->setToolTip(0, record.name);
        row->setData(0, Qt::UserRole, QVariant::fromValue(record));
        tree.addTopLevelItem(row);
    }
    QCoreApplication::processEvents();
}

static void addRows(QTreeWidget &tree, const QList<VAK::SignalItem> &records)
{
    QList<QTreeWidgetItem *> rows;
    for (const VAK::SignalItem &record : records)
        rows.append(makeSignalRow(record));
    tree.addTopLevelItems(rows);
    QCoreApplication::processEvents();
}

static void benchResultRows()
{
    const QList<VAK::SignalItem> records = nets(100000);
    QTreeWidget plain;
    plain.show();
    QTreeWidget ours;
    ours.setUniformRowHeights(true);
    ours.show();
    QCoreApplication::processEvents();
    report("show 100 000 result rows", milliseconds([&] { addPlainRows(plain, records); }),
           milliseconds([&] { addRows(ours, records); }));
    report("clear them", milliseconds([&] { ours.clear(); }));
}

static void benchDeletion()
{
    const QList<VAK::SignalItem> records = nets(4096);
    signalTreeWidget plain;
    signalTreeWidget ours;
    for (signalTreeWidget *tree : {&plain, &ours}) {
        tree->insertSignals(0, records);
        tree->show();
        QCoreApplication::processEvents();
        tree->setCurrentItem(tree->topLevelItem(0));
        tree->selectAll();
    }
    report("delete 4096 selected rows", milliseconds([&] { qDeleteAll(plain.selectedItems()); }),
           milliseconds([&] { deleteTopLevelRows(&ours, ours.selectedItems()); }));
}

/// The user's operations on 4096 selected rows; nothing to compare with, the figure itself matters.
static void benchOperations()
{
    signalTreeWidget tree;
    tree.insertSignals(0, nets(4096));
    tree.updatePresentation();
    tree.show();
    QCoreApplication::processEvents();
    const auto run = [&tree](const char *what, void (signalTreeWidget::*slot)()) {
        tree.selectAll();
        report(what, milliseconds([&] {
                   (tree.*slot)();
                   QCoreApplication::processEvents();
               }));
    };
    run("disable 4096 rows", &signalTreeWidget::onDisable);
    run("enable 4096 rows", &signalTreeWidget::onEnable);
    run("restore the names of 4096 rows", &signalTreeWidget::onRestoreOrgName);
    run("group 4096 rows", &signalTreeWidget::onMerge);
    run("reverse a group of 4096", &signalTreeWidget::onReverse);
    run("ungroup 4096 rows", &signalTreeWidget::onSplit);
    report("merge 4096 known signals", milliseconds([&] { tree.mergeSignals(0, nets(4096)); }));
    report("colour pass over 4096 rows", milliseconds([&] { tree.updatePresentation(); }));
}

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    std::printf("%-44s %13s %13s %10s\n", "", "plain", "here", "faster");
    benchResultRows();
    benchDeletion();
    benchOperations();
    return 0;
}

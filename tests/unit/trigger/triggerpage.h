// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "trigger/triggeroptionwidget.h"

#include "tests/support/dialogdriver.h"
#include "tests/support/signalfixtures.h"
#include "tests/support/widgethelpers.h"

#include <VakUtils/aocore.h>

#include <QComboBox>
#include <QLabel>
#include <QListWidget>
#include <QTableView>
#include <QTreeWidget>

#include <memory>

/// Clicks token buttons of the next expression dialog and accepts it.
void composeExpression(support::DialogDriver &driver, const QStringList &buttons);
void cancelDialog(support::DialogDriver &driver);

/// A core and a trigger page on it. The core is to be set up before page() is called first.
class TriggerBench
{
public:
    TriggerBench();
    ~TriggerBench();

    VAK::AoCore core{0};
    std::unique_ptr<NETCATCHER::RtlNetlist> netlist;

    /// Shown at the size of the example views.
    RTLVAK::TriggerOptionWidget &page();
    template <typename T>
    T &child(const char *name)
    {
        return support::child<T>(page(), name);
    }
    QTreeWidget &ports() { return child<QTreeWidget>("treeTrigger"); }
    QTableView &units() { return child<QTableView>("tableMu"); }
    QListWidget &expressions() { return child<QListWidget>("listExpression"); }
    QComboBox &mode() { return child<QComboBox>("ModeComboBox"); }
    QComboBox &storage() { return child<QComboBox>("ImpleComboBox"); }
    QString usage() { return child<QLabel>("UsageValue").text(); }

    QStringList expressionTexts();
    /// The rows' colours: "black" or "grey".
    QStringList expressionColours();
    /// What a user does on the list of expressions.
    void askForMenu();
    void doubleClickEmptyPlace();
    void doubleClickExpression(int row);
    void doubleClickUnit(int row);
    void toggleUnit(int row);

private:
    std::unique_ptr<RTLVAK::TriggerOptionWidget> widget;
};

// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "plugin/vakinsexport.h"

#include <QUtility/ieventhandler.h>

#include <QWidget>

#include <memory>

class QListWidgetItem;
class QModelIndex;
class QTreeWidgetItem;

namespace NETCATCHER {
class RtlNetlist;
}
namespace VAK {
class AoCore;
class MatchUnitModel;
} // namespace VAK

namespace RTLVAK {

namespace Ui {
class TriggerOptionWidget;
}

/// The trigger side of one core's page: trigger ports, match units, expressions, mode and storage of the Dynamic
/// trigger. Ports and match units change in the core as soon as their dialogs are accepted; the rest waits for
/// applyToCore().
class VAKINS_EXPORT TriggerOptionWidget : public QWidget, private QUtil::IEventHandler
{
    Q_OBJECT

public:
    /// `core` and `netlist` are borrowed; `netlist` may be null.
    TriggerOptionWidget(VAK::AoCore *core, NETCATCHER::RtlNetlist *netlist, QWidget *parent = nullptr);
    ~TriggerOptionWidget() override;

    /// Writes expressions, mode and storage into the core; grey expressions are dropped for good.
    void applyToCore();
    /// Stores the netlist for the dialogs; null is allowed.
    void setRtlNetlist(NETCATCHER::RtlNetlist *newNetlist);
    /// Shows the signals that the core's ports have now.
    void refreshTriggerPorts();

    void handleIEvent(const QUtil::IEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

signals:
    /// The user changed something.
    void modified();

private slots:
    void editTrigger(QTreeWidgetItem *item, int column);
    void editMatchUnit(QModelIndex index);
    void showExpListContextMenu(QPoint pos);
    void editExpression(QListWidgetItem *item);
    void updateExpressionCheck();
    void updateMatchUnitNumber(bool isChecked);
    void onModeChange(QString text);
    void onImpleChange();

private:
    void setUpViews();
    void connectViews();
    void connectSettings();
    void showCoreMode();
    void fillImplementations();
    void rememberImplementation();
    void onImplementationIndexChanged(int index);
    void onImplementationActivated(int index);
    void updateUsage();
    bool isDynamic() const;
    void showDynamicSettings(bool shown);
    QString askForExpression();
    bool addExpression(const QString &refusalTitle);
    void removeSelectedExpressions();

    struct ImplementationChoice
    {
        int before = 0; ///< shown before the last change
        int shown = 0;
    };

    std::unique_ptr<Ui::TriggerOptionWidget> ui;
    VAK::AoCore *core;
    NETCATCHER::RtlNetlist *netlist;
    VAK::MatchUnitModel *matchUnits;
    ImplementationChoice implementationChoice;
};

} // namespace RTLVAK

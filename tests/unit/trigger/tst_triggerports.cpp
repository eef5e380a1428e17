// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "triggerpage.h"

#include "trigger/triggerportdialog.h"

#include "signals/signaltreewidget.h"

#include "tests/support/doubles.h"

#include <VakUtils/matchunit.h>
#include <VakUtils/matchunitdialog.h>
#include <VakUtils/triggerport.h>

#include <QHeaderView>
#include <QtTest>

class tst_TriggerPorts : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void portsAndTheirSignals();
    void portToolTipSaysHowManyInputsItHas();
    void missingTriggerSignalsAreRed();
    void portRowDoesNotExpandOnDoubleClick();
    void anyRowBelowAPortEditsThatPort_data();
    void anyRowBelowAPortEditsThatPort();
    void acceptedPortIsShownCurrentAndExpanded();
    void cancelledPortDialogChangesNothing();
    void refreshShowsWhatThePortsHaveNow();
    void matchUnitTable();
    void dynamicModeShowsTenUnits();
    void acceptedUnitWithAPortIsEnabled();
    void acceptedUnitWithoutAPortStaysAsItIs();
    void cancelledUnitDialogChangesNothing();
};

void tst_TriggerPorts::initTestCase()
{
    QCOMPARE(support::missingDoubles(), QString());
}

void tst_TriggerPorts::portsAndTheirSignals()
{
    TriggerBench bench;
    VAK::SignalItem renamed = single(QStringLiteral("clk"));
    renamed.displayName = QStringLiteral("my clock");
    bench.core.getTrigger(2)->setSignalNet({bus(QStringLiteral("data"), 2), renamed});
    QCOMPARE(bench.ports().topLevelItemCount(), 16);
    QCOMPARE(bench.ports().topLevelItem(0)->text(0), QStringLiteral("Trigger Port 0"));
    QCOMPARE(bench.ports().topLevelItem(15)->text(0), QStringLiteral("Trigger Port 15"));
    const QTreeWidgetItem *port = bench.ports().topLevelItem(2);
    QCOMPARE(port->type(), 1001);
    QCOMPARE(port->childCount(), 2);
    QCOMPARE(port->child(0)->type(), 1002);
    QCOMPARE(port->child(0)->child(1)->type(), 1002);
    QCOMPARE(port->child(0)->child(1)->text(0), QStringLiteral("data[0]"));
    QCOMPARE(port->child(1)->text(0), QStringLiteral("my clock"));
    QCOMPARE(port->child(1)->toolTip(0), QStringLiteral("my clock"));
    QVERIFY(port->child(1)->font(0).italic());
    QCOMPARE(port->child(1)->data(0, Qt::UserRole).value<VAK::SignalItem>(), renamed);
}

void tst_TriggerPorts::portToolTipSaysHowManyInputsItHas()
{
    TriggerBench bench;
    bench.core.getTrigger(2)->setSignalNet({bus(QStringLiteral("data"), 8), single(QStringLiteral("clk"))});
    QVERIFY(bench.ports().topLevelItem(2)->toolTip(0).contains(QStringLiteral("9")));
    QVERIFY(bench.ports().topLevelItem(3)->toolTip(0).contains(QStringLiteral("0")));
}

void tst_TriggerPorts::missingTriggerSignalsAreRed()
{
    TriggerBench bench;
    VAK::SignalItem gone = single(QStringLiteral("gone"));
    gone.present = false;
    VAK::SignalItem part = bus(QStringLiteral("data"), 2);
    part.members[1].present = false;
    bench.core.getTrigger(0)->setSignalNet({gone, part});
    const QTreeWidgetItem *port = bench.ports().topLevelItem(0);
    QCOMPARE(port->child(0)->foreground(0).color(), QColor(Qt::red));
    QCOMPARE(port->child(1)->foreground(0).color(), QColor(Qt::red)); // a bus without one of its bits
    QCOMPARE(port->child(1)->child(0)->foreground(0).color(), QColor(Qt::black));
    QCOMPARE(port->child(1)->child(1)->foreground(0).color(), QColor(Qt::red));
}

void tst_TriggerPorts::portRowDoesNotExpandOnDoubleClick()
{
    TriggerBench bench;
    QVERIFY(!bench.ports().expandsOnDoubleClick());
}

void tst_TriggerPorts::anyRowBelowAPortEditsThatPort_data()
{
    QTest::addColumn<int>("depth");
    QTest::newRow("the port") << 0;
    QTest::newRow("a signal") << 1;
    QTest::newRow("a bit of a bus") << 2;
}

void tst_TriggerPorts::anyRowBelowAPortEditsThatPort()
{
    QFETCH(int, depth);
    TriggerBench bench;
    bench.core.getTrigger(1)->setSignalNet({single(QStringLiteral("rst"))});
    bench.core.getTrigger(3)->setSignalNet({bus(QStringLiteral("data"), 2)});
    QTreeWidgetItem *row = bench.ports().topLevelItem(3);
    bench.ports().expandAll();
    for (int level = 0; level < depth; ++level)
        row = row->child(0);
    support::DialogDriver driver;
    QStringList shown;
    driver.answerDialogOf<RTLVAK::TriggerPortDialog>([&shown](RTLVAK::TriggerPortDialog &dialog) {
        shown = support::topTexts(support::child<QTreeWidget>(dialog, "treeWidget"));
        dialog.reject();
    });
    support::doubleClickItem(bench.ports(), row);
    QCOMPARE(shown, QStringList{QStringLiteral("data[1:0]")});
}

void tst_TriggerPorts::acceptedPortIsShownCurrentAndExpanded()
{
    TriggerBench bench;
    bench.core.getTrigger(4)->setSignalNet({single(QStringLiteral("rst"))});
    QTreeWidgetItem *port = bench.ports().topLevelItem(4);
    port->setExpanded(true);
    support::DialogDriver driver;
    driver.answerDialogOf<RTLVAK::TriggerPortDialog>([port, &bench](RTLVAK::TriggerPortDialog &dialog) {
        port->setExpanded(false);
        bench.ports().setCurrentItem(bench.ports().topLevelItem(0));
        support::child<RTLVAK::signalTreeWidget>(dialog, "treeWidget").appendSignal(single(QStringLiteral("clk")));
        dialog.accept();
    });
    support::doubleClickItem(bench.ports(), port->child(0));
    QCOMPARE(names(bench.core.getTrigger(4)->getSignalNet()),
             QStringList({QStringLiteral("rst"), QStringLiteral("clk")}));
    QCOMPARE(port->childCount(), 2);
    QCOMPARE(bench.ports().currentItem(), port);
    QVERIFY(port->isExpanded());
}

void tst_TriggerPorts::cancelledPortDialogChangesNothing()
{
    TriggerBench bench;
    bench.core.getTrigger(0)->setSignalNet({single(QStringLiteral("clk"))});
    QSignalSpy spy(&bench.page(), &RTLVAK::TriggerOptionWidget::modified);
    support::DialogDriver driver;
    cancelDialog(driver);
    support::doubleClickItem(bench.ports(), bench.ports().topLevelItem(0));
    QCOMPARE(spy.count(), 0);
    QVERIFY(!bench.ports().topLevelItem(0)->isExpanded());
}

void tst_TriggerPorts::refreshShowsWhatThePortsHaveNow()
{
    TriggerBench bench;
    bench.core.getTrigger(0)->setSignalNet({single(QStringLiteral("clk")), single(QStringLiteral("rst"))});
    bench.core.matchUnit(0)->setTriggerPort(bench.core.getTrigger(0));
    bench.ports().topLevelItem(0)->setExpanded(true);
    bench.core.getTrigger(0)->setSignalNet({single(QStringLiteral("spare"))});
    bench.page().refreshTriggerPorts();
    QCOMPARE(bench.ports().topLevelItemCount(), 16);
    QCOMPARE(bench.ports().topLevelItem(0)->childCount(), 1);
    QCOMPARE(bench.ports().topLevelItem(0)->child(0)->text(0), QStringLiteral("spare"));
    QCOMPARE(bench.units().model()->index(0, 1).data().toString(), QStringLiteral("spare"));
}

void tst_TriggerPorts::matchUnitTable()
{
    TriggerBench bench;
    QCOMPARE(bench.units().model()->rowCount(), 16);
    QVERIFY(bench.units().isColumnHidden(1));
    QVERIFY(!bench.units().isColumnHidden(0));
    QVERIFY(bench.units().verticalHeader()->isHidden());
    QVERIFY(!bench.units().horizontalHeader()->highlightSections());
    QCOMPARE(bench.units().selectionBehavior(), QAbstractItemView::SelectRows);
    QCOMPARE(bench.units().selectionMode(), QAbstractItemView::SingleSelection);
    QCOMPARE(bench.units().horizontalScrollMode(), QAbstractItemView::ScrollPerPixel);
}

void tst_TriggerPorts::dynamicModeShowsTenUnits()
{
    TriggerBench bench;
    bench.core.setTriggerMode(VAK::DynamicTrigger);
    QCOMPARE(bench.units().model()->rowCount(), 10);
    bench.mode().setCurrentIndex(0);
    QCOMPARE(bench.units().model()->rowCount(), 16);
    bench.mode().setCurrentIndex(1);
    QCOMPARE(bench.units().model()->rowCount(), 10);
    QCOMPARE(bench.units().model()->index(9, 0).data().toString(), QStringLiteral("M9"));
}

static void acceptUnit(support::DialogDriver &driver, const char *port)
{
    const QString text = QString::fromLatin1(port);
    driver.answerDialogOf<VAK::MatchUnitDialog>([text](VAK::MatchUnitDialog &dialog) {
        auto &ports = support::child<QComboBox>(dialog, "comboPort");
        for (int i = 0; i < ports.count(); ++i) {
            if (ports.itemText(i).startsWith(text))
                ports.setCurrentIndex(i);
        }
        dialog.accept();
    });
}

void tst_TriggerPorts::acceptedUnitWithAPortIsEnabled()
{
    TriggerBench bench;
    bench.core.getTrigger(0)->setSignalNet({bus(QStringLiteral("data"), 4)});
    bench.page();
    support::DialogDriver driver;
    acceptUnit(driver, "Trigger Port 0");
    bench.doubleClickUnit(5);
    QCOMPARE(bench.core.matchUnit(5)->triggerPort(), bench.core.getTrigger(0));
    QVERIFY(bench.core.matchUnit(5)->isEnabled());
    QCOMPARE(bench.units().model()->index(5, 0).data(Qt::CheckStateRole).toInt(), int(Qt::Checked));
    QVERIFY(bench.units().model()->index(5, 2).data().toString().contains(QStringLiteral("Trigger Port 0")));
}

void tst_TriggerPorts::acceptedUnitWithoutAPortStaysAsItIs()
{
    TriggerBench bench;
    QSignalSpy spy(&bench.page(), &RTLVAK::TriggerOptionWidget::modified);
    support::DialogDriver driver;
    acceptUnit(driver, "(none)");
    bench.doubleClickUnit(2);
    QVERIFY(!bench.core.matchUnit(2)->isEnabled());
    QCOMPARE(spy.count(), 1);
}

void tst_TriggerPorts::cancelledUnitDialogChangesNothing()
{
    TriggerBench bench;
    bench.core.matchUnit(1)->setTriggerPort(bench.core.getTrigger(0));
    QSignalSpy spy(&bench.page(), &RTLVAK::TriggerOptionWidget::modified);
    support::DialogDriver driver;
    cancelDialog(driver);
    bench.doubleClickUnit(1);
    QVERIFY(!bench.core.matchUnit(1)->isEnabled());
    QCOMPARE(spy.count(), 0);
}

QTEST_MAIN(tst_TriggerPorts)
#include "tst_triggerports.moc"

// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "capturepage.h"

#include "capture/aooptionwidget.h"
#include "trigger/triggeroptionwidget.h"

#include "tests/support/doubles.h"
#include "tests/support/receivers.h"
#include "tests/support/signallog.h"

#include <VakUtils/matchunit.h>
#include <VakUtils/triggerport.h>

#include <QCheckBox>
#include <QTreeWidget>
#include <QtTest>

#include <dlfcn.h>

using RTLVAK::AoOptionWidget;

static QStringList coreCalls;

template <typename Function>
static Function next(const char *symbol)
{
    return reinterpret_cast<Function>(dlsym(RTLD_NEXT, symbol));
}

// One setter of each side, to see in which order they reach the core.
void VAK::AoCore::setExpression(const QStringList &expressions)
{
    coreCalls.append(QStringLiteral("setExpression"));
    next<void (*)(AoCore *, const QStringList &)>("_ZN3VAK6AoCore13setExpressionERK11QStringList")(this, expressions);
}

void VAK::AoCore::setTriggerMode(int mode)
{
    coreCalls.append(QStringLiteral("setTriggerMode"));
    next<void (*)(AoCore *, int)>("_ZN3VAK6AoCore14setTriggerModeEi")(this, mode);
}

void VAK::AnalyzerCore::setSampleClock(const QString &name)
{
    coreCalls.append(QStringLiteral("setSampleClock"));
    next<void (*)(AnalyzerCore *, const QString &)>("_ZN3VAK12AnalyzerCore14setSampleClockERK7QString")(this, name);
}

void VAK::AnalyzerCore::setallCapSignal(const QList<SignalItem> &signalItems)
{
    coreCalls.append(QStringLiteral("setallCapSignal"));
    next<void (*)(AnalyzerCore *, const QList<SignalItem> &)>(
        "_ZN3VAK12AnalyzerCore15setallCapSignalERK5QListINS_10SignalItemEE")(this, signalItems);
}

class tst_AoOptionWidget : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void hasTwoTabs();
    void declaresOneSignalAndNoSlots();
    void relaysEveryModifiedOfItsTabs();
    void editingEitherTabEmitsOnce();
    void appliesTriggerSettingsBeforeCaptureSettings();
    void workingWithoutANetlist();
    void newNetlistRefreshesBothTabs();
    void knowsItsCore();
};

void tst_AoOptionWidget::initTestCase()
{
    QCOMPARE(support::missingDoubles(), QString());
}

void tst_AoOptionWidget::hasTwoTabs()
{
    VAK::AoCore core(0);
    const AoOptionWidget page(&core, nullptr);
    QCOMPARE(page.count(), 2);
    QCOMPARE(page.tabText(0), QStringLiteral("Trigger Options"));
    QCOMPARE(page.tabText(1), QStringLiteral("Capture Options"));
    QVERIFY(qobject_cast<RTLVAK::TriggerOptionWidget *>(page.widget(0)));
    QVERIFY(qobject_cast<RTLVAK::CaptureOptionWidget *>(page.widget(1)));
}

void tst_AoOptionWidget::declaresOneSignalAndNoSlots()
{
    QCOMPARE(support::ownMethods(AoOptionWidget::staticMetaObject), QStringList{QStringLiteral("modifed()")});
}

void tst_AoOptionWidget::relaysEveryModifiedOfItsTabs()
{
    VAK::AoCore core(0);
    AoOptionWidget page(&core, nullptr);
    support::SignalLog log;
    log.watch(&page, &AoOptionWidget::modifed, QStringLiteral("modifed"));
    for (int tab = 0; tab < 2; ++tab) {
        for (int i = 0; i < 3; ++i)
            QMetaObject::invokeMethod(page.widget(tab), "modified");
    }
    QCOMPARE(log.names().size(), 6);
}

void tst_AoOptionWidget::editingEitherTabEmitsOnce()
{
    VAK::AoCore core(0);
    AoOptionWidget page(&core, nullptr);
    support::SignalLog log;
    log.watch(&page, &AoOptionWidget::modifed, QStringLiteral("modifed"));
    support::child<QComboBox>(page, "ModeComboBox").setCurrentIndex(1);
    QCOMPARE(log.names().size(), 1);
    support::child<QCheckBox>(page, "chkBoxCaptureInitial").click();
    QCOMPARE(log.names().size(), 2);
}

void tst_AoOptionWidget::appliesTriggerSettingsBeforeCaptureSettings()
{
    VAK::AoCore core(0);
    AoOptionWidget page(&core, nullptr);
    coreCalls.clear();
    page.applyToCore();
    QCOMPARE(coreCalls, QStringList({QStringLiteral("setExpression"), QStringLiteral("setTriggerMode"),
                                     QStringLiteral("setSampleClock"), QStringLiteral("setallCapSignal")}));
}

void tst_AoOptionWidget::workingWithoutANetlist()
{
    VAK::AoCore core(0);
    core.setallCapSignal({single(QStringLiteral("clk"))});
    AoOptionWidget page(&core, nullptr);
    page.setRtlNetlist(nullptr);
    page.applyToCore();
    QCOMPARE(core.getallCapSignal(), QList<VAK::SignalItem>{single(QStringLiteral("clk"))});
}

void tst_AoOptionWidget::newNetlistRefreshesBothTabs()
{
    VAK::AoCore core(0);
    core.setallCapSignal({single(QStringLiteral("gone"))});
    core.getTrigger(1)->setSignalNet({single(QStringLiteral("gone")), single(QStringLiteral("clk"))});
    AoOptionWidget page(&core, nullptr);
    support::SignalLog log;
    log.watch(&page, &AoOptionWidget::modifed, QStringLiteral("modifed"));
    const auto netlist = makeDesign();
    page.setRtlNetlist(netlist.get());
    QTreeWidgetItem *port = support::child<QTreeWidget>(page, "treeTrigger").topLevelItem(1);
    QCOMPARE(port->child(0)->foreground(0).color(), QColor(Qt::red));
    QCOMPARE(port->child(1)->foreground(0).color(), QColor(Qt::black));
    QTreeWidgetItem *captured = support::child<QTreeWidget>(page, "treeWidgetCapSigs").topLevelItem(0);
    QCOMPARE(captured->foreground(0).color(), QColor(Qt::red));
    QCOMPARE(log.names(), QStringList());
}

void tst_AoOptionWidget::knowsItsCore()
{
    VAK::AoCore core(3);
    QCOMPARE(AoOptionWidget(&core, nullptr).core(), &core);
}

QTEST_MAIN(tst_AoOptionWidget)
#include "tst_aooptionwidget.moc"

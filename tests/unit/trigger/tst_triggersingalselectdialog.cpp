// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "trigger/triggersingalselectdialog.h"

#include "tests/support/dialogdriver.h"
#include "tests/support/doubles.h"
#include "tests/support/widgethelpers.h"

#include <VakUtils/aocore.h>
#include <VakUtils/triggerport.h>

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QTreeWidget>
#include <QtTest>

using RTLVAK::TriggerSingalSelectDialog;

static VAK::SignalItem single(const QString &name)
{
    VAK::SignalItem signalItem;
    signalItem.name = name;
    return signalItem;
}

static VAK::SignalItem bus(const QString &name, const QStringList &bits)
{
    VAK::SignalItem signalItem = single(name);
    signalItem.kind = 1;
    for (const QString &bit : bits)
        signalItem.members.append(single(bit));
    return signalItem;
}

static QList<QCheckBox *> checkBoxes(const QWidget &dialog)
{
    return dialog.findChildren<QCheckBox *>();
}

static QTreeWidget &preview(const QWidget &dialog)
{
    return *dialog.findChild<QTreeWidget *>();
}

/// Clicks OK or Cancel.
static void press(QDialog &dialog, QDialogButtonBox::StandardButton button)
{
    dialog.findChild<QDialogButtonBox *>()->button(button)->click();
}

class tst_TriggerSingalSelectDialog : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void titleAndPortNumbers();
    void nothingIsPreviewedAtFirst();
    void previewFollowsPortOrderNotClickOrder();
    void uncheckingRebuildsThePreview();
    void rowsAreBuiltLikeSignalRows();
    void okWithoutCheckBoxReturnsNothing();
    void cancelReturnsNothing();
    void okReturnsCopiesOfTheRecords();
    void sharedSignalsAppearTwice();
    void coreWithoutAvailablePortShowsNoCheckBoxes();
    void parentClosedUnderTheDialog();

private:
    std::unique_ptr<VAK::AoCore> core;
};

void tst_TriggerSingalSelectDialog::initTestCase()
{
    QCOMPARE(support::missingDoubles(), QString());
}

/// Ports 1 and 4 have signals, so that positions in the list and numbers differ.
void tst_TriggerSingalSelectDialog::init()
{
    core = std::make_unique<VAK::AoCore>(0);
    VAK::SignalItem renamed = single("u_core/halt");
    renamed.displayName = "stop";
    core->getTrigger(1)->setSignalNet({renamed, bus("u_core/pc[1:0]", {"u_core/pc[1]", "u_core/pc[0]"})});
    VAK::SignalItem unusable = single("pad");
    unusable.enabled = false;
    core->getTrigger(4)->setSignalNet({unusable, single("irq")});
}

void tst_TriggerSingalSelectDialog::titleAndPortNumbers()
{
    const TriggerSingalSelectDialog dialog(core->availableTriggers());
    QCOMPARE(dialog.windowTitle(), QString("Add From Trigger"));
    QCOMPARE(checkBoxes(dialog).size(), 2);
    QCOMPARE(checkBoxes(dialog).at(0)->text(), QString("Trigger Port 1"));
    QCOMPARE(checkBoxes(dialog).at(1)->text(), QString("Trigger Port 4"));
    QVERIFY(preview(dialog).isHeaderHidden());
    QCOMPARE(preview(dialog).textElideMode(), Qt::ElideMiddle);
}

void tst_TriggerSingalSelectDialog::nothingIsPreviewedAtFirst()
{
    const TriggerSingalSelectDialog dialog(core->availableTriggers());
    QCOMPARE(preview(dialog).topLevelItemCount(), 0);
}

void tst_TriggerSingalSelectDialog::previewFollowsPortOrderNotClickOrder()
{
    const TriggerSingalSelectDialog dialog(core->availableTriggers());
    checkBoxes(dialog).at(1)->click();
    checkBoxes(dialog).at(0)->click();
    QCOMPARE(support::topTexts(preview(dialog)), QStringList({"stop", "u_core/pc[1:0]", "pad", "irq"}));
}

void tst_TriggerSingalSelectDialog::uncheckingRebuildsThePreview()
{
    const TriggerSingalSelectDialog dialog(core->availableTriggers());
    checkBoxes(dialog).at(0)->click();
    checkBoxes(dialog).at(1)->click();
    checkBoxes(dialog).at(0)->click();
    QCOMPARE(support::topTexts(preview(dialog)), QStringList({"pad", "irq"}));
}

void tst_TriggerSingalSelectDialog::rowsAreBuiltLikeSignalRows()
{
    const TriggerSingalSelectDialog dialog(core->availableTriggers());
    checkBoxes(dialog).at(0)->click();
    checkBoxes(dialog).at(1)->click();

    const QTreeWidgetItem *renamed = preview(dialog).topLevelItem(0);
    QVERIFY(renamed->font(0).italic());
    QCOMPARE(renamed->data(0, Qt::UserRole).value<VAK::SignalItem>().name, QString("u_core/halt"));
    const QTreeWidgetItem *group = preview(dialog).topLevelItem(1);
    QCOMPARE(group->childCount(), 2);
    QCOMPARE(group->child(0)->text(0), QString("u_core/pc[1]"));
    const QTreeWidgetItem *unusable = preview(dialog).topLevelItem(2);
    QCOMPARE(unusable->foreground(0).color(), QColor(Qt::gray));
    QVERIFY(!(unusable->flags() & (Qt::ItemIsSelectable | Qt::ItemIsEnabled)));
}

void tst_TriggerSingalSelectDialog::okWithoutCheckBoxReturnsNothing()
{
    support::DialogDriver driver;
    driver.answerDialog([](QDialog &dialog) { press(dialog, QDialogButtonBox::Ok); });
    QVERIFY(TriggerSingalSelectDialog::selectSignals(core->availableTriggers(), nullptr).isEmpty());
}

void tst_TriggerSingalSelectDialog::cancelReturnsNothing()
{
    support::DialogDriver driver;
    driver.answerDialog([](QDialog &dialog) {
        checkBoxes(dialog).at(0)->click();
        press(dialog, QDialogButtonBox::Cancel);
    });
    QVERIFY(TriggerSingalSelectDialog::selectSignals(core->availableTriggers(), nullptr).isEmpty());
}

void tst_TriggerSingalSelectDialog::okReturnsCopiesOfTheRecords()
{
    support::DialogDriver driver;
    driver.answerDialog([](QDialog &dialog) {
        checkBoxes(dialog).at(0)->click();
        checkBoxes(dialog).at(1)->click();
        press(dialog, QDialogButtonBox::Ok);
    });
    const QList<VAK::SignalItem> expected = core->getTrigger(1)->getSignalNet() + core->getTrigger(4)->getSignalNet();
    QCOMPARE(TriggerSingalSelectDialog::selectSignals(core->availableTriggers(), nullptr), expected);
    QCOMPARE(core->getTrigger(1)->getSignalNet() + core->getTrigger(4)->getSignalNet(), expected);
}

void tst_TriggerSingalSelectDialog::sharedSignalsAppearTwice()
{
    core->getTrigger(4)->setSignalNet({single("u_core/halt")});
    support::DialogDriver driver;
    driver.answerDialog([](QDialog &dialog) {
        checkBoxes(dialog).at(0)->click();
        checkBoxes(dialog).at(1)->click();
        press(dialog, QDialogButtonBox::Ok);
    });
    const auto chosen = TriggerSingalSelectDialog::selectSignals(core->availableTriggers(), nullptr);
    QCOMPARE(chosen.size(), 3);
    QCOMPARE(chosen.first().name, chosen.last().name);
}

void tst_TriggerSingalSelectDialog::coreWithoutAvailablePortShowsNoCheckBoxes()
{
    const VAK::AoCore empty(1);
    const TriggerSingalSelectDialog dialog(empty.availableTriggers());
    QVERIFY(checkBoxes(dialog).isEmpty());
    QVERIFY(dialog.findChild<QLabel *>()->text().contains("No trigger port"));
}

void tst_TriggerSingalSelectDialog::parentClosedUnderTheDialog()
{
    auto *parent = new QWidget;
    support::DialogDriver driver;
    driver.answerDialog([parent](QDialog &dialog) {
        checkBoxes(dialog).at(0)->click();
        delete parent;
    });
    QVERIFY(TriggerSingalSelectDialog::selectSignals(core->availableTriggers(), parent).isEmpty());
}

QTEST_MAIN(tst_TriggerSingalSelectDialog)

#include "tst_triggersingalselectdialog.moc"
